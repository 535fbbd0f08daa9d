#include "app/StartProgram.h"
#include "core/common/Lookups.h"
#include "core/forms/MenuTable.h"
#include "core/session/Session.h"
#include "tests/support/MenuCatalogue.h"
#include "tests/support/WindowTest.h"

#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QTest>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

const QString Window = u"frmUserMenu"_s;
const QString Users = u"SELECT UserID,UserName FROM User_List Order By UserID"_s;
const QString Catalogue = u"SELECT MenuText FROM Menu_List Order By MenuID"_s;
const QString Delete = u"DELETE FROM User_Menu WHERE UserID='%1'"_s;
const QString NameOf = u"SELECT MenuName FROM Menu_List WHERE MenuText='%1'"_s;
const QString RightOf = u"SELECT MenuName FROM User_Menu WHERE UserID='%1' And MenuName='%2'"_s;
const QString Insert = u"INSERT INTO User_Menu (UserID,MenuName) VALUES ('%1','%2')"_s;
const QString AllRights =
    u"SELECT UserID,MenuName FROM User_Menu WHERE UserID<>'01' ORDER BY UserID,MenuName"_s;
const int Entries = static_cast<int>(MenuCatalogue().size());

/// Three users; the catalogue is whole, or has three entries where a test counts statements.
class RightsWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterWindows();
        Db().Run(
            u"INSERT INTO User_List VALUES ('05','小陈','5','','0','0','0'),('06','小李','6','','0','0','0');"
            "INSERT INTO User_Menu VALUES ('06','menuSale'),('06','menuFee')"_s);
    }

    void ShortenCatalogue()
    {
        Db().Run(u"DELETE FROM Menu_List WHERE MenuName NOT IN ('menuSale','menuESale','menuFee')"_s);
    }
    void OpenWindow()
    {
        Open(Window);
        EXPECT_EQ(TakeStatements(), QStringList{Users});
    }

    QTreeWidget* Tree() { return Find<QTreeWidget>(Window, u"tvUserList"_s); }
    QListWidget* Lines() { return Find<QListWidget>(Window, u"lstMenuList"_s); }
    QString Heading() { return Find<QLabel>(Window, u"lblRights"_s)->text(); }
    QTreeWidgetItem* Node(const QString& name)
    {
        const auto nodes = Tree()->findItems(name, Qt::MatchExactly | Qt::MatchRecursive);
        EXPECT_EQ(nodes.size(), 1) << name.toStdString();
        return nodes.value(0);
    }
    void ClickNode(const QString& name)
    {
        const QPoint middle = Tree()->visualItemRect(Node(name)).center();
        QTest::mouseClick(Tree()->viewport(), Qt::LeftButton, Qt::NoModifier, middle);
        Settle();
    }
    QStringList Listed()
    {
        QStringList texts;
        for (int row = 0; row < Lines()->count(); ++row)
            texts << Lines()->item(row)->text();
        return texts;
    }
    QStringList Ticked()
    {
        QStringList texts;
        for (int row = 0; row < Lines()->count(); ++row) {
            if (Lines()->item(row)->checkState() == Qt::Checked)
                texts << Lines()->item(row)->text();
        }
        return texts;
    }
    void Tick(const QString& text, bool ticked = true)
    {
        const auto lines = Lines()->findItems(text, Qt::MatchExactly);
        ASSERT_FALSE(lines.isEmpty()) << text.toStdString();
        lines[0]->setCheckState(ticked ? Qt::Checked : Qt::Unchecked);
    }
    void Submit() { Press(Qt::Key_S, Qt::AltModifier); }
    std::vector<QStringList> Rights() { return Db().Rows(AllRights); }
};

} // namespace

