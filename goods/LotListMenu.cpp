#include "goods/LotListMenu.h"

#include "core/common/Handlers.h"
#include "core/gateway/DataGateway.h"
#include "goods/LotList.h"

using namespace Qt::StringLiterals;

LotListMenu::LotListMenu(QWidget* parent, std::function<void()> rebuild)
    : QMenu(u"排序"_s, parent), m_rebuild(std::move(rebuild))
{
    setObjectName(u"mnuPop"_s);
    AddOrder(u"mnuOrderByPRDNo"_s, u"按编号排序"_s, u" Order By PRDNo"_s);
    AddOrder(u"mnuOrderByPRDNo_S"_s, u"按快捷编号排序"_s, u" Order By PRDNo_S"_s);
    AddOrder(u"mnuOrderByDate"_s, u"按到货日期排序"_s, u" Order By ID Desc"_s);
    addSeparator();
    m_showStock = Add(u"mnuShowEStore"_s, u"显示详细库存"_s, [this] {
        // The entry has been toggled by the choice.
        Set(u"bolShowEStore="_s + Quoted(m_showStock->isChecked() ? u"1"_s : u"0"_s));
    });
}

QAction* LotListMenu::Add(const QString& name, const QString& caption, const std::function<void()>& choose)
{
    QAction* entry = addAction(caption);
    entry->setObjectName(name);
    entry->setCheckable(true);
    connect(entry, &QAction::triggered, this, [choose] { RunHandler(choose); });
    return entry;
}

void LotListMenu::AddOrder(const QString& name, const QString& caption, const QString& order)
{
    m_orders.emplace_back(Add(name, caption, [this, order] { Set(u"PRD_Order="_s + Quoted(order)); }), order);
}

void LotListMenu::ShowAt(const QPoint& globalPosition)
{
    const LotView view = ReadLotView();
    for (const auto& [entry, order] : m_orders)
        entry->setChecked(order == view.order);
    m_showStock->setChecked(view.isDetailed);
    popup(globalPosition);
}

void LotListMenu::Set(const QString& assignment)
{
    Gateway().UpdateRows(u"Sys_Define"_s, assignment, QString());
    m_rebuild();
}
