#include "goods/frmDataList.h"

#include "core/base/Numbers.h"
#include "core/common/Formats.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/LotStock.h"
#include "core/forms/RecordForms.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "goods/ListTables.h"
#include "ui_frmDataList.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>

using namespace Qt::StringLiterals;

namespace {

const QString LotsKey = u"PRDList"_s;

/// The figures of the short form: what came, and what is left as the lot itself keeps it.
QStringList ShortFigures(const RecordSet& lot, const QString& lotId)
{
    const LotStock stock{.delivered = NullToZero(lot.Fields(5).Value), .added = SumAdded(lotId)};
    return {lot.Text(5), NumberText(stock.Arrived()), lot.Text(6)};
}

/// The figures of the detailed form, all from the movements.
QStringList DetailedFigures(const RecordSet& lot, const QString& lotId)
{
    LotStock stock = ReadStockChanges(lotId, NullToZero(lot.Fields(5).Value));
    stock.sold = SumSold(lotId);
    return {lot.Text(5),
            NumberText(stock.added),
            NumberText(stock.Arrived()),
            NumberText(stock.movedOut),
            NumberText(stock.lost),
            NumberText(stock.StayedForSale()),
            NumberText(stock.sold),
            NumberText(stock.Left())};
}

} // namespace

frmDataList::frmDataList(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmDataList>())
{
    ui->setupUi(this);
    setFocusProxy(ui->lvDataList);
    BuildPopup();
    ui->lvDataList->installEventFilter(this);
    ui->lvDataList->viewport()->installEventFilter(this);
    connect(ui->lvDataList, &ListGrid::RowChosen, this,
            [this](int row) { RunHandler([this, row] { EditRow(row); }); });
}

frmDataList::~frmDataList() = default;

void frmDataList::OnLoad()
{
    RefreshList();
}

void frmDataList::BuildPopup()
{
    m_popup = new QMenu(u"排序"_s, this);
    m_popup->setObjectName(u"mnuPop"_s);
    const auto add = [this](const QString& name, const QString& caption,
                            const std::function<void()>& action) {
        QAction* entry = m_popup->addAction(caption);
        entry->setObjectName(name);
        entry->setCheckable(true);
        connect(entry, &QAction::triggered, this, [action] { RunHandler(action); });
        return entry;
    };
    const auto addOrder = [this, &add](const QString& name, const QString& caption, const QString& order) {
        m_orders.emplace_back(add(name, caption, [this, order] { SetOrder(order); }), order);
    };
    addOrder(u"mnuOrderByPRDNo"_s, u"按编号排序"_s, u" Order By PRDNo"_s);
    addOrder(u"mnuOrderByPRDNo_S"_s, u"按快捷编号排序"_s, u" Order By PRDNo_S"_s);
    addOrder(u"mnuOrderByDate"_s, u"按到货日期排序"_s, u" Order By ID Desc"_s);
    m_popup->addSeparator();
    m_showStock = add(u"mnuShowEStore"_s, u"显示详细库存"_s, [this] {
        // The entry has been toggled by the choice.
        const QString flag = m_showStock->isChecked() ? u"1"_s : u"0"_s;
        Gateway().UpdateRows(u"Sys_Define"_s, u"bolShowEStore='"_s + flag + u"'"_s, QString());
        RefreshList();
    });
}

void frmDataList::ShowPopup(const QPoint& globalPosition)
{
    if (Session::CurrentMenuKey != LotsKey)
        return;
    const RecordSet settings = Gateway().SelectRows(u"Sys_Define"_s, u"PRD_Order,bolShowEStore"_s, QString());
    const QString order = settings.Text(0);
    for (const auto& [entry, text] : m_orders)
        entry->setChecked(text == order);
    m_showStock->setChecked(settings.Text(1) == u"1");
    m_popup->popup(globalPosition);
}

