#include "core/session/Session.h"
#include "tests/goods/GoodsTest.h"

#include <QCheckBox>
#include <QComboBox>

using namespace Qt::StringLiterals;

namespace {

class LotBooking : public GoodsTest {
protected:
    void SetUp() override
    {
        GoodsTest::SetUp();
        OpenRegistration();
    }

    /// The least that can be saved.
    void PutNewLot()
    {
        Enter(u"txtPID"_s, u"A"_s);
        Put(u"txtNum"_s, u"100"_s);
        Put(u"txtStore"_s, u"一号库"_s);
        Put(u"txtCustName"_s, u"王老板"_s);
        TakeStatements();
    }
    void Save() { Press(Qt::Key_S, Qt::AltModifier); }
    void ClickSave() { Click(Find<QWidget>(u"frmPRDList"_s, u"cmdSubmit"_s)); }
};

const QString InsertOfTheTypedLot =
    u"INSERT INTO PRD_List (ID,PID,CustID,PRDNo,PRDName,Num,Num_Sal,PType,MPercent,CustInDate,Store,PArea,"
    "bolPack,PerForegift,CustName,CardNO,VerifyID,Address,DebitPrice,Tel,Fax,Mobile,Memo,bolFixed,Receiver,"
    "CustFInDate,CustInTime,PRDNo_S,PackNo) VALUES ('20260309001','A','005','A-005','苹果',100,100,'件',12.5,"
    "'2026-03-09','一号库','洛川','1',8,'王老板','4501','77','东关',500,'1','2','3','早到','0','01',"
    "'2026-03-09','10:00:00','9','K1')"_s;

} // namespace

TEST_F(LotBooking, OpensEmptyForANewLotAndReadsThePrintStyle)
{
    EXPECT_FALSE(Session::WindowSlotFree);
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    EXPECT_EQ(Field(u"txtCustInDate"_s), u"2026-03-09"_s);
    EXPECT_EQ(Find<QComboBox>(u"frmPRDList"_s, u"cmbPType"_s)->currentText(), u"件"_s);
    EXPECT_EQ(Find<QComboBox>(u"frmPRDList"_s, u"cmbPack"_s)->currentText(), u"否"_s);
    EXPECT_FALSE(Find(u"frmPRDList"_s, u"txtPRDNo"_s)->isVisible());

    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    Open(u"frmPRDList"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT PrintStyle FROM DFN_Paper WHERE PaperID='P01'"_s}));
}

TEST_F(LotBooking, EnterWalksAllFieldsAndSavesInTheStatedOrder)
{
    TypeNewLot();
    TakeStatements();
    Press(Qt::Key_Return);

    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            u"SELECT PRDNo FROM PRD_List WHERE PRDNo_S='9' And bolCheckOut='0' And PRDNo<>'A-005'"_s,
            u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate='2026-03-09' And TID='C01'"_s,
            u"INSERT INTO Count_Bill (TID,CurrDate,CurrNumber) VALUES ('C01','2026-03-09',0)"_s,
            u"SELECT CustID FROM PRD_List WHERE ID='20260309001'"_s,
            u"SELECT PRDNo FROM PRD_List WHERE PRDNo='A-005' And bolCheckOut='0'"_s,
            InsertOfTheTypedLot,
            u"SELECT PRDNo FROM PRD_List WHERE ID='20260309001'"_s,
            u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1 WHERE TID='C01' And CurrDate='2026-03-09'"_s,
            u"INSERT INTO CustDebit (ID,PRDNo,CustName,PRDName,Store,DebitPrice,DebitDate,Receiver) VALUES "
            "('20260309001','A-005','王老板','苹果','一号库',500,'2026-03-09','01')"_s,
            u"UPDATE PRD_Sort SET CurrNumber=CurrNumber+1 WHERE SortID='A'"_s,
        }));
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='C01' AND UID=''"_s), u"1"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"5"_s);
    EXPECT_EQ(Db().Rows(u"SELECT bolCheckOut,EReceiver,EDate,ETime,CheckNo FROM PRD_List"_s),
              (std::vector<QStringList>{{u"0"_s, QString(), QString(), QString(), QString()}}));
    EXPECT_EQ(Db().Rows(u"SELECT DebitAmount,DebitPrice,bolCheckOut FROM CustDebit"_s),
              (std::vector<QStringList>{{u"0.000000"_s, u"500.000000"_s, u"0"_s}}));
    for (const QString& table : {u"Sal_List"_s, u"EStore_List"_s, u"Pack_List"_s, u"ErrInfo"_s})
        EXPECT_EQ(Count(table), 0) << table.toStdString();
    EXPECT_EQ(printer.calls, QStringList());
}

