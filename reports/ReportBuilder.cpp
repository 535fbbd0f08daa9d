#include "reports/ReportBuilder.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/base/RunTimeError.h"
#include "core/common/ColumnNames.h"
#include "core/common/Formats.h"
#include "core/common/Lookups.h"
#include "core/common/LotStock.h"
#include "core/common/ReportColumns.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "reports/AmountReport.h"
#include "reports/ReportDefinitions.h"
#include "reports/ReportPlaces.h"

#include <QDate>
#include <QHash>

#include <array>
#include <functional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr std::size_t BatchSize = 500; // rows a sink takes at a time

QString AmountText(double amount)
{
    return FormatAmount(amount, QString());
}

/// The text with what stands for each {name} in it. What is put in is not looked at again: a name of goods
/// may hold braces.
QString Filled(const QString& text, const std::function<QString(const QString&)>& valueOf)
{
    QString filled;
    qsizetype at = 0;
    for (qsizetype open = text.indexOf(u'{'); open >= 0; open = text.indexOf(u'{', at)) {
        const qsizetype close = text.indexOf(u'}', open);
        filled += text.mid(at, open - at) + valueOf(text.mid(open + 1, close - open - 1));
        at = close + 1;
    }
    return filled + text.mid(at);
}

/// Builds one report by its definition, row by row.
class Builder {
public:
    Builder(const ReportDefinition& definition, const ReportQuery& query, ReportSink& sink)
        : m_definition(definition), m_query(query), m_sink(sink),
          m_places(ColumnsOf(definition), query.normal), m_names(definition.fields)
    {
        for (const CellRange& range : definition.cells) {
            for (int position = range.first; position <= range.last; ++position)
                m_kinds[static_cast<std::size_t>(position)] = range.kind;
        }
        for (const QString& name :
             (definition.shows.isEmpty() ? definition.fields : definition.shows).split(u','))
            m_shown.push_back({name, definition.rows == RowsOf::Records ? m_names.At(name) : -1});
    }

    static QString ColumnsOf(const ReportDefinition& definition)
    {
        return definition.columns.isEmpty() ? definition.name : definition.columns;
    }

    bool Build()
    {
        const bool isWhole = BuildRows();
        if (isWhole && !(m_definition.totalsOnlyForOneKind && m_query.all))
            AddTotals();
        m_sink.TakeRows(std::exchange(m_batch, {}));
        return isWhole;
    }

private:
    struct ShownValue {
        QString name;
        int field; ///< of the record, -1 for a value that is none
    };

    bool BuildRows()
    {
        switch (m_definition.rows) {
        case RowsOf::Records:
            return BuildRecords();
        case RowsOf::Days:
            return BuildDays();
        case RowsOf::Key:
            break;
        }
        AddRow();
        return true;
    }

    bool BuildRecords()
    {
        const bool ofKey = !m_definition.whereWithKey.isEmpty() && !m_query.key.isEmpty();
        const bool adjusted = m_query.condition.getEditStatus && !m_definition.adjustedTable.isEmpty();
        m_record = Gateway().SelectRows(adjusted ? m_definition.adjustedTable : m_definition.table,
                                        (m_definition.distinct ? u"DISTINCT "_s : QString()) + m_names.Text(),
                                        Clause(ofKey ? m_definition.whereWithKey : m_definition.where));
        m_sink.Begin(ToInt16(m_record.RecordCount()));
        for (int done = 1; !m_record.Eof(); m_record.MoveNext(), ++done) {
            AddRow();
            if (!m_sink.Reach(done))
                return false;
        }
        return true;
    }

    bool BuildDays()
    {
        const QDate first = QDate::fromString(m_query.condition.startDate, Qt::ISODate);
        const QDate last = QDate::fromString(m_query.condition.endDate, Qt::ISODate);
        const int days =
            first.isValid() && last >= first ? ToInt16(static_cast<double>(first.daysTo(last)) + 1) : 0;
        m_sink.Begin(days);
        for (int done = 1; done <= days; ++done) {
            m_day = FormatDate(first.addDays(done - 1));
            AddRow();
            if (!m_sink.Reach(done))
                return false;
        }
        return true;
    }

    void AddRow()
    {
        m_position = 0;
        for (const ShownValue& shown : m_shown)
            AddValue(shown);
        if (!m_definition.sums.table.isEmpty() && !AddSums())
            return;
        for (const FigureQuery& figure : m_definition.further)
            AddAmount(SumField(figure.table, figure.fields, Clause(figure.where)));
        if (m_definition.hasStock)
            AddStock();
        for (const int id : m_definition.totals)
            m_totals[static_cast<std::size_t>(id)] += m_amounts[static_cast<std::size_t>(id)];
        if (m_places.IsEmpty())
            return;
        m_batch.push_back({m_places.Arrange(m_values), Sheet::RowKind::Record});
        if (m_batch.size() >= BatchSize)
            m_sink.TakeRows(std::exchange(m_batch, {}));
    }

    void AddValue(const ShownValue& shown)
    {
        const int position = m_position + 1;
        const Cell kind = m_kinds[static_cast<std::size_t>(position)];
        if (kind == Cell::Amount)
            AddAmount(NullToZero(m_record.Fields(shown.field).Value));
        else
            AddText(CellText(kind, shown.field < 0 ? ValueOf(shown.name) : m_record.Text(shown.field)));
    }

    QString CellText(Cell kind, const QString& value)
    {
        switch (kind) {
        case Cell::Mark:
            return CheckMark(value);
        case Cell::UserName:
            return UserName(value);
        case Cell::ChangeType:
            return StockChangeName(value);
        case Cell::PackType:
            return PackTypeName(value);
        case Cell::Text:
        case Cell::Amount:
            break;
        }
        return value;
    }