void frmDataList::SetOrder(const QString& order)
{
    Gateway().UpdateRows(u"Sys_Define"_s, u"PRD_Order='"_s + order + u"'"_s, QString());
    RefreshList();
}

bool frmDataList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ContextMenu) {
        // Some platforms send this for the menu key too, which the key press below has served already.
        const auto* request = static_cast<QContextMenuEvent*>(event);
        if (request->reason() == QContextMenuEvent::Mouse)
            RunHandler([this, position = request->globalPos()] { ShowPopup(position); });
        return true;
    }
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Menu ||
            (key->key() == Qt::Key_F10 && key->modifiers() == Qt::ShiftModifier)) {
            const QRect row = ui->lvDataList->RowRect(ui->lvDataList->CurrentRow());
            RunHandler([this, row] {
                ShowPopup(ui->lvDataList->viewport()->mapToGlobal(row.bottomLeft() + QPoint(40, 0)));
            });
            return true;
        }
    }
    return FormWindow::eventFilter(watched, event);
}

void frmDataList::RefreshList()
{
    ui->lvDataList->ClearRows();
    if (Session::CurrentMenuKey == LotsKey) {
        FillLots();
    } else if (const RecordTable* table = RecordTableOf(Session::CurrentMenuKey)) {
        FillRecords(*table);
    } else {
        ui->lvDataList->SetColumns({});
        m_layout.clear();
    }
    ui->lvDataList->SelectRow(0);
}

void frmDataList::ShowColumns(const QString& layout, const std::vector<SheetColumn>& columns)
{
    if (layout == m_layout)
        return;
    ui->lvDataList->SetColumns(columns);
    m_layout = layout;
}

void frmDataList::FillRecords(const RecordTable& table)
{
    RecordSet rows = Gateway().SelectRows(table.table, table.fields, table.order);
    ShowColumns(Session::CurrentMenuKey, table.columns);
    for (; !rows.Eof(); rows.MoveNext()) {
        QStringList texts;
        for (int i = 0; i < static_cast<int>(table.columns.size()); ++i) {
            const bool isFlag = table.columns[static_cast<std::size_t>(i)].kind == SheetColumn::Kind::Flag;
            texts << (isFlag ? CheckMark(rows.Text(i)) : rows.Text(i));
        }
        ui->lvDataList->AddRow(texts);
    }
}

void frmDataList::FillLots()
{
    const RecordSet settings = Gateway().SelectRows(u"Sys_Define"_s, u"PRD_Order,bolShowEStore"_s, QString());
    const bool detailed = settings.Text(1) == u"1";
    RecordSet lots = Gateway().SelectRows(
        u"PRD_List"_s,
        u"PRDNo,PRDNo_S,PRDName,CustName,CustInDate,Num,Num_Sal,MPercent,bolPack,bolFixed,ID"_s,
        u"bolCheckOut='0'"_s + m_searchClause + settings.Text(0));
    ShowColumns(detailed ? u"PRDList detailed"_s : u"PRDList"_s, LotColumns(detailed));
    for (; !lots.Eof(); lots.MoveNext()) {
        const QString lotId = lots.Text(10);
        QStringList texts;
        for (int i = 0; i <= 4; ++i)
            texts << lots.Text(i);
        texts << (detailed ? DetailedFigures(lots, lotId) : ShortFigures(lots, lotId));
        texts << lots.Text(7) << CheckMark(lots.Text(8)) << CheckMark(lots.Text(9));
        ui->lvDataList->AddRow(texts);
    }
}

std::optional<QString> frmDataList::SelectedKey() const
{
    if (ui->lvDataList->SelectedRow() < 0)
        return std::nullopt;
    return ui->lvDataList->SelectedKey();
}

void frmDataList::EditRow(int row)
{
    const QString key = ui->lvDataList->SubItem(row, 1);
    if (!key.isEmpty())
        EditRecord(Session::CurrentMenuKey, key);
}
