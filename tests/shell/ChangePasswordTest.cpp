#include "app/StartProgram.h"
#include "core/gateway/DataGateway.h"
#include "core/logon/Logon.h"
#include "core/session/Session.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString Window = u"frmChangePWD"_s;
const QString Read = u"SELECT UserPWD FROM User_List WHERE UserID='01'"_s;
const QString Done = u"密码修改成功，新密码将在下次启动时生效！"_s;

QString UpdateOf(const QString& password)
{
    return u"UPDATE User_List SET UserPWD='%1' WHERE UserID='01'"_s.arg(password);
}
QString ReadBackOf(const QString& password)
{
    return u"SELECT UserID FROM User_List WHERE UserID='01' And UserPWD='%1'"_s.arg(password);
}

class PasswordWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterWindows();
        Db().Run(u"INSERT INTO User_List VALUES ('05','小陈','1','','0','0','0')"_s);
        Open(Window);
        TakeStatements();
    }

    void Fill(const QString& oldPassword, const QString& newPassword, const QString& confirmation)
    {
        const QStringList texts{oldPassword, newPassword, confirmation};
        for (qsizetype i = 0; i < Boxes.size(); ++i) {
            auto* box = Find(Window, Boxes[i]);
            box->setFocus();
            box->selectAll();
            if (texts[i].isEmpty())
                box->clear();
            else
                box->insert(texts[i]);
        }
    }
    QStringList Typed()
    {
        QStringList texts;
        for (const QString& box : Boxes)
            texts << TextOf(Window, box);
        return texts;
    }
    void Submit() { Press(Qt::Key_S, Qt::AltModifier); }
    QString Stored() { return Value(u"SELECT UserPWD FROM User_List WHERE UserID='01'"_s); }

    const QStringList Boxes{u"txtOldPWD"_s, u"txtNewPWD"_s, u"txtConfirmPWD"_s};
};

} // namespace

TEST_F(PasswordWindow, TypedWithEnterTheNewPasswordIsSavedAndReadBack)
{
    EXPECT_EQ(Windows().Find(Window)->Widget()->windowTitle(), u"修改密码"_s);
    for (const QString& box : Boxes)
        EXPECT_EQ(Find(Window, box)->echoMode(), QLineEdit::Password);
    Enter(u"txtOldPWD"_s, u"1"_s);
    Enter(u"txtNewPWD"_s, u"Neu 2"_s);
    boxes.Expect(Done);
    Enter(u"txtConfirmPWD"_s, u"Neu 2"_s);

    EXPECT_EQ(TakeStatements(), (QStringList{Read, UpdateOf(u"Neu 2"_s), ReadBackOf(u"Neu 2"_s)}));
    EXPECT_EQ(Stored(), u"Neu 2"_s);
    EXPECT_EQ(Value(u"SELECT UserPWD FROM User_List WHERE UserID='05'"_s), u"1"_s) << "his own alone";
    EXPECT_EQ(Typed(), (QStringList{u"1"_s, u"Neu 2"_s, u"Neu 2"_s})) << "open, the fields unchanged";
    EXPECT_NE(Windows().Find(Window), nullptr);

    Gateway().OpenConnection(Session::DataIniPath);
    EXPECT_TRUE(TryLogon(u"管理员"_s, u"Neu 2"_s, UnknownName::Refuse));
    boxes.Expect(u"用户名与密码不匹配！"_s);
    EXPECT_FALSE(TryLogon(u"管理员"_s, u"1"_s, UnknownName::Refuse));
}