TEST_F(RightsWindow, TheTreeHoldsTheUsersByNumberUnderOneRootAndNoRightsAreShownYet)
{
    OpenWindow();
    EXPECT_EQ(Windows().Find(Window)->Widget()->windowTitle(), u"用户权限"_s);
    EXPECT_EQ(Tree()->topLevelItemCount(), 1);
    const QTreeWidgetItem* root = Tree()->topLevelItem(0);
    EXPECT_EQ(root->text(0), u"所有用户"_s);
    EXPECT_EQ(root->data(0, Qt::UserRole).toString(), u"Root"_s);
    EXPECT_TRUE(root->isExpanded());
    QStringList users;
    for (int i = 0; i < root->childCount(); ++i)
        users << root->child(i)->data(0, Qt::UserRole).toString() + root->child(i)->text(0);
    EXPECT_EQ(users, (QStringList{u"UID01管理员"_s, u"UID05小陈"_s, u"UID06小李"_s}));
    EXPECT_EQ(Listed(), QStringList());
    EXPECT_EQ(FocusName(), u"tvUserList"_s);
}

TEST_F(RightsWindow, ClickingAUserListsTheCatalogueAndTicksHisRights)
{
    ShortenCatalogue();
    OpenWindow();
    ClickNode(u"小李"_s);
    EXPECT_EQ(TakeStatements(),
              (QStringList{Catalogue, NameOf.arg(u"收银开票"_s), RightOf.arg(u"06"_s, u"menuSale"_s),
                           NameOf.arg(u"收银调整"_s), RightOf.arg(u"06"_s, u"menuESale"_s),
                           NameOf.arg(u"费用登记"_s), RightOf.arg(u"06"_s, u"menuFee"_s)}));
    EXPECT_EQ(Listed(), (QStringList{u"收银开票"_s, u"收银调整"_s, u"费用登记"_s}));
    EXPECT_EQ(Ticked(), (QStringList{u"收银开票"_s, u"费用登记"_s}));
    EXPECT_EQ(Heading(), u"小李 的权限"_s);

    ClickNode(u"小陈"_s);
    EXPECT_EQ(Listed().size(), 3);
    EXPECT_EQ(Ticked(), QStringList());
}

TEST_F(RightsWindow, ASecondClickOnTheSameUserReadsHisRightsAgain)
{
    OpenWindow();
    ClickNode(u"小陈"_s);
    Tick(u"收银开票"_s);
    EXPECT_EQ(Heading(), u"小陈 的权限（未保存）"_s);
    ClickNode(u"小陈"_s);
    EXPECT_EQ(Ticked(), QStringList());
    EXPECT_EQ(Heading(), u"小陈 的权限"_s);
    EXPECT_EQ(Listed().size(), Entries);
}

TEST_F(RightsWindow, MovingThroughTheTreeWithTheArrowsDoesWhatAClickDoes)
{
    ShortenCatalogue();
    OpenWindow();
    Press(Qt::Key_Down);
    EXPECT_EQ(TakeStatements().size(), 1 + 3 * 2) << "read once";
    EXPECT_EQ(Heading(), u"管理员 的权限"_s);
    EXPECT_EQ(Ticked().size(), 3);
    Press(Qt::Key_Down);
    EXPECT_EQ(Heading(), u"小陈 的权限"_s);
    EXPECT_EQ(Ticked(), QStringList());
    Press(Qt::Key_End);
    EXPECT_EQ(Heading(), u"小李 的权限"_s);
    TakeStatements();
    Press(Qt::Key_Down); // already the last
    EXPECT_EQ(TakeStatements(), QStringList());
    Press(Qt::Key_Space);
    EXPECT_EQ(TakeStatements().size(), 1 + 3 * 2) << "the space bar reads him again";
}

