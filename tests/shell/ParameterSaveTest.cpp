#include "core/common/Handlers.h"
#include "core/session/Session.h"
#include "printing/PrintQueue.h"
#include "tests/shell/ParameterWindow.h"

#include <QAbstractButton>
#include <QFile>
#include <QLabel>
#include <QStackedWidget>

using namespace Qt::StringLiterals;

namespace {

const QString OffsetWords = u"纸张偏移的值设置错误！"_s;

class ParameterSave : public ParameterWindow {
protected:
    /// Something on every page: each statement and each file then says something new.
    void FillAll()
    {
        Choose(u"cmbPaperSize"_s, 1);
        Tick(u"chkPrintType"_s);
        Tick(u"optPortrait"_s);
        TypeInto(u"txtLeftArea_2"_s, u"0.5"_s);
        TypeInto(u"txtTopArea_2"_s, u"-1.25"_s);
        Choose(u"cmbPrintStyle_2"_s, 2);
        Choose(u"cmbPrintStyle_4"_s, 1);
        Turn(2);
        Tick(u"chkPicStatus"_s);
        TypeInto(u"txtFileName"_s, InFolder(u"cover.png"_s));
        Turn(3);
        Tick(u"chkControl_Sale"_s);
        Tick(u"chkVerify"_s);
        TypeInto(u"txtDeadline"_s, u"18:00:00"_s);
        Tick(u"chkRound_Sale"_s);
        Tick(u"chkRound_CheckOut"_s);
        Choose(u"cmbCountID_0"_s, 1);
        Choose(u"cmbCountID_1"_s, 1);
    }

    /// How many of the eleven statements of FillAll's save stand in the tables, the six papers counted
    /// as far as they changed.
    int StepsThatStand()
    {
        int steps = Count(u"Sys_Define"_s, u"Deadline='18:00:00'"_s);
        steps +=
            Count(u"DFN_Paper"_s, u"PaperID='P03' And LeftArea=0.5 And TopArea=-1.25 And PrintStyle='2'"_s);
        steps += Count(u"DFN_Paper"_s, u"PaperID='P05' And PrintStyle='1'"_s);
        steps += Count(u"DFN_Round"_s, u"bolRound='1'"_s);
        steps += Count(u"DFN_CheckFee"_s, u"CountID='1'"_s);
        return steps;
    }

    void ExpectWindowKeptItsTexts()
    {
        ASSERT_TRUE(IsOpen());
        EXPECT_EQ(Text(u"txtDeadline"_s), u"18:00:00"_s);
        EXPECT_EQ(Text(u"txtLeftArea_2"_s), u"0.5"_s);
        EXPECT_EQ(Text(u"txtFileName"_s), InFolder(u"cover.png"_s));
        EXPECT_TRUE(IsTicked(u"chkRound_Sale"_s));
    }

    std::vector<QStringList> ErrorRows()
    {
        return Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s);
    }
};

const QStringList AllStatements{
    u"UPDATE Sys_Define SET PrintType='1',Orientation='1',bolVerify='1',Deadline='18:00:00',Control_Sale='1'"_s,
    u"UPDATE DFN_Paper SET LeftArea='0.00',TopArea='0.00',PrintStyle='0' WHERE PaperID='P01'"_s,
    u"UPDATE DFN_Paper SET LeftArea='0.00',TopArea='0.00',PrintStyle='0' WHERE PaperID='P02'"_s,
    u"UPDATE DFN_Paper SET LeftArea='0.5',TopArea='-1.25',PrintStyle='2' WHERE PaperID='P03'"_s,
    u"UPDATE DFN_Paper SET LeftArea='0.00',TopArea='0.00',PrintStyle='0' WHERE PaperID='P04'"_s,
    u"UPDATE DFN_Paper SET LeftArea='0.00',TopArea='0.00',PrintStyle='1' WHERE PaperID='P05'"_s,
    u"UPDATE DFN_Paper SET LeftArea='0.00',TopArea='0.00',PrintStyle='2' WHERE PaperID='P06'"_s,
    u"UPDATE DFN_Round SET bolRound='1' WHERE CountID='C01'"_s,
    u"UPDATE DFN_Round SET bolRound='1' WHERE CountID='C02'"_s,
    u"UPDATE DFN_CheckFee SET CountID='1' WHERE FeeID='F01'"_s,
    u"UPDATE DFN_CheckFee SET CountID='1' WHERE FeeID='F02'"_s};

// Rows of FillAll's save that stand when its n-th statement (from 1) is refused.
constexpr std::array<int, 11> StandingBefore{0, 1, 1, 1, 2, 2, 3, 3, 4, 5, 6};

} // namespace

