#include "app/StartProgram.h"
#include "core/session/Session.h"
#include "tests/support/WindowTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

class ProgramStart : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterWindows();
    }

    /// Name of the logon screen that a number of account sets opens.
    QString ScreenFor(const QString& accNum)
    {
        WriteProgramFile(u"Config.ini"_s,
                         u"[Define]\n%1\n[Acc1]\nAccName=甲\nConnFile=\\Data\\Other.ini\n"_s.arg(accNum));
        EXPECT_TRUE(StartProgram());
        Settle();
        QString name;
        for (const QString& screen : {u"frmLogon"_s, u"frmMultiLogon"_s}) {
            if (Windows().Find(screen))
                name += screen;
        }
        Windows().DropAll();
        return name;
    }
};

} // namespace

TEST_F(ProgramStart, WithoutConfigIniItSaysSoAndEnds)
{
    QFile::remove(ProgramFolder() + u"/Config.ini"_s);
    boxes.Expect(u"系统配置文件未找到，程序中止。"_s);
    EXPECT_FALSE(StartProgram());
    EXPECT_EQ(Windows().Find(u"frmLogon"_s), nullptr);
}

TEST_F(ProgramStart, TheNumberOfAccountSetsChoosesTheLogonScreen)
{
    EXPECT_EQ(ScreenFor(u"AccNum="_s), u"frmLogon"_s);
    EXPECT_EQ(ScreenFor(u"Other=1"_s), u"frmLogon"_s);
    EXPECT_EQ(ScreenFor(u"AccNum=0"_s), u"frmLogon"_s);
    EXPECT_EQ(ScreenFor(u"AccNum=1"_s), u"frmLogon"_s);
    EXPECT_EQ(Session::DataIniPath, ProgramFolder() + u"/Data/Data.ini"_s)
        << "the first set's own file is ignored";
    EXPECT_EQ(ScreenFor(u"AccNum=2"_s), u"frmMultiLogon"_s);
    EXPECT_EQ(ScreenFor(u"AccNum=abc"_s), u"frmLogon"_s);
}

TEST_F(ProgramStart, ANumberBeyondSixteenBitsIsToldAndEndsTheProcess)
{
    WriteProgramFile(u"Config.ini"_s, u"[Define]\nAccNum=40000\n"_s);
    boxes.Expect(u"溢出"_s);
    EXPECT_FALSE(StartProgram());
}
