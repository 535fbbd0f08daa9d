#include "tests/settlement/SettlementWindow.h"

using namespace Qt::StringLiterals;

namespace {

class SettlementFailure : public EitherLayout {
protected:
    void Prepare(bool isLocked)
    {
        if (isLocked)
            Db().Run(u"UPDATE PRD_List SET bolFixed='1'"_s);
        AddTicket(40, 0, 1000);
        AddAdvance(100);
        OpenLayout();
        FillForSaving();
        TakeStatements();
    }

    void Save() { Press(Qt::Key_S, Qt::AltModifier); }

    /// What stands in the tables, in one line.
    QString Standing()
    {
        const auto counter = [this](const QString& tid) {
            return Value(u"SELECT COALESCE(SUM(CurrNumber),0) FROM Count_Bill WHERE TID='%1'"_s.arg(tid));
        };
        return u"rows %1, lots %2, closed lot %3 tickets %4 advances %5, counters %6 %7"_s.arg(
            QString::number(Count(u"CheckOut"_s)), QString::number(Count(u"PRD_List"_s)),
            QString::number(Count(u"PRD_List"_s, u"bolCheckOut='1'"_s)),
            QString::number(Count(u"Sal_List"_s, u"bolCheckOut='1'"_s)),
            QString::number(Count(u"CustDebit"_s, u"bolCheckOut='1'"_s)), counter(u"03"_s),
            counter(u"C01"_s));
    }

    struct Step {
        QString statement; ///< how it begins
        QString standing;  ///< what stands when it fails
    };

