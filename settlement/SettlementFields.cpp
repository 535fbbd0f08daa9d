#include "settlement/SettlementFields.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/Handlers.h"
#include "settlement/Settlement.h"

#include <QDate>
#include <QLineEdit>

#include <algorithm>
#include <variant>

using namespace Qt::StringLiterals;

namespace {

using Box = SettlementColumn::Box;

QLineEdit* BoxOf(const QWidget* form, const SettlementColumn& column)
{
    auto* box = form->findChild<QLineEdit*>(u"txt"_s + column.name);
    Q_ASSERT(box);
    return box;
}

QString TextFrom(const QString& shown, Box kind)
{
    switch (kind) {
    case Box::Trimmed:
        return shown.trimmed();
    case Box::BillNo:
        return StoredBillNo(shown);
    case Box::Date:
        return FormatDate(ReadLongDate(shown));
    case Box::Plain:
    case Box::None:
        break;
    }
    return shown;
}

QString TextShown(const QString& stored, Box kind)
{
    switch (kind) {
    case Box::BillNo:
        return u"NO."_s + stored;
    case Box::Date:
        return LongDate(QDate::fromString(stored, Qt::ISODate));
    case Box::Trimmed:
    case Box::Plain:
    case Box::None:
        break;
    }
    return stored;
}

void Show(QWidget* form, const Settlement& settlement, const SettlementColumn& column)
{
    if (column.box == Box::None)
        return;
    const auto* text = std::get_if<QString Settlement::*>(&column.member);
    WriteText(BoxOf(form, column),
              text ? TextShown(settlement.**text, column.box)
                   : NumberText(settlement.*std::get<double Settlement::*>(column.member)));
}

} // namespace

void ReadSettlementFields(const QWidget* form, Settlement& settlement)
{
    for (const SettlementColumn& column : SettlementColumns()) {
        if (column.box == Box::None)
            continue;
        const QString shown = BoxOf(form, column)->text();
        if (const auto* text = std::get_if<QString Settlement::*>(&column.member))
            settlement.** text = TextFrom(shown, column.box);
        else
            settlement.*std::get<double Settlement::*>(column.member) = RequiredNumber(shown);
    }
}

void ShowSettlementFields(QWidget* form, const Settlement& settlement)
{
    const auto& all = SettlementColumns();
    Show(form, settlement, *std::ranges::find(all, u"CheckNo"_s, &SettlementColumn::name));
    for (const SettlementColumn* column : ShownSettlementColumns())
        Show(form, settlement, *column);
}