TEST_F(ParameterSave, SendsItsStatementsInOrderWritesBothFilesAndCloses)
{
    Db().Run(u"UPDATE Sys_Define SET CompName='绿野果品',DepartName='一部',CheckOutStyle='1'"_s);
    OpenSettings();
    FillAll();
    EXPECT_EQ(TakeStatements(), QStringList()) << "nothing is saved before";
    EXPECT_EQ(CoverIni(u"PicStatus"_s), u"0"_s);
    Submit();

    EXPECT_EQ(TakeStatements(), AllStatements);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(StepsThatStand(), 7);
    EXPECT_EQ(Db().Rows(u"SELECT PrintType,Orientation,bolVerify,Deadline,Control_Sale FROM Sys_Define"_s),
              (std::vector<QStringList>{{u"1"_s, u"1"_s, u"1"_s, u"18:00:00"_s, u"1"_s}}));
    EXPECT_EQ(CoverIni(u"FileName"_s), InFolder(u"cover.png"_s));
    EXPECT_EQ(CoverIni(u"PicStatus"_s), u"1"_s);
    EXPECT_EQ(PaperSizeInIni(), u"11"_s);

    // What the screen does not show stays.
    EXPECT_EQ(
        Db().Rows(u"SELECT CompName,DepartName,CheckOutStyle,PRD_Order,bolShowEStore FROM Sys_Define"_s),
        (std::vector<QStringList>{{u"绿野果品"_s, u"一部"_s, u"1"_s, u" Order By ID Desc"_s, u"0"_s}}));
    EXPECT_EQ(Count(u"DFN_Paper"_s), 6);
    EXPECT_EQ(Value(u"SELECT PaperName FROM DFN_Paper WHERE PaperID='P03'"_s), u"收款清单"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    QFile config(InFolder(u"Config.ini"_s));
    ASSERT_TRUE(config.open(QIODevice::ReadOnly));
    EXPECT_EQ(config.readAll(),
              QByteArray("[Define]\nAccNum=1\nClient=\nUserName=\nPaperSize=11\nSplashTime=20\n"));
}

TEST_F(ParameterSave, WhatWasSavedIsShownAgain)
{
    OpenSettings();
    FillAll();
    Submit();
    OpenSettings();
    EXPECT_EQ(List(u"cmbPaperSize"_s)->currentText(), u"A5"_s);
    EXPECT_TRUE(IsTicked(u"optPortrait"_s));
    EXPECT_EQ(Text(u"txtTopArea_2"_s), u"-1.25"_s);
    EXPECT_EQ(List(u"cmbPrintStyle_4"_s)->currentText(), u"套打"_s);
    EXPECT_EQ(Text(u"txtFileName"_s), InFolder(u"cover.png"_s));
    EXPECT_EQ(List(u"cmbCountID_0"_s)->currentText(), u"按件数"_s);
}

TEST_F(ParameterSave, ARefusedStatementLeavesWhatRanBeforeItAndASecondPressSavesTheRest)
{
    for (int n = 1; n <= 11; ++n) {
        SCOPED_TRACE(n);
        Db().Run(
            u"UPDATE Sys_Define SET PrintType='0',Orientation=2,bolVerify='0',Deadline='',Control_Sale='0';"
            "UPDATE DFN_Paper SET LeftArea=0,TopArea=0,PrintStyle=IF(PaperID='P06','2','0');"
            "UPDATE DFN_Round SET bolRound='0'; UPDATE DFN_CheckFee SET CountID='0'; DELETE FROM ErrInfo"_s);
        WriteProgramFile(u"Data/BCover.ini"_s, u"[Pic]\nPicStatus=0\nFileName=\n"_s);
        WriteProgramFile(u"Config.ini"_s, u"[Define]\nPaperSize=9\n"_s);
        OpenSettings();
        FillAll();
        FailStatement(n, Refusal::Signalled);
        boxes.Expect(u"演练故障"_s);
        Submit();

        EXPECT_EQ(TakeStatements().mid(0, n), AllStatements.mid(0, n));
        EXPECT_EQ(StepsThatStand(), StandingBefore[static_cast<std::size_t>(n - 1)]);
        EXPECT_EQ(CoverIni(u"PicStatus"_s), n == 1 ? u"0"_s : u"1"_s);
        EXPECT_EQ(PaperSizeInIni(), n == 1 ? u"9"_s : u"11"_s);
        EXPECT_EQ(ErrorRows(), (std::vector<QStringList>{{u"管理员"_s, u"演练故障"_s, u"保存或修改基本参数"_s,
                                                          u"2026-03-09"_s, u"10:00:00"_s}}));
        ExpectWindowKeptItsTexts();

        Submit();
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(StepsThatStand(), 7);
        TakeStatements();
    }
}

TEST_F(ParameterSave, AServersMessageWithQuotesAndALostLinkAreShownWithoutARow)
{
    OpenSettings();
    FillAll();
    FailStatement(8, Refusal::MissingTable);
    boxes.ExpectContaining(u"DFN_Round"_s);
    Submit();
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    ExpectWindowKeptItsTexts();
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(u"gone away"_s);
    Submit();
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    ExpectWindowKeptItsTexts();
}

TEST_F(ParameterSave, EveryOffsetMustBeANumberBeforeAnythingIsSaved)
{
    OpenSettings();
    FillAll();
    for (int line = 0; line < 6; ++line) {
        for (const QString& field : {u"txtLeftArea_%1"_s.arg(line), u"txtTopArea_%1"_s.arg(line)}) {
            for (const QString& bad : {QString(), u" "_s, u"abc"_s, u"１２"_s, u"1.2.3"_s, u"'"_s, u"\\"_s}) {
                SCOPED_TRACE((field + u' ' + bad).toStdString());
                Turn(1);
                TypeInto(field, bad);
                Turn(3); // saved from another page
                boxes.Expect(OffsetWords);
                Submit();
                EXPECT_EQ(TakeStatements(), QStringList());
                EXPECT_EQ(FocusName(), field);
                EXPECT_EQ(Text(field), bad) << "what was typed stays to be corrected";
            }
            TypeInto(field, u"0"_s);
        }
    }
    EXPECT_EQ(StepsThatStand(), 0);
    EXPECT_EQ(CoverIni(u"PicStatus"_s), u"0"_s);
    EXPECT_EQ(PaperSizeInIni(), u"9"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    Submit();
    EXPECT_FALSE(IsOpen());
}

TEST_F(ParameterSave, AnOffsetThatNoColumnHoldsIsRefusedBeforeAnythingIsSaved)
{
    OpenSettings();
    FillAll();
    Turn(1);
    TypeInto(u"txtTopArea_3"_s, u"99999999999999999999"_s);
    Turn(3);
    boxes.Expect(u"溢出"_s);
    Submit();
    EXPECT_EQ(TakeStatements().filter(u"UPDATE"_s), QStringList());
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(FocusName(), u"txtTopArea_3"_s);
    EXPECT_EQ(Text(u"txtTopArea_3"_s), u"99999999999999999999"_s);
    EXPECT_EQ(StepsThatStand(), 0);
    EXPECT_EQ(CoverIni(u"PicStatus"_s), u"0"_s);
    EXPECT_EQ(Count(u"DFN_Paper"_s, u"TopArea<>0"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s, u"ErrDescription='溢出' And ErrSource='保存或修改基本参数'"_s), 1);

    TypeInto(u"txtTopArea_3"_s, u"99999999999999"_s);
    Submit();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Value(u"SELECT TopArea FROM DFN_Paper WHERE PaperID='P04'"_s), u"99999999999999.000000"_s);
}

TEST_F(ParameterSave, AFileThatCannotBeReadIsNamedOverTheOpenWindow)
{
    for (const QString& ini : {u"Data/BCover.ini"_s, u"Config.ini"_s}) {
        QFile::remove(InFolder(ini));
        ASSERT_TRUE(QFile::link(u"/proc/self/mem"_s, InFolder(ini)));
        boxes.ExpectContaining(u"无法读取文件："_s + InFolder(ini));
        boxes.WhileOpen([this] { EXPECT_TRUE(IsOpen()); });
        RunHandler([] { Windows().Show(u"frmParameter"_s, nullptr); });
        Settle();
        EXPECT_EQ(List(u"cmbPrintStyle_5"_s)->currentText(), u"带框打印"_s)
            << "the tables are shown all the same";
        Windows().Find(u"frmParameter"_s)->Widget()->close();
        Settle();
        QFile::remove(InFolder(ini));
        WriteProgramFile(ini, u"[Define]\nPaperSize=9\n"_s);
    }
}

TEST_F(ParameterSave, AnOffsetGoesInAsShown)
{
    OpenSettings();
    TypeInto(u"txtLeftArea_0"_s, u"1,5"_s);
    TypeInto(u"txtTopArea_0"_s, u" 2.345 "_s);
    Submit();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeStatements().value(1),
              u"UPDATE DFN_Paper SET LeftArea='1,5',TopArea=' 2.345 ',PrintStyle='0' WHERE PaperID='P01'"_s);
    EXPECT_EQ(Value(u"SELECT LeftArea FROM DFN_Paper WHERE PaperID='P01'"_s), u"1.000000"_s)
        << "the server reads as far as the comma";
    EXPECT_EQ(Value(u"SELECT TopArea FROM DFN_Paper WHERE PaperID='P01'"_s), u"2.345000"_s);
    OpenSettings();
    EXPECT_EQ(Text(u"txtLeftArea_0"_s), u"1.00"_s);
    EXPECT_EQ(Text(u"txtTopArea_0"_s), u"2.35"_s);
}