    /// Runs the save once per step, each time with that statement failing.
    void FailEach(bool isLocked, QList<Step> steps)
    {
        if (!IsLayoutA())
            steps.removeIf([](const Step& step) { return step.statement.contains(u"PrintStyle"); });
        Prepare(isLocked);
        for (qsizetype i = 0; i < steps.size(); ++i) {
            SCOPED_TRACE(qPrintable(u"statement %1 fails: %2"_s.arg(i + 1).arg(steps[i].statement)));
            const bool isSelect = steps[i].statement.startsWith(u"SELECT");
            // A missing table is told in words with quotes, which the log cannot hold.
            FailStatement(static_cast<int>(i) + 1, isSelect ? Refusal::MissingTable : Refusal::Signalled);
            if (isSelect)
                boxes.ExpectContaining(u"doesn't exist"_s);
            else
                boxes.Expect(u"演练故障"_s);
            Save();
            const QStringList sent = TakeStatements();
            ASSERT_GT(sent.size(), i);
            EXPECT_TRUE(sent[i].startsWith(steps[i].statement)) << sent[i].toStdString();
            EXPECT_EQ(sent.size(), i + 2); // behind it only the row of the log
            EXPECT_EQ(Standing(), steps[i].standing);
            EXPECT_EQ(Count(u"ErrInfo"_s,
                            u"ErrDescription='演练故障' AND ErrSource='保存或修改结算信息' AND "
                            "ErrUserName='管理员' AND ErrDate='2026-03-09' AND ErrTime='10:00:00'"_s),
                      isSelect ? 0 : 1);
            EXPECT_EQ(Count(u"ErrInfo"_s), isSelect ? 0 : 1);
            StartAfresh();
        }
    }

private:
    /// The state before the save, for the next round. Fields that the save had emptied are filled again.
    void StartAfresh()
    {
        Db().Run(
            u"DELETE FROM CheckOut; DELETE FROM ErrInfo; DELETE FROM Count_Bill; "
            "DELETE FROM PRD_List WHERE ID<>'20260301001'; UPDATE PRD_List SET bolCheckOut='0',CheckNo=''; "
            "UPDATE Sal_List SET bolCheckOut='0',CheckNo='',CheckDate=''; "
            "UPDATE CustDebit SET bolCheckOut='0',CheckNo='',CheckDate=''"_s);
        Press(Qt::Key_C, Qt::AltModifier);
        OpenLayout();
        FillForSaving();
        TakeStatements();
    }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(, SettlementFailure, BothLayouts, LayoutName);

TEST_P(SettlementFailure, EachStatementOfAnOrdinarySettlementLeavesWhatRanBeforeIt)
{
    const QString row = u"rows 1, lots 1, closed lot 0 tickets 0 advances 0, counters 0 0"_s;
    const QString closed = u"rows 1, lots 1, closed lot 1 tickets 1 advances 1, counters 0 0"_s;
    FailEach(
        false,
        {{u"INSERT INTO CheckOut "_s, u"rows 0, lots 1, closed lot 0 tickets 0 advances 0, counters 0 0"_s},
         {u"SELECT PRDNo FROM CheckOut"_s, row},
         {u"SELECT PrintStyle FROM DFN_Paper"_s, row},
         {u"SELECT bolFixed FROM PRD_List"_s, row},
         {u"UPDATE PRD_List"_s, row},
         {u"UPDATE Sal_List"_s, u"rows 1, lots 1, closed lot 1 tickets 0 advances 0, counters 0 0"_s},
         {u"UPDATE CustDebit"_s, u"rows 1, lots 1, closed lot 1 tickets 1 advances 0, counters 0 0"_s},
         {u"SELECT CurrNumber FROM Count_Bill WHERE UID"_s, closed},
         {u"INSERT INTO Count_Bill"_s, closed},
         {u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate"_s,
          u"rows 1, lots 1, closed lot 1 tickets 1 advances 1, counters 1 0"_s}});
}

TEST_P(SettlementFailure, EachStatementOfACarryForwardLeavesTheLotOpen)
{
    const QString row = u"rows 1, lots 1, closed lot 0 tickets 0 advances 0, counters 0 0"_s;
    const QString counted = u"rows 1, lots 1, closed lot 0 tickets 0 advances 0, counters 0 1"_s;
    const QString carried = u"rows 1, lots 2, closed lot 0 tickets 0 advances 0, counters 0 1"_s;
    FailEach(true, {{u"INSERT INTO CheckOut "_s,
                     u"rows 0, lots 1, closed lot 0 tickets 0 advances 0, counters 0 0"_s},
                    {u"SELECT PRDNo FROM CheckOut"_s, row},
                    {u"SELECT PrintStyle FROM DFN_Paper"_s, row},
                    {u"SELECT bolFixed FROM PRD_List"_s, row},
                    {u"SELECT CurrNumber FROM Count_Bill"_s, row},
                    {u"INSERT INTO Count_Bill (TID,CurrDate,CurrNumber)"_s, row},
                    {u"SELECT PID,"_s, counted},
                    {u"INSERT INTO PRD_List"_s, counted},
                    {u"SELECT PRDNo FROM PRD_List WHERE ID='20260309001'"_s, carried},
                    {u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1"_s, carried},
                    {u"UPDATE PRD_List SET bolCheckOut"_s,
                     u"rows 1, lots 2, closed lot 0 tickets 0 advances 0, counters 0 2"_s}});
}

TEST_P(SettlementFailure, AFailedSaveKeepsTheScreenAndTheNextOpeningTellsOfTheTakenNumber)
{
    Prepare(false);
    FailStatement(IsLayoutA() ? 5 : 4, Refusal::Signalled); // closing the lot
    boxes.Expect(u"演练故障"_s);
    Save();
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥900.0"_s);
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309001"_s);
    EXPECT_EQ(FocusName(), u"txtCheckUser"_s);

    // A second press meets its own row.
    boxes.ExpectContaining(u"Duplicate entry"_s);
    Save();
    EXPECT_EQ(Count(u"CheckOut"_s), 1);

    Press(Qt::Key_C, Qt::AltModifier);
    boxes.Expect(u"单号重复，请重新打开本菜单！"_s);
    OpenLayout();
    Press(Qt::Key_C, Qt::AltModifier);
    OpenLayout();
    FillForSaving();
    Save();
    EXPECT_EQ(Count(u"CheckOut"_s), 2); // the orphan stays until it is reversed
    EXPECT_EQ(Value(u"SELECT CheckNo FROM PRD_List"_s), u"01260309002"_s);
}

TEST_P(SettlementFailure, ALostConnectionIsShownAndTheScreenStays)
{
    Prepare(false);
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(u"erver"_s); // "Server has gone away", "Lost connection to server"
    Save();
    EXPECT_EQ(Standing(), u"rows 0, lots 1, closed lot 0 tickets 0 advances 0, counters 0 0"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥900.0"_s);
}

// Two at the same time

TEST_P(SettlementFailure, TwoUsersCanSettleTheSameLotAndTheLaterOneMarksIt)
{
    Prepare(false);
    // User 02 has settled the lot from another workstation since it was shown here.
    Db().Run(u"INSERT INTO CheckOut (ID,CheckNo,CheckDate,PRDNo,Receiver) VALUES "
             "('20260301001','02260309001','2026-03-09','A-001','02'); "
             "UPDATE PRD_List SET bolCheckOut='1',CheckNo='02260309001'; "
             "UPDATE Sal_List SET bolCheckOut='1',CheckDate='2026-03-09',CheckNo='02260309001'; "
             "UPDATE CustDebit SET bolCheckOut='1',CheckDate='2026-03-09',CheckNo='02260309001'; "
             "INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES ('03','02','2026-03-09',1)"_s);
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT CheckNo,Receiver FROM CheckOut ORDER BY CheckNo"_s),
              (std::vector<QStringList>{{u"01260309001"_s, u"01"_s}, {u"02260309001"_s, u"02"_s}}));
    for (const QString& table : {u"PRD_List"_s, u"Sal_List"_s, u"CustDebit"_s})
        EXPECT_EQ(Value(u"SELECT CheckNo FROM "_s + table), u"01260309001"_s);
    EXPECT_EQ(Db().Rows(u"SELECT UID,CurrNumber FROM Count_Bill ORDER BY UID"_s),
              (std::vector<QStringList>{{u"01"_s, u"1"_s}, {u"02"_s, u"1"_s}}));
}

TEST_P(SettlementFailure, ALockedLotSettledMeanwhileCarriesTheOpenRestForwardOnceMore)
{
    Prepare(true);
    // User 02 settled it first: the rest stands as a new open lot under the same number.
    Db().Run(u"UPDATE PRD_List SET bolCheckOut='1',CheckNo='02260309001'; "
             "INSERT INTO PRD_List (ID,PRDNo,Num,Num_Sal,bolFixed) VALUES ('20260309001','A-001',60,60,'1'); "
             "INSERT INTO Count_Bill (TID,CurrDate,CurrNumber) VALUES ('C01','2026-03-09',2)"_s);
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT ID,Num_Sal,bolCheckOut,CheckNo FROM PRD_List ORDER BY ID"_s),
              (std::vector<QStringList>{{Lot, u"60.000000"_s, u"1"_s, u"01260309001"_s},
                                        {u"20260309001"_s, u"60.000000"_s, u"0"_s, QString()},
                                        {u"20260309003"_s, u"60.000000"_s, u"0"_s, QString()}}));
}

TEST_P(SettlementFailure, TwoUsersCarryingForwardAtOnceCollideOnTheLotsKey)
{
    Prepare(true);
    // User 02 has taken the key but not yet moved the counter.
    Db().Run(u"INSERT INTO PRD_List (ID,PRDNo) VALUES ('20260309001','C-001')"_s);
    boxes.ExpectContaining(u"Duplicate entry '20260309001'"_s);
    Save();
    EXPECT_EQ(Standing(), u"rows 1, lots 2, closed lot 0 tickets 0 advances 0, counters 0 1"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_P(SettlementFailure, TwoWorkstationsOfOneUserCollideOnTheBillNumber)
{
    Prepare(false);
    Db().Run(u"INSERT INTO CheckOut (ID,CheckNo) VALUES ('20260302001','01260309001')"_s);
    boxes.ExpectContaining(u"Duplicate entry '01260309001'"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT ID FROM CheckOut"_s), u"20260302001"_s);
    EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List"_s), u"0"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥900.0"_s);
}

TEST_P(SettlementFailure, ATicketSoldAfterTheLookupIsClosedButNotCounted)
{
    Prepare(false);
    AddTicket(5, 0, 500);
    AddAdvance(30);
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT Num,Amount,ListNum,LExpendPrice,GTotalPrice FROM CheckOut"_s),
              (std::vector<QStringList>{
                  {u"40.000000"_s, u"1000.000000"_s, u"1.000000"_s, u"100.000000"_s, u"900.000000"_s}}));
    EXPECT_EQ(Count(u"Sal_List"_s, u"bolCheckOut='1' AND CheckNo='01260309001'"_s), 2);
    EXPECT_EQ(Count(u"CustDebit"_s, u"bolCheckOut='1'"_s), 2);
}

// A number typed over and saved by a click, which leaves no field: the layout that keeps its figures lets it
// through

namespace {
class NumberTypedOver : public SettlementWindow {};
} // namespace

TEST_F(NumberTypedOver, IsSavedBesideTheLotThatWasFound)
{
    AddTicket(40, 0, 1000);
    OpenLayout(u"frmCheckOut"_s);
    FillForSaving();
    TypeInto(u"txtPRDNo"_s, u"Z-9"_s);
    ClickSave();
    EXPECT_EQ(Db().Rows(u"SELECT ID,PRDNo,CustName FROM CheckOut"_s),
              (std::vector<QStringList>{{Lot, u"Z-9"_s, u"王建国"_s}}));
    EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List WHERE ID='20260301001'"_s), u"1"_s);
}

TEST_F(NumberTypedOver, ByBlanksStopsTheSaveWithoutAWord)
{
    AddTicket(40, 0, 1000);
    OpenLayout(u"frmCheckOut"_s);
    FillForSaving();
    TypeInto(u"txtPRDNo"_s, u"  "_s);
    TakeStatements();
    ClickSave();
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥1,000.0"_s);
}

TEST_F(NumberTypedOver, IsRefusedOnTheLayoutThatClearsItself)
{
    AddTicket(40, 0, 1000);
    OpenLayout(u"frmCheckOutA"_s);
    FillForSaving();
    TypeInto(u"txtPRDNo"_s, u"Z"_s);
    boxes.Expect(u"实得金额为负数，不能进行结算。"_s);
    ClickSave();
    EXPECT_EQ(Count(u"CheckOut"_s), 0);
}

TEST_F(NumberTypedOver, IsLookedUpByTheKeyThatSaves)
{
    AddTicket(40, 0, 1000);
    for (const QString& layout : {u"frmCheckOut"_s, u"frmCheckOutA"_s}) {
        OpenLayout(layout);
        FillForSaving();
        TypeInto(u"txtPRDNo"_s, u"Z-9"_s);
        boxes.Expect(u"该编号不存在或已结算，请重新输入！"_s);
        Press(Qt::Key_S, Qt::AltModifier);
        boxes.Verify();
        EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
        EXPECT_EQ(Text(u"txtPRDNo"_s), QString());
        Press(Qt::Key_S, Qt::AltModifier); // a blank number holds the focus, without a word
        EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
        EXPECT_EQ(Count(u"CheckOut"_s), 0);
        EXPECT_EQ(Value(u"SELECT bolCheckOut FROM PRD_List"_s), u"0"_s);
        Windows().Find(layout)->Widget()->close();
        Settle();
    }
}

TEST_F(NumberTypedOver, ByTheShortcutOfTheLotIsSavedUnderItsMainNumber)
{
    AddTicket(40, 0, 1000);
    OpenLayout(u"frmCheckOut"_s);
    FillForSaving();
    TypeInto(u"txtPRDNo"_s, u"8"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Db().Rows(u"SELECT ID,PRDNo,GTotalPrice FROM CheckOut"_s),
              (std::vector<QStringList>{{Lot, u"A-001"_s, u"1000.000000"_s}}));
}
