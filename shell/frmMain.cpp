#include "shell/frmMain.h"

#include "core/base/Clock.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/MenuTable.h"
#include "core/forms/Skin.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "core/session/SessionControl.h"
#include "lists/ListTables.h"
#include "shell/NumberedMenuBar.h"
#include "shell/ToolbarIcons.h"
#include "shell/ToolbarTable.h"
#include "shell/WorkArea.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScopeGuard>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<int, 5> PanelShares{4, 5, 3, 2, 5};

constexpr QSize UsualSize(1280, 700);
constexpr int TitleBar = 40; // pixels, at the most

/// What every list has.
const QStringList ListButtons{u"mnuNew"_s, u"mnuEdit"_s, u"mnuDelete"_s};

/// All but help and exit, which are always on.
const QStringList WorkButtons{u"mnuNew"_s,  u"mnuSave"_s,   u"mnuPreview"_s, u"mnuPrint"_s,
                              u"mnuEdit"_s, u"mnuSearch"_s, u"mnuDelete"_s,  u"mnuExport"_s};

bool IsReport(const QString& menuKey)
{
    return menuKey.startsWith(u"Rpt");
}

} // namespace

frmMain::frmMain(QWidget* owner) : QMainWindow(owner), m_workArea(new WorkArea(this))
{
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Orvane水果销售管理系统通用版"_s);
    ApplyWindowSkin(this);
    m_workArea->setObjectName(u"WorkArea"_s);
    setCentralWidget(m_workArea);
    BuildMenus();
    BuildToolbar();
    BuildStatusBar();
    FitToScreen();
}

frmMain::~frmMain() = default;

void frmMain::BuildMenus()
{
    auto* bar = new NumberedMenuBar(this);
    setMenuBar(bar);
    for (const TopMenu& top : MenuBar()) {
        QMenu* menu = bar->AddMenu(top.caption);
        menu->setObjectName(top.control);
        menu->menuAction()->setObjectName(top.control);
        for (const MenuEntry& entry : top.entries) {
            QAction* action = menu->addAction(entry.caption);
            action->setObjectName(entry.control);
            connect(action, &QAction::triggered, this,
                    [this, &entry] { RunHandler([&] { Choose(entry); }); });
        }
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
        action->setToolTip(button.shortcut.isEmpty() ? button.toolTip
                                                     : button.toolTip + u" ("_s + button.shortcut + u')');
        action->setShortcut(QKeySequence(button.shortcut));
        action->setAutoRepeat(false); // a key held down would go through a whole table
        connect(action, &QAction::triggered, this,
                [this, &button] { RunHandler([&] { PressToolbar(button); }); });
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
        // A long name is cut, rather than making the frame wider than the screen.
        m_panels[i]->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        statusBar()->addWidget(m_panels[i], PanelShares[i]);
    }
}

void frmMain::FitToScreen()
{
    const QSize available = screen()->availableSize();
    resize(UsualSize.boundedTo(available));
    // Only the desktop knows how much its title bar takes.
    if (available.width() < UsualSize.width() || available.height() < UsualSize.height() + TitleBar)
        setWindowState(Qt::WindowMaximized);
}

void frmMain::OnLoad()
{
    ToldAfterwards([this] { m_workArea->SetCover(LoadCoverPicture()); });
    m_panels[1]->setText(GetCompName());
    m_panels[1]->setToolTip(m_panels[1]->text()); // where there is no room for all of it
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
    m_lastButton.clear();
    ResetToolbar();
    if (m_isLoaded)
        OpenWindow(entry);
}

void frmMain::OpenWindow(const MenuEntry& entry)
{
    QString window = entry.window;
    if (entry.control == u"menuCheckOut")
        window = SettlementWindow();
    EnableToolbar(entry.buttons);
    if (entry.control == u"menuRptCheckOutDetail" && Windows().Knows(window))
        Session::WindowSlotFree = false;

    if (window != u"frmDataList")
        ShowFunctionWindow(window);
    else
        OpenListWindow(window);
}

void frmMain::OpenListWindow(const QString& window)
{
    const ListTable* list = ListOf(Session::CurrentMenuKey);
    if (!list || !list->IsProvided())
        TellNotProvided();
    else if (Form* open = Windows().LoadAnew(window, m_workArea))
        Hold(open);
}

bool frmMain::IsEntryEnabled(const QString& control) const
{
    const auto* entry = menuBar()->findChild<QAction*>(control);
    return entry && entry->isEnabled();
}

void frmMain::EnableToolbar(const QStringList& buttons, bool enabled)
{
    for (const QString& key : buttons)
        m_buttons.value(key)->setEnabled(enabled);
}

void frmMain::ResetToolbar()
{
    EnableToolbar(WorkButtons, false);
    if (!CheckSession()) {
        ShowInfo(u"同一用户不允许重复登录，仅最后一次登录的用户有效！程序将退出。"_s);
        ToolbarExit();
    }
    if (ListOf(Session::CurrentMenuKey))
        EnableToolbar(ListButtons);
}

void frmMain::PressToolbar(const ToolbarButton& button)
{
    if (IsSecondPress(button.key))
        return;
    // Counted from the end of the action: the second press of a double click waits until then.
    const auto remember = qScopeGuard([this] { m_sinceLastButton.start(); });
    m_panels[0]->setText(button.toolTip);
    Act(button);
}

/// True for a press that follows the last one of the same button as fast as a double click, or as a key that
/// is held down: nobody has seen yet what the first one did.
bool frmMain::IsSecondPress(const QString& key)
{
    const bool isSecond = key == m_lastButton && m_sinceLastButton.isValid() &&
                          m_sinceLastButton.elapsed() < QApplication::doubleClickInterval();
    m_lastButton = key;
    m_sinceLastButton.start();
    return isSecond;
}

void frmMain::Act(const ToolbarButton& button)
{
    if (button.key == u"mnuHelp") {
        ToolbarHelp();
    } else if (button.key == u"mnuExit") {
        ToolbarExit();
    } else if (button.action) {
        Form* window = IsReport(Session::CurrentMenuKey) ? Windows().Find(u"frmReport"_s) : OpenList();
        ((window ? window : this)->*button.action)();
    }
}

void frmMain::ToolbarNew()
{
    NewRecord(Session::CurrentMenuKey);
}

void frmMain::ToolbarSearch()
{
    OpenSearch(Session::CurrentMenuKey);
}

void frmMain::ToolbarHelp()
{
    const QString page = ProgramPath(u"\\Help\\index.htm"_s);
    if (!FileExists(page))
        ShowInfo(u"帮助文件未找到，请检查系统文件的完整性！"_s);
    else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(page)))
        ShowInfo(u"无法打开帮助文件，请用浏览器打开："_s + u"\r\n"_s + page);
}

void frmMain::ToolbarExit() // NOLINT(bugprone-virtual-near-miss)
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
