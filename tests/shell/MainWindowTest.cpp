#include "app/StartProgram.h"
#include "core/common/Handlers.h"
#include "core/forms/FormWindow.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/ListGrid.h"
#include "core/forms/MenuTable.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "printing/PrintQueue.h"
#include "settlement/frmCheckOut.h"
#include "settlement/frmCheckOutA.h"
#include "shell/ToolbarTable.h"
#include "tests/support/MenuCatalogue.h"
#include "tests/support/WindowTest.h"

#include <QAbstractItemModel>
#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPixmap>
#include <QScreen>
#include <QScrollBar>
#include <QTest>
#include <QToolBar>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// A report in the work area, which notes what the toolbar asks of it.
class FakeReport : public FormWindow {
public:
    explicit FakeReport(QWidget* owner) : FormWindow(owner, SlotUse::Takes) {}
    void OnLoad() override
    {
        ::EnableToolbar({u"mnuPreview"_s, u"mnuPrint"_s, u"mnuSearch"_s, u"mnuExport"_s});
    }
    void ToolbarNew() override { asked << u"new"_s; }
    void ToolbarPreview() override { asked << u"preview"_s; }
    void ToolbarPrint() override { asked << u"print"_s; }
    void ToolbarEdit() override { asked << u"edit"_s; }
    void ToolbarSearch() override { asked << u"search"_s; }
    void ToolbarDelete() override { asked << u"delete"_s; }
    void ToolbarExport() override { asked << u"export"_s; }
    QStringList asked;
};

/// An edit window that remembers the key it was given.
class FakeRecord : public FormWindow {
public:
    explicit FakeRecord(QWidget* owner) : FormWindow(owner, SlotUse::Takes) {}
    void SetKey(const QString& text) override { key = text; }
    QString key;
};

/// In place of the browser that shows the help page.
class Browser : public QObject {
    Q_OBJECT

public:
    QList<QUrl> shown;

public slots:
    void Show(const QUrl& page) { shown << page; }
};

class MainWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterWindows();
        SetPaperSizes(QList<PaperSize>{{u"A4"_s, 9}});
        QApplication::setDoubleClickInterval(0); // a test presses faster than any hand
        Windows().Register(u"frmUserList"_s, [](QWidget* owner) { return new FakeRecord(owner); });
    }

    void TearDown() override
    {
        QApplication::setDoubleClickInterval(m_doubleClick);
        SetPaperSizes(std::nullopt);
        WindowTest::TearDown();
    }

    QMainWindow* OpenFrame()
    {
        m_frame = static_cast<QMainWindow*>(Open(u"frmMain"_s));
        TakeStatements();
        return m_frame;
    }

    QAction* Entry(const QString& name)
    {
        auto* action = m_frame->findChild<QAction*>(name);
        EXPECT_NE(action, nullptr) << name.toStdString();
        return action;
    }

    void Choose(const QString& name)
    {
        Entry(name)->trigger();
        Settle();
    }

    QString Panel(int number) { return m_frame->findChild<QLabel*>(u"panel%1"_s.arg(number))->text(); }

    /// The toolbar's switched-on buttons, by key.
    QStringList EnabledButtons()
    {
        QStringList on;
        for (const ToolbarButton& button : Toolbar()) {
            if (Entry(button.key)->isEnabled())
                on << button.key;
        }
        return on;
    }

    /// The list window, nullptr while it is closed; its list.
    QWidget* ListWindow() { return OpenList() ? OpenList()->Widget() : nullptr; }
    ListGrid* List() { return Find<ListGrid>(u"frmDataList"_s, u"lvDataList"_s); }
    void CloseList()
    {
        ListWindow()->close();
        Settle();
    }
    QStringList Keys()
    {
        QStringList keys;
        for (int row = 0; row < List()->RowCount(); ++row)
            keys << List()->SubItem(row, 1);
        return keys;
    }
    QStringList Headers()
    {
        QStringList headers;
        const QAbstractItemModel* model = List()->model();
        for (int i = 1; i < model->columnCount(); ++i)
            headers << model->headerData(i, Qt::Horizontal).toString();
        return headers;
    }
    void SelectKey(const QString& key) { List()->SelectRow(static_cast<int>(Keys().indexOf(key))); }
    void FocusList()
    {
        List()->setFocus();
        Settle();
    }

    QMainWindow* m_frame = nullptr;

private:
    int m_doubleClick = QApplication::doubleClickInterval();
};

} // namespace