TEST_F(RightsWindow, TheMarkedUserIsTheOneInHandHoweverHeCameToBeMarked)
{
    OpenWindow();
    Type(u"小"_s); // the start of a name
    EXPECT_EQ(Tree()->currentItem(), Node(u"小陈"_s));
    EXPECT_EQ(Heading(), u"小陈 的权限"_s);
    // Pressed on one user and let go elsewhere.
    QTest::mousePress(Tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                      Tree()->visualItemRect(Node(u"管理员"_s)).center());
    QTest::mouseRelease(Tree()->viewport(), Qt::LeftButton, Qt::NoModifier,
                        QPoint(5, Tree()->viewport()->height() - 5));
    Settle();
    EXPECT_EQ(Tree()->currentItem(), Node(u"管理员"_s));
    EXPECT_EQ(Heading(), u"管理员 的权限"_s);
    Press(Qt::Key_Left); // to the root, which folds up and unfolds
    Press(Qt::Key_Left);
    Press(Qt::Key_Right);
    Press(Qt::Key_Right);
    EXPECT_EQ(Tree()->currentItem(), Node(u"管理员"_s));
    EXPECT_EQ(Ticked().size(), Entries);
}

TEST_F(RightsWindow, TheRootShowsNothingNewAndLeavesTheUserInHand)
{
    ShortenCatalogue();
    OpenWindow();
    Press(Qt::Key_Space); // the root, before anybody
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Listed(), QStringList());
    ClickNode(u"小李"_s);
    TakeStatements();
    ClickNode(u"所有用户"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Ticked(), (QStringList{u"收银开票"_s, u"费用登记"_s}));
    EXPECT_EQ(Heading(), u"小李 的权限"_s);
    Submit();
    EXPECT_EQ(TakeStatements().value(0), Delete.arg(u"06"_s));

    ClickNode(u"管理员"_s);
    Press(Qt::Key_Up); // by key from the first user
    EXPECT_EQ(Tree()->currentItem(), Tree()->topLevelItem(0));
    EXPECT_EQ(Heading(), u"管理员 的权限"_s);
}

TEST_F(RightsWindow, ByKeyTheRightsAreReachedTickedAndSaved)
{
    ShortenCatalogue();
    OpenWindow();
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"lstMenuList"_s);
    EXPECT_EQ(Lines()->currentRow(), 0);
    Press(Qt::Key_Space);
    Press(Qt::Key_Down);
    Press(Qt::Key_Space);
    Press(Qt::Key_Space); // and off again
    EXPECT_EQ(Ticked(), QStringList{u"收银开票"_s});
    EXPECT_EQ(Heading(), u"小陈 的权限（未保存）"_s);
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='05'"_s), 0);
    Press(Qt::Key_Return);
    EXPECT_EQ(Heading(), u"小陈 的权限（已保存）"_s);
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='05'"_s), 1);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"tvUserList"_s);
    EXPECT_EQ(Ticked(), QStringList{u"收银开票"_s}) << "coming back clicks nothing";
}

TEST_F(RightsWindow, SubmitReplacesTheUsersRightsByTheTickedLines)
{
    ShortenCatalogue();
    OpenWindow();
    ClickNode(u"小李"_s);
    Tick(u"收银调整"_s);
    Tick(u"费用登记"_s, false);
    TakeStatements();
    Submit();
    EXPECT_EQ(TakeStatements(),
              (QStringList{Delete.arg(u"06"_s), NameOf.arg(u"收银开票"_s), Insert.arg(u"06"_s, u"menuSale"_s),
                           NameOf.arg(u"收银调整"_s), Insert.arg(u"06"_s, u"menuESale"_s)}));
    EXPECT_EQ(Rights(), (std::vector<QStringList>{{u"06"_s, u"menuESale"_s}, {u"06"_s, u"menuSale"_s}}));
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='01'"_s), Entries) << "nobody else's are touched";
    EXPECT_EQ(Ticked(), (QStringList{u"收银开票"_s, u"收银调整"_s})) << "the window stays as it is";
    EXPECT_NE(Windows().Find(Window), nullptr);
    EXPECT_EQ(Heading(), u"小李 的权限（已保存）"_s);
}