TEST_F(ParameterSave, ACutOffIsSavedAsTyped)
{
    for (const QString& typed : {u"１８：００"_s, u"abc"_s, u"25:99:99"_s, u" "_s, u""_s}) {
        OpenSettings();
        Turn(3);
        TypeInto(u"txtDeadline"_s, typed);
        Submit();
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(Value(u"SELECT Deadline FROM Sys_Define"_s), typed);
    }
    OpenSettings();
    Turn(3);
    TypeInto(u"txtDeadline"_s, u"18:00:00:00:00"_s);
    EXPECT_EQ(Text(u"txtDeadline"_s), u"18:00:00"_s) << "no more than the column holds";
}

TEST_F(ParameterSave, AQuoteOrABackslashInTheCutOffIsRefusedByTheServerAndNothingIsSaved)
{
    OpenSettings();
    FillAll();
    for (const QString& typed : {u"18'00"_s, u"18:00\\"_s}) {
        Turn(3);
        TypeInto(u"txtDeadline"_s, typed);
        boxes.ExpectContaining(u"SQL syntax"_s);
        Submit();
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(Text(u"txtDeadline"_s), typed);
        EXPECT_EQ(StepsThatStand(), 0);
        EXPECT_EQ(CoverIni(u"PicStatus"_s), u"0"_s);
    }
}

