#include "core/common/Credit.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "masterdata/frmCustList.h"
#include "tests/masterdata/OpenList.h"
#include "tests/support/WindowTest.h"

#include <QCheckBox>
#include <QFontMetricsF>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

const QString LookUp =
    u"SELECT CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,CreditMoney,bolControl FROM Cust_List WHERE CustName='%1'"_s;
const QString AllBuyers =
    u"SELECT CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,TRIM(CreditMoney)+0,bolControl FROM Cust_List ORDER BY CustName"_s;
const QStringList Fields{u"txtCustName"_s, u"txtCustCharge"_s, u"txtCustAddress"_s, u"txtCustTel"_s,
                         u"txtCustFax"_s,  u"txtCustMobile"_s, u"txtCreditMoney"_s};

class BuyerWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmCustList"_s, [](QWidget* owner) { return new frmCustList(owner); });
        Open(u"frmCustList"_s);
        TakeStatements();
    }

    void AddBuyer(const QString& name, const QString& credit = u"0"_s, const QString& control = u"0"_s)
    {
        Db().Run(
            u"INSERT INTO Cust_List VALUES ('%1','城东路1号','老李','0571-1','0571-2','139',%2,'%3')"_s.arg(
                name, credit, control));
    }

    /// A credit ticket not yet collected.
    void AddDebt(const QString& buyer, const QString& amount)
    {
        Db().Run(
            u"INSERT INTO Sal_List (SalNo,Vendee,SaleType,TotalAmount) VALUES (CONCAT('01260309',(SELECT COUNT(*) FROM Sal_List s)),'%1',1,%2)"_s
                .arg(buyer, amount));
    }

    QString Shown(const QString& field) { return TextOf(u"frmCustList"_s, field); }
    QStringList ShownTexts()
    {
        QStringList texts;
        for (const QString& field : Fields)
            texts << Shown(field);
        return texts;
    }
    QCheckBox* Control() { return Find<QCheckBox>(u"frmCustList"_s, u"chkControl"_s); }

    void GoTo(const QString& field) { Find(u"frmCustList"_s, field)->setFocus(); }
    void Replace(const QString& field, const QString& text)
    {
        GoTo(field);
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(text);
    }
    void Paste(const QString& field, const QString& text)
    {
        auto* box = Find(u"frmCustList"_s, field);
        box->setFocus();
        box->selectAll();
        box->insert(text);
        Settle();
    }
    void Submit() { Press(Qt::Key_S, Qt::AltModifier); }

    void ExpectLogged(const QString& description)
    {
        EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
                  (std::vector<QStringList>{
                      {u"管理员"_s, description, u"保存销货客户"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
    }

    const QStringList Blank{QString(), QString(), QString(), QString(), QString(), QString(), u"0"_s};
};

} // namespace

TEST_F(BuyerWindow, WalkedWithEnterANewBuyerIsInsertedAndTheFieldsAreCleared)
{
    const OpenList* list = OpenList::Open();
    EXPECT_EQ(ShownTexts(), Blank);
    EXPECT_FALSE(Control()->isChecked());

    Enter(u"txtCustName"_s, u"张三"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{LookUp.arg(u"张"_s), LookUp.arg(u"张三"_s)}));
    Enter(u"txtCustCharge"_s, u"老张"_s);
    Enter(u"txtCustAddress"_s, u" 水果市场3号 "_s);
    Enter(u"txtCustTel"_s, u"0571-88"_s);
    Enter(u"txtCustFax"_s, u"0571-99"_s);
    Enter(u"txtCustMobile"_s, u"13800000000"_s);
    Enter(u"txtCreditMoney"_s, u"5000.5"_s);
    EXPECT_EQ(FocusName(), u"chkControl"_s);
    Press(Qt::Key_Space);
    EXPECT_EQ(Count(u"Cust_List"_s), 0);
    Press(Qt::Key_Return);

    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            u"INSERT INTO Cust_List (CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,CreditMoney,bolControl) VALUES ('张三','水果市场3号','老张','0571-88','0571-99','13800000000',5000.5,'1')"_s,
            u"SELECT PRD_Order FROM Sys_Define"_s}));
    EXPECT_EQ(Db().Rows(AllBuyers),
              (std::vector<QStringList>{{u"张三"_s, u"水果市场3号"_s, u"老张"_s, u"0571-88"_s, u"0571-99"_s,
                                         u"13800000000"_s, u"5000.5"_s, u"1"_s}}));
    EXPECT_EQ(list->refreshes, 1);
    EXPECT_EQ(ShownTexts(), Blank);
    EXPECT_FALSE(Control()->isChecked());
    EXPECT_EQ(FocusName(), u"txtCustName"_s);
    EXPECT_NE(Windows().Find(u"frmCustList"_s), nullptr);
}