TEST_F(RightsWindow, SubmitBeforeAnyUserWasClickedHasNoEffect)
{
    OpenWindow();
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList{Delete.arg(QString())});
    EXPECT_EQ(Count(u"User_Menu"_s), Entries + 2);
    EXPECT_EQ(Heading(), u"权限"_s);
}

TEST_F(RightsWindow, LinesOfOneCaptionBothStandForTheFirstEntryFound)
{
    ShortenCatalogue();
    Db().Run(u"UPDATE Menu_List SET MenuText='收银' WHERE MenuName IN ('menuSale','menuESale')"_s);
    const QString first = Db().Rows(u"SELECT MenuName FROM Menu_List WHERE MenuText='收银'"_s)[0][0];
    OpenWindow();
    ClickNode(u"小陈"_s);
    EXPECT_EQ(Listed(), (QStringList{u"收银"_s, u"收银"_s, u"费用登记"_s}));
    Lines()->item(0)->setCheckState(Qt::Checked);
    Lines()->item(1)->setCheckState(Qt::Checked);
    Submit();
    EXPECT_EQ(Db().Rows(u"SELECT MenuName FROM User_Menu WHERE UserID='05'"_s),
              (std::vector<QStringList>{{first}, {first}}));
    ClickNode(u"小陈"_s);
    EXPECT_EQ(Ticked(), (QStringList{u"收银"_s, u"收银"_s}));
}

TEST_F(RightsWindow, RightsOfARemovedUserAreWrittenAllTheSameAndNobodyHasThem)
{
    ShortenCatalogue();
    OpenWindow();
    ClickNode(u"小李"_s);
    Db().Run(u"DELETE FROM User_List WHERE UserID='06'; DELETE FROM User_Menu WHERE UserID='06'"_s);
    Submit();
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='06'"_s), 2);
    ClickNode(u"小李"_s);
    EXPECT_EQ(Ticked().size(), 2);
}

TEST_F(RightsWindow, EachStatementOfTheSaveThatFailsLeavesWhatRanBeforeIt)
{
    struct Case {
        int statement;
        Refusal how;
        QString words;
        QStringList rights; ///< of user 06 then
    };
    const QStringList before{u"menuFee"_s, u"menuSale"_s};
    const std::vector<Case> cases{
        {1, Refusal::Signalled, u"演练故障"_s, before},
        {2, Refusal::MissingTable, u"doesn't exist"_s, {}},
        {3, Refusal::Signalled, u"演练故障"_s, {}},
        {4, Refusal::MissingTable, u"doesn't exist"_s, {u"menuSale"_s}},
        {5, Refusal::Signalled, u"演练故障"_s, {u"menuSale"_s}},
        {5, Refusal::LostLink, u"erver"_s, {u"menuSale"_s}},
    };
    ShortenCatalogue();
    OpenWindow();
    for (const Case& each : cases) {
        Db().Run(u"DELETE FROM User_Menu WHERE UserID='06'; "
                 "INSERT INTO User_Menu VALUES ('06','menuSale'),('06','menuFee')"_s);
        ClickNode(u"小李"_s);
        FailStatement(each.statement, each.how);
        boxes.ExpectContaining(each.words);
        Submit();
        QStringList rights;
        for (const QStringList& row : Rights())
            rights << row[1];
        EXPECT_EQ(rights, each.rights) << each.statement;
        EXPECT_EQ(Ticked(), (QStringList{u"收银开票"_s, u"费用登记"_s})) << "the next press repairs it";
        EXPECT_EQ(Heading(), u"小李 的权限"_s) << "not told as saved";
    }
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='01'"_s), Entries);
}

TEST_F(RightsWindow, AfterAFailedReadingNobodyIsInHandSoThatNoHalfListIsSaved)
{
    ShortenCatalogue();
    OpenWindow();
    ClickNode(u"小李"_s);
    for (const int statement : {1, 2, 3, 6, 7}) {
        FailStatement(statement, Refusal::MissingTable);
        boxes.ExpectContaining(u"doesn't exist"_s);
        ClickNode(u"管理员"_s);
        EXPECT_EQ(Listed(), QStringList()) << statement;
        EXPECT_EQ(Heading(), u"权限"_s);
        TakeStatements();
        Submit();
        EXPECT_EQ(TakeStatements(), QStringList{Delete.arg(QString())}) << statement;
    }
    EXPECT_EQ(Count(u"User_Menu"_s), Entries + 2);
}