TEST_F(LotBooking, AfterTheSaveTheWindowIsReadyForTheNextLot)
{
    TypeNewLot();
    Find<QCheckBox>(u"frmPRDList"_s, u"chkFixed"_s)->setChecked(true);
    Press(Qt::Key_Return);

    const auto fields = Find<QWidget>(u"frmPRDList"_s, u"txtPID"_s)->window()->findChildren<QLineEdit*>();
    for (const QLineEdit* field : fields) {
        if (field->objectName() != u"txtCustInDate") {
            EXPECT_EQ(field->text(), QString()) << field->objectName().toStdString();
        }
    }
    EXPECT_EQ(Field(u"txtCustInDate"_s), u"2026-03-09"_s);
    EXPECT_EQ(Find<QComboBox>(u"frmPRDList"_s, u"cmbPack"_s)->currentIndex(), 0);
    EXPECT_FALSE(Find<QCheckBox>(u"frmPRDList"_s, u"chkFixed"_s)->isChecked());
    EXPECT_FALSE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly());
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    EXPECT_EQ(Value(u"SELECT bolFixed FROM PRD_List"_s), u"1"_s);

    Enter(u"txtPID"_s, u"A"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-006"_s);
    Put(u"txtNum"_s, u"1"_s);
    Put(u"txtStore"_s, u"一号库"_s);
    Put(u"txtCustName"_s, u"李老板"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT ID FROM PRD_List WHERE PRDNo='A-006'"_s), u"20260309002"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"2"_s);
}

TEST_F(LotBooking, UpWalksBackAndFromTheOwnerToTheDepositChoice)
{
    Enter(u"txtPID"_s, u"A"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtNum"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtPRDName"_s);

    Find(u"frmPRDList"_s, u"txtCustName"_s)->setFocus();
    Settle();
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"cmbPack"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPerForegift"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"cmbPack"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtPArea"_s);
}

TEST_F(LotBooking, DownFromTheCrateGoesToTheLockAndSavesNothing)
{
    TypeNewLot();
    TakeStatements();
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"chkFixed"_s);
    Press(Qt::Key_Space);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtPackNo"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    Press(Qt::Key_Return);
    EXPECT_EQ(Value(u"SELECT bolFixed FROM PRD_List"_s), u"1"_s);
}

TEST_F(LotBooking, WhatIsMissingIsAskedForInOrderAndNothingIsWritten)
{
    Save(); // the key leaves 品号 first, which is not left empty
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    boxes.Expect(u"请填写编号！"_s);
    ClickSave();
    EXPECT_EQ(FocusName(), u"txtPID"_s);

    Enter(u"txtPID"_s, u"A"_s);
    boxes.Expect(u"请填写数量！"_s);
    Save();
    EXPECT_EQ(FocusName(), u"txtNum"_s);
    Put(u"txtNum"_s, u"100"_s);
    boxes.Expect(u"请填写仓位！"_s);
    Save();
    EXPECT_EQ(FocusName(), u"txtStore"_s);
    Put(u"txtStore"_s, u"一号库"_s);
    Put(u"txtCustName"_s, u"  "_s);
    boxes.Expect(u"请填写姓名！"_s);
    Save();
    EXPECT_EQ(FocusName(), u"txtCustName"_s);

    EXPECT_EQ(Count(u"PRD_List"_s), 0);
    EXPECT_EQ(Count(u"Count_Bill"_s), 0);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"4"_s);
}

TEST_F(LotBooking, AShortcutOfAnotherOpenLotIsRefusedBeforeTheEmptyQuantity)
{
    AddLot(u"20260301001"_s, u"C-001"_s, u"PRDNo_S='9'"_s);
    Enter(u"txtPID"_s, u"A"_s);
    Put(u"txtPRDNo_S"_s, u"9"_s);
    boxes.Expect(u"相同快捷编号已存在！"_s);
    Save();
    EXPECT_EQ(FocusName(), u"txtPRDNo_S"_s);
    EXPECT_EQ(Count(u"PRD_List"_s), 1);
}