TEST_F(MainWindow, LoadWritesTheSessionRowBetweenTheCompanyNameAndTheRights)
{
    Db().Run(u"UPDATE Sys_Define SET CompName='绿野果品',Control_Sale='1',CheckOutStyle='1'"_s);
    Windows().Load(u"frmMain"_s, nullptr);
    const QStringList statements = TakeStatements();

    EXPECT_EQ(statements.mid(0, 4),
              (QStringList{u"SELECT CompName FROM Sys_Define"_s,
                           u"INSERT INTO User_Status (UserID,CheckID,LogDate,LogTime) VALUES "
                           "('01','100000','2026-03-09','10:00:00')"_s,
                           u"SELECT Control_Sale,CheckOutStyle FROM Sys_Define"_s,
                           u"SELECT MenuName FROM Menu_List WHERE MenuName='M01'"_s}));
    EXPECT_EQ(statements[4], u"SELECT MenuName FROM Menu_List WHERE MenuName='menuUserList'"_s);
    EXPECT_EQ(statements[5],
              u"SELECT MenuName FROM User_Menu WHERE UserID='01' And MenuName='menuUserList'"_s);
    EXPECT_EQ(statements.size(), 3 + TopMenuCount() + MenuEntryCount() + MenuCatalogue().size())
        << "one query per menu control, one more per listed one";
    EXPECT_EQ(Session::SaleStockControl, u"1"_s);
    EXPECT_EQ(Session::CheckOutStyle, u"1"_s);
    EXPECT_EQ(Session::PaperSizeCode, 9);
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(MainWindow, StatusBarShowsCompanyUserAndTheDateOfTheLoadForGood)
{
    Db().Run(u"UPDATE Sys_Define SET CompName='绿野果品'"_s);
    OpenFrame();
    EXPECT_EQ(m_frame->windowTitle(), u"Orvane水果销售管理系统通用版"_s);
    EXPECT_EQ(Panel(1), QString());
    EXPECT_EQ(Panel(2), u"绿野果品"_s);
    EXPECT_EQ(Panel(3), u"管理员[01]"_s);
    EXPECT_EQ(Panel(4), u"2026-03-09"_s);
    EXPECT_FALSE(Panel(5).isEmpty());

    SetClock(u"2026-03-10 00:00:01"_s);
    Choose(u"mnuSave"_s);
    EXPECT_EQ(Panel(4), u"2026-03-09"_s);
}

TEST_F(MainWindow, MenusStandInTheirOrderUnderTheirCaptions)
{
    OpenFrame();
    QStringList tops;
    QStringList listed;
    const auto actions = m_frame->menuBar()->actions();
    for (const QAction* top : actions) {
        tops << top->text();
        const auto entries = top->menu()->actions();
        for (const QAction* entry : entries)
            listed << entry->objectName() + u' ' + entry->text();
    }
    EXPECT_EQ(tops, (QStringList{u"基础资料"_s, u"货源箱筐"_s, u"销售收银"_s, u"销售结算"_s, u"费用管理"_s,
                                 u"查询分析"_s, u"设置维护"_s, u"系统帮助"_s}));
    EXPECT_EQ(listed, MenuCatalogue() + (QStringList{u"menuHelp 帮助"_s, u"menuAbout 关于产品"_s}));
}

TEST_F(MainWindow, AUserWithoutRightsSeesEveryListedEntryGreyedAndTheOthersOn)
{
    Db().Run(u"DELETE FROM User_Menu"_s);
    OpenFrame();
    for (const TopMenu& top : MenuBar()) {
        EXPECT_TRUE(Entry(top.control)->isEnabled());
        for (const MenuEntry& entry : top.entries) {
            const bool isListed = entry.control != u"menuHelp" && entry.control != u"menuAbout";
            EXPECT_EQ(Entry(entry.control)->isEnabled(), !isListed) << entry.control.toStdString();
            EXPECT_TRUE(Entry(entry.control)->isVisible());
        }
    }
}

TEST_F(MainWindow, AnEntryThatIsNotInTheCatalogueIsOnForEverybody)
{
    Db().Run(u"DELETE FROM User_Menu; DELETE FROM Menu_List WHERE MenuName='menuDataClear'"_s);
    OpenFrame();
    EXPECT_TRUE(Entry(u"menuDataClear"_s)->isEnabled());
    EXPECT_FALSE(Entry(u"menuBasePara"_s)->isEnabled());
}

TEST_F(MainWindow, RightsAreThoseOfTheLogonUntilTheNext)
{
    OpenFrame();
    Db().Run(u"DELETE FROM User_Menu"_s);
    Choose(u"mnuSave"_s);
    EXPECT_TRUE(Entry(u"menuSale"_s)->isEnabled());
}

TEST_F(MainWindow, AMenuChoiceOverAnOpenWindowIsRefusedWithoutSessionCheckOrKey)
{
    OpenFrame();
    Choose(u"menuAbout"_s);
    EXPECT_FALSE(Session::WindowSlotFree);
    TakeStatements();

    boxes.Expect(u"请先关闭上一窗口后再重新打开本菜单，谢谢！"_s);
    Choose(u"menuSales"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Session::CurrentMenuKey, u"About"_s);
    EXPECT_EQ(ListWindow(), nullptr);
}

TEST_F(MainWindow, AMenuChoiceSetsTheKeyChecksTheSessionAndOpensTheListInTheWorkArea)
{
    OpenFrame();
    Choose(u"menuSales"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT CheckID FROM User_Status WHERE UserID='01'"_s,
                                             u"SELECT SalesID,SalesName FROM Sales Order By SalesID"_s}));
    EXPECT_EQ(Session::CurrentMenuKey, u"Sales"_s);
    EXPECT_FALSE(Session::WindowSlotFree);
    ASSERT_NE(ListWindow(), nullptr);
    EXPECT_TRUE(m_frame->findChild<QMdiArea*>()->isAncestorOf(ListWindow()));
    EXPECT_TRUE(List()->isVisible());

    CloseList();
    EXPECT_TRUE(m_frame->findChild<QMdiArea*>()->subWindowList().isEmpty())
        << "the list's frame goes with it";
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(MainWindow, ToolbarFollowsTheFunction)
{
    OpenFrame();
    EXPECT_EQ(EnabledButtons().size(), 10) << "all on until the first menu choice";
    const QStringList always{u"mnuHelp"_s, u"mnuExit"_s};
    struct Row {
        QString entry;
        QStringList on;
    };
    const QStringList lists{u"mnuNew"_s, u"mnuEdit"_s, u"mnuDelete"_s};
    for (const Row& row : std::initializer_list<Row>{
             {u"menuUserList"_s, lists},
             {u"menuSales"_s, lists},
             {u"menuPRDSort"_s, lists},
             {u"menuCustList"_s, lists},
             {u"menuFeeType"_s, lists},
             {u"menuPRDList"_s,
              {u"mnuNew"_s, u"mnuPrint"_s, u"mnuEdit"_s, u"mnuSearch"_s, u"mnuDelete"_s}}}) {
        Choose(row.entry);
        EXPECT_EQ(EnabledButtons(), row.on + always) << row.entry.toStdString();
        CloseList();
    }
    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    Choose(u"menuPackSort"_s);
    EXPECT_EQ(EnabledButtons(), lists + always);
    Choose(u"menuAbout"_s);
    EXPECT_EQ(EnabledButtons(), always);
}

