#include "core/base/RunTimeError.h"
#include "core/forms/FormWindow.h"
#include "core/session/Session.h"
#include "tests/till/TillTest.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString RoundSwitch = u"SELECT bolRound FROM DFN_Round WHERE CountID='C01'"_s;

QString LotQuery(const QString& number)
{
    return u"SELECT PRDNo,ID,PRDName,CustName,PArea,Store,PerForegift FROM PRD_List WHERE "
           "(PRDNo='%1' Or PRDNo_S='%1') And bolCheckOut='0'"_s.arg(number);
}

/// Stands in for the buyers' list: hands over a name once it is shown, and closes.
class Picker : public FormWindow {
public:
    explicit Picker(QWidget* owner) : FormWindow(owner, SlotUse::Untouched) {}
    void OnLoad() override
    {
        QMetaObject::invokeMethod(
            this,
            [this] {
                EXPECT_TRUE(isModal());
                if (Form* till = Windows().Find(u"frmSale"_s)) {
                    EXPECT_EQ(parentWidget(), till->Widget());
                    till->TakeName(u"鲜多多"_s);
                }
                close();
            },
            Qt::QueuedConnection);
    }
};

class TicketEntry : public TillTest {
protected:
    /// The cursor in the named field of a ticket for lot A-001.
    void WalkTo(const QString& field)
    {
        Press(Qt::Key_Return);
        Type(u"A-001"_s);
        while (FocusName() != field) {
            Press(Qt::Key_Return);
            ASSERT_NE(FocusName(), u"cmbCheckStatus"_s);
        }
        TakeStatements();
    }
};

} // namespace

// Opening

TEST_F(TicketEntry, OpeningReadsListsNumberHeadingsSwitchesAndPaper)
{
    Open(u"frmSale"_s);
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT TypeName FROM DFN_SaleType Order By TypeID"_s,
                           u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate='2026-03-09' And TID='01' "
                           "And UID='01'"_s,
                           u"SELECT PRDNo FROM Sal_List WHERE SalNo='01260309001'"_s,
                           u"SELECT CompName FROM Sys_Define"_s, u"SELECT DepartName FROM Sys_Define"_s,
                           u"SELECT bolVerify FROM Sys_Define"_s,
                           u"SELECT PrintStyle FROM DFN_Paper WHERE PaperID='P03'"_s}));
    EXPECT_EQ(Till().Widget()->windowTitle(), u"收银开票"_s);
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309001"_s);
    EXPECT_EQ(Text(u"txtSaleDate"_s), u"2026年03月09日"_s);
    EXPECT_EQ(Text(u"txtReceiver"_s), u"[01]管"_s);
    EXPECT_EQ(Caption(u"lblCompName"_s), u"青禾果品代销行收款清单"_s);
    EXPECT_EQ(Caption(u"lblReportName"_s), u"南区十二号档"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥0.0"_s);
    EXPECT_EQ(Caption(u"FlblUCaseTPrice01"_s), QString());
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), QString());
    EXPECT_EQ(List(u"cmbSaleType"_s)->currentText(), u"现金"_s);
    EXPECT_EQ(List(u"cmbSaleType"_s)->itemText(1), u"赊销"_s);
    EXPECT_EQ(List(u"cmbCheckStatus"_s)->currentText(), u"开票"_s);
    EXPECT_EQ(List(u"cmbCheckStatus"_s)->itemText(1), u"结账"_s);
    EXPECT_FALSE(Box(u"txtVerifyID"_s)->isVisible());
    EXPECT_FALSE(Session::WindowSlotFree);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
}

TEST_F(TicketEntry, TheNumberFollowsTheCounterAndIsWholeBeyondThreeDigits)
{
    Db().Run(u"INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES "
             "('01','01','2026-03-09',1234),('01','02','2026-03-09',7),('03','01','2026-03-09',3)"_s);
    OpenTill();
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.012603091235"_s);
    EXPECT_EQ(TicketCounter(), u"1234"_s);
}