TEST_F(ParameterSave, EveryRowOfTheDefinitionIsUpdatedAndTheFirstIsRead)
{
    Db().Run(u"INSERT INTO Sys_Define (CompName,Deadline) VALUES ('乙','07:00:00')"_s);
    OpenSettings();
    EXPECT_EQ(Text(u"txtDeadline"_s), u"00:00:00"_s);
    Turn(3);
    TypeInto(u"txtDeadline"_s, u"18:00:00"_s);
    Submit();
    EXPECT_EQ(Count(u"Sys_Define"_s, u"Deadline='18:00:00'"_s), 2);
}

// The ini files.

TEST_F(ParameterSave, MissingFilesAreSkippedAndNotMade)
{
    QFile::remove(InFolder(u"Config.ini"_s));
    QFile::remove(InFolder(u"Data/BCover.ini"_s));
    OpenSettings();
    EXPECT_EQ(List(u"cmbPaperSize"_s)->currentIndex(), -1);
    EXPECT_EQ(Text(u"txtFileName"_s), QString());
    FillAll();
    Submit();
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(StepsThatStand(), 7);
    EXPECT_FALSE(QFile::exists(InFolder(u"Config.ini"_s)));
    EXPECT_FALSE(QFile::exists(InFolder(u"Data/BCover.ini"_s)));
}

TEST_F(ParameterSave, AFileThatCannotBeWrittenIsToldAndNothingIsLost)
{
    for (const QString& ini : {u"Data/BCover.ini"_s, u"Config.ini"_s}) {
        SCOPED_TRACE(ini.toStdString());
        Db().Run(u"DELETE FROM ErrInfo"_s);
        MakeUnwritable(ini);
        OpenSettings();
        FillAll();
        boxes.ExpectContaining(u"无法写入文件："_s + InFolder(ini));
        Submit();
        EXPECT_EQ(TakeStatements().value(0), AllStatements[0]);
        ExpectWindowKeptItsTexts();
        EXPECT_EQ(StepsThatStand(), 1);
        EXPECT_EQ(Count(u"ErrInfo"_s, u"ErrSource='保存或修改基本参数'"_s), 1);

        // Put right, the same press saves it all.
        QFile::remove(InFolder(ini));
        WriteProgramFile(ini, ini == u"Config.ini" ? u"[Define]\nPaperSize=9\n"_s : u"[Pic]\n"_s);
        Submit();
        EXPECT_FALSE(IsOpen());
        EXPECT_EQ(StepsThatStand(), 7);
        EXPECT_EQ(PaperSizeInIni(), u"11"_s);
        EXPECT_EQ(CoverIni(u"PicStatus"_s), u"1"_s);

        Db().Run(u"UPDATE DFN_Paper SET LeftArea=0,TopArea=0,PrintStyle='0';"
                 "UPDATE DFN_Round SET bolRound='0'; UPDATE DFN_CheckFee SET CountID='0';"
                 "UPDATE Sys_Define SET PrintType='0',Orientation=2,bolVerify='0',Control_Sale='0'"_s);
        WriteProgramFile(u"Data/BCover.ini"_s, u"[Pic]\nPicStatus=0\nFileName=\n"_s);
        WriteProgramFile(u"Config.ini"_s, u"[Define]\nPaperSize=9\n"_s);
    }
}
