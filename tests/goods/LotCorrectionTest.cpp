#include "core/session/Session.h"
#include "tests/goods/GoodsTest.h"

#include <QCheckBox>

using namespace Qt::StringLiterals;

namespace {

class LotCorrection : public GoodsTest {
protected:
    void SetUp() override
    {
        GoodsTest::SetUp();
        AddLot(
            u"20260301001"_s, u"A-003"_s,
            u"Num=100,Num_Sal=70,PType='件',MPercent=12.5,CustInDate='2026-03-01',CustFInDate='2026-03-01',"
            "CustInTime='05:00:00',Store='一号库',PArea='洛川',bolPack='1',PerForegift=8,CustName='王老板',"
            "CardNO='45',VerifyID='77',Address='东关',DebitPrice=500,Tel='1',Fax='2',Mobile='3',Memo='早',"
            "PRDNo_S='9',PackNo='K1',Receiver='02'"_s);
        AddLot(u"20260201001"_s, u"A-003"_s, u"Num=5,CustName='王老板',bolCheckOut='1'"_s);
        Db().Run(u"INSERT INTO CustDebit SET ID='20260301001',CustName='王老板',DebitPrice=500;"
                 "INSERT INTO CustDebit SET ID='20260201001',CustName='王老板',DebitPrice=9;"
                 "INSERT INTO Sal_List_B SET SalNo='1',ID='20260301001',CustName='王老板';"
                 "INSERT INTO Sal_List_B SET SalNo='2',ID='20260201001',CustName='王老板'"_s);
        AddTicket(u"01260301001"_s, u"20260301001"_s, u"30"_s);
        AddTicket(u"01260201001"_s, u"20260201001"_s, u"5"_s);
    }
    void Save() { Press(Qt::Key_S, Qt::AltModifier); }
};

const QString UpdateOfTheLot =
    u"UPDATE PRD_List SET EReceiver='01',EDate='2026-03-09',ETime='10:00:00',Num_Sal=Num_Sal-Num+80,Num=80,"
    "MPercent=12.5,Store='一号库',PArea='洛川',bolPack='1',PerForegift=8,CustName='李老板',CardNO='45',"
    "VerifyID='77',Address='东关',Tel='1',Fax='2',Mobile='3',Memo='早',PRDNo_S='9',PackNo='K1',bolFixed='0' "
    "WHERE ID='20260301001'"_s;

} // namespace

TEST_F(LotCorrection, RunsFourUpdatesAndKeepsTheSoldQuantity)
{
    OpenForCorrection(u"A-003"_s);
    EXPECT_EQ(Field(u"txtCustInDate"_s), u"2026-03-01"_s);
    Put(u"txtNum"_s, u"80"_s);
    Put(u"txtCustName"_s, u"李老板"_s);
    Save();

    EXPECT_EQ(
        TakeStatements(),
        (QStringList{u"SELECT PRDNo FROM PRD_List WHERE PRDNo_S='9' And bolCheckOut='0' And PRDNo<>'A-003'"_s,
                     UpdateOfTheLot, u"UPDATE CustDebit SET CustName='李老板' WHERE ID='20260301001'"_s,
                     u"UPDATE Sal_List SET CustName='李老板' WHERE ID='20260301001'"_s,
                     u"UPDATE Sal_List_B SET CustName='李老板' WHERE ID='20260301001'"_s}));
    EXPECT_EQ(Db().Rows(u"SELECT Num,Num_Sal,PRDNo,CustInDate,CustFInDate,CustInTime,Receiver,EReceiver "
                        "FROM PRD_List WHERE ID='20260301001'"_s),
              (std::vector<QStringList>{{u"80.000000"_s, u"50.000000"_s, u"A-003"_s, u"2026-03-01"_s,
                                         u"2026-03-01"_s, u"05:00:00"_s, u"02"_s, u"01"_s}}));
    EXPECT_EQ(Count(u"PRD_List"_s), 2);
    EXPECT_EQ(Count(u"Count_Bill"_s), 0);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"4"_s);
}

TEST_F(LotCorrection, TheOwnersNewNameFollowsForThisLotOnly)
{
    OpenForCorrection(u"A-003"_s);
    Put(u"txtCustName"_s, u"李老板"_s);
    Save();
    for (const QString& table : {u"CustDebit"_s, u"Sal_List"_s, u"Sal_List_B"_s, u"PRD_List"_s}) {
        EXPECT_EQ(Count(table, u"ID='20260301001' AND CustName='李老板'"_s), 1) << table.toStdString();
        EXPECT_EQ(Count(table, u"ID='20260201001' AND CustName='王老板'"_s), 1) << table.toStdString();
    }
}