TEST_F(MainWindow, DepositReturnReportSwitchesDeleteOn)
{
    OpenFrame();
    Choose(u"menuRptForegift"_s);
    EXPECT_EQ(EnabledButtons(), (QStringList{u"mnuDelete"_s, u"mnuHelp"_s, u"mnuExit"_s}));
}

TEST_F(MainWindow, AReportsMenuEntryOpensItsConditionsWhichFreeTheSlotWhenCancelled)
{
    OpenFrame();
    for (const QString& report : {u"RptCheckOutDetail"_s, u"RptAmount"_s}) {
        Choose(u"menu"_s + report);
        ASSERT_NE(Windows().Find(u"frmSearchCond"_s), nullptr);
        EXPECT_FALSE(Session::WindowSlotFree);
        WaitFor([&report] { return FocusName().endsWith(u'_' + report.mid(3)); });
        Press(Qt::Key_Escape);
        EXPECT_EQ(Windows().Find(u"frmSearchCond"_s), nullptr);
        EXPECT_TRUE(Session::WindowSlotFree);
    }
}

TEST_F(MainWindow, SettlingOpensTheLayoutOfTheStallsStyle)
{
    Windows().Register(u"frmCheckOut"_s, [](QWidget* owner) { return new frmCheckOut(owner); });
    Windows().Register(u"frmCheckOutA"_s, [](QWidget* owner) { return new frmCheckOutA(owner); });
    OpenFrame();
    for (const QString& style : {u"0"_s, u"1"_s}) {
        Session::CheckOutStyle = style;
        Choose(u"menuCheckOut"_s);
        Form* open = Windows().Find(style == u"1" ? u"frmCheckOutA"_s : u"frmCheckOut"_s);
        ASSERT_NE(open, nullptr) << style.toStdString();
        EXPECT_EQ(Windows().Find(style == u"1" ? u"frmCheckOut"_s : u"frmCheckOutA"_s), nullptr);
        open->Widget()->close();
        Settle();
    }
}

TEST_F(MainWindow, AWindowOfALaterReleaseSaysSoAndTakesNothing)
{
    OpenFrame();
    for (const QString& entry : {u"menuPackSort"_s, u"menuPackList"_s, u"menuEStore"_s}) {
        boxes.Expect(u"此功能在本版本中尚未提供。"_s);
        Choose(entry);
        EXPECT_TRUE(Session::WindowSlotFree) << entry.toStdString();
        EXPECT_EQ(ListWindow(), nullptr);
    }
}

TEST_F(MainWindow, BasicSettingsAndHelpLeaveTheKeyAndSalesStatisticsDoesNothing)
{
    OpenFrame();
    Choose(u"menuSales"_s);
    CloseList();
    TakeStatements();
    Choose(u"menuBasePara"_s);
    EXPECT_NE(Windows().Find(u"frmParameter"_s), nullptr);
    EXPECT_EQ(Session::CurrentMenuKey, u"Sales"_s);
    EXPECT_EQ(EnabledButtons(),
              (QStringList{u"mnuNew"_s, u"mnuEdit"_s, u"mnuDelete"_s, u"mnuHelp"_s, u"mnuExit"_s}));

    TakeStatements();
    Choose(u"menuRptCustSale"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Session::CurrentMenuKey, u"Sales"_s);
}

TEST_F(MainWindow, HelpOpensThePageOfTheInstallationWhateverIsOpen)
{
    Browser browser;
    QDesktopServices::setUrlHandler(u"file"_s, &browser, "Show");
    QDir(ProgramFolder()).mkpath(u"Help"_s);
    WriteProgramFile(u"Help/index.htm"_s, u"<html></html>"_s);
    OpenFrame();
    Choose(u"menuAbout"_s);
    TakeStatements();
    Choose(u"menuHelp"_s);
    Choose(u"mnuHelp"_s);
    QDesktopServices::unsetUrlHandler(u"file"_s);

    const QUrl page = QUrl::fromLocalFile(ProgramFolder() + u"/Help/index.htm"_s);
    EXPECT_EQ(browser.shown, (QList<QUrl>{page, page}));
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Session::CurrentMenuKey, u"About"_s);
}

TEST_F(MainWindow, AMissingHelpPageIsTold)
{
    OpenFrame();
    boxes.Expect(u"帮助文件未找到，请检查系统文件的完整性！"_s);
    Choose(u"menuHelp"_s);
}

