#include "lists/frmDataList.h"

#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/FunctionWindows.h"
#include "core/session/Session.h"
#include "goods/LotListMenu.h"
#include "lists/ListTables.h"
#include "ui_frmDataList.h"

#include <QContextMenuEvent>
#include <QKeyEvent>

#include <algorithm>
#include <utility>

frmDataList::frmDataList(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmDataList>()),
      m_lotMenu(new LotListMenu(this, [this] { RefreshList(); }))
{
    ui->setupUi(this);
    setFocusProxy(ui->lvDataList);
    ui->lvDataList->installEventFilter(this);
    ui->lvDataList->viewport()->installEventFilter(this);
    connect(ui->lvDataList, &ListGrid::RowChosen, this,
            [this](int row) { RunHandler([this, row] { EditRow(row); }); });
}

frmDataList::~frmDataList() = default;

void frmDataList::OnLoad()
{
    Session::WindowSlotFree = false; // a record form may have freed the slot over the open list
    m_searchClause.clear();
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

void frmDataList::ShowPopup(const QPoint& globalPosition)
{
    const ListTable* list = ListToActOn();
    if (list && list->hasLotMenu)
        m_lotMenu->ShowAt(globalPosition);
}

void frmDataList::RefreshList()
{
    m_menuKey = Session::CurrentMenuKey;
    m_list = ListOf(m_menuKey);
    ui->lvDataList->ClearRows();
    ListContents contents = m_list ? ReadList(*m_list, m_searchClause) : ListContents();
    ShowColumns(contents.columns);
    ui->lvDataList->AddRows(std::move(contents.rows));
    ui->lvDataList->SelectRow(0);
}

void frmDataList::ShowColumns(const std::vector<SheetColumn>& columns)
{
    if (columns == m_columns)
        return;
    ui->lvDataList->SetColumns(columns);
    m_columns = columns;
}

const ListTable* frmDataList::ListToActOn()
{
    if (m_menuKey == Session::CurrentMenuKey)
        return m_list;
    RefreshList();
    return nullptr;
}

void frmDataList::EditRow(int row)
{
    const QString key = ui->lvDataList->SubItem(row, 1);
    const ListTable* list = ListToActOn();
    if (list && !key.isEmpty())
        ShowRecord(list->editWindow, key);
}

void frmDataList::ToolbarNew()
{
    NewRecord(Session::CurrentMenuKey);
}

void frmDataList::ToolbarPrint()
{
    const ListTable* list = ListToActOn();
    if (list && list->print && ui->lvDataList->SelectedRow() >= 0)
        list->print(ui->lvDataList->SelectedKey());
}

void frmDataList::ToolbarEdit()
{
    const ListTable* list = ListToActOn();
    if (list && ui->lvDataList->SelectedRow() >= 0)
        ShowRecord(list->editWindow, ui->lvDataList->SelectedKey());
}

void frmDataList::ToolbarSearch()
{
    OpenSearch(Session::CurrentMenuKey);
}

void frmDataList::ToolbarDelete()
{
    const ListTable* list = ListToActOn();
    const int row = ui->lvDataList->SelectedRow();
    if (!list || row < 0)
        return;
    if (!list->deleteQuestion.isEmpty() && !AskBeforeDestroying(list->deleteQuestion))
        return;
    DeleteRecord(*list, ui->lvDataList->SelectedKey());
    RefreshList();
    // The next row has moved into the place. It is not the one that was meant: nothing is selected, so that a
    // second press deletes nothing; one arrow key selects it.
    if (!list->deletions.empty())
        ui->lvDataList->MakeCurrent(std::min(row, ui->lvDataList->RowCount() - 1));
}