TEST_F(PasswordWindow, TheTestsComeInTheirOrder)
{
    struct Case {
        QStringList texts;
        QString message;
        QString focus;
        int statements;
    };
    const std::vector<Case> cases{
        {{QString(), QString(), QString()}, u"请输入原密码！"_s, u"txtOldPWD"_s, 0},
        {{QString(), u"a"_s, u"b"_s}, u"请输入原密码！"_s, u"txtOldPWD"_s, 0},
        {{u"x"_s, QString(), u"b"_s}, u"请输入新密码！"_s, u"txtNewPWD"_s, 0},
        {{u"x"_s, u"a"_s, QString()}, u"请确认密码！"_s, u"txtConfirmPWD"_s, 0},
        {{u"x"_s, u"a"_s, u"A"_s}, u"新密码与确认密码不一致！"_s, u"txtConfirmPWD"_s, 0},
        {{u"x"_s, u"a"_s, u"a "_s}, u"新密码与确认密码不一致！"_s, u"txtConfirmPWD"_s, 0},
        {{u"x"_s, u"a"_s, u"a"_s}, u"原密码输入错误!"_s, u"txtOldPWD"_s, 1},
    };
    for (const Case& each : cases) {
        Fill(each.texts[0], each.texts[1], each.texts[2]);
        boxes.Expect(each.message);
        Submit();
        EXPECT_EQ(TakeStatements().size(), each.statements) << each.message.toStdString();
        EXPECT_EQ(FocusName(), each.focus) << each.message.toStdString();
        EXPECT_EQ(Typed(), each.texts);
        EXPECT_EQ(Stored(), u"1"_s);
    }
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(PasswordWindow, TheOldPasswordIsComparedToTheLetterAndTheBlank)
{
    Db().Run(u"UPDATE User_List SET UserPWD=' Ab ' WHERE UserID='01'"_s);
    for (const QString& wrong : {u"Ab"_s, u" Ab"_s, u" ab "_s}) {
        Fill(wrong, u"n"_s, u"n"_s);
        boxes.Expect(u"原密码输入错误!"_s);
        Submit();
        EXPECT_EQ(Stored(), u" Ab "_s);
    }
    Fill(u" Ab "_s, u"n"_s, u"n"_s);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(Stored(), u"n"_s);
}

TEST_F(PasswordWindow, APasswordOfBlanksPassesHereAndCannotLogOn)
{
    Fill(u"1"_s, u"  "_s, u"  "_s);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(Stored(), u"  "_s);
    Windows().Find(Window)->Widget()->close();
    Open(u"frmLogon"_s);
    Type(u"管理员"_s);
    Press(Qt::Key_Return);
    boxes.Expect(u"密码为空！"_s);
    Enter(u"txtUserPWD"_s, u"  "_s);
    EXPECT_NE(Windows().Find(u"frmLogon"_s), nullptr);
}

TEST_F(PasswordWindow, ARemovedUserMayNotChangeAnything)
{
    Db().Run(u"DELETE FROM User_List WHERE UserID='01'"_s);
    Fill(u"1"_s, u"n"_s, u"n"_s);
    boxes.Expect(u"用户信息校验错误，您不可以修改密码！"_s);
    Submit();
    EXPECT_EQ(TakeStatements(), QStringList{Read});
}

TEST_F(PasswordWindow, APasswordThatDoesNotReadBackIsToldAsFailed)
{
    Db().Run(u"CREATE TRIGGER keeps BEFORE UPDATE ON User_List FOR EACH ROW SET NEW.UserPWD=OLD.UserPWD"_s);
    Fill(u"1"_s, u"n"_s, u"n"_s);
    boxes.Expect(u"密码修改失败！请联系管理员！"_s);
    Submit();
    EXPECT_EQ(TakeStatements(), (QStringList{Read, UpdateOf(u"n"_s), ReadBackOf(u"n"_s)}));
    EXPECT_EQ(Stored(), u"1"_s);
}

TEST_F(PasswordWindow, RowsThatAQuoteInThePasswordBroughtAreNoSuccess)
{
    const QString password = u"n' Or '1'='1"_s;
    Fill(u"1"_s, password, password);
    boxes.Expect(u"密码修改失败！请联系管理员！"_s);
    Submit();
    EXPECT_EQ(TakeStatements(), (QStringList{Read, UpdateOf(password), ReadBackOf(password)}));
}

TEST_F(PasswordWindow, EachStatementThatFailsIsShownWithoutALogRow)
{
    struct Case {
        int statement;
        Refusal how;
        QString words;
        QString stored;
    };
    const std::vector<Case> cases{
        {1, Refusal::MissingTable, u"doesn't exist"_s, u"1"_s},
        {2, Refusal::Signalled, u"演练故障"_s, u"1"_s},
        {3, Refusal::MissingTable, u"doesn't exist"_s, u"n"_s},
    };
    for (const Case& each : cases) {
        Db().Run(u"UPDATE User_List SET UserPWD='1'"_s);
        Fill(u"1"_s, u"n"_s, u"n"_s);
        FailStatement(each.statement, each.how);
        boxes.ExpectContaining(each.words);
        Submit();
        EXPECT_EQ(Stored(), each.stored) << each.statement;
        EXPECT_EQ(Typed(), (QStringList{u"1"_s, u"n"_s, u"n"_s}));
    }
    Db().Run(u"UPDATE User_List SET UserPWD='1'"_s);
    FailStatement(2, Refusal::LostLink);
    boxes.ExpectContaining(u"erver"_s);
    Submit();
    EXPECT_EQ(Stored(), u"1"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(PasswordWindow, AQuoteOrABackslashDoesWhatItDoesToTheStatement)
{
    for (const QString& text : {u"O'Neil"_s, u"a\\"_s}) {
        Fill(u"1"_s, text, text);
        boxes.ExpectContaining(u"SQL syntax"_s);
        Submit();
        EXPECT_EQ(Stored(), u"1"_s);
        EXPECT_EQ(Typed()[1], text);
    }
    Fill(u"'"_s, u"n"_s, u"n"_s); // the old one goes into no statement
    boxes.Expect(u"原密码输入错误!"_s);
    Submit();
    Fill(u"1"_s, u"a\\c"_s, u"a\\c"_s); // the server takes the backslash away, in the read-back as well
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(Stored(), u"ac"_s);
}

TEST_F(PasswordWindow, NoMoreIsTakenThanTheColumnHoldsAndAnyCharacterCounts)
{
    const QString wide(400, u'１');
    Fill(u"1"_s, wide, wide);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(Stored(), QString(60, u'１'));
    Fill(QString(60, u'１'), u"99999999999999999999"_s, u"99999999999999999999"_s);
    boxes.Expect(Done);
    Submit();
    EXPECT_EQ(Stored(), u"99999999999999999999"_s);
}

TEST_F(PasswordWindow, TakesTheSlotAndFreesItOnClosing)
{
    EXPECT_FALSE(Session::WindowSlotFree);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Stored(), u"1"_s);
}
