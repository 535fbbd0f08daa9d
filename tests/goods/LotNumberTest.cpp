#include "tests/goods/GoodsTest.h"

#include <QComboBox>
#include <QLabel>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

class LotNumber : public GoodsTest {
protected:
    void SetUp() override
    {
        GoodsTest::SetUp();
        OpenRegistration();
    }
    QString CurrNumber(const QString& sort)
    {
        return Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='%1'"_s.arg(sort));
    }
};

} // namespace

TEST_F(LotNumber, LeavingTheSortProposesTheNextNumberWithoutTakingIt)
{
    Enter(u"txtPID"_s, u"A"_s);

    EXPECT_EQ(FocusName(), u"txtCustID"_s);
    EXPECT_EQ(Field(u"txtCustID"_s), u"005"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-005"_s);
    EXPECT_EQ(Field(u"txtPRDName"_s), u"苹果"_s);
    EXPECT_EQ(CurrNumber(u"A"_s), u"4"_s);
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{u"SELECT SortName,CurrNumber FROM PRD_Sort WHERE SortID='A'"_s,
                     u"SELECT PID,CustID,PRDName,Num,MPercent,CustInDate,Store,PArea,bolPack,CustName,CardNo,"
                     "VerifyID,Address,DebitPrice,Tel,Fax,Mobile,Memo,bolFixed,PerForegift,PRDNo_S,PackNo,ID "
                     "FROM PRD_List WHERE PRDNo='A-005' And bolCheckOut='0'"_s,
                     u"SELECT bolFixed FROM PRD_List WHERE PRDNo='A-005' And bolCheckOut='0'"_s}));
}

