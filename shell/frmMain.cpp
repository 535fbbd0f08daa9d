#include "shell/frmMain.h"

#include "core/base/Clock.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/RecordForms.h"
#include "core/forms/Skin.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "core/session/SessionControl.h"
#include "printing/LotSlip.h"
#include "shell/MenuTable.h"
#include "shell/ToolbarIcons.h"
#include "shell/WorkArea.h"

#include <QAction>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// The buttons' positions step by two: a separator stands in front of each.
constexpr int FirstPosition = 2;
constexpr int PositionStep = 2;

constexpr std::array<int, 5> PanelShares{4, 5, 3, 2, 5};

/// Lists whose rows are made, changed and deleted from the toolbar.
bool HasRecordForm(const QString& menuKey)
{
    return !RecordFormOf(menuKey).isEmpty();
}

} // namespace

frmMain::frmMain(QWidget* owner) : QMainWindow(owner), m_workArea(new WorkArea(this))
{
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Orvane水果销售管理系统通用版"_s);
    ApplyWindowSkin(this);
    resize(1280, 700);
    m_workArea->setObjectName(u"WorkArea"_s);
    setCentralWidget(m_workArea);
    BuildMenus();
    BuildToolbar();
    BuildStatusBar();
}

frmMain::~frmMain() = default;

void frmMain::BuildMenus()
{
    int number = 0;
    for (const TopMenu& top : MenuBar()) {
        QMenu* menu = menuBar()->addMenu(top.caption);
        menu->setObjectName(top.control);
        menu->menuAction()->setObjectName(top.control);
        for (const MenuEntry& entry : top.entries) {
            QAction* action = menu->addAction(entry.caption);
            action->setObjectName(entry.control);
            connect(action, &QAction::triggered, this,
                    [this, &entry] { RunHandler([&] { Choose(entry); }); });
        }
        auto* open = new QShortcut(QKeySequence(u"Alt+%1"_s.arg(++number)), this);
        connect(open, &QShortcut::activated, menuBar(),
                [this, menu] { menuBar()->setActiveAction(menu->menuAction()); });
    }
}

void frmMain::BuildToolbar()
{
    QToolBar* toolbar = addToolBar(u"工具栏"_s);
    toolbar->setObjectName(u"ToolbarMenu"_s);
    toolbar->setMovable(false);
    toolbar->setContextMenuPolicy(Qt::PreventContextMenu);
    toolbar->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    for (const ToolbarButton& button : Toolbar()) {
        toolbar->addSeparator();
        QAction* action = toolbar->addAction(ToolbarIcon(button.key), button.toolTip);
        action->setObjectName(button.key);
        action->setToolTip(button.toolTip);
        if (!button.shortcut.isEmpty())
            action->setShortcut(QKeySequence(button.shortcut));
        connect(action, &QAction::triggered, this,
                [this, &button] { RunHandler([&] { PressToolbar(button.key); }); });
        m_buttons.insert(button.key, action);
    }
}

void frmMain::BuildStatusBar()
{
    statusBar()->setObjectName(u"StatusBarInfo"_s);
    statusBar()->setSizeGripEnabled(false);
    for (std::size_t i = 0; i < m_panels.size(); ++i) {
        m_panels[i] = new QLabel(statusBar());
        m_panels[i]->setObjectName(u"panel%1"_s.arg(i + 1));
        m_panels[i]->setTextFormat(Qt::PlainText);
        statusBar()->addWidget(m_panels[i], PanelShares[i]);
    }
}

void frmMain::OnLoad()
{
    ToldAfterwards([this] { m_workArea->SetCover(LoadCoverPicture()); });
    m_panels[1]->setText(GetCompName());
    m_panels[2]->setText(Session::CurrentUserName + u'[' + Session::CurrentUserID + u']');
    m_panels[3]->setText(FormatDate(Clock::Now().date()));
    m_panels[4]->setText(u"水果批发代销 · 收货 开票 结算"_s);
    StartSession();
    ApplyUserMenus();
    Session::WindowSlotFree = true;
    m_isLoaded = true;
}

void frmMain::Hold(Form* window)
{
    m_workArea->Hold(window);
}

void frmMain::ApplyUserMenus()
{
    QList<QAction*> entries;
    const auto tops = menuBar()->actions();
    for (QAction* top : tops)
        entries << top << top->menu()->actions();
    for (QAction* entry : std::as_const(entries)) {
        const RecordSet listed = Gateway().SelectRows(u"Menu_List"_s, u"MenuName"_s,
                                                      u"MenuName='"_s + entry->objectName() + u"'"_s);
        entry->setEnabled(listed.Eof() || HasMenuRight(Session::CurrentUserID, listed.Text(0).trimmed()));
    }
}

void frmMain::Choose(const MenuEntry& entry)
{
    if (entry.control == u"menuHelp") {
        ToolbarHelp();
        return;
    }
    if (entry.control == u"menuRptCustSale")
        return;
    if (!Session::WindowSlotFree) {
        ShowInfo(u"请先关闭上一窗口后再重新打开本菜单，谢谢！"_s);
        return;
    }
    if (!entry.key.isEmpty())
        Session::CurrentMenuKey = entry.key;
    ResetToolbar();
    if (m_isLoaded)
        OpenWindow(entry);
}