TEST_F(TicketEntry, ATakenNumberMovesTheCounterAndTellsToReopen)
{
    Db().Run(u"INSERT INTO Sal_List (SalNo) VALUES ('01260309001')"_s);
    boxes.Expect(u"单号重复，请重新打开本菜单！"_s);
    Open(u"frmSale"_s);
    EXPECT_EQ(TicketCounter(), u"1"_s);
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309001"_s);
    EXPECT_TRUE(TillIsOpen());
    Press(Qt::Key_C, Qt::AltModifier);
    OpenTill();
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309002"_s);
}

TEST_F(TicketEntry, AWorkstationOutOfStepWithTheServerDoesNotOpen)
{
    Session::ClientFlag = u"1"_s;
    for (const QString& date : {u"2026-03-08"_s, QString()}) {
        Session::ServerDate = date;
        Session::WindowSlotFree = true;
        boxes.Expect(u"本地时间与服务器时间不同步，请修正后再操作！"_s);
        EXPECT_EQ(Windows().Show(u"frmSale"_s, nullptr), nullptr);
        EXPECT_FALSE(TillIsOpen());
        EXPECT_TRUE(Session::WindowSlotFree);
        EXPECT_EQ(TakeStatements(), QStringList());
    }
    Session::ServerDate = u"2026-03-09"_s;
    OpenTill();
    EXPECT_TRUE(TillIsOpen());
}

TEST_F(TicketEntry, TheMainMachineOpensWhateverTheServersDate)
{
    Session::ServerDate = u"2020-01-01"_s;
    OpenTill();
    EXPECT_TRUE(TillIsOpen());
}

TEST_F(TicketEntry, WithoutKindsOfSaleTheListStaysEmpty)
{
    Db().Run(u"DELETE FROM DFN_SaleType"_s);
    OpenTill();
    EXPECT_EQ(List(u"cmbSaleType"_s)->currentIndex(), -1);
}

TEST_F(TicketEntry, ClosingFreesTheSlotAndForgetsTheBatch)
{
    OpenTill();
    Sell();
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥32.5"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_FALSE(TillIsOpen());
    EXPECT_TRUE(Session::WindowSlotFree);
    OpenTill();
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥0.0"_s);
    Sell();
    EXPECT_EQ(TicketRow(u"01260309002"_s, u"ITM"_s), QStringList{u"1"_s});
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
}

TEST_F(TicketEntry, AnOpeningThatFailsLeavesNoWindowAndAFreeSlot)
{
    for (int statement = 1; statement <= 7; ++statement) {
        FailStatement(statement, Refusal::MissingTable);
        EXPECT_THROW(Windows().Show(u"frmSale"_s, nullptr), RunTimeError) << statement;
        EXPECT_FALSE(TillIsOpen());
        EXPECT_TRUE(Session::WindowSlotFree);
        Settle();
    }
    OpenTill();
    Sell();
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
}

// The buyer

TEST_F(TicketEntry, F2AndADoubleClickOpenThePickerWhichWritesTheBuyer)
{
    Windows().Register(u"frmGetCustList"_s, [](QWidget* owner) { return new Picker(owner); });
    OpenTill();
    Press(Qt::Key_F2);
    EXPECT_EQ(Text(u"txtVendee"_s), u"鲜多多"_s);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    Till().TakeName(u"阿芳"_s);
    DoubleClick(Box(u"txtVendee"_s));
    EXPECT_EQ(Text(u"txtVendee"_s), u"鲜多多"_s);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
}

TEST_F(TicketEntry, TheBuyerFieldTakesNoTyping)
{
    OpenTill();
    Type(u"x"_s);
    Paste(u"阿芳"_s);
    EXPECT_EQ(Text(u"txtVendee"_s), QString());
}

// The keys