TEST_F(LotNumber, AnEmptySortTakesTheFocusBackWithoutAWordOrAStatement)
{
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    Type(u"  "_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    Click(Find(u"frmPRDList"_s, u"txtCustName"_s));
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(LotNumber, AnUnknownSortIsRefusedEmptiedAndKeepsTheFocus)
{
    boxes.Expect(u"不存在的商品编号！"_s);
    Enter(u"txtPID"_s, u"X"_s);
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    EXPECT_EQ(Field(u"txtPID"_s), QString());
    EXPECT_EQ(Field(u"txtPRDNo"_s), QString());
}

TEST_F(LotNumber, BlanksAroundTheSortDoNotCount)
{
    Enter(u"txtPID"_s, u" A "_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-005"_s);
}

TEST_F(LotNumber, AnOpenLotUnderTheProposedNumberComesUpForCorrection)
{
    AddLot(u"20260301001"_s, u"A-005"_s,
           u"Num=70.5,MPercent=12.5,CustInDate='2026-03-01',Store='二号库',PArea='洛川',bolPack='1',"
           "CustName='王老板',CardNO='45',VerifyID='77',Address='东关',DebitPrice=500,Tel='1',Fax='2',"
           "Mobile='3',Memo='早',PerForegift=8,PRDNo_S='9',PackNo='K1'"_s);
    Enter(u"txtPID"_s, u"A"_s);

    EXPECT_EQ(Field(u"txtNum"_s), u"70.5"_s);
    EXPECT_EQ(Field(u"txtMPercent"_s), u"12.5"_s);
    EXPECT_EQ(Field(u"txtCustInDate"_s), u"2026-03-01"_s);
    EXPECT_EQ(Field(u"txtStore"_s), u"二号库"_s);
    EXPECT_EQ(Field(u"txtPArea"_s), u"洛川"_s);
    EXPECT_EQ(Find<QComboBox>(u"frmPRDList"_s, u"cmbPack"_s)->currentText(), u"是"_s);
    EXPECT_EQ(Field(u"txtCustName"_s), u"王老板"_s);
    EXPECT_EQ(Field(u"txtCardNO"_s), u"45"_s);
    EXPECT_EQ(Field(u"txtVerifyID"_s), u"77"_s);
    EXPECT_EQ(Field(u"txtAddress"_s), u"东关"_s);
    EXPECT_EQ(Field(u"txtDebitPrice"_s), u"500"_s);
    EXPECT_EQ(Field(u"txtTel"_s), u"1"_s);
    EXPECT_EQ(Field(u"txtFax"_s), u"2"_s);
    EXPECT_EQ(Field(u"txtMobile"_s), u"3"_s);
    EXPECT_EQ(Field(u"txtMemo"_s), u"早"_s);
    EXPECT_EQ(Field(u"txtPerForegift"_s), u"8"_s);
    EXPECT_EQ(Field(u"txtPRDNo_S"_s), u"9"_s);
    EXPECT_EQ(Field(u"txtPackNo"_s), u"K1"_s);
    EXPECT_TRUE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly());
    EXPECT_EQ(CurrNumber(u"A"_s), u"4"_s);

    // In correction the sort is not asked again.
    Press(Qt::Key_Up);
    TakeStatements();
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtCustID"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(LotNumber, ALockedLotsNumberIsPassedOverAndItsOwnerStaysOnTheScreen)
{
    AddLot(u"20260301001"_s, u"A-005"_s, u"bolFixed='1',Num=70,CustName='王老板',Tel='138'"_s);
    AddLot(u"20260301002"_s, u"A-006"_s, u"bolFixed='1',Num=80,CustName='李老板'"_s);
    Enter(u"txtPID"_s, u"A"_s);

    EXPECT_EQ(Field(u"txtCustID"_s), u"007"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-007"_s);
    EXPECT_EQ(Field(u"txtCustName"_s), u"李老板"_s);
    EXPECT_EQ(Field(u"txtNum"_s), u"80"_s);
    EXPECT_EQ(CurrNumber(u"A"_s), u"6"_s) << "the sort moves on at once, past both";
    EXPECT_TRUE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly());

    const QStringList sent = TakeStatements();
    ASSERT_EQ(sent.size(), 9);
    EXPECT_EQ(sent[3], u"UPDATE PRD_Sort SET CurrNumber=CurrNumber+1 WHERE SortID='A'"_s);
    EXPECT_EQ(sent[6], sent[3]);
}

TEST_F(LotNumber, ANewLotBehindALockedOneIsInsertedAndTheSortStaysLocked)
{
    AddLot(u"20260301001"_s, u"A-005"_s,
           u"bolFixed='1',Num=70,Store='一号库',CustName='王老板',PRDNo_S='9'"_s);
    Enter(u"txtPID"_s, u"A"_s);
    boxes.Expect(u"相同快捷编号已存在！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtPRDNo_S"_s);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_S, Qt::AltModifier);

    EXPECT_EQ(Value(u"SELECT CONCAT(ID,' ',CustName,' ',bolFixed) FROM PRD_List WHERE PRDNo='A-006'"_s),
              u"20260309001 王老板 1"_s);
    EXPECT_EQ(Value(u"SELECT Num FROM PRD_List WHERE PRDNo='A-005'"_s), u"70.000000"_s);
    EXPECT_EQ(CurrNumber(u"A"_s), u"6"_s);
    EXPECT_EQ(Field(u"txtPID"_s), QString());
    EXPECT_TRUE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly()) << "to book in another the clerk reopens";
    EXPECT_EQ(FocusName(), u"txtPID"_s);
}

TEST_F(LotNumber, NumberNineHundredNinetyEightIsFollowedByTheLastAndThenByTheFirst)
{
    Enter(u"txtPID"_s, u"B"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"B-999"_s);
    Put(u"txtNum"_s, u"1"_s);
    Put(u"txtStore"_s, u"一号库"_s);
    Put(u"txtCustName"_s, u"王老板"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(CurrNumber(u"B"_s), u"0"_s);
    EXPECT_EQ(CurrNumber(u"A"_s), u"4"_s);

    Enter(u"txtPID"_s, u"B"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"B-001"_s);
}

TEST_F(LotNumber, PastNineHundredNinetyNineTheOwnersNumberIsEmpty)
{
    AddLot(u"20260301001"_s, u"B-999"_s, u"bolFixed='1'"_s);
    Enter(u"txtPID"_s, u"B"_s);
    EXPECT_EQ(Field(u"txtCustID"_s), QString());
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"B-"_s);
    EXPECT_EQ(CurrNumber(u"B"_s), u"999"_s);
}

TEST_F(LotNumber, ASortNumberBeyondSixteenBitsIsAnOverflow)
{
    Db().Run(u"UPDATE PRD_Sort SET CurrNumber=32767 WHERE SortID='A'"_s);
    boxes.Expect(u"溢出"_s);
    Enter(u"txtPID"_s, u"A"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), QString());
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(LotNumber, ASettledLotsNumberIsProposedAgainAsANewLot)
{
    AddLot(u"20260301001"_s, u"A-005"_s, u"bolCheckOut='1',bolFixed='1',CustName='旧货主'"_s);
    Enter(u"txtPID"_s, u"A"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-005"_s);
    EXPECT_EQ(Field(u"txtCustName"_s), QString());
    EXPECT_FALSE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly());
    Put(u"txtNum"_s, u"1"_s);
    Put(u"txtStore"_s, u"一号库"_s);
    Put(u"txtCustName"_s, u"新货主"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Db().Rows(u"SELECT ID,CustName,bolCheckOut FROM PRD_List WHERE PRDNo='A-005' ORDER BY ID"_s),
              (std::vector<QStringList>{{u"20260301001"_s, u"旧货主"_s, u"1"_s},
                                        {u"20260309001"_s, u"新货主"_s, u"0"_s}}));
}

TEST_F(LotNumber, AQuoteInTheSortShowsTheServersWordsAndTheWindowGoesOn)
{
    boxes.ExpectContaining(u"SQL syntax"_s);
    Enter(u"txtPID"_s, u"'"_s);
    EXPECT_EQ(FocusName(), u"txtPID"_s);
    EXPECT_EQ(Field(u"txtPID"_s), QString());
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    Enter(u"txtPID"_s, u"A"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-005"_s);
}

// A proposal that fails half way leaves no number

namespace {

class FailedProposal : public LotNumber {
protected:
    void SetUp() override
    {
        LotNumber::SetUp();
        AddLot(u"20260301001"_s, u"A-005"_s,
               u"bolFixed='1',Num=70,Num_Sal=70,Store='一号库',CustName='王老板'"_s);
        AddLot(u"20260302001"_s, u"C-001"_s, u"Num=20,Num_Sal=20,Store='二号库',CustName='李老板'"_s);
    }

    /// Fields of a lot but for its number.
    void FillTheRest()
    {
        for (const auto& [field, text] : {std::pair{u"txtNum"_s, u"1"_s},
                                          {u"txtStore"_s, u"二号库"_s},
                                          {u"txtCustName"_s, u"孙老板"_s}}) {
            Click(Find(u"frmPRDList"_s, field));
            Find(u"frmPRDList"_s, field)->selectAll();
            Type(text);
        }
    }

    void ExpectNoNumber()
    {
        for (const QString& field : {u"txtPID"_s, u"txtCustID"_s, u"txtPRDNo"_s, u"txtPRDName"_s})
            EXPECT_EQ(Field(field), QString()) << field.toStdString();
        EXPECT_EQ(FocusName(), u"txtPID"_s);
    }

    void ExpectNothingIsSaved()
    {
        const QString before = Lots();
        TakeStatements();
        boxes.Expect(u"请填写编号！"_s);
        Click(Find<QLabel>(u"frmPRDList"_s, u"cmdSubmit"_s));
        EXPECT_EQ(TakeStatements(), QStringList());
        EXPECT_EQ(Lots(), before);
    }

    QString Lots()
    {
        return Value(
            u"SELECT GROUP_CONCAT(CONCAT_WS(' ',ID,PRDNo,Num,Store,CustName) ORDER BY ID) FROM PRD_List"_s);
    }
};

} // namespace

TEST_F(FailedProposal, AtEachStatementPastALockedLotLeavesNothingToSave)
{
    // Sort, lot, locked or not, move on, then the lot and the lock of the next number.
    for (int n = 1; n <= 6; ++n) {
        SCOPED_TRACE(n);
        Press(Qt::Key_C, Qt::AltModifier);
        Db().Run(u"UPDATE PRD_Sort SET CurrNumber=4 WHERE SortID='A'"_s);
        OpenRegistration();
        FailStatement(n, n == 4 ? Refusal::Signalled : Refusal::MissingTable);
        if (n == 4)
            boxes.Expect(u"演练故障"_s);
        else
            boxes.ExpectContaining(u"doesn't exist"_s);
        Enter(u"txtPID"_s, u"A"_s);
        EXPECT_EQ(TakeStatements().size(), n);
        ExpectNoNumber();
        Mend();
        ExpectNothingIsSaved();
    }
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(FailedProposal, OfAnotherSortLeavesNothingOfTheFirstOnesNumber)
{
    Enter(u"txtPID"_s, u"B"_s);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"B-999"_s);
    FillTheRest();
    Click(Find(u"frmPRDList"_s, u"txtPID"_s));
    Find(u"frmPRDList"_s, u"txtPID"_s)->selectAll();
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Enter(u"txtPID"_s, u"C"_s);
    ExpectNoNumber();
    EXPECT_EQ(Field(u"txtCustName"_s), u"孙老板"_s) << "what was typed stays";
    ExpectNothingIsSaved();

    Enter(u"txtPID"_s, u"B"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Value(u"SELECT PRDNo FROM PRD_List WHERE CustName='孙老板'"_s), u"B-999"_s);
}

TEST_F(FailedProposal, OfALotForCorrectionLeavesNothingToSaveUnderItsNumber)
{
    Enter(u"txtPID"_s, u"B"_s);
    FillTheRest();
    FailStatement(1, Refusal::MissingTable);
    // As the list does it, over the window that is open already.
    EXPECT_ANY_THROW(Windows().Find(u"frmPRDList"_s)->SetKey(u"C-001"_s));
    Mend();
    Db().Run(u"UPDATE PRD_List SET bolCheckOut='1' WHERE PRDNo='C-001'"_s);
    ExpectNothingIsSaved();
    EXPECT_EQ(Count(u"PRD_List"_s, u"PRDNo='C-001'"_s), 1);
}