TEST_F(MainWindow, ADisplacedSessionIsToldAndLeavesWithoutTouchingTheLaterOne)
{
    OpenFrame();
    Db().Run(u"UPDATE User_Status SET CheckID='120000'"_s);
    boxes.Expect(u"同一用户不允许重复登录，仅最后一次登录的用户有效！程序将退出。"_s);
    boxes.ExpectQuestion(u"真的要退出系统吗？"_s, true);
    Choose(u"menuSales"_s);
    EXPECT_EQ(Windows().Find(u"frmMain"_s), nullptr);
    EXPECT_EQ(ListWindow(), nullptr);
    EXPECT_EQ(Db().Rows(u"SELECT UserID,CheckID FROM User_Status"_s),
              (std::vector<QStringList>{{u"01"_s, u"120000"_s}}));
}

TEST_F(MainWindow, ADisplacedUserWhoAnswersNoWorksOnAndMeetsTheSameWordsAgain)
{
    OpenFrame();
    Db().Run(u"DELETE FROM User_Status"_s);
    for (int i = 0; i < 2; ++i) {
        boxes.Expect(u"同一用户不允许重复登录，仅最后一次登录的用户有效！程序将退出。"_s);
        boxes.ExpectQuestion(u"真的要退出系统吗？"_s, false);
        Choose(u"menuSales"_s);
        ASSERT_NE(ListWindow(), nullptr);
        CloseList();
    }
    EXPECT_NE(Windows().Find(u"frmMain"_s), nullptr);
}

TEST_F(MainWindow, ClosingAsksAndOnlyYesEndsTheSession)
{
    OpenFrame();
    boxes.ExpectQuestion(u"真的要退出系统吗？"_s, false);
    Choose(u"mnuExit"_s);
    EXPECT_TRUE(m_frame->isVisible());
    EXPECT_EQ(Count(u"User_Status"_s), 1);
    EXPECT_EQ(TakeStatements(), QStringList());

    boxes.ExpectQuestion(u"真的要退出系统吗？"_s, true);
    m_frame->close();
    Settle();
    EXPECT_EQ(Windows().Find(u"frmMain"_s), nullptr);
    EXPECT_EQ(Count(u"User_Status"_s), 0);
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"DELETE FROM User_Status WHERE UserID='01' And CheckID='100000'"_s}));
    EXPECT_THROW(Gateway().SelectRows(u"Sys_Define"_s, u"CompName"_s, QString()), DatabaseError);
}

TEST_F(MainWindow, OpenWindowsGoWithTheFrameAndTheProcessHasNothingLeft)
{
    bool allGone = false;
    Windows().SetAllUnloadedHandler([&allGone] { allGone = true; });
    OpenFrame();
    Choose(u"menuAbout"_s);
    boxes.ExpectQuestion(u"真的要退出系统吗？"_s, true);
    m_frame->close();
    WaitFor([&allGone] { return allGone; });
    EXPECT_EQ(Windows().Find(u"frmAbout"_s), nullptr);
    Windows().SetAllUnloadedHandler(nullptr);
}

