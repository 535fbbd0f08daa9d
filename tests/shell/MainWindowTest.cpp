#include "app/StartProgram.h"
#include "core/common/Handlers.h"
#include "core/forms/FormWindow.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "printing/PrintQueue.h"
#include "shell/MenuTable.h"
#include "tests/support/WindowTest.h"

#include <QAction>
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
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// A list with three rows and a record of its refreshes, in place of the list windows.
class FakeList : public FormWindow {
public:
    explicit FakeList(QWidget* owner) : FormWindow(owner, SlotUse::Takes) {}
    void RefreshList() override { ++refreshes; }
    std::optional<QString> SelectedKey() const override { return key; }
    std::optional<QString> key = u"05"_s;
    int refreshes = 0;
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
        Windows().Register(u"frmDataList"_s, [](QWidget* owner) { return new FakeList(owner); });
        Windows().Register(u"frmUserList"_s, [](QWidget* owner) { return new FakeRecord(owner); });
    }

    void TearDown() override
    {
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

    FakeList* List() { return static_cast<FakeList*>(Windows().Find(u"frmDataList"_s)); }

    QMainWindow* m_frame = nullptr;
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
    EXPECT_EQ(statements.size(), 3 + 8 + 46 + 44) << "one query per menu control, one more per listed one";
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
    QStringList catalogue;
    for (const QStringList& row : Db().Rows(u"SELECT MenuName,MenuText FROM Menu_List ORDER BY MenuID"_s))
        catalogue << row.join(u' ');
    catalogue << u"menuHelp 帮助"_s << u"menuAbout 关于产品"_s;
    EXPECT_EQ(listed, catalogue);
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
    EXPECT_EQ(List(), nullptr);
}

TEST_F(MainWindow, AMenuChoiceSetsTheKeyChecksTheSessionAndOpensTheListInTheWorkArea)
{
    OpenFrame();
    Choose(u"menuSales"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT CheckID FROM User_Status WHERE UserID='01'"_s}));
    EXPECT_EQ(Session::CurrentMenuKey, u"Sales"_s);
    EXPECT_FALSE(Session::WindowSlotFree);
    ASSERT_NE(List(), nullptr);
    EXPECT_TRUE(m_frame->findChild<QMdiArea*>()->isAncestorOf(List()));
    EXPECT_TRUE(List()->isVisible());

    List()->close();
    Settle();
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
             {u"menuPackSort"_s, lists},
             {u"menuPRDList"_s,
              {u"mnuNew"_s, u"mnuPrint"_s, u"mnuEdit"_s, u"mnuSearch"_s, u"mnuDelete"_s}}}) {
        Choose(row.entry);
        EXPECT_EQ(EnabledButtons(), row.on + always) << row.entry.toStdString();
        List()->close();
        Settle();
    }
    Choose(u"menuAbout"_s);
    EXPECT_EQ(EnabledButtons(), always);
}

TEST_F(MainWindow, DepositReturnReportSwitchesDeleteOn)
{
    OpenFrame();
    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    Choose(u"menuRptForegift"_s);
    EXPECT_EQ(EnabledButtons(), (QStringList{u"mnuDelete"_s, u"mnuHelp"_s, u"mnuExit"_s}));
}

TEST_F(MainWindow, AWindowOfALaterReleaseSaysSoAndTakesNothing)
{
    OpenFrame();
    for (const QString& entry : {u"menuPackList"_s, u"menuEStore"_s, u"menuRptCheckOutDetail"_s}) {
        boxes.Expect(u"此功能在本版本中尚未提供。"_s);
        Choose(entry);
        EXPECT_TRUE(Session::WindowSlotFree) << entry.toStdString();
    }
}