TEST_F(BuyerWindow, WithNothingButANameTheLimitIsZeroAndNotControlled)
{
    Type(u"张三"_s);
    TakeStatements();
    Submit();
    EXPECT_EQ(
        TakeStatements(),
        QStringList{
            u"INSERT INTO Cust_List (CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,CreditMoney,bolControl) VALUES ('张三','','','','','',0,'0')"_s});
}

TEST_F(BuyerWindow, AKnownNameShowsTheBuyerAndSavingUpdatesAllButTheName)
{
    AddBuyer(u"张三"_s, u"1000"_s, u"1"_s);
    AddBuyer(u"李四"_s, u"70"_s);
    Type(u"张三"_s);
    EXPECT_EQ(ShownTexts(), (QStringList{u"张三"_s, u"老李"_s, u"城东路1号"_s, u"0571-1"_s, u"0571-2"_s,
                                         u"139"_s, u"1000"_s}));
    EXPECT_TRUE(Control()->isChecked());
    Replace(u"txtCustCharge"_s, u"小李"_s);
    Replace(u"txtCreditMoney"_s, u"2000"_s);
    TakeStatements();
    Submit();

    EXPECT_EQ(
        TakeStatements(),
        QStringList{
            u"UPDATE Cust_List SET CustAddress='城东路1号',CustCharge='小李',CustTel='0571-1',CustFax='0571-2',CustMobile='139',CreditMoney=2000,bolControl='1' WHERE CustName='张三'"_s});
    EXPECT_EQ(
        Db().Rows(AllBuyers),
        (std::vector<QStringList>{
            {u"张三"_s, u"城东路1号"_s, u"小李"_s, u"0571-1"_s, u"0571-2"_s, u"139"_s, u"2000"_s, u"1"_s},
            {u"李四"_s, u"城东路1号"_s, u"老李"_s, u"0571-1"_s, u"0571-2"_s, u"139"_s, u"70"_s, u"0"_s}}));
    EXPECT_EQ(ShownTexts(), Blank);
    EXPECT_FALSE(Control()->isChecked());
}

TEST_F(BuyerWindow, OpenedForEditingItShowsTheBuyer)
{
    AddBuyer(u"张三"_s, u"88.5"_s);
    Windows().Find(u"frmCustList"_s)->SetKey(u"张三"_s);
    EXPECT_EQ(TakeStatements(), QStringList{LookUp.arg(u"张三"_s)});
    EXPECT_EQ(Shown(u"txtCreditMoney"_s), u"88.5"_s);
    EXPECT_FALSE(Control()->isChecked());
}

TEST_F(BuyerWindow, TypingOnPastAKnownNameClearsItsDataAndInsertsAnotherBuyer)
{
    AddBuyer(u"张三"_s, u"1000"_s, u"1"_s);
    Type(u"张三"_s);
    Type(u"丰"_s);
    EXPECT_EQ(ShownTexts(), (QStringList{u"张三丰"_s} + Blank.mid(1)));
    EXPECT_FALSE(Control()->isChecked());
    Submit();
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List WHERE CustName='张三'"_s), u"1000.000000"_s);
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List WHERE CustName='张三丰'"_s), u"0.000000"_s);
}

TEST_F(BuyerWindow, TheNameIsFoundWithoutRegardToCaseAndStaysAsTyped)
{
    AddBuyer(u"Wang"_s, u"10"_s);
    Type(u"WANG "_s); // more may follow the blank
    EXPECT_EQ(Shown(u"txtCustName"_s), u"WANG "_s);
    EXPECT_EQ(Shown(u"txtCustCharge"_s), u"老李"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT CustName FROM Cust_List"_s), u"Wang"_s);
}

TEST_F(BuyerWindow, AnEmptiedNameLeavesTheRestUntilTheNextLetter)
{
    AddBuyer(u"张"_s, u"1000"_s, u"1"_s);
    Type(u"张"_s);
    TakeStatements();
    Press(Qt::Key_Backspace);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Shown(u"txtCustCharge"_s), u"老李"_s);
    EXPECT_TRUE(Control()->isChecked());
    Type(u"李"_s);
    EXPECT_EQ(ShownTexts(), (QStringList{u"李"_s} + Blank.mid(1)));
    EXPECT_FALSE(Control()->isChecked());
}

