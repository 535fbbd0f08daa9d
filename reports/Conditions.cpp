#include "reports/Conditions.h"

#include "core/common/Formats.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// A text of a piece with what its control says.
QString Filled(const QString& pattern, const QString& text)
{
    return pattern.contains(u"%1") ? pattern.arg(text) : pattern;
}

bool Counts(const ConditionPiece& piece, const ConditionValues& values)
{
    if (!piece.onlyWith.isEmpty() && !values.Has(piece.onlyWith))
        return false;
    return piece.control.isEmpty() || values.Has(piece.control) != piece.whenEmpty;
}

/// The ID of the lot with this number: the open one, else any. Empty for none, which no row has.
QString LotOf(const QString& number)
{
    const QString byNumber = u"PRDNo="_s + Quoted(number);
    for (const QString& where : {byNumber + u" And bolCheckOut='0'"_s, byNumber}) {
        const RecordSet rows = Gateway().SelectRows(u"PRD_List"_s, u"ID"_s, where);
        if (!rows.Eof())
            return rows.Text(0);
    }
    return {};
}

QString DateClause(const QString& column, const ConditionValues& values)
{
    if (column.isEmpty())
        return {};
    return u'(' + column + u">="_s + Quoted(values.startDate) + u" And "_s + column + u"<="_s +
           Quoted(values.endDate) + u')';
}

ConditionChoice Plain(const QString& text)
{
    return {text, {text, text, text}};
}

/// A record with an id that is compared and a name that is told.
ConditionChoice WithId(const QString& id, const QString& between, const QString& name)
{
    return {id + between + name, {id, name, id}};
}

/// The key of a salesman is his number and name as the list shows them, parted at the dash; so the name ends
/// at the first dash of its own.
ConditionChoice Salesman(const QString& id, const QString& name)
{
    ConditionChoice salesman = WithId(id, u"-"_s, name);
    salesman.chosen.words = name.section(u'-', 0, 0);
    salesman.chosen.key = salesman.shown;
    return salesman;
}

/// Texts whose place in the list is the code that is stored.
ConditionChoices Coded(const QStringList& texts)
{
    ConditionChoices list;
    for (const QString& text : texts) {
        const QString code = QString::number(list.choices.size());
        list.choices.push_back({text, {code, text, code}});
    }
    return list;
}

template <typename Make>
ConditionChoices Read(const QString& table, const QString& fields, const QString& order, Make make)
{
    ConditionChoices list;
    for (RecordSet rows = Gateway().SelectRows(table, fields, order); !rows.Eof(); rows.MoveNext())
        list.choices.push_back(make(rows));
    return list;
}

ConditionChoice FirstField(const RecordSet& row)
{
    return Plain(row.Text(0));
}

ConditionChoices Cashiers()
{
    if (!UserSearchAll(Session::CurrentUserID))
        return {{WithId(Session::CurrentUserID, u"-"_s, Session::CurrentUserName)}, true};
    return Read(u"User_List"_s, u"UserID,UserName"_s, u" Order By UserID"_s,
                [](const RecordSet& row) { return WithId(row.Text(0), u"-"_s, row.Text(1)); });
}

ConditionChoices SaleTypes()
{
    QStringList names;
    for (RecordSet rows = Gateway().SelectRows(u"DFN_SaleType"_s, u"TypeName"_s, u" Order By TypeID"_s);
         !rows.Eof(); rows.MoveNext())
        names << rows.Text(0);
    return Coded(names);
}

} // namespace

void ComposedCondition::HandOver() const
{
    if (all)
        Session::ConditionAll = *all;
    if (key)
        Session::ConditionKey = *key;
    if (reportKind)
        Session::ReportKind = *reportKind;
    Session::ConditionCaption = caption;
}

QString GetSearchDate(const QString& startDate, const QString& endDate)
{
    return startDate == endDate ? startDate : startDate + u"至"_s + endDate;
}

std::optional<ConditionRefusal> RefusalOf(const ConditionFrame& frame, const ConditionValues& values)
{
    for (const ConditionCheck& check : frame.checks) {
        const bool isAsked = check.onlyWith.isEmpty() || values.Has(check.onlyWith);
        const bool isFilled = std::any_of(check.oneOf.begin(), check.oneOf.end(),
                                          [&values](const QString& control) { return values.Has(control); });
        if (isAsked && !isFilled)
            return ConditionRefusal{check.message, check.oneOf[0]};
    }
    return std::nullopt;
}

ComposedCondition Compose(const ConditionFrame& frame, const ConditionValues& values)
{
    ComposedCondition composed;
    ReportCondition& report = composed.report;
    report.startDate = values.startDate;
    report.endDate = values.endDate;
    report.searchCond = DateClause(frame.dateColumn, values);
    composed.caption = GetSearchDate(values.startDate, values.endDate);
    QString key;
    for (const ConditionPiece& piece : frame.pieces) {
        if (!Counts(piece, values))
            continue;
        const ChosenCondition chosen = values.filled.value(piece.control);
        report.searchCond += Filled(piece.clause, piece.looksUpLot ? LotOf(chosen.value) : chosen.value);
        composed.caption += Filled(piece.words, chosen.words);
        key += Filled(piece.key, chosen.key);
        if (!piece.reportKind.isEmpty())
            composed.reportKind = piece.reportKind;
        if (piece.readsCopies)
            report.getEditStatus = true;
        if (piece.isOneType)
            composed.all = false;
    }
    if (frame.setsKey) {
        composed.all = key.isEmpty();
        composed.key = key;
    }
    return composed;
}

ConditionChoices ReadChoices(Choices choices)
{
    switch (choices) {
    case Choices::None:
        return {};
    case Choices::Stores:
        return Read(u"Store"_s, u"Store"_s, QString(), FirstField);
    case Choices::ProductSorts:
        return Read(u"PRD_Sort"_s, u"SortName"_s, u" Order By SortID"_s, FirstField);
    case Choices::FeeTypes:
        return Read(u"Fee_Type"_s, u"FeeID,FeeName"_s, u" Order By FeeID"_s,
                    [](const RecordSet& row) { return WithId(row.Text(0), QString(), row.Text(1)); });
    case Choices::Salesmen:
        return Read(u"Sales"_s, u"SalesID,SalesName"_s, u" Order By SalesID"_s,
                    [](const RecordSet& row) { return Salesman(row.Text(0), row.Text(1)); });
    case Choices::Cashiers:
        return Cashiers();
    case Choices::SaleTypes:
        return SaleTypes();
    case Choices::CrateReturns:
        return Coded({u"未退箱"_s, u"已退箱"_s});
    case Choices::StockChanges:
        return Coded({StockChangeName(u"0"_s), StockChangeName(u"1"_s), StockChangeName(u"2"_s)});
    case Choices::CrateMoves:
        return Coded({PackTypeName(u"0"_s), PackTypeName(u"1"_s), PackTypeName(u"2"_s), PackTypeName(u"3"_s),
                      PackTypeName(u"4"_s)});
    }
    return {};
}