TEST_F(MainWindow, BasicSettingsAndHelpLeaveTheKeyAndSalesStatisticsDoesNothing)
{
    OpenFrame();
    Choose(u"menuSales"_s);
    List()->close();
    Settle();
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
    EXPECT_EQ(List(), nullptr);
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
        ASSERT_NE(List(), nullptr);
        List()->close();
        Settle();
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

    Choose(u"menuUserList"_s);
    List()->key = std::nullopt;
    Choose(u"mnuEdit"_s);
    EXPECT_EQ(Windows().Find(u"frmUserList"_s), nullptr) << "an empty list";

    List()->key = u"07"_s;
    Choose(u"mnuEdit"_s);
    ASSERT_NE(Windows().Find(u"frmUserList"_s), nullptr);
    EXPECT_EQ(static_cast<FakeRecord*>(Windows().Find(u"frmUserList"_s))->key, u"07"_s);
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
    EXPECT_NE(List(), nullptr);
    Choose(u"menuSales"_s);
    EXPECT_EQ(Session::CurrentMenuKey, u"Sales"_s);
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
    TakeStatements();
    Choose(u"mnuDelete"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"DELETE FROM User_List WHERE UserID='05'"_s,
                                             u"DELETE FROM User_Menu WHERE UserID='05'"_s,
                                             u"DELETE FROM Count_Bill WHERE UID='05'"_s}));
    EXPECT_EQ(Count(u"User_List"_s, u"UserID='05'"_s), 0);
    EXPECT_EQ(Count(u"User_List"_s), 2);
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='06'"_s), 1);
    EXPECT_EQ(Count(u"Count_Bill"_s), 2);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(List()->refreshes, 1);
}

TEST_F(MainWindow, DeleteSendsTheStatementOfItsList)
{
    struct Row {
        QString entry;
        QStringList statements;
    };
    OpenFrame();
    for (const Row& row :
         std::initializer_list<Row>{{u"menuSales"_s, {u"DELETE FROM Sales WHERE SalesID='05'"_s}},
                                    {u"menuFeeType"_s, {u"DELETE FROM Fee_Type WHERE FeeID='05'"_s}},
                                    {u"menuPRDSort"_s, {u"DELETE FROM PRD_Sort WHERE SortID='05'"_s}},
                                    {u"menuCustList"_s, {u"DELETE FROM Cust_List WHERE CustName='05'"_s}},
                                    {u"menuPRDList"_s, {}}}) {
        Choose(row.entry);
        TakeStatements();
        Choose(u"mnuDelete"_s);
        EXPECT_EQ(TakeStatements(), row.statements);
        EXPECT_EQ(List()->refreshes, 1) << row.entry.toStdString();
        List()->close();
        Settle();
    }
}

TEST_F(MainWindow, DeletingACrateTypeAsksAndLeavesItsClosedLedgerRows)
{
    Db().Run(u"INSERT INTO DFN_Pack (PackNo,PackName) VALUES ('05','塑料筐'),('06','木箱');"
             "INSERT INTO Pack_List (PackNo,bolCheck) VALUES ('05','0'),('05','1'),('06','0')"_s);
    OpenFrame();
    Choose(u"menuPackSort"_s);
    boxes.ExpectQuestion(u"所有箱筐变更记录也将被一同删除，确定要删除吗？"_s, false);
    Choose(u"mnuDelete"_s);
    EXPECT_EQ(Count(u"DFN_Pack"_s), 2);
    EXPECT_EQ(Count(u"Pack_List"_s), 3);

    TakeStatements();
    boxes.ExpectQuestion(u"所有箱筐变更记录也将被一同删除，确定要删除吗？"_s, true);
    Choose(u"mnuDelete"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"DELETE FROM Pack_List WHERE PackNo='05' And bolCheck='0'"_s,
                                             u"DELETE FROM DFN_Pack WHERE PackNo='05'"_s}));
    EXPECT_EQ(Count(u"DFN_Pack"_s), 1);
    EXPECT_EQ(Count(u"Pack_List"_s, u"PackNo='05' AND bolCheck='1'"_s), 1);
    EXPECT_EQ(Count(u"Pack_List"_s), 2);
}

TEST_F(MainWindow, AFailedToolbarActionShowsTheServersWordsAndNoLogRow)
{
    Db().Run(u"INSERT INTO Sales VALUES ('05','甲')"_s);
    OpenFrame();
    Choose(u"menuSales"_s);
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Choose(u"mnuDelete"_s);
    EXPECT_EQ(Count(u"Sales"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(List()->refreshes, 0);
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