TEST_F(MainWindow, SavePressedChangesThePanelAndNothingElse)
{
    OpenFrame();
    Choose(u"mnuSave"_s);
    EXPECT_EQ(Panel(1), u"保存"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(EnabledButtons().size(), 10);
}

TEST_F(MainWindow, NewOpensTheRecordFormOfTheListAndNothingForStores)
{
    OpenFrame();
    Session::CurrentMenuKey = u"Store"_s;
    Choose(u"mnuNew"_s);
    EXPECT_EQ(Windows().Find(u"frmStore"_s), nullptr);

    Choose(u"menuUserList"_s);
    Choose(u"mnuNew"_s);
    EXPECT_NE(Windows().Find(u"frmUserList"_s), nullptr);
    EXPECT_EQ(Panel(1), u"新建"_s);
}

TEST_F(MainWindow, EditPutsTheSelectedKeyIntoTheRecordForm)
{
    OpenFrame();
    Choose(u"mnuEdit"_s);
    EXPECT_EQ(Windows().Find(u"frmUserList"_s), nullptr) << "no list is open";

    Choose(u"menuSales"_s);
    Choose(u"mnuEdit"_s);
    EXPECT_EQ(Windows().Find(u"frmSales"_s), nullptr) << "an empty list";
    CloseList();

    Db().Run(u"INSERT INTO User_List (UserID,UserName) VALUES ('07','甲')"_s);
    Choose(u"menuUserList"_s);
    SelectKey(u"07"_s);
    Choose(u"mnuEdit"_s);
    ASSERT_NE(Windows().Find(u"frmUserList"_s), nullptr);
    EXPECT_EQ(static_cast<FakeRecord*>(Windows().Find(u"frmUserList"_s))->key, u"07"_s);
}

TEST_F(MainWindow, NewAndSearchNeedNoOpenList)
{
    OpenFrame();
    Session::CurrentMenuKey = u"UserList"_s;
    Choose(u"mnuNew"_s);
    EXPECT_NE(Windows().Find(u"frmUserList"_s), nullptr);
    EXPECT_EQ(ListWindow(), nullptr);

    Session::CurrentMenuKey = u"PRDList"_s;
    Choose(u"mnuSearch"_s);
    EXPECT_NE(Windows().Find(u"frmSearchPRD"_s), nullptr);
    TakeStatements();
    for (const QString& key : {u"Sales"_s, QString(), u"RptForegift"_s}) {
        Session::CurrentMenuKey = key;
        Choose(u"mnuSearch"_s); // the conditions of a report, where there is one
        EXPECT_EQ(Windows().Find(u"frmSearchCond"_s) != nullptr, key == u"RptForegift") << key.toStdString();
    }
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(MainWindow, AReportIsAskedByTheToolbarAndSwitchesItsButtonsOn)
{
    Windows().Register(u"frmReport"_s, [](QWidget* owner) { return new FakeReport(owner); });
    OpenFrame();
    Choose(u"menuUserList"_s);
    CloseList();
    Choose(u"menuRptForegift"_s);
    Windows().Find(u"frmSearchCond"_s)->Widget()->close();
    Form* report = Windows().Load(u"frmReport"_s, m_frame);
    EXPECT_EQ(EnabledButtons(), (QStringList{u"mnuPreview"_s, u"mnuPrint"_s, u"mnuSearch"_s, u"mnuDelete"_s,
                                             u"mnuExport"_s, u"mnuHelp"_s, u"mnuExit"_s}));
    for (const ToolbarButton& button : Toolbar()) {
        if (button.action && Entry(button.key)->isEnabled())
            Choose(button.key);
    }
    EXPECT_EQ(static_cast<FakeReport*>(report)->asked,
              (QStringList{u"preview"_s, u"print"_s, u"search"_s, u"delete"_s, u"export"_s}));
    EXPECT_EQ(Count(u"User_List"_s), 1);
}

TEST_F(MainWindow, ButtonsStandAtTheirPositionsSeparatorsCounted)
{
    OpenFrame();
    const QList<QAction*> actions = m_frame->findChild<QToolBar*>(u"ToolbarMenu"_s)->actions();
    ASSERT_EQ(actions.size(), 20);
    for (const ToolbarButton& button : Toolbar()) {
        EXPECT_EQ(actions[button.position - 1], Entry(button.key)) << button.key.toStdString();
        EXPECT_TRUE(actions[button.position - 2]->isSeparator());
    }
}

TEST_F(MainWindow, ClosingARecordFormFreesTheSlotThoughItsListIsOpen)
{
    OpenFrame();
    Choose(u"menuUserList"_s);
    Choose(u"mnuNew"_s);
    EXPECT_FALSE(Session::WindowSlotFree);
    Windows().Find(u"frmUserList"_s)->Widget()->close();
    Settle();
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_NE(ListWindow(), nullptr);
    Choose(u"menuSales"_s);
    EXPECT_EQ(Session::CurrentMenuKey, u"Sales"_s);
}

TEST_F(MainWindow, AListChosenOverAnOpenOneIsOpenedAnew)
{
    Db().Run(u"INSERT INTO Fee_Type VALUES ('01','租金'),('02','水电');"
             "INSERT INTO User_List (UserID,UserName) VALUES ('02','小陈')"_s);
    OpenFrame();
    Choose(u"menuFeeType"_s);
    SelectKey(u"02"_s);
    Choose(u"mnuNew"_s);
    Windows().Find(u"frmFeeType"_s)->Widget()->close();
    Settle();
    ASSERT_TRUE(Session::WindowSlotFree);
    m_frame->activateWindow();
    TakeStatements();

    Choose(u"menuUserList"_s);
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT CheckID FROM User_Status WHERE UserID='01'"_s,
                           u"SELECT UserID,UserName,UserPWD,UserIP,bolIP FROM User_List Order By UserID"_s}));
    EXPECT_FALSE(Session::WindowSlotFree);
    EXPECT_EQ(Headers(),
              (QStringList{u"用户编号"_s, u"用户姓名"_s, u"用户密码"_s, u"用户IP"_s, u"IP管制"_s}));
    EXPECT_EQ(Keys(), (QStringList{u"01"_s, u"02"_s}));
    EXPECT_EQ(List()->SelectedKey(), u"01"_s) << "not the row that was selected before";
    EXPECT_EQ(FocusName(), u"lvDataList"_s);
    EXPECT_EQ(m_frame->findChild<QMdiArea*>()->subWindowList().size(), 1);

    boxes.Expect(u"请先关闭上一窗口后再重新打开本菜单，谢谢！"_s);
    Choose(u"menuSales"_s);
}

TEST_F(MainWindow, AListChosenAnewHasNoFilter)
{
    Db().Run(u"INSERT INTO PRD_List SET ID='20260301001',PRDNo='A-001',PRDName='苹果';"
             "INSERT INTO PRD_List SET ID='20260301002',PRDNo='B-001',PRDName='雪梨'"_s);
    OpenFrame();
    Choose(u"menuPRDList"_s);
    OpenList()->SetSearchClause(u" And PRDNo='B-001'"_s);
    RefreshOpenList();
    ASSERT_EQ(Keys(), QStringList{u"B-001"_s});
    Choose(u"mnuNew"_s);
    Windows().Find(u"frmPRDList"_s)->Widget()->close();
    Settle();
    Choose(u"menuPRDList"_s);
    EXPECT_EQ(Keys(), (QStringList{u"B-001"_s, u"A-001"_s}));
}