TEST_F(LotBooking, AShortcutOfASettledLotIsAccepted)
{
    AddLot(u"20260301001"_s, u"C-001"_s, u"PRDNo_S='9',bolCheckOut='1'"_s);
    PutNewLot();
    Put(u"txtPRDNo_S"_s, u"9"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT PRDNo_S FROM PRD_List WHERE PRDNo='A-005'"_s), u"9"_s);
}

TEST_F(LotBooking, WithoutAnAdvanceNoDebitRowIsWrittenAndNumbersLeftEmptyAreZero)
{
    PutNewLot();
    Save();
    EXPECT_EQ(Count(u"CustDebit"_s), 0);
    EXPECT_EQ(Db().Rows(u"SELECT MPercent,PerForegift,DebitPrice,bolPack FROM PRD_List"_s),
              (std::vector<QStringList>{{u"0.000000"_s, u"0.000000"_s, u"0.000000"_s, u"0"_s}}));
}

TEST_F(LotBooking, ANegativeAdvanceIsBookedToo)
{
    PutNewLot();
    Put(u"txtDebitPrice"_s, u"-30.5"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT DebitPrice FROM CustDebit"_s), u"-30.500000"_s);
    EXPECT_EQ(Value(u"SELECT DebitPrice FROM PRD_List"_s), u"-30.500000"_s);
}

TEST_F(LotBooking, AGroupedNumberAndBlanksAroundTextsAreTakenOff)
{
    PutNewLot();
    Put(u"txtNum"_s, u" 1,200.50 "_s);
    Put(u"txtCustName"_s, u" 王 老板 "_s);
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT Num,Num_Sal,CustName FROM PRD_List"_s),
              (std::vector<QStringList>{{u"1200.500000"_s, u"1200.500000"_s, u"王 老板"_s}}));
}

// A click on the button leaves no field: neither the sort nor the place is looked up.
TEST_F(LotBooking, SavedByTheButtonRightAfterTypingOverTheSortTheLotKeepsTheNumberOfTheFirst)
{
    PutNewLot();
    Put(u"txtPID"_s, u"B"_s);
    ClickSave();
    EXPECT_EQ(Db().Rows(u"SELECT PID,CustID,PRDNo,PRDName FROM PRD_List"_s),
              (std::vector<QStringList>{{u"B"_s, u"005"_s, u"A-005"_s, u"苹果"_s}}));
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"4"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='B'"_s), u"999"_s);
}

TEST_F(LotBooking, SavedByTheButtonRightAfterTypingThePlaceItIsStoredAsTyped)
{
    PutNewLot();
    Put(u"txtStore"_s, u"没有的库"_s);
    ClickSave();
    EXPECT_EQ(Value(u"SELECT Store FROM PRD_List"_s), u"没有的库"_s);
}

TEST_F(LotBooking, TheDaysCounterIsReadNotTheUsers)
{
    Db().Run(u"INSERT INTO Count_Bill VALUES ('C01','','2026-03-09',41),('C01','','2026-03-08',7),"
             "('01','01','2026-03-09',3)"_s);
    PutNewLot();
    Save();
    EXPECT_EQ(Value(u"SELECT ID FROM PRD_List"_s), u"20260309042"_s);
    EXPECT_EQ(Db().Rows(u"SELECT TID,CurrDate,CurrNumber FROM Count_Bill ORDER BY TID,CurrDate"_s),
              (std::vector<QStringList>{{u"01"_s, u"2026-03-09"_s, u"3"_s},
                                        {u"C01"_s, u"2026-03-08"_s, u"7"_s},
                                        {u"C01"_s, u"2026-03-09"_s, u"42"_s}}));
}

TEST_F(LotBooking, AnIdThatIsTakenIsPassedOverWithTheCounterMoved)
{
    AddLot(u"20260309001"_s, u"C-001"_s);
    AddLot(u"20260309002"_s, u"C-002"_s);
    PutNewLot();
    Save();
    EXPECT_EQ(Value(u"SELECT ID FROM PRD_List WHERE PRDNo='A-005'"_s), u"20260309003"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"3"_s);
}

TEST_F(LotBooking, TheThousandthLotOfADayHasTheBareDateForItsKey)
{
    Db().Run(u"INSERT INTO Count_Bill VALUES ('C01','','2026-03-09',999)"_s);
    PutNewLot();
    Save();
    EXPECT_EQ(Value(u"SELECT ID FROM PRD_List"_s), u"20260309"_s);
}

TEST_F(LotBooking, TheLotAfterTheThousandthRunsIntoTheSixteenBitLimit)
{
    AddLot(u"20260309"_s, u"C-001"_s);
    // A thousand lots and what earlier tries have left: the loop itself is the same from 1001 on.
    Db().Run(u"INSERT INTO Count_Bill VALUES ('C01','','2026-03-09',32700)"_s);
    PutNewLot();
    boxes.Expect(u"溢出"_s);
    Save();
    EXPECT_EQ(Count(u"PRD_List"_s), 1);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"32766"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"4"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Field(u"txtNum"_s), u"100"_s);
}