TEST_F(LotCorrection, LessThanWasSoldGivesANegativeStock)
{
    OpenForCorrection(u"A-003"_s);
    Put(u"txtNum"_s, u"20"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT Num_Sal FROM PRD_List WHERE ID='20260301001'"_s), u"-10.000000"_s);
}

TEST_F(LotCorrection, AnAdvanceTypedHereIsDroppedSilently)
{
    OpenForCorrection(u"A-003"_s);
    Put(u"txtDebitPrice"_s, u"999"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT DebitPrice FROM PRD_List WHERE ID='20260301001'"_s), u"500.000000"_s);
    EXPECT_EQ(Db().Rows(u"SELECT DebitPrice FROM CustDebit WHERE ID='20260301001'"_s),
              (std::vector<QStringList>{{u"500.000000"_s}}));
}

TEST_F(LotCorrection, ItsOwnShortcutIsAcceptedAnotherOpenLotsIsNot)
{
    AddLot(u"20260302001"_s, u"C-001"_s, u"PRDNo_S='10'"_s);
    OpenForCorrection(u"A-003"_s);
    Put(u"txtPRDNo_S"_s, u"10"_s);
    boxes.Expect(u"相同快捷编号已存在！"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT EReceiver FROM PRD_List WHERE ID='20260301001'"_s), QString());

    Put(u"txtPRDNo_S"_s, u"9"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT EReceiver FROM PRD_List WHERE ID='20260301001'"_s), u"01"_s);
}

TEST_F(LotCorrection, TheSortStaysLockedUntilTheWindowIsClosed)
{
    OpenForCorrection(u"A-003"_s);
    EXPECT_TRUE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly());
    Save();
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    EXPECT_EQ(Field(u"txtPID"_s), QString());
    Type(u"A"_s);
    EXPECT_EQ(Field(u"txtPID"_s), QString());

    Press(Qt::Key_C, Qt::AltModifier);
    OpenRegistration();
    Enter(u"txtPID"_s, u"A"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-005"_s);
}

TEST_F(LotCorrection, ASettledNumberIsNotFoundAndNothingIsShown)
{
    Db().Run(u"UPDATE PRD_List SET bolCheckOut='1'"_s);
    OpenForCorrection(u"A-003"_s);
    EXPECT_EQ(Field(u"txtCustName"_s), QString());
    EXPECT_EQ(Field(u"txtCustInDate"_s), u"2026-03-09"_s);
    EXPECT_FALSE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly());
}

TEST_F(LotCorrection, ALotSettledMeanwhileIsCorrectedAllTheSame)
{
    OpenForCorrection(u"A-003"_s);
    Db().Run(u"UPDATE PRD_List SET bolCheckOut='1'"_s);
    Put(u"txtMemo"_s, u"晚"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT Memo FROM PRD_List WHERE ID='20260301001'"_s), u"晚"_s);
}

TEST_F(LotCorrection, TheLockCanBeSetAndTakenOff)
{
    OpenForCorrection(u"A-003"_s);
    Find<QCheckBox>(u"frmPRDList"_s, u"chkFixed"_s)->setChecked(true);
    Save();
    EXPECT_EQ(Value(u"SELECT bolFixed FROM PRD_List WHERE ID='20260301001'"_s), u"1"_s);
    Windows().Find(u"frmPRDList"_s)->SetKey(u"A-003"_s);
    EXPECT_TRUE(Find<QCheckBox>(u"frmPRDList"_s, u"chkFixed"_s)->isChecked());
    Find<QCheckBox>(u"frmPRDList"_s, u"chkFixed"_s)->setChecked(false);
    Save();
    EXPECT_EQ(Value(u"SELECT bolFixed FROM PRD_List WHERE ID='20260301001'"_s), u"0"_s);
}

namespace {

struct BrokenCorrection {
    const char* name;
    int statement;
    Refusal how;
    /// Who stands as owner in PRD_List, CustDebit, Sal_List, Sal_List_B: N the new name, O the old.
    const char* owners;
};

class BrokenLotCorrection : public LotCorrection, public ::testing::WithParamInterface<BrokenCorrection> {};

} // namespace

TEST_P(BrokenLotCorrection, ShowsTheErrorAndLeavesWhatRan)
{
    OpenForCorrection(u"A-003"_s);
    Put(u"txtCustName"_s, u"李老板"_s);
    FailStatement(GetParam().statement, GetParam().how);
    boxes.ExpectContaining(GetParam().how == Refusal::Signalled ? u"演练故障"_s : u"doesn't exist"_s);
    Save();
    Mend();

    QString owners;
    for (const QString& table : {u"PRD_List"_s, u"CustDebit"_s, u"Sal_List"_s, u"Sal_List_B"_s}) {
        const QString name = Value(u"SELECT CustName FROM %1 WHERE ID='20260301001'"_s.arg(table));
        owners += name == u"李老板" ? u'N' : u'O';
    }
    EXPECT_EQ(owners, QString::fromLatin1(GetParam().owners));
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Field(u"txtCustName"_s), u"李老板"_s);

    // The correction can simply be repeated.
    Save();
    EXPECT_EQ(Count(u"Sal_List_B"_s, u"CustName='李老板'"_s), 1);
    EXPECT_EQ(Value(u"SELECT Num_Sal FROM PRD_List WHERE ID='20260301001'"_s), u"70.000000"_s);
}

INSTANTIATE_TEST_SUITE_P(EachStatement, BrokenLotCorrection,
                         ::testing::Values(BrokenCorrection{"Shortcut", 1, Refusal::MissingTable, "OOOO"},
                                           BrokenCorrection{"Lot", 2, Refusal::Signalled, "OOOO"},
                                           BrokenCorrection{"Advances", 3, Refusal::Signalled, "NOOO"},
                                           BrokenCorrection{"Tickets", 4, Refusal::Signalled, "NNOO"},
                                           BrokenCorrection{"OldTickets", 5, Refusal::Signalled, "NNNO"}),
                         [](const auto& which) { return which.param.name; });