TEST_F(MainWindow, AListThatCannotBeReadAnewClosesAndFreesTheSlot)
{
    OpenFrame();
    Choose(u"menuUserList"_s);
    Choose(u"mnuNew"_s);
    Windows().Find(u"frmUserList"_s)->Widget()->close();
    Settle();
    FailStatement(2, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Choose(u"menuSales"_s);
    EXPECT_EQ(ListWindow(), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
    Choose(u"menuSales"_s);
    EXPECT_NE(ListWindow(), nullptr);
}

TEST_F(MainWindow, RowsOfAnotherListAreRefreshedInsteadOfActedOn)
{
    Db().Run(u"INSERT INTO Sales VALUES ('01','李秀兰');INSERT INTO Cust_List (CustName) VALUES ('01')"_s);
    OpenFrame();
    for (const QString& button : {u"mnuDelete"_s, u"mnuEdit"_s, u"Enter"_s}) {
        Choose(u"menuSales"_s);
        FocusList();
        Session::CurrentMenuKey = u"CustList"_s;
        TakeStatements();
        if (button == u"Enter")
            Press(Qt::Key_Return);
        else
            Choose(button);
        EXPECT_EQ(TakeStatements().size(), 1) << button.toStdString();
        EXPECT_EQ(Headers().value(0), u"客户名称"_s);
        EXPECT_EQ(Windows().Find(u"frmCustList"_s), nullptr);
        EXPECT_EQ(Windows().Find(u"frmSales"_s), nullptr);
        CloseList();
    }
    EXPECT_EQ(Count(u"Sales"_s), 1);
    EXPECT_EQ(Count(u"Cust_List"_s), 1);
}

TEST_F(MainWindow, DeletingAUserTakesRightsAndCountersAndNothingElse)
{
    Db().Run(u"INSERT INTO User_List (UserID,UserName) VALUES ('05','甲'),('06','乙');"
             "INSERT INTO User_Menu VALUES ('05','menuSale'),('06','menuSale');"
             "INSERT INTO Count_Bill VALUES "
             "('01','05','2026-03-09',3),('01','06','2026-03-09',4),('C01','','2026-03-09',2);"
             "INSERT INTO Sal_List (SalNo,Receiver) VALUES ('05260309001','05')"_s);
    OpenFrame();
    Choose(u"menuUserList"_s);
    SelectKey(u"05"_s);
    TakeStatements();
    Choose(u"mnuDelete"_s);
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{u"DELETE FROM User_List WHERE UserID='05'"_s,
                     u"DELETE FROM User_Menu WHERE UserID='05'"_s, u"DELETE FROM Count_Bill WHERE UID='05'"_s,
                     u"SELECT UserID,UserName,UserPWD,UserIP,bolIP FROM User_List Order By UserID"_s}));
    EXPECT_EQ(Count(u"User_List"_s, u"UserID='05'"_s), 0);
    EXPECT_EQ(Count(u"User_List"_s), 2);
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='06'"_s), 1);
    EXPECT_EQ(Count(u"Count_Bill"_s), 2);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(Keys(), (QStringList{u"01"_s, u"06"_s}));
}

TEST_F(MainWindow, DeleteSendsTheStatementOfItsListAndRebuildsIt)
{
    Db().Run(u"INSERT INTO Sales VALUES ('05','甲');INSERT INTO Fee_Type VALUES ('05','甲');"
             "INSERT INTO PRD_Sort VALUES ('05','甲',0);INSERT INTO Cust_List (CustName) VALUES ('05');"
             "INSERT INTO PRD_List SET ID='20260301001',PRDNo='05'"_s);
    struct Row {
        QString entry;
        QStringList statements;
        qsizetype rebuild; ///< statements of the rebuild
        QStringList left;
    };
    OpenFrame();
    for (const Row& row : std::initializer_list<Row>{
             {u"menuSales"_s, {u"DELETE FROM Sales WHERE SalesID='05'"_s}, 1, {}},
             {u"menuFeeType"_s, {u"DELETE FROM Fee_Type WHERE FeeID='05'"_s}, 1, {}},
             {u"menuPRDSort"_s, {u"DELETE FROM PRD_Sort WHERE SortID='05'"_s}, 1, {}},
             {u"menuCustList"_s, {u"DELETE FROM Cust_List WHERE CustName='05'"_s}, 1, {}},
             {u"menuPRDList"_s, {}, 3, {u"05"_s}}}) {
        Choose(row.entry);
        EXPECT_EQ(List()->SelectedKey(), u"05"_s);
        TakeStatements();
        Choose(u"mnuDelete"_s);
        const QStringList statements = TakeStatements();
        EXPECT_EQ(statements.mid(0, statements.size() - row.rebuild), row.statements);
        EXPECT_EQ(Keys(), row.left) << row.entry.toStdString();
        CloseList();
    }
}

TEST_F(MainWindow, AfterADeleteNothingIsSelectedAndOneArrowKeyReachesTheNextRow)
{
    Db().Run(u"INSERT INTO Sales VALUES ('01','甲'),('02','乙'),('03','丙'),('04','丁')"_s);
    OpenFrame();
    for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Up}) {
        Choose(u"menuSales"_s);
        FocusList();
        Press(Qt::Key_Down);
        Choose(u"mnuDelete"_s);
        EXPECT_EQ(List()->SelectedRow(), -1);
        EXPECT_EQ(FocusName(), u"lvDataList"_s);

        TakeStatements();
        Choose(u"mnuDelete"_s);
        Choose(u"mnuEdit"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(TakeStatements(), QStringList()) << "nothing is selected, so nothing is done";
        EXPECT_EQ(Windows().Find(u"frmSales"_s), nullptr);

        Press(arrow);
        EXPECT_EQ(List()->SelectedRow(), 1);
        EXPECT_EQ(List()->SelectedKey(), arrow == Qt::Key_Down ? u"03"_s : u"04"_s);
        CloseList();
    }
    EXPECT_EQ(Value(u"SELECT GROUP_CONCAT(SalesID ORDER BY SalesID) FROM Sales"_s), u"01,04"_s);

    Choose(u"menuSales"_s);
    SelectKey(u"04"_s);
    Choose(u"mnuDelete"_s);
    FocusList();
    Press(Qt::Key_Up);
    EXPECT_EQ(List()->SelectedKey(), u"01"_s) << "the last row was deleted: the one before is current";
}