TEST_F(LotBooking, TwoClerksOnOneNumberTheSecondSaveIsRefused)
{
    PutNewLot();
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-005"_s);

    // The other clerk saw the same proposal and saves first, over a connection of his own.
    SideConnection& other = Db();
    other.Run(u"INSERT INTO Count_Bill (TID,CurrDate,CurrNumber) VALUES ('C01','2026-03-09',0)"_s);
    AddLot(u"20260309001"_s, u"A-005"_s, u"CustName='李老板'"_s);
    other.Run(u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1 WHERE TID='C01' And CurrDate='2026-03-09'"_s);
    other.Run(u"UPDATE PRD_Sort SET CurrNumber=CurrNumber+1 WHERE SortID='A'"_s);

    boxes.Expect(u"相同编号的上一次客户未做结算，请先做结算！"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT CustName FROM PRD_List"_s), u"李老板"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"1"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"5"_s);
    EXPECT_EQ(Field(u"txtCustName"_s), u"王老板"_s) << "nothing typed is lost";

    // Passing the sort once more proposes the next number, and the same lot goes in under it.
    Find(u"frmPRDList"_s, u"txtPID"_s)->setFocus();
    Settle();
    Press(Qt::Key_Return);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-006"_s);
    Save();
    EXPECT_EQ(Db().Rows(u"SELECT ID,PRDNo,CustName FROM PRD_List ORDER BY ID"_s),
              (std::vector<QStringList>{{u"20260309001"_s, u"A-005"_s, u"李老板"_s},
                                        {u"20260309002"_s, u"A-006"_s, u"王老板"_s}}));
}

TEST_F(LotBooking, ARefusedNumberMayLeaveTheDaysCounterAtZero)
{
    PutNewLot();
    AddLot(u"20260301001"_s, u"A-005"_s);
    boxes.Expect(u"相同编号的上一次客户未做结算，请先做结算！"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"0"_s);
    EXPECT_EQ(Count(u"PRD_List"_s), 1);
}

TEST_F(LotBooking, ALotThatDidNotArriveStopsTheSave)
{
    PutNewLot();
    // A table that swallows the row it was given: the read-back is what notices.
    Db().Run(u"RENAME TABLE PRD_List TO PRD_Real;"
             "CREATE VIEW PRD_List AS SELECT * FROM PRD_Real WHERE CustName<>'王老板'"_s);
    boxes.Expect(u"数据有错，不能成功提交，请检查数据！"_s);
    Save();
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"0"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"4"_s);
    EXPECT_EQ(Count(u"CustDebit"_s), 0);
    EXPECT_EQ(Field(u"txtNum"_s), u"100"_s);
}

// What stands when a statement of the save fails.

namespace {

struct BrokenSave {
    const char* name;
    int statement;
    Refusal how;
    int counterRows;
    const char* counter; ///< Count_Bill.CurrNumber
    int lots;
    int debits;
    const char* sort; ///< PRD_Sort.CurrNumber
};

class BrokenLotBooking : public LotBooking, public ::testing::WithParamInterface<BrokenSave> {};

} // namespace

TEST_P(BrokenLotBooking, ShowsTheErrorAndLeavesWhatRan)
{
    const BrokenSave& broken = GetParam();
    Db().Run(u"UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P01'"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    OpenRegistration();
    TypeNewLot();
    FailStatement(broken.statement, broken.how);
    boxes.ExpectContaining(broken.how == Refusal::Signalled      ? u"演练故障"_s
                           : broken.how == Refusal::MissingTable ? u"doesn't exist"_s
                                                                 : u"erver"_s);
    Press(Qt::Key_Return);
    if (broken.how != Refusal::LostLink)
        Mend();

    EXPECT_EQ(Count(u"Count_Bill"_s), broken.counterRows);
    if (broken.counterRows > 0) {
        EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), QString::fromLatin1(broken.counter));
    }
    EXPECT_EQ(Count(u"PRD_List"_s), broken.lots);
    EXPECT_EQ(Count(u"CustDebit"_s), broken.debits);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), QString::fromLatin1(broken.sort));
    EXPECT_EQ(Count(u"ErrInfo"_s), 0) << "this save has no label";
    EXPECT_EQ(printer.calls, QStringList());
    EXPECT_EQ(Field(u"txtNum"_s), u"100"_s);
    EXPECT_EQ(Field(u"txtPackNo"_s), u"K1"_s);
}