TEST_F(TicketEntry, EnterAndDownWalkTheTicketAndUpWalksBack)
{
    OpenTill();
    const QStringList order{u"txtVendee"_s, u"txtPRDNo"_s,   u"txtPRDName"_s, u"txtNum"_s,
                            u"txtSuttle"_s, u"txtUPR"_s,     u"txtPerPack"_s, u"txtPerForegift"_s,
                            u"txtListNo"_s, u"txtSalesID"_s, u"cmbSaleType"_s};
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down}) {
        for (const QString& control : order) {
            EXPECT_EQ(FocusName(), control);
            if (control == u"txtPRDNo"_s)
                Type(u"A-001"_s);
            if (control != order.last())
                Press(key);
        }
        Press(Qt::Key_Return);
        EXPECT_EQ(FocusName(), u"cmbCheckStatus"_s);
        Press(Qt::Key_Up);
        for (auto control = order.rbegin(); control != order.rend(); ++control) {
            EXPECT_EQ(FocusName(), *control);
            Press(Qt::Key_Up);
        }
    }
}

TEST_F(TicketEntry, TheFieldReachedIsSelected)
{
    OpenTill();
    WalkTo(u"txtNum"_s);
    Type(u"12"_s);
    Press(Qt::Key_Return);
    Press(Qt::Key_Up);
    EXPECT_EQ(Box(u"txtNum"_s)->selectedText(), u"12"_s);
}

TEST_F(TicketEntry, TheListsAreLeftUpwardsFromTheirFirstEntryOnly)
{
    OpenTill();
    WalkTo(u"cmbSaleType"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(List(u"cmbSaleType"_s)->currentText(), u"赊销"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"cmbCheckStatus"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(List(u"cmbCheckStatus"_s)->currentText(), u"结账"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"cmbCheckStatus"_s);
    EXPECT_EQ(List(u"cmbCheckStatus"_s)->currentText(), u"开票"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"cmbSaleType"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"cmbSaleType"_s);
    EXPECT_EQ(List(u"cmbSaleType"_s)->currentText(), u"现金"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtSalesID"_s);
}

// The lot

TEST_F(TicketEntry, ALotIsFoundByItsNumberInAnyCaseAndBlanksAround)
{
    OpenTill();
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u" a-001 "_s);
    EXPECT_EQ(TakeStatements(), (QStringList{LotQuery(u"a-001"_s), RoundSwitch}));
    EXPECT_EQ(Text(u"txtPRDNo"_s), u"A-001"_s);
    EXPECT_EQ(Text(u"txtPRDName"_s), u"苹果"_s);
    EXPECT_EQ(Caption(u"lblCustName"_s), u"刘守田"_s);
    EXPECT_EQ(Caption(u"lblPArea"_s), u"山东栖霞"_s);
    EXPECT_EQ(FocusName(), u"txtPRDName"_s);
}

TEST_F(TicketEntry, AShortcutNumberIsReplacedByTheFullNumber)
{
    OpenTill();
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"1"_s);
    EXPECT_EQ(Text(u"txtPRDNo"_s), u"A-001"_s);
}

TEST_F(TicketEntry, AnUnknownOrSettledLotEmptiesTheFieldAndKeepsTheFocus)
{
    OpenTill();
    Press(Qt::Key_Return);
    for (const QString& number : {u"Z-9"_s, u"C-001"_s, u"3"_s}) {
        boxes.Expect(u"该编号不存在或已结算，请重新输入！"_s);
        Enter(u"txtPRDNo"_s, number);
        EXPECT_EQ(Text(u"txtPRDNo"_s), QString());
        EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    }
    EXPECT_EQ(Text(u"txtPRDName"_s), QString());
}

TEST_F(TicketEntry, AnEmptyNumberHoldsTheFocus)
{
    OpenTill();
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    for (const QString& text : {QString(), u"  "_s}) {
        Type(text);
        boxes.Expect(u"编号不能为空！"_s);
        Press(Qt::Key_Up);
        EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
        boxes.Expect(u"编号不能为空！"_s);
        Click(Box(u"txtNum"_s));
        EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    }
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(TicketEntry, ALabelButtonLeavesNoField)
{
    OpenTill();
    Press(Qt::Key_Return);
    Click(Find<QWidget>(u"frmSale"_s, u"cmdCancel"_s));
    EXPECT_FALSE(TillIsOpen());
}

TEST_F(TicketEntry, TheDepositComesFromTheLotOnlyIntoAnEmptyField)
{
    OpenTill();
    WalkTo(u"txtPRDName"_s);
    EXPECT_EQ(Text(u"txtPerForegift"_s), u"0"_s);
    Press(Qt::Key_Up);
    Enter(u"txtPRDNo"_s, u"B-001"_s);
    EXPECT_EQ(Text(u"txtPerForegift"_s), u"0"_s);
    Box(u"txtPerForegift"_s)->clear();
    Press(Qt::Key_Up);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtPerForegift"_s), u"5"_s);
}

TEST_F(TicketEntry, AfterASaveTheNextLotBringsItsOwnDeposit)
{
    OpenTill();
    Sell();
    EXPECT_EQ(Text(u"txtPerForegift"_s), QString());
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"B-001"_s);
    EXPECT_EQ(Text(u"txtPerForegift"_s), u"5"_s);
}

// The owner's code

TEST_F(TicketEntry, WithCodesOnTheTicketPassesTheCodeField)
{
    Db().Run(u"UPDATE Sys_Define SET bolVerify='1'"_s);
    OpenTill();
    EXPECT_TRUE(Box(u"txtVerifyID"_s)->isVisible());
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"1"_s);
    TakeStatements();
    boxes.Expect(u"客户校验码错误!"_s);
    Enter(u"txtVerifyID"_s, u"2581"_s);
    EXPECT_EQ(FocusName(), u"txtVerifyID"_s);
    EXPECT_EQ(Box(u"txtVerifyID"_s)->selectedText(), u"2581"_s);
    Enter(u"txtVerifyID"_s, u"2580"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{
                                    u"SELECT PRDNo FROM PRD_List WHERE PRDNo='A-001' And VerifyID='2581' "
                                    "And bolCheckOut='0'"_s,
                                    u"SELECT PRDNo FROM PRD_List WHERE PRDNo='A-001' And VerifyID='2580' "
                                    "And bolCheckOut='0'"_s,
                                }));
    EXPECT_EQ(FocusName(), u"txtPRDName"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtVerifyID"_s);
}