TEST_F(MainWindow, AKeyHeldDownPressesAToolbarButtonOnce)
{
    Db().Run(u"INSERT INTO Sales VALUES ('01','甲'),('02','乙'),('03','丙')"_s);
    OpenFrame();
    Choose(u"menuSales"_s);
    FocusList();
    for (const ToolbarButton& button : Toolbar())
        EXPECT_FALSE(Entry(button.key)->autoRepeat()) << button.key.toStdString();
    Press(Qt::Key_D, Qt::ControlModifier);
    for (int i = 0; i < 5; ++i) {
        Press(Qt::Key_Down); // even with a row selected
        QTest::simulateEvent(QApplication::focusWidget(), true, Qt::Key_D, Qt::ControlModifier, QString(),
                             true);
        Settle();
    }
    EXPECT_EQ(Value(u"SELECT GROUP_CONCAT(SalesID ORDER BY SalesID) FROM Sales"_s), u"02,03"_s);
}

TEST_F(MainWindow, TheSecondPressOfADoubleClickIsIgnored)
{
    Db().Run(u"INSERT INTO Sales VALUES ('01','甲'),('02','乙'),('03','丙')"_s);
    OpenFrame();
    Choose(u"menuSales"_s);
    QApplication::setDoubleClickInterval(60000);
    QWidget* button = m_frame->findChild<QToolBar*>(u"ToolbarMenu"_s)->widgetForAction(Entry(u"mnuDelete"_s));
    Click(button);
    SelectKey(u"03"_s);
    DoubleClick(button);
    EXPECT_EQ(Count(u"Sales"_s), 2);

    Choose(u"mnuEdit"_s);
    EXPECT_NE(Windows().Find(u"frmSales"_s), nullptr) << "another button is not meant";
    Windows().Find(u"frmSales"_s)->Widget()->close();
    Settle();
    Choose(u"menuSales"_s);
    Choose(u"mnuEdit"_s);
    EXPECT_NE(Windows().Find(u"frmSales"_s), nullptr) << "nor a press after a menu choice";

    QApplication::setDoubleClickInterval(0);
    SelectKey(u"03"_s);
    Click(button);
    EXPECT_EQ(Count(u"Sales"_s), 1);
}