TEST_F(RightsWindow, AnEntryThatHasGoneFromTheCatalogueEndsTheSaveAfterTheDelete)
{
    ShortenCatalogue();
    OpenWindow();
    ClickNode(u"小李"_s);
    Db().Run(u"DELETE FROM Menu_List WHERE MenuName='menuSale'"_s);
    boxes.Expect(u"没有当前记录。"_s);
    Submit();
    EXPECT_EQ(Rights(), (std::vector<QStringList>{}));
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='01'"_s), Entries);
}

TEST_F(RightsWindow, AQuoteInANumberOrCaptionBreaksTheStatementsThatMentionIt)
{
    ShortenCatalogue();
    Db().Run(u"INSERT INTO User_List (UserID,UserName) VALUES ('0''','O''Neil')"_s);
    OpenWindow();
    boxes.ExpectContaining(u"SQL syntax"_s);
    ClickNode(u"O'Neil"_s);
    EXPECT_EQ(Listed(), QStringList());
    Db().Run(u"UPDATE Menu_List SET MenuText='a''b' WHERE MenuName='menuFee'"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    ClickNode(u"小李"_s);
    EXPECT_EQ(Listed(), QStringList());
    Submit();
    EXPECT_EQ(Rights().size(), 2U);
}

TEST_F(RightsWindow, ANameIsShownAsItStandsNotAsMarkup)
{
    Db().Run(u"UPDATE User_List SET UserName='<b>陈</b>' WHERE UserID='05'"_s);
    OpenWindow();
    ClickNode(u"<b>陈</b>"_s);
    EXPECT_EQ(Find<QLabel>(Window, u"lblRights"_s)->textFormat(), Qt::PlainText);
    EXPECT_EQ(Heading(), u"<b>陈</b> 的权限"_s);
}

TEST_F(RightsWindow, ALoadThatFailsOpensNothingAndFreesTheSlot)
{
    FailStatement(1, Refusal::MissingTable);
    EXPECT_ANY_THROW(Windows().Load(Window, nullptr));
    Settle();
    EXPECT_EQ(Windows().Find(Window), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(RightsWindow, RightsCountFromTheNextLogonOn)
{
    Session::CurrentUserID = u"05"_s;
    Windows().Load(u"frmMain"_s, nullptr);
    const auto isOn = [](const QString& entry) {
        return Windows().Find(u"frmMain"_s)->Widget()->findChild<QAction*>(entry)->isEnabled();
    };
    EXPECT_FALSE(isOn(u"menuSale"_s));

    Open(Window);
    ClickNode(u"小陈"_s);
    Tick(u"收银开票"_s);
    Submit();
    Windows().Find(Window)->Widget()->close();
    Settle();
    EXPECT_TRUE(HasMenuRight(u"05"_s, u"menuSale"_s));
    EXPECT_FALSE(isOn(u"menuSale"_s)) << "not in the session that is open";

    Windows().DropAll();
    Windows().Load(u"frmMain"_s, nullptr);
    for (const TopMenu& top : MenuBar()) {
        for (const MenuEntry& entry : top.entries) {
            const bool isHis =
                entry.control == u"menuSale" || entry.control == u"menuHelp" || entry.control == u"menuAbout";
            EXPECT_EQ(isOn(entry.control), isHis) << entry.control.toStdString();
        }
    }
}

TEST_F(RightsWindow, TakesTheSlotAndFreesItOnClosing)
{
    OpenWindow();
    EXPECT_FALSE(Session::WindowSlotFree);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(TakeStatements(), QStringList());
}