INSTANTIATE_TEST_SUITE_P(
    EachStatement, BrokenLotBooking,
    ::testing::Values(BrokenSave{"ShortcutLookup", 1, Refusal::MissingTable, 0, "", 0, 0, "4"},
                      BrokenSave{"CounterLookup", 2, Refusal::MissingTable, 0, "", 0, 0, "4"},
                      BrokenSave{"CounterInsert", 3, Refusal::Signalled, 0, "", 0, 0, "4"},
                      BrokenSave{"IdProbe", 4, Refusal::MissingTable, 1, "0", 0, 0, "4"},
                      BrokenSave{"NumberProbe", 5, Refusal::MissingTable, 1, "0", 0, 0, "4"},
                      BrokenSave{"LotInsert", 6, Refusal::Signalled, 1, "0", 0, 0, "4"},
                      BrokenSave{"LotInsertLostLink", 6, Refusal::LostLink, 1, "0", 0, 0, "4"},
                      BrokenSave{"ReadBack", 7, Refusal::MissingTable, 1, "0", 1, 0, "4"},
                      BrokenSave{"CounterMove", 8, Refusal::Signalled, 1, "0", 1, 0, "4"},
                      BrokenSave{"Advance", 9, Refusal::Signalled, 1, "1", 1, 0, "4"},
                      BrokenSave{"SortMove", 10, Refusal::Signalled, 1, "1", 1, 1, "4"},
                      BrokenSave{"SlipAdded", 11, Refusal::MissingTable, 1, "1", 1, 1, "5"},
                      BrokenSave{"SlipMovedOut", 12, Refusal::MissingTable, 1, "1", 1, 1, "5"},
                      BrokenSave{"SlipLost", 13, Refusal::MissingTable, 1, "1", 1, 1, "5"},
                      BrokenSave{"SlipCompany", 14, Refusal::MissingTable, 1, "1", 1, 1, "5"},
                      BrokenSave{"SlipDepartment", 15, Refusal::MissingTable, 1, "1", 1, 1, "5"}),
    [](const auto& which) { return which.param.name; });

TEST_F(LotBooking, AHalfSavedLotIsNotBookedTwice)
{
    PutNewLot();
    FailStatement(7, Refusal::Signalled); // the counter is not moved, the lot stands
    boxes.Expect(u"演练故障"_s);
    Save();
    EXPECT_EQ(Count(u"PRD_List"_s), 1);

    boxes.Expect(u"相同编号的上一次客户未做结算，请先做结算！"_s);
    Save();
    EXPECT_EQ(Count(u"PRD_List"_s), 1);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"1"_s) << "the ID probe has moved it";
}

TEST_F(LotBooking, AnErrorInTheListsRebuildIsShownOnceAndTheLotStands)
{
    Open(u"frmDataList"_s);
    Open(u"frmPRDList"_s);
    PutNewLot();
    FailStatement(9, Refusal::MissingTable);
    boxes.ExpectContaining(u"Sys_Define"_s);
    Save();
    Mend();
    EXPECT_EQ(Count(u"PRD_List"_s), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Field(u"txtNum"_s), u"100"_s) << "the rest of the save is skipped";
}
