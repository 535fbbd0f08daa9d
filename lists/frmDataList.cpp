#include "lists/frmDataList.h"

#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/FunctionWindows.h"
#include "core/session/Session.h"
#include "goods/LotListMenu.h"
#include "lists/ListTables.h"
#include "ui_frmDataList.h"

#include <algorithm>
#include <utility>

frmDataList::frmDataList(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmDataList>()),
      m_lotMenu(new LotListMenu(this, [this] { RefreshList(); }))
{
    ui->setupUi(this);
    setFocusProxy(ui->lvDataList);
    connect(ui->lvDataList, &ListGrid::RowChosen, this,
            [this](int row) { RunHandler([this, row] { EditRow(row); }); });
    connect(ui->lvDataList, &ListGrid::PopupAsked, this,
            [this](const QPoint& place) { RunHandler([this, place] { ShowPopup(place); }); });
}

frmDataList::~frmDataList() = default;

void frmDataList::OnLoad()
{
    Session::WindowSlotFree = false; // a record form may have freed the slot over the open list
    m_searchClause.clear();
    m_list = nullptr; // opened anew, it begins at the first row
    RefreshList();
}

void frmDataList::ShowPopup(const QPoint& globalPosition)
{
    const ListTable* list = ListToActOn();
    if (list && list->hasLotMenu)
        m_lotMenu->ShowAt(globalPosition);
}

void frmDataList::RefreshList()
{
    // The same list again, after a save for instance, stays on the row that the user was on.
    const bool isSameList = m_list && m_menuKey == Session::CurrentMenuKey;
    const QString selected = isSameList ? ui->lvDataList->SelectedKey() : QString();
    m_menuKey = Session::CurrentMenuKey;
    m_list = ListOf(m_menuKey);
    ui->lvDataList->ClearRows();
    ListContents contents = m_list ? ReadList(*m_list, m_searchClause) : ListContents();
    ShowColumns(contents.columns);
    ui->lvDataList->AddRows(std::move(contents.rows));
    SelectKey(selected);
}

void frmDataList::SelectKey(const QString& key)
{
    int row = 0;
    while (row < ui->lvDataList->RowCount() && ui->lvDataList->SubItem(row, 1) != key)
        ++row;
    ui->lvDataList->SelectRow(row < ui->lvDataList->RowCount() ? row : 0);
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