TEST_F(TicketEntry, AnEmptyCodeHoldsTheFocusWithoutAWord)
{
    Db().Run(u"UPDATE Sys_Define SET bolVerify='1'"_s);
    OpenTill();
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"A-001"_s);
    TakeStatements();
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down, Qt::Key_Up}) {
        Press(key);
        EXPECT_EQ(FocusName(), u"txtVerifyID"_s);
    }
    EXPECT_EQ(TakeStatements(), QStringList());
    Box(u"txtPRDNo"_s)->clear();
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPRDName"_s);
}

TEST_F(TicketEntry, WithCodesOffTheNameFollowsTheNumber)
{
    OpenTill();
    WalkTo(u"txtPRDName"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
}

// The figures

TEST_F(TicketEntry, OneKeystrokeSendsOneQuestionAboutRoundingAndNothingElse)
{
    OpenTill();
    WalkTo(u"txtNum"_s);
    Type(u"1"_s);
    EXPECT_EQ(TakeStatements(), QStringList{RoundSwitch});
    Type(u"0"_s);
    EXPECT_EQ(TakeStatements(), QStringList{RoundSwitch});
    Press(Qt::Key_Backspace);
    TakeStatements();
    Press(Qt::Key_Backspace);
    EXPECT_EQ(Text(u"txtNum"_s), QString());
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(TicketEntry, WithoutNetWeightTheGoodsAreSoldByThePieceWithItByWeight)
{
    OpenTill();
    WalkTo(u"txtNum"_s);
    Enter(u"txtNum"_s, u"10"_s);
    Press(Qt::Key_Return);
    Enter(u"txtUPR"_s, u"3.25"_s);
    EXPECT_EQ(Text(u"txtAmount"_s), u"¥32.5"_s);
    EXPECT_EQ(Text(u"txtTotalAmount"_s), u"¥32.5"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥32.5"_s);
    EXPECT_EQ(Caption(u"FlblUCaseTPrice01"_s), u"叁拾贰元伍角"_s);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    Enter(u"txtSuttle"_s, u"85.5"_s);
    EXPECT_EQ(Text(u"txtAmount"_s), u"¥277.9"_s);
}

TEST_F(TicketEntry, WithRoundingOnTheTotalIsWholeYuanAndTheAmountIsNot)
{
    Db().Run(u"UPDATE DFN_Round SET bolRound='1' WHERE CountID='C01'"_s);
    OpenTill();
    Sell({.num = u"10"_s, .suttle = u"85.5"_s, .perPack = u"0.2"_s, .perForegift = u"1"_s});
    EXPECT_EQ(TicketRow(u"01260309001"_s, u"PackAmount,ForegiftAmount,Amount,TotalAmount"_s),
              (QStringList{u"2"_s, u"10"_s, u"277.9"_s, u"290"_s}));
}

TEST_F(TicketEntry, FeeDepositAndTotalAreSavedAsShownAtOneDecimal)
{
    // Fee 0.45, deposit 0.15, goods 3: the total 3.6 is not the sum of what the parts show.
    OpenTill();
    Sell({.num = u"1.5"_s, .upr = u"2"_s, .perPack = u"0.3"_s, .perForegift = u"0.1"_s});
    EXPECT_EQ(TicketRow(u"01260309001"_s, u"PackAmount,ForegiftAmount,Amount,TotalAmount"_s),
              (QStringList{u"0.5"_s, u"0.2"_s, u"3"_s, u"3.6"_s}));
}

TEST_F(TicketEntry, LeavingAFigureShowsItsDecimalsGroupedAndZeroWhenEmpty)
{
    struct Row {
        QString field, typed, shown, emptied;
    };
    OpenTill();
    for (const Row& row : {Row{u"txtNum"_s, u"1234.567"_s, u"1234.567"_s, u"0"_s},
                           Row{u"txtSuttle"_s, u"1234.55"_s, u"1,234.6"_s, u"0.0"_s},
                           Row{u"txtUPR"_s, u"1234.555"_s, u"1,234.56"_s, u"0.00"_s},
                           Row{u"txtPerPack"_s, u"0.25"_s, u"0.3"_s, u"0.0"_s},
                           Row{u"txtPerForegift"_s, u"5"_s, u"5.0"_s, u"0.0"_s}}) {
        GoTo(u"txtVendee"_s);
        WalkTo(row.field);
        Enter(row.field, row.typed);
        EXPECT_EQ(Text(row.field), row.shown) << row.field.toStdString();
        Press(Qt::Key_Up);
        Press(Qt::Key_Delete);
        Press(Qt::Key_Return);
        EXPECT_EQ(Text(row.field), row.emptied) << row.field.toStdString();
    }
}

TEST_F(TicketEntry, AFigureShownGroupedIsStillANumber)
{
    OpenTill();
    Sell({.num = u"2"_s, .suttle = u"1500.5"_s, .upr = u"1000"_s});
    EXPECT_EQ(TicketRow(u"01260309001"_s, u"Suttle,UPR,Amount"_s),
              (QStringList{u"1500.5"_s, u"1000"_s, u"1500500"_s}));
}

TEST_F(TicketEntry, AnEmptiedFieldLeavesTheTotalsAsTheyStandUntilItIsLeft)
{
    OpenTill();
    WalkTo(u"txtNum"_s);
    Enter(u"txtNum"_s, u"10"_s);
    Press(Qt::Key_Return);
    Enter(u"txtUPR"_s, u"2"_s);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    TakeStatements();
    Press(Qt::Key_Delete);
    EXPECT_EQ(Text(u"txtTotalAmount"_s), u"¥20.0"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtTotalAmount"_s), u"¥0.0"_s);
    EXPECT_EQ(TakeStatements(), QStringList{RoundSwitch});
}

TEST_F(TicketEntry, ANegativeNumberCanBeTypedFromItsDigits)
{
    OpenTill();
    WalkTo(u"txtNum"_s);
    Type(u"5"_s);
    Press(Qt::Key_Home);
    Type(u"-"_s);
    EXPECT_EQ(Text(u"txtNum"_s), u"-5"_s);
}

// The salesman

TEST_F(TicketEntry, EnterAndDownPutTheSalesmansNameLeavingAloneDoesNot)
{
    OpenTill();
    WalkTo(u"txtSalesID"_s);
    Enter(u"txtSalesID"_s, u"11"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT SalesName FROM Sales WHERE SalesID='11'"_s,
                                             u"SELECT SalesID FROM Sales WHERE SalesID='11'"_s}));
    EXPECT_EQ(Text(u"txtSalesName"_s), u"周建国"_s);
    EXPECT_FALSE(Box(u"txtSalesName"_s)->isEnabled());
    Press(Qt::Key_Up);
    Type(u"12"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtListNo"_s);
    EXPECT_EQ(Text(u"txtSalesName"_s), u"周建国"_s);
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    EXPECT_EQ(Text(u"txtSalesName"_s), u"李秀兰"_s);
    EXPECT_EQ(FocusName(), u"cmbSaleType"_s);
}

TEST_F(TicketEntry, AnUnknownSalesmanHoldsTheFocusAndAnEmptyOnePasses)
{
    OpenTill();
    WalkTo(u"txtSalesID"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"cmbSaleType"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
    Press(Qt::Key_Up);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Up}) {
        Type(u"99"_s);
        boxes.Expect(u"不存在的工号!"_s);
        Press(key);
        EXPECT_EQ(FocusName(), u"txtSalesID"_s);
        EXPECT_EQ(Text(u"txtSalesID"_s), u"99"_s);
    }
}

// Change

TEST_F(TicketEntry, ChangeIsCountedAgainstTheBatchJustClosed)
{
    OpenTill();
    Sell({.num = u"10"_s, .upr = u"5"_s});
    Sell({.num = u"10"_s, .upr = u"3"_s, .closesBatch = true});
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), u"¥80.0"_s);
    EXPECT_EQ(Caption(u"FlblUCaseTPrice02"_s), u"捌拾元"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), QString());
    EXPECT_EQ(Caption(u"FlblUCaseTPrice01"_s), QString());
    TakeStatements();
    Enter(u"txtRPrice"_s, u"100"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"¥20.0"_s);
    EXPECT_EQ(Text(u"txtRPrice"_s), u"100"_s);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    GoTo(u"txtRPrice"_s);
    Enter(u"txtRPrice"_s, u"60.5"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"-¥19.5"_s);
    GoTo(u"txtRPrice"_s);
    Press(Qt::Key_Delete);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtRPrice"_s), QString());
    EXPECT_EQ(Caption(u"FlblGPrice"_s), QString());
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(TicketEntry, WithoutAClosedBatchThereIsNoChange)
{
    OpenTill();
    Press(Qt::Key_Return);
    Type(u"A-001"_s);
    GoTo(u"txtRPrice"_s);
    Enter(u"txtRPrice"_s, u"100"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), QString());
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
}

TEST_F(TicketEntry, TabPassesTheFieldsOfTheTicketOnly)
{
    OpenTill();
    WalkTo(u"txtPRDName"_s);
    QStringList visited;
    for (int i = 0; i < 12; ++i) {
        Press(Qt::Key_Tab);
        visited << FocusName();
    }
    EXPECT_EQ(visited, (QStringList{u"txtNum"_s, u"txtSuttle"_s, u"txtUPR"_s, u"txtPerPack"_s,
                                    u"txtPerForegift"_s, u"txtListNo"_s, u"txtSalesID"_s, u"cmbSaleType"_s,
                                    u"cmbCheckStatus"_s, u"txtVendee"_s, u"txtPRDNo"_s, u"txtPRDName"_s}));
}