TEST_F(MainWindow, AFailedToolbarActionShowsTheServersWordsAndNoLogRow)
{
    Db().Run(u"INSERT INTO Sales VALUES ('05','甲')"_s);
    OpenFrame();
    Choose(u"menuSales"_s);
    TakeStatements();
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Choose(u"mnuDelete"_s);
    EXPECT_EQ(Count(u"Sales"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(TakeStatements().size(), 1) << "the list is not rebuilt";
    EXPECT_EQ(List()->SelectedKey(), u"05"_s);
}

TEST_F(MainWindow, AnErrorDuringTheLoadIsShownAndNothingStaysOpen)
{
    Db().Run(u"RENAME TABLE Menu_List TO Menu_List_away"_s);
    EXPECT_THROW(Windows().Load(u"frmMain"_s, nullptr), DatabaseError);
    Settle();
    EXPECT_EQ(Windows().Find(u"frmMain"_s), nullptr) << "and no question was asked";
}

TEST_F(MainWindow, TheBackgroundPictureShowsWhenItIsSwitchedOnAndThere)
{
    QPixmap picture(40, 30);
    picture.fill(Qt::red);
    ASSERT_TRUE(picture.save(ProgramFolder() + u"/cover.png"_s));
    const auto ground = [this] {
        OpenFrame();
        auto* area = m_frame->findChild<QMdiArea*>();
        const QColor colour =
            area->viewport()->grab().toImage().pixelColor(area->viewport()->rect().center());
        Windows().DropAll();
        return colour;
    };
    WriteProgramFile(u"Data/BCover.ini"_s,
                     u"[Pic]\nPicStatus=1\nFileName=%1/cover.png\n"_s.arg(ProgramFolder()));
    EXPECT_EQ(ground(), QColor(Qt::red));
    WriteProgramFile(u"Data/BCover.ini"_s,
                     u"[Pic]\nPicStatus=0\nFileName=%1/cover.png\n"_s.arg(ProgramFolder()));
    EXPECT_NE(ground(), QColor(Qt::red));
    WriteProgramFile(u"Data/BCover.ini"_s, u"[Pic]\nPicStatus=1\nFileName=nowhere.png\n"_s);
    EXPECT_NE(ground(), QColor(Qt::red));
}

TEST_F(MainWindow, TheFrameFitsTheScreenAndANameOfAnyLength)
{
    Db().Run(u"UPDATE Sys_Define SET CompName='%1'"_s.arg(QString(50, u'长')));
    OpenFrame();
    const QSize available = m_frame->screen()->availableSize();
    EXPECT_LE(m_frame->width(), available.width());
    EXPECT_LE(m_frame->height(), available.height());
    EXPECT_LE(m_frame->minimumSizeHint().width(), 640);
}

TEST_F(MainWindow, AWindowLargerThanTheWorkAreaScrolls)
{
    OpenFrame();
    Choose(u"menuUserList"_s);
    auto* area = m_frame->findChild<QMdiArea*>();
    EXPECT_FALSE(area->horizontalScrollBar()->isVisible());
    ListWindow()->setMinimumSize(area->width() + 200, area->height() + 100);
    ShowInFrame(OpenList());
    Settle();
    EXPECT_TRUE(area->horizontalScrollBar()->isVisible());
    EXPECT_TRUE(area->verticalScrollBar()->isVisible());
    EXPECT_GE(area->horizontalScrollBar()->maximum(), 200);
}

TEST_F(MainWindow, ToolTipsTellTheShortcutAndTheStatusBarTheButton)
{
    OpenFrame();
    EXPECT_EQ(Entry(u"mnuSave"_s)->toolTip(), u"保存"_s);
    EXPECT_EQ(Entry(u"mnuPrint"_s)->toolTip(), u"打印 (Ctrl+P)"_s);
    Choose(u"mnuPrint"_s);
    EXPECT_EQ(Panel(1), u"打印"_s);
}

TEST_F(MainWindow, EachMenuShowsItsKeyBehindItsCaption)
{
    OpenFrame();
    m_frame->showNormal();
    m_frame->resize(1024, 740);
    Choose(u"menuUserList"_s); // its window's buttons take their place beside the menus
    QMenuBar* bar = m_frame->menuBar();
    const QImage shown = bar->grab().toImage();
    const auto actions = bar->actions();
    for (const QAction* top : actions) {
        const QRect item = bar->actionGeometry(const_cast<QAction*>(top));
        ASSERT_TRUE(bar->rect().contains(item)) << top->text().toStdString();
        const int captionEnd = item.left() + 8 + bar->fontMetrics().horizontalAdvance(top->text()) + 2;
        bool isInked = false;
        for (int x = captionEnd; x < item.right(); ++x) {
            for (int y = item.top() + 4; y < item.bottom() - 4; ++y)
                isInked |= shown.pixelColor(x, y).lightness() < 160;
        }
        EXPECT_TRUE(isInked) << top->text().toStdString();
    }
}

TEST_F(MainWindow, EveryMenuOpensByKeyboard)
{
    OpenFrame();
    for (int i = 0; i < 8; ++i) {
        m_frame->setFocus();
        Press(static_cast<Qt::Key>(Qt::Key_1 + i), Qt::AltModifier);
        const QAction* active = m_frame->menuBar()->activeAction();
        ASSERT_NE(active, nullptr) << i;
        EXPECT_EQ(active->text(), MenuBar()[static_cast<std::size_t>(i)].caption);
        active->menu()->close();
        Settle();
    }
}

TEST_F(MainWindow, ABackgroundFileThatCannotBeReadIsNamedAndKeepsNobodyOut)
{
    QFile::remove(ProgramFolder() + u"/Data/BCover.ini"_s);
    ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, ProgramFolder() + u"/Data/BCover.ini"_s));
    boxes.ExpectContaining(u"无法读取文件："_s + ProgramFolder() + u"/Data/BCover.ini"_s);
    boxes.WhileOpen([] { EXPECT_NE(Windows().Find(u"frmMain"_s), nullptr); });
    RunHandler([] { Windows().Show(u"frmMain"_s, nullptr); });
    EXPECT_EQ(Count(u"User_Status"_s), 1);
}

TEST_F(MainWindow, AboutStartsTheFirstToolOfTheDesktopThatStarts)
{
    OpenFrame();
    Choose(u"menuAbout"_s);
    QWidget* about = Windows().Find(u"frmAbout"_s)->Widget();
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", ProgramFolder().toLocal8Bit());
    const auto make = [this](const QString& tool, const QString& text) {
        WriteProgramFile(tool, text);
        QFile::setPermissions(ProgramFolder() + u'/' + tool,
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    };
    make(u"hardinfo2"_s, u"no program"_s); // there, and not to be started
    boxes.Expect(u"此时系统信息不可用"_s);
    Click(about->findChild<QLabel*>(u"cmdSysInfo"_s));
    make(u"hardinfo"_s, u"#!/bin/sh\necho started >'%1/started'\n"_s.arg(ProgramFolder()));
    Click(about->findChild<QLabel*>(u"cmdSysInfo"_s));
    qputenv("PATH", path);
    WaitFor([this] { return QFile::exists(ProgramFolder() + u"/started"_s); });
}

TEST_F(MainWindow, AboutTellsTheVersionAndWhereNoToolIsFoundSaysSo)
{
    OpenFrame();
    Choose(u"menuAbout"_s);
    QWidget* about = Windows().Find(u"frmAbout"_s)->Widget();
    EXPECT_EQ(about->windowTitle(), u"关于产品"_s);
    EXPECT_EQ(about->findChild<QLabel*>(u"lblVersion"_s)->text(), u"版本：2.0"_s);
    const QByteArray path = qgetenv("PATH");
    qputenv("PATH", "");
    boxes.Expect(u"此时系统信息不可用"_s);
    Click(about->findChild<QLabel*>(u"cmdSysInfo"_s));
    qputenv("PATH", path);
    Click(about->findChild<QLabel*>(u"cmdOK"_s));
    EXPECT_EQ(Windows().Find(u"frmAbout"_s), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

#include "MainWindowTest.moc"