TEST_F(BuyerWindow, WithoutANameNothingIsSaved)
{
    for (const QString& name : {QString(), u"  "_s}) {
        Replace(u"txtCustName"_s, name);
        GoTo(u"txtCustTel"_s);
        TakeStatements();
        boxes.Expect(u"请填写客户名称！"_s);
        Submit();
        EXPECT_EQ(FocusName(), u"txtCustName"_s);
        EXPECT_EQ(TakeStatements(), QStringList());
    }
    EXPECT_EQ(Count(u"Cust_List"_s), 0);
}

TEST_F(BuyerWindow, EnterAndDownWalkTheFieldsInOrderAndUpWalksBack)
{
    const QStringList order = Fields + QStringList{u"chkControl"_s};
    for (const QString& control : order) {
        EXPECT_EQ(FocusName(), control);
        if (control != order.last())
            Press(Qt::Key_Down);
    }
    Press(Qt::Key_Down); // Down does not submit
    for (qsizetype i = order.size() - 1; i > 0; --i) {
        EXPECT_EQ(FocusName(), order[i]);
        Press(Qt::Key_Up);
    }
    EXPECT_EQ(FocusName(), u"txtCustName"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(BuyerWindow, ALimitThatIsNoNumberIsToldAndStaysSelected)
{
    const QStringList refused{u"-"_s, u"."_s, u"1２"_s, u"１２"_s, u"abc"_s, u"'"_s, u"\\"_s, u" "_s};
    for (const QString& text : refused) {
        boxes.Expect(u"信用额度的内容只能是数字！"_s);
        Paste(u"txtCreditMoney"_s, text);
        EXPECT_EQ(Shown(u"txtCreditMoney"_s), text);
        EXPECT_EQ(FocusName(), u"txtCreditMoney"_s);
        EXPECT_EQ(Find(u"frmCustList"_s, u"txtCreditMoney"_s)->selectedText(), text);
    }
    Type(u"300"_s); // typed over the selection
    EXPECT_EQ(Shown(u"txtCreditMoney"_s), u"300"_s);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace);
    Press(Qt::Key_Backspace); // empty is not tested
    EXPECT_EQ(Shown(u"txtCreditMoney"_s), QString());
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(BuyerWindow, ALimitTheServerCannotReadBreaksTheSaveAndNothingTypedIsLost)
{
    struct Case {
        QString credit;
        bool isNumber;
        QString refusal;
    };
    const std::vector<Case> cases{
        {QString(), true, u"SQL syntax"_s},   {u"1,000"_s, true, u"Column count"_s},
        {u"¥5"_s, true, u"Unknown column"_s}, {u"abc"_s, false, u"Unknown column 'abc'"_s},
        {u"1'2"_s, false, u"SQL syntax"_s},
    };
    Type(u"张三"_s);
    Replace(u"txtCustTel"_s, u"0571"_s);
    for (const Case& each : cases) {
        if (!each.isNumber)
            boxes.Expect(u"信用额度的内容只能是数字！"_s);
        Paste(u"txtCreditMoney"_s, each.credit);
        if (each.credit.isEmpty())
            Press(Qt::Key_Delete);
        boxes.ExpectContaining(each.refusal);
        Submit();
        EXPECT_EQ(Shown(u"txtCustName"_s), u"张三"_s);
        EXPECT_EQ(Shown(u"txtCustTel"_s), u"0571"_s);
        EXPECT_EQ(Shown(u"txtCreditMoney"_s), each.credit);
    }
    EXPECT_EQ(Count(u"Cust_List"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0); // each of those words carries a quote, which breaks its own row
}

TEST_F(BuyerWindow, AnEmptyLimitBreaksTheUpdateTooAndLeavesTheRow)
{
    AddBuyer(u"张三"_s, u"1000"_s, u"1"_s);
    Type(u"张三"_s);
    GoTo(u"txtCreditMoney"_s);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_Delete);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List"_s), u"1000.000000"_s);
}

TEST_F(BuyerWindow, ALimitBeyondTheColumnIsRefusedAndLogged)
{
    Type(u"张三"_s);
    for (const QString& credit : {u"100000000000000"_s, u"1e99"_s}) {
        Db().Run(u"DELETE FROM ErrInfo"_s);
        Paste(u"txtCreditMoney"_s, credit);
        boxes.Expect(u"溢出"_s);
        Submit();
        EXPECT_EQ(Shown(u"txtCreditMoney"_s), credit);
        EXPECT_EQ(Count(u"Cust_List"_s), 0);
        ExpectLogged(u"溢出"_s);
    }
    Replace(u"txtCreditMoney"_s, u"99999999999999"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List"_s), u"99999999999999.000000"_s);
}

TEST_F(BuyerWindow, ANegativeLimitIsTakenAsTyped)
{
    Type(u"张三"_s);
    Paste(u"txtCreditMoney"_s, u"-12.5"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List"_s), u"-12.500000"_s);
}

TEST_F(BuyerWindow, AQuoteInTheNameBreaksEveryStatementThatMentionsIt)
{
    Type(u"O"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Type(u"'"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Submit();
    EXPECT_EQ(Shown(u"txtCustName"_s), u"O'"_s);
    EXPECT_EQ(Count(u"Cust_List"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);

    // Brought into the table by other means, the till's test of the limit breaks on it as well.
    Db().Run(u"INSERT INTO Cust_List (CustName,bolControl) VALUES ('O''Neil','1')"_s);
    EXPECT_THROW(CheckCreditLimit(u"O'Neil"_s, 1, 0), DatabaseError);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Replace(u"txtCustName"_s, QString());
    Paste(u"txtCustName"_s, u"O'Neil"_s);
    EXPECT_EQ(Shown(u"txtCustCharge"_s), QString());
}

TEST_F(BuyerWindow, AQuoteOrABackslashInTheOtherFieldsDoesWhatItDoesToTheStatement)
{
    Type(u"张三"_s);
    for (const QString& field : Fields.mid(1, 5)) {
        for (const QString& text : {u"A'B"_s, u"A\\"_s}) {
            Replace(field, text);
            boxes.ExpectContaining(u"error in your SQL syntax"_s);
            Submit();
            EXPECT_EQ(Shown(field), text);
            EXPECT_EQ(Shown(u"txtCustName"_s), u"张三"_s);
        }
        Replace(field, u"A\\B"_s);
    }
    EXPECT_EQ(Count(u"Cust_List"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);

    Submit();
    EXPECT_EQ(Db().Rows(AllBuyers), (std::vector<QStringList>{{u"张三"_s, u"AB"_s, u"AB"_s, u"AB"_s, u"AB"_s,
                                                               u"AB"_s, u"0"_s, u"0"_s}}));
}

TEST_F(BuyerWindow, NoMoreIsTakenThanTheColumnsHold)
{
    const QList<int> widths{60, 60, 255, 50, 50, 50};
    for (qsizetype i = 0; i < widths.size(); ++i) {
        Paste(Fields[i], QString(400, u'１'));
        EXPECT_EQ(Shown(Fields[i]), QString(widths[i], u'１'));
    }
    Submit();
    EXPECT_EQ(
        Db().Rows(
            u"SELECT CHAR_LENGTH(CustName),CHAR_LENGTH(CustCharge),CHAR_LENGTH(CustAddress),CHAR_LENGTH(CustTel),CHAR_LENGTH(CustFax),CHAR_LENGTH(CustMobile) FROM Cust_List"_s),
        (std::vector<QStringList>{{u"60"_s, u"60"_s, u"255"_s, u"50"_s, u"50"_s, u"50"_s}}));
}

TEST_F(BuyerWindow, AFailedInsertIsShownAndLoggedAndTheNextPressSaves)
{
    const OpenList* list = OpenList::Open();
    Type(u"张三"_s);
    Replace(u"txtCustTel"_s, u"0571"_s);
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Submit();
    EXPECT_EQ(Count(u"Cust_List"_s), 0);
    ExpectLogged(u"演练故障"_s);
    EXPECT_EQ(list->refreshes, 0);
    EXPECT_EQ(Shown(u"txtCustTel"_s), u"0571"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT CustTel FROM Cust_List"_s), u"0571"_s);
}

TEST_F(BuyerWindow, AFailedUpdateIsShownAndLoggedAndTheOldRowStands)
{
    AddBuyer(u"张三"_s, u"1000"_s, u"1"_s);
    Type(u"张三"_s);
    Replace(u"txtCreditMoney"_s, u"5"_s);
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List"_s), u"1000.000000"_s);
    ExpectLogged(u"演练故障"_s);
    EXPECT_EQ(Shown(u"txtCreditMoney"_s), u"5"_s);
}

TEST_F(BuyerWindow, AFailedRebuildOfTheListLeavesTheBuyerSavedAndTheFieldsCleared)
{
    OpenList::Open();
    Type(u"张三"_s);
    FailStatement(2, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Submit();
    EXPECT_EQ(Count(u"Cust_List"_s), 1);
    EXPECT_EQ(ShownTexts(), Blank);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(BuyerWindow, ALostConnectionSavesNothingAndLosesNothingTyped)
{
    Type(u"张三"_s);
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(u"erver"_s); // "Server has gone away", "Lost connection to server"
    Submit();
    EXPECT_EQ(Count(u"Cust_List"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Shown(u"txtCustName"_s), u"张三"_s);
}

TEST_F(BuyerWindow, AfterAFailedLookUpTheSaveInsertsTheNameAloneInsteadOfUpdatingNothing)
{
    AddBuyer(u"张"_s, u"1000"_s, u"1"_s);
    Db().Run(u"UPDATE Cust_List SET CustAddress='东关',CustTel='138'"_s);
    Type(u"张"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Type(u"三"_s);
    EXPECT_EQ(Shown(u"txtCustAddress"_s), QString()) << "of the buyer before";
    Submit();
    EXPECT_EQ(Db().Rows(u"SELECT CustAddress,CustTel,CreditMoney,bolControl FROM Cust_List WHERE "
                        "CustName='张三'"_s),
              (std::vector<QStringList>{{QString(), QString(), u"0.000000"_s, u"0"_s}}));
}

TEST_F(BuyerWindow, ALimitBelowTheDebtIsAcceptedAndTheNextCreditTicketRefused)
{
    AddBuyer(u"张三"_s, u"1000"_s, u"1"_s);
    AddDebt(u"张三"_s, u"900"_s);
    EXPECT_TRUE(CheckCreditLimit(u"张三"_s, 100, 0));
    Type(u"张三"_s);
    Replace(u"txtCreditMoney"_s, u"500"_s);
    Submit();
    EXPECT_EQ(Value(u"SELECT CreditMoney FROM Cust_List"_s), u"500.000000"_s);
    EXPECT_FALSE(CheckCreditLimit(u"张三"_s, 0.1, 0));
    EXPECT_EQ(Session::CreditLeft, -400);
}

TEST_F(BuyerWindow, AControlledLimitOfZeroRefusesEveryCreditTicketWithTheDebtAsWhatIsLeft)
{
    Type(u"张三"_s);
    Find<QCheckBox>(u"frmCustList"_s, u"chkControl"_s)->setChecked(true);
    Submit();
    EXPECT_FALSE(CheckCreditLimit(u"张三"_s, 0.1, 0));
    EXPECT_EQ(Session::CreditLeft, 0);
    EXPECT_TRUE(CheckCreditLimit(u"张三"_s, 0, 0)); // nothing owed and nothing asked for
    AddDebt(u"张三"_s, u"12.5"_s);
    EXPECT_FALSE(CheckCreditLimit(u"张三"_s, 0, 0));
    EXPECT_EQ(Session::CreditLeft, -12.5);
}

TEST_F(BuyerWindow, WithoutTheTickTheLimitBindsNobody)
{
    Type(u"张三"_s);
    Submit();
    EXPECT_TRUE(CheckCreditLimit(u"张三"_s, 1e6, 0));
    EXPECT_TRUE(CheckCreditLimit(u"名单外的人"_s, 1e6, 0));
}

TEST_F(BuyerWindow, TheTicketsOfABuyerAreNotTouchedByASave)
{
    AddBuyer(u"张三"_s, u"1000"_s, u"1"_s);
    AddDebt(u"张三"_s, u"900"_s);
    Type(u"张三"_s);
    Type(u"丰"_s);
    Submit();
    EXPECT_EQ(Db().Rows(u"SELECT Vendee,TRIM(TotalAmount)+0 FROM Sal_List"_s),
              (std::vector<QStringList>{{u"张三"_s, u"900"_s}}));
    EXPECT_EQ(Count(u"Cust_List"_s), 2);
}

TEST_F(BuyerWindow, TakesTheSlotAndFreesItOnClosing)
{
    EXPECT_EQ(Windows().Find(u"frmCustList"_s)->Widget()->windowTitle(), u"客户信息"_s);
    EXPECT_FALSE(Session::WindowSlotFree);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(u"frmCustList"_s), nullptr);
}

TEST_F(BuyerWindow, TheCaptionsAreAsWideAsEachOther)
{
    const auto width = [this](const QString& name) {
        const auto* caption = Find<QLabel>(u"frmCustList"_s, name);
        return QFontMetricsF(caption->font()).horizontalAdvance(caption->text());
    };
    for (const QString& name : {u"lblCustCharge"_s, u"lblCustAddress"_s, u"lblCustTel"_s, u"lblCustFax"_s,
                                u"lblCustMobile"_s, u"lblCreditMoney"_s})
        EXPECT_NEAR(width(name), width(u"lblCustName"_s), 1) << name.toStdString();
}
