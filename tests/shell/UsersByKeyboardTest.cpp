#include "app/StartProgram.h"
#include "core/forms/MenuTable.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/support/WindowTest.h"

#include <QAction>
#include <QApplication>
#include <QListWidget>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// The whole program from its logon on, worked with keys alone.
class UsersByKeyboard : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        SetClock(Value(u"SELECT CONCAT(CURDATE(),' 10:00:00')"_s));
        Gateway().CloseConnection();
        Session::Reset();
        RegisterWindows();
    }

    void LogOn(const QString& name, const QString& password)
    {
        StartProgram();
        BringUp(u"frmLogon"_s);
        Type(name);
        Press(Qt::Key_Return);
        Enter(u"txtUserPWD"_s, password);
        WaitFor([] { return Windows().Find(u"frmMain"_s) && !Windows().Find(u"frmSpash"_s); });
        BringUp(u"frmMain"_s);
    }
    void LogOff()
    {
        BringUp(u"frmMain"_s);
        boxes.ExpectQuestion(u"真的要退出系统吗？"_s, true);
        Press(Qt::Key_Q, Qt::ControlModifier);
        EXPECT_EQ(Windows().Find(u"frmMain"_s), nullptr);
    }
    /// What a window manager does: gives the keyboard to the window that has come up or was below.
    void BringUp(const QString& name)
    {
        WaitFor([&name] { return Windows().Find(name) && Windows().Find(name)->Widget()->isVisible(); });
        QWidget* window = Windows().Find(name)->Widget()->window();
        window->activateWindow();
        WaitFor([window] { return QApplication::activeWindow() == window; });
    }
    /// Alt+top opens the menu; Down walks to the entry; Enter.
    void Choose(int top, const QString& entry)
    {
        Press(static_cast<Qt::Key>(Qt::Key_0 + top), Qt::AltModifier);
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_NE(menu, nullptr);
        for (int i = 0; i < menu->actions().size() &&
                        !(menu->activeAction() && menu->activeAction()->objectName() == entry);
             ++i)
            QTest::keyClick(menu, Qt::Key_Down);
        ASSERT_NE(menu->activeAction(), nullptr);
        EXPECT_EQ(menu->activeAction()->objectName(), entry);
        QTest::keyClick(menu, Qt::Key_Return);
        Settle();
    }
    QStringList EntriesThatAreOn()
    {
        QStringList on;
        for (const TopMenu& top : MenuBar()) {
            for (const MenuEntry& entry : top.entries) {
                if (Windows().Find(u"frmMain"_s)->Widget()->findChild<QAction*>(entry.control)->isEnabled())
                    on << entry.control;
            }
        }
        return on;
    }
};

} // namespace

TEST_F(UsersByKeyboard, AManagerAddsACashierWithTheTillWhoLogsOnAndSeesOnlyThat)
{
    LogOn(u"管理员"_s, u"1"_s);
    Choose(1, u"menuUserList"_s);
    EXPECT_NE(Windows().Find(u"frmDataList"_s), nullptr);
    Press(Qt::Key_N, Qt::ControlModifier);
    BringUp(u"frmUserList"_s);
    Enter(u"txtUserID"_s, u"05"_s);
    Enter(u"txtUserName"_s, u"小陈"_s);
    Enter(u"txtUserPWD"_s, u"55"_s);
    Enter(u"txtUserIP"_s, QString());
    for (int i = 0; i < 3; ++i) // past the ticks: bound to no place, his own bills alone
        Press(Qt::Key_Return);
    EXPECT_EQ(
        Db().Rows(u"SELECT UserName,UserPWD,bolIP,bolSearch,bolEdit FROM User_List WHERE UserID='05'"_s),
        (std::vector<QStringList>{{u"小陈"_s, u"55"_s, u"0"_s, u"0"_s, u"0"_s}}));
    Press(Qt::Key_C, Qt::AltModifier);
    BringUp(u"frmMain"_s);
    EXPECT_TRUE(Session::WindowSlotFree);

    Choose(1, u"menuUserMenu"_s);
    BringUp(u"frmUserMenu"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    auto* lines = Find<QListWidget>(u"frmUserMenu"_s, u"lstMenuList"_s);
    for (int i = 0; i < lines->count() && lines->currentItem()->text() != u"收银开票"; ++i)
        Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Db().Rows(u"SELECT MenuName FROM User_Menu WHERE UserID='05'"_s),
              (std::vector<QStringList>{{u"menuSale"_s}}));
    Press(Qt::Key_C, Qt::AltModifier);
    LogOff();

    LogOn(u"小陈"_s, u"55"_s);
    EXPECT_EQ(EntriesThatAreOn(), (QStringList{u"menuSale"_s, u"menuHelp"_s, u"menuAbout"_s}));
    Choose(3, u"menuSale"_s);
    EXPECT_NE(Windows().Find(u"frmSale"_s), nullptr);
    EXPECT_EQ(Count(u"User_Status"_s, u"UserID='05'"_s), 1);
    BringUp(u"frmSale"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    LogOff();
    EXPECT_EQ(Count(u"User_Status"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(UsersByKeyboard, AUserIsOpenedFromTheListChangedAndTheListFollows)
{
    LogOn(u"管理员"_s, u"1"_s);
    Choose(1, u"menuUserList"_s);
    Press(Qt::Key_Return); // the first row
    BringUp(u"frmUserList"_s);
    EXPECT_EQ(TextOf(u"frmUserList"_s, u"txtUserName"_s), u"管理员"_s);
    Press(Qt::Key_Return);
    Enter(u"txtUserName"_s, u"老板"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Value(u"SELECT UserName FROM User_List"_s), u"老板"_s);
    EXPECT_EQ(TakeStatements().last(),
              u"SELECT UserID,UserName,UserPWD,UserIP,bolIP FROM User_List Order By UserID"_s);
}

TEST_F(UsersByKeyboard, TheListIsClosedByItsKey)
{
    LogOn(u"管理员"_s, u"1"_s);
    for (int i = 0; i < 2; ++i) {
        Choose(1, u"menuUserList"_s);
        EXPECT_NE(Windows().Find(u"frmDataList"_s), nullptr);
        Press(Qt::Key_F4, Qt::ControlModifier);
        EXPECT_EQ(Windows().Find(u"frmDataList"_s), nullptr);
        EXPECT_TRUE(Session::WindowSlotFree);
    }
    Press(Qt::Key_F4, Qt::ControlModifier); // nothing to close
    EXPECT_NE(Windows().Find(u"frmMain"_s), nullptr);
}

TEST_F(UsersByKeyboard, EachWindowIsReachedFromItsMenuEntry)
{
    LogOn(u"管理员"_s, u"1"_s);
    struct Case {
        int top;
        QString entry;
        QString window;
    };
    WriteProgramFile(u"Data/Table.ini"_s, u"[TableInfo]\nTableNum=0\n"_s);
    for (const Case& each : std::initializer_list<Case>{{1, u"menuUserMenu"_s, u"frmUserMenu"_s},
                                                        {1, u"menuChangePWD"_s, u"frmChangePWD"_s},
                                                        {7, u"menuDataClear"_s, u"frmDataClear"_s}}) {
        Choose(each.top, each.entry);
        BringUp(each.window);
        EXPECT_FALSE(Session::WindowSlotFree);
        Press(Qt::Key_C, Qt::AltModifier);
        EXPECT_EQ(Windows().Find(each.window), nullptr);
        EXPECT_TRUE(Session::WindowSlotFree);
        BringUp(u"frmMain"_s);
    }
}