    QString UserName(const QString& userId)
    {
        const auto known = m_userNames.constFind(userId);
        return known != m_userNames.cend()
                   ? *known
                   : *m_userNames.insert(userId, GetUserField(u"UserID"_s, userId, u"UserName"_s));
    }

    /// False for a row that is not shown.
    bool AddSums()
    {
        const FigureQuery& query = m_definition.sums;
        const RecordSet sums = Gateway().SelectRows(query.table, query.fields, Clause(query.where));
        const auto count = static_cast<int>(query.fields.count(u','));
        const auto sum = [&sums](int field) { return sums.Eof() ? 0 : NullToZero(sums.Fields(field).Value); };
        if (m_definition.shown == Shown::WithCount && !(sum(count) > 0))
            return false;
        if (m_definition.shown == Shown::WithAmount && sum(0) == 0)
            return false;
        for (int field = 0; field <= count; ++field)
            AddAmount(sum(field));
        return true;
    }

    /// The stock sheet's figures of a lot: F2 to F9, from its F1.
    void AddStock()
    {
        const QString lot = ValueOf(u"ID"_s);
        const LotStock changes =
            ReadStockChanges(lot, NullToZero(m_record.Fields(m_names.At(u"Num"_s)).Value));
        const double soldToday =
            SumField(u"Sal_List"_s, u"Num"_s,
                     u"ID="_s + Quoted(lot) + u" And SaleDate="_s + Quoted(m_query.condition.startDate));
        LotStock stock = changes;
        stock.sold = SumSold(lot);
        for (const double figure : {stock.added, stock.Arrived(), stock.movedOut, stock.lost,
                                    stock.StayedForSale(), soldToday, stock.sold, stock.Left()})
            AddPlain(figure);
    }

    void AddText(const QString& text) { m_values[static_cast<std::size_t>(++m_position)] = text; }

    void AddAmount(double amount)
    {
        AddText(AmountText(amount));
        m_amounts[static_cast<std::size_t>(m_position)] = amount;
    }

    void AddPlain(double number)
    {
        AddText(NumberText(number));
        m_amounts[static_cast<std::size_t>(m_position)] = number;
    }

    void AddTotals()
    {
        m_batch.push_back({QStringList(), Sheet::RowKind::Spacer});
        Sheet::Row total{{u"总计"_s}, Sheet::RowKind::Total};
        const bool elsewhere = !m_definition.totalsPlacedBy.isEmpty();
        const ReportPlaces places =
            elsewhere ? ReportPlaces(m_definition.totalsPlacedBy, m_query.normal) : m_places;
        for (const int id : m_definition.totals) {
            const int place = places.PlaceOf(id);
            if (place == 0)
                continue;
            if (total.subItems.size() < place)
                total.subItems.resize(place);
            total.subItems[place - 1] = AmountText(m_totals[static_cast<std::size_t>(id)]);
        }
        m_batch.push_back(std::move(total));
    }

    QString Clause(const QString& text) const
    {
        return Filled(text, [this](const QString& name) { return ValueOf(name); });
    }

    /// What a name of a definition stands for at the present row.
    QString ValueOf(const QString& name) const
    {
        const ReportCondition& condition = m_query.condition;
        const bool isOpen = condition.searchCond.isEmpty();
        if (name == u"cond")
            return condition.searchCond;
        if (name == u"cond And ")
            return isOpen ? QString() : condition.searchCond + u" And "_s;
        if (name == u" And cond")
            return isOpen ? QString() : u" And "_s + condition.searchCond;
        if (name == u"day")
            return m_day;
        if (name == u"start")
            return condition.startDate;
        if (name == u"end")
            return condition.endDate;
        if (name == u"key")
            return m_query.key;
        if (name == u"id")
            return m_query.key.section(u'-', 0, 0);
        if (name == u"name")
            return m_query.key.section(u'-', 1, 1);
        return m_record.Text(m_names.At(name));
    }

    const ReportDefinition& m_definition;
    const ReportQuery& m_query;
    ReportSink& m_sink;
    ReportPlaces m_places;
    ColumnNames m_names;
    std::array<Cell, LastPosition + 2> m_kinds{};
    std::vector<ShownValue> m_shown;

    RecordSet m_record; ///< stands at the present row's record
    QString m_day;      ///< of the present row
    RowValues m_values;
    std::array<double, LastPosition + 1> m_amounts{}; ///< of the present row, at its positions
    int m_position = 0;                               ///< filled last
    std::array<double, LastPosition + 1> m_totals{};
    std::vector<Sheet::Row> m_batch;
    QHash<QString, QString> m_userNames; ///< looked up so far
};

} // namespace

ReportQuery ReportQuery::OfSession(const ReportCondition& condition, bool normal)
{
    return {.menuKey = Session::CurrentMenuKey,
            .kind = Session::ReportKind,
            .all = Session::ConditionAll,
            .key = Session::ConditionKey,
            .condition = condition,
            .normal = normal};
}

bool BuildReport(const ReportQuery& query, ReportSink& sink)
{
    std::vector<SheetColumn> columns = ReportColumns(query.menuKey, query.normal);
    if (query.menuKey == AmountReportKey) {
        sink.TakeColumns(AmountColumns());
        return BuildAmountReport(query.condition, sink);
    }
    const ReportDefinition* definition = DefinitionOf(query);
    if (definition && Builder::ColumnsOf(*definition) != query.menuKey)
        columns = ReportColumns(Builder::ColumnsOf(*definition), query.normal);
    sink.TakeColumns(std::move(columns));
    return !definition || Builder(*definition, query, sink).Build();
}