void frmMain::OpenWindow(const MenuEntry& entry)
{
    QString window = entry.window;
    if (entry.control == u"menuCheckOut" && Session::CheckOutStyle == u"1")
        window = u"frmCheckOutA"_s;
    if (entry.control == u"menuPRDList")
        EnableToolbar({8, 12});
    if (entry.control == u"menuRptForegift")
        EnableToolbar({14});
    if (entry.control == u"menuRptCheckOutDetail" && Windows().Knows(window))
        Session::WindowSlotFree = false;

    if (window != u"frmDataList") {
        ShowFunctionWindow(window);
    } else if (Form* list = Windows().Load(window, m_workArea)) {
        Hold(list);
    }
}

void frmMain::EnableToolbar(std::initializer_list<int> positions, bool enabled)
{
    for (const int position : positions) {
        const auto index = static_cast<std::size_t>((position - FirstPosition) / PositionStep);
        m_buttons.value(Toolbar().at(index).key)->setEnabled(enabled);
    }
}

void frmMain::ResetToolbar()
{
    EnableToolbar({2, 4, 6, 8, 10, 12, 14, 16}, false);
    if (!CheckSession()) {
        ShowInfo(u"同一用户不允许重复登录，仅最后一次登录的用户有效！程序将退出。"_s);
        ToolbarExit();
    }
    if (HasRecordForm(Session::CurrentMenuKey))
        EnableToolbar({2, 10, 14});
}

void frmMain::PressToolbar(const QString& key)
{
    m_panels[0]->setText(m_buttons.value(key)->toolTip());
    if (key == u"mnuNew")
        ToolbarNew();
    else if (key == u"mnuPrint")
        ToolbarPrint();
    else if (key == u"mnuEdit")
        ToolbarEdit();
    else if (key == u"mnuSearch")
        ToolbarSearch();
    else if (key == u"mnuDelete")
        ToolbarDelete();
    else if (key == u"mnuHelp")
        ToolbarHelp();
    else if (key == u"mnuExit")
        ToolbarExit();
    // mnuSave has no action. mnuPreview and mnuExport act on reports alone.
}

void frmMain::ToolbarNew()
{
    if (HasRecordForm(Session::CurrentMenuKey))
        ShowFunctionWindow(RecordFormOf(Session::CurrentMenuKey));
}

void frmMain::ToolbarPrint()
{
    if (Session::CurrentMenuKey != u"PRDList")
        return;
    const Form* list = Windows().Find(u"frmDataList"_s);
    if (const auto number = list ? list->SelectedKey() : std::nullopt)
        ReprintLotSlip(*number);
}

void frmMain::ToolbarEdit()
{
    const Form* list = Windows().Find(u"frmDataList"_s);
    if (const auto key = list ? list->SelectedKey() : std::nullopt)
        EditRecord(Session::CurrentMenuKey, *key);
}

void frmMain::ToolbarSearch()
{
    ShowFunctionWindow(Session::CurrentMenuKey == u"PRDList" ? u"frmSearchPRD"_s : u"frmSearchCond"_s);
}

void frmMain::ToolbarDelete()
{
    const bool isReport = Session::CurrentMenuKey == u"RptForegift";
    Form* list = Windows().Find(isReport ? u"frmReport"_s : u"frmDataList"_s);
    const auto key = list ? list->SelectedKey() : std::nullopt;
    if (!key)
        return;
    if (isReport)
        Gateway().DeleteRows(u"Foregift_RTN"_s, u"SalNo='"_s + *key + u"'"_s);
    else
        DeleteFromList(*key);
    list->RefreshList();
}

void frmMain::DeleteFromList(const QString& key)
{
    const QString menuKey = Session::CurrentMenuKey;
    const QString text = u"='"_s + key + u"'"_s;
    if (menuKey == u"UserList") {
        Gateway().DeleteRows(u"User_List"_s, u"UserID"_s + text);
        Gateway().DeleteRows(u"User_Menu"_s, u"UserID"_s + text);
        Gateway().DeleteRows(u"Count_Bill"_s, u"UID"_s + text);
    } else if (menuKey == u"Sales") {
        Gateway().DeleteRows(u"Sales"_s, u"SalesID"_s + text);
    } else if (menuKey == u"FeeType") {
        Gateway().DeleteRows(u"Fee_Type"_s, u"FeeID"_s + text);
    } else if (menuKey == u"PRDSort") {
        Gateway().DeleteRows(u"PRD_Sort"_s, u"SortID"_s + text);
    } else if (menuKey == u"CustList") {
        Gateway().DeleteRows(u"Cust_List"_s, u"CustName"_s + text);
    } else if (menuKey == u"PackSort") {
        if (!AskYesNo(u"所有箱筐变更记录也将被一同删除，确定要删除吗？"_s))
            return;
        Gateway().DeleteRows(u"Pack_List"_s, u"PackNo"_s + text + u" And bolCheck='0'"_s);
        Gateway().DeleteRows(u"DFN_Pack"_s, u"PackNo"_s + text);
    }
}

void frmMain::ToolbarHelp()
{
    const QString page = ProgramPath(u"\\Help\\index.htm"_s);
    if (!FileExists(page))
        ShowInfo(u"帮助文件未找到，请检查系统文件的完整性！"_s);
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(page)))
        ShowInfo(u"无法打开帮助文件，请用浏览器打开："_s + u"\r\n"_s + page);
}

void frmMain::ToolbarExit()
{
    close();
}

void frmMain::closeEvent(QCloseEvent* event)
{
    if (m_isLoaded) {
        bool leaves = false;
        RunHandler([&leaves] { leaves = AskYesNo(u"真的要退出系统吗？"_s); });
        if (!leaves) {
            event->ignore();
            return;
        }
        m_isLoaded = false;
        RunHandler([] { EndSession(); });
    }
    event->accept();
    Windows().Unloaded(this);
    DestroyWhenIdle(this);
}
