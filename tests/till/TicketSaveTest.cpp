#include "core/session/Session.h"
#include "printing/Documents.h"
#include "tests/till/TillTest.h"

using namespace Qt::StringLiterals;

namespace {

/// Notes each ticket print, and what stands at that moment.
class PrinterSpy : public DocumentPrinter {
public:
    std::function<QString()> look;
    QStringList prints;

    void Print(Document document, PrintMode mode, const QWidget& form) override
    {
        EXPECT_EQ(document, Document::SaleList);
        EXPECT_EQ(form.objectName(), u"frmSale"_s);
        prints << (mode == PrintMode::Stationery ? u"pre-printed "_s : u"framed "_s) + look();
    }
};

class TicketSave : public OpenTillTest {};

const QString FirstNo = u"01260309001"_s;
const QString SecondNo = u"01260309002"_s;

} // namespace

// The statements

TEST_F(TicketSave, ACreditTicketWithDepositAndStockControlSendsItsStatementsInOrder)
{
    Session::SaleStockControl = u"1"_s;
    TypeTicket({.vendee = u"鲜多多"_s,
                .prdNo = u"B-001"_s,
                .num = u"10"_s,
                .suttle = u"85.5"_s,
                .perPack = u"0.5"_s,
                .listNo = u"XS-1"_s,
                .onCredit = true,
                .closesBatch = true});
    SetClock(u"2026-03-09 10:15:30"_s);
    TakeStatements();
    Press(Qt::Key_Return);
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            u"SELECT bolPack FROM PRD_List WHERE ID='20260309002'"_s,
            u"SELECT CreditMoney FROM Cust_List WHERE CustName='鲜多多' And bolControl='1'"_s,
            u"SELECT SUM(TotalAmount) FROM Sal_List WHERE Vendee='鲜多多' And SaleType='1' And bolReturn='0'"_s,
            u"SELECT Deadline FROM Sys_Define"_s,
            u"SELECT PRDNo FROM PRD_List WHERE ID='20260309002' And bolCheckOut='0'"_s,
            u"SELECT SUM(Num) FROM PRD_List WHERE ID='20260309002'"_s,
            u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260309002' And EStoreType='0'"_s,
            u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260309002' And EStoreType='1'"_s,
            u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260309002' And EStoreType='2'"_s,
            u"SELECT SUM(Num) FROM Sal_List WHERE ID='20260309002'"_s,
            u"INSERT INTO Sal_List (Vendee,SaleDate,FSaleDate,SaleTime,CustName,PRDNo,PRDName,Num,Suttle,UPR,"
            "PerPack,PackAmount,PerForegift,ForegiftAmount,Amount,TotalAmount,ListNo,Store,Receiver,ID,SalNo,"
            "SalesID,PArea,SaleType,ITM) VALUES ('鲜多多','2026-03-09','2026-03-09','10:15:30','向德明',"
            "'B-001','蜜橘',10,85.5,3.25,0.5,5,5,50,277.9,332.9,'XS-1','二号库','01','20260309002',"
            "'01260309001','11','湖北宜昌','1','1')"_s,
            u"SELECT PRDNo FROM Sal_List WHERE SalNo='01260309001'"_s,
            u"UPDATE PRD_List SET Num_Sal=Num_Sal-10 WHERE ID='20260309002'"_s,
            u"SELECT PackNo FROM PRD_List WHERE ID='20260309002' And PackNo<>''"_s,
            u"UPDATE DFN_Pack SET Num_Pack=Num_Pack+10 WHERE PackNo='K1'"_s,
            u"SELECT CurrNumber FROM Count_Bill WHERE UID='01' And TID='01' And CurrDate='2026-03-09'"_s,
            u"INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES ('01','01','2026-03-09',1)"_s,
            u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate='2026-03-09' And TID='01' And UID='01'"_s,
        }));
    EXPECT_EQ(NumSal(u"B-001"_s), u"190"_s);
    EXPECT_EQ(NumSal(u"A-001"_s), u"100"_s);
    EXPECT_EQ(CratesOut(), u"10"_s);
    EXPECT_EQ(Count(u"Pack_List"_s), 0);
    EXPECT_EQ(TicketCounter(), u"1"_s);
}

TEST_F(TicketSave, APlainCashTicketSendsNoMoreThanItNeeds)
{
    Sell();
    TypeTicket();
    TakeStatements();
    Press(Qt::Key_Return);
    const QStringList sent = TakeStatements();
    EXPECT_EQ(sent.size(), 9);
    EXPECT_EQ(sent.first(), u"SELECT bolPack FROM PRD_List WHERE ID='20260309001'"_s);
    EXPECT_EQ(sent[1], u"SELECT Deadline FROM Sys_Define"_s);
    EXPECT_EQ(sent[2], u"SELECT PRDNo FROM PRD_List WHERE ID='20260309001' And bolCheckOut='0'"_s);
    EXPECT_TRUE(sent[3].startsWith(u"INSERT INTO Sal_List "_s));
    EXPECT_EQ(sent[5], u"UPDATE PRD_List SET Num_Sal=Num_Sal-10 WHERE ID='20260309001'"_s);
    EXPECT_EQ(sent[7], u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1 WHERE UID='01' And TID='01' And "
                       "CurrDate='2026-03-09'"_s);
}

TEST_F(TicketSave, ColumnsTheTillDoesNotWriteStartAsNotSettledNotPaidNotReturned)
{
    Sell();
    EXPECT_EQ(TicketRow(FirstNo, u"bolCheckOut,bolReturn,bForegiftRTN,CheckDate,CheckNo,ReturnDate,"
                                 "EReceiver,EDate,ETime"_s),
              (QStringList{u"0"_s, u"0"_s, u"0"_s, QString(), QString(), QString(), QString(), QString(),
                           QString()}));
}

TEST_F(TicketSave, ThePressedButtonSavesToo)
{
    TypeTicket();
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    TypeTicket();
    Click(Find<QWidget>(u"frmSale"_s, u"cmdSubmit"_s));
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
}

TEST_F(TicketSave, AButtonPressedInsideAFieldSavesItsTextAsItStands)
{
    TypeTicket({.num = u"2"_s});
    GoTo(u"txtUPR"_s);
    Type(u"4.5"_s);
    Click(Find<QWidget>(u"frmSale"_s, u"cmdSubmit"_s));
    EXPECT_EQ(TicketRow(FirstNo, u"UPR,TotalAmount"_s), (QStringList{u"4.5"_s, u"9"_s}));
}

// The checks, in their order

TEST_F(TicketSave, TheChecksSpeakInTheirOrder)
{
    TypeTicket({.prdNo = u"B-001"_s, .upr = u"1"_s, .perForegift = u"0"_s, .onCredit = true});
    Box(u"txtUPR"_s)->clear();
    Box(u"txtSalesID"_s)->clear();

    boxes.Expect(u"押包装必须填写！"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPerForegift"_s);
    Type(u"5"_s);
    boxes.Expect(u"请填写批价！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtUPR"_s);
    Type(u"900"_s);
    boxes.Expect(u"工号不能为空！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtSalesID"_s);
    Type(u"11"_s);
    boxes.Expect(u"赊销时购买方不能为空！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    Till().TakeName(u"鲜多多"_s);
    boxes.Expect(u"已超出购买方信用额度，可用信用额度为1000元。"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    Till().TakeName(u"阿芳"_s);
    Db().Run(u"UPDATE PRD_List SET bolCheckOut='1' WHERE PRDNo='B-001'"_s);
    boxes.Expect(u"该编号已被结算，不能进行收银处理，请确认。"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    Db().Run(u"UPDATE PRD_List SET bolCheckOut='0' WHERE PRDNo='B-001'"_s);
    Session::SaleStockControl = u"1"_s;
    GoTo(u"txtNum"_s);
    Type(u"201"_s);
    boxes.Expect(u"库存不足！仅允许销售200件。"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtNum"_s);
    ExpectNothingWritten();
}

TEST_F(TicketSave, ADepositUpToAHalfIsMissingMoreAndLessPasses)
{
    struct Row {
        QString deposit;
        bool passes;
    };
    for (const Row& row : {Row{u"0.4"_s, false}, Row{u"0.5"_s, false}, Row{u"-0.5"_s, false},
                           Row{u"0.6"_s, true}, Row{u"-0.6"_s, true}, Row{u"-5"_s, true}}) {
        const int before = Count(u"Sal_List"_s);
        GoTo(u"txtVendee"_s);
        TypeTicket({.prdNo = u"B-001"_s});
        Box(u"txtPerForegift"_s)->setText(row.deposit);
        if (!row.passes)
            boxes.Expect(u"押包装必须填写！"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(Count(u"Sal_List"_s) - before, row.passes ? 1 : 0) << row.deposit.toStdString();
        Press(Qt::Key_C, Qt::AltModifier);
        OpenTill();
    }
}

TEST_F(TicketSave, AnEmptyDepositIsMissingWhereTheLotAsksForOne)
{
    TypeTicket({.prdNo = u"B-001"_s});
    Box(u"txtPerForegift"_s)->clear();
    boxes.Expect(u"押包装必须填写！"_s);
    Press(Qt::Key_Return);
    ExpectNothingWritten();
}

TEST_F(TicketSave, ADepositBeyondSixteenBitsIsAnErrorThatIsLogged)
{
    TypeTicket({.prdNo = u"B-001"_s});
    Box(u"txtPerForegift"_s)->setText(u"32768"_s);
    boxes.Expect(u"溢出"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Count(u"Sal_List"_s), 0);
    EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
              (std::vector<QStringList>{
                  {u"管理员"_s, u"溢出"_s, u"保存收银信息"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
}

TEST_F(TicketSave, ALotWithoutDepositPassesWithZeroAndMovesNoCrates)
{
    Db().Run(u"UPDATE PRD_List SET PackNo='K1' WHERE PRDNo='A-001'"_s);
    TypeTicket({.perForegift = u"0"_s});
    TakeStatements();
    Press(Qt::Key_Return);
    EXPECT_TRUE(TakeStatements().filter(u"PackNo"_s).isEmpty());
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(CratesOut(), u"0"_s);
}

TEST_F(TicketSave, ADepositOnALotWithoutCrateTypeMovesNone)
{
    Sell({.perForegift = u"3"_s});
    EXPECT_EQ(TicketRow(FirstNo, u"ForegiftAmount"_s), QStringList{u"30"_s});
    EXPECT_EQ(CratesOut(), u"0"_s);
    EXPECT_EQ(Count(u"Pack_List"_s), 0);
}

TEST_F(TicketSave, ANegativeDepositPassesAndMovesNoCrates)
{
    TypeTicket({.prdNo = u"B-001"_s});
    Box(u"txtPerForegift"_s)->setText(u"-5"_s);
    TakeStatements();
    Press(Qt::Key_Return);
    EXPECT_TRUE(TakeStatements().filter(u"PackNo"_s).isEmpty());
    EXPECT_EQ(TicketRow(FirstNo, u"PerForegift,ForegiftAmount"_s), (QStringList{u"-5"_s, u"-50"_s}));
    EXPECT_EQ(CratesOut(), u"0"_s);
}

TEST_F(TicketSave, APriceOfZeroPasses)
{
    Sell({.upr = u"0"_s});
    EXPECT_EQ(TicketRow(FirstNo, u"UPR,TotalAmount"_s), (QStringList{u"0"_s, u"0"_s}));
}

TEST_F(TicketSave, NoPiecesAreAcceptedForTheFeeAloneAndMoveNoCrates)
{
    TypeTicket({.prdNo = u"B-001"_s, .num = u"0"_s, .suttle = u"3"_s, .upr = u"2"_s});
    TakeStatements();
    Press(Qt::Key_Return);
    EXPECT_TRUE(TakeStatements().filter(u"PackNo"_s).isEmpty())
        << "no pieces, no question for the crate type";
    EXPECT_EQ(TicketRow(FirstNo, u"Num,Amount,TotalAmount"_s), (QStringList{u"0"_s, u"6"_s, u"6"_s}));
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
    EXPECT_EQ(CratesOut(), u"0"_s);
}

TEST_F(TicketSave, NegativePiecesGoBackToTheLot)
{
    TypeTicket();
    Box(u"txtNum"_s)->setText(u"-5"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(TicketRow(FirstNo, u"Num"_s), QStringList{u"-5"_s});
    EXPECT_EQ(NumSal(u"A-001"_s), u"105"_s);
}

TEST_F(TicketSave, ItsKeyFirstLeavesTheFieldAndTheNumberTypedOverIsLookedUp)
{
    TypeTicket();
    GoTo(u"txtPRDNo"_s);
    Type(u"B-001"_s);
    boxes.Expect(u"押包装必须填写！"_s); // of B-001, which is now the lot
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Text(u"txtPRDName"_s), u"蜜橘"_s);
    EXPECT_EQ(FocusName(), u"txtPerForegift"_s);
    ExpectNothingWritten();
    Type(u"5"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(TicketRow(FirstNo, u"PRDNo,PRDName,Num,ForegiftAmount"_s),
              (QStringList{u"B-001"_s, u"蜜橘"_s, u"10"_s, u"50"_s}));
    EXPECT_EQ(NumSal(u"A-001"_s), u"100"_s);
    EXPECT_EQ(NumSal(u"B-001"_s), u"190"_s);
}

TEST_F(TicketSave, ItsKeySavesNothingWhereTheFieldRefuses)
{
    TypeTicket();
    GoTo(u"txtPRDNo"_s);
    Type(u"Z-9"_s);
    boxes.Expect(u"该编号不存在或已结算，请重新输入！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    EXPECT_EQ(Text(u"txtPRDNo"_s), QString());
    boxes.Expect(u"编号不能为空！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    Enter(u"txtPRDNo"_s, u"A-001"_s);
    GoTo(u"txtSalesID"_s);
    Type(u"99"_s);
    boxes.Expect(u"不存在的工号!"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtSalesID"_s);
    ExpectNothingWritten();
}

TEST_F(TicketSave, ItsKeyCompletesAFigureAClickDoesNot)
{
    TypeTicket({.num = u"2"_s, .upr = u"1.005"_s});
    GoTo(u"txtUPR"_s);
    Type(u"1.005"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(TicketRow(FirstNo, u"UPR"_s), QStringList{u"1.01"_s});
    TypeTicket({.num = u"2"_s});
    GoTo(u"txtUPR"_s);
    Type(u"1.005"_s);
    ClickSave();
    EXPECT_EQ(TicketRow(u"01260309002"_s, u"UPR"_s), QStringList{u"1.005"_s});
}

TEST_F(TicketSave, WithoutALotLookedUpTheTicketIsRefused)
{
    Press(Qt::Key_Return);
    Type(u"A-001"_s);
    Box(u"txtUPR"_s)->setText(u"3"_s);
    Box(u"txtSalesID"_s)->setText(u"11"_s);
    boxes.Expect(u"该编号已被结算，不能进行收银处理，请确认。"_s);
    ClickSave();
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    ExpectNothingWritten();
}

TEST_F(TicketSave, ALotSettledSinceItsLookupIsRefused)
{
    TypeTicket();
    Db().Run(u"UPDATE PRD_List SET bolCheckOut='1' WHERE PRDNo='A-001'"_s);
    boxes.Expect(u"该编号已被结算，不能进行收银处理，请确认。"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    EXPECT_EQ(Text(u"txtNum"_s), u"10"_s);
    ExpectNothingWritten();
}

// The batch

TEST_F(TicketSave, TheBatchGoesFromIdleToOpenAndBack)
{
    Sell({.num = u"10"_s, .upr = u"5"_s});
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥50.0"_s);
    EXPECT_EQ(Caption(u"lblTotal"_s), QString());
    EXPECT_EQ(FocusName(), u"txtVendee"_s);

    TypeTicket({.num = u"10"_s, .upr = u"3"_s});
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥80.0"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥80.0"_s);
    EXPECT_EQ(Caption(u"FlblUCaseTPrice01"_s), u"捌拾元"_s);
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), QString());

    Sell({.num = u"1"_s, .upr = u"500"_s, .closesBatch = true});
    EXPECT_EQ(Caption(u"lblTotal"_s), u"共3张，合计金额¥580.0元。"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), QString());
    EXPECT_EQ(Caption(u"FlblUCaseTPrice01"_s), QString());
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), u"¥580.0"_s);
    EXPECT_EQ(Caption(u"FlblUCaseTPrice02"_s), u"伍佰捌拾元"_s);
    EXPECT_EQ(FocusName(), u"txtRPrice"_s);

    Press(Qt::Key_Return);
    Sell({.num = u"1"_s, .upr = u"7"_s});
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥7.0"_s);
    EXPECT_EQ(Caption(u"lblTotal"_s), QString());
    EXPECT_EQ(Db().Rows(u"SELECT SalNo,ITM FROM Sal_List ORDER BY SalNo"_s),
              (std::vector<QStringList>{{u"01260309001"_s, u"1"_s},
                                        {u"01260309002"_s, u"2"_s},
                                        {u"01260309003"_s, u"3"_s},
                                        {u"01260309004"_s, u"1"_s}}));
}

TEST_F(TicketSave, ABatchOfOneTicketIsClosedAtOnce)
{
    Sell({.num = u"2"_s, .upr = u"4"_s, .closesBatch = true});
    EXPECT_EQ(Caption(u"lblTotal"_s), u"共1张，合计金额¥8.0元。"_s);
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), u"¥8.0"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), QString());
    EXPECT_EQ(TicketRow(FirstNo, u"ITM"_s), QStringList{u"1"_s});
}

TEST_F(TicketSave, TheBatchTotalAddsWhatTheTicketsShow)
{
    // Three tickets of 0.05: each is shown, and owed, as 0.1.
    for (int i = 0; i < 3; ++i)
        Sell({.num = u"1"_s, .upr = u"0.05"_s});
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥0.3"_s);
    EXPECT_EQ(Value(u"SELECT SUM(TotalAmount)=0.3 FROM Sal_List"_s), u"1"_s);
}

// Readying the window

TEST_F(TicketSave, AfterASaveTheWindowIsReadyForTheNextTicket)
{
    Sell({.vendee = u"鲜多多"_s,
          .prdNo = u"B-001"_s,
          .suttle = u"5"_s,
          .perPack = u"0.5"_s,
          .listNo = u"XS-1"_s,
          .onCredit = true});
    for (const QString& box :
         {u"txtVendee"_s, u"txtPRDNo"_s, u"txtVerifyID"_s, u"txtPRDName"_s, u"txtNum"_s, u"txtSuttle"_s,
          u"txtUPR"_s, u"txtPerPack"_s, u"txtPerForegift"_s, u"txtListNo"_s, u"txtSalesID"_s,
          u"txtSalesName"_s, u"txtAmount"_s, u"txtPackAmount"_s, u"txtForegiftAmount"_s, u"txtTotalAmount"_s,
          u"txtRPrice"_s})
        EXPECT_EQ(Text(box), QString()) << box.toStdString();
    EXPECT_EQ(Caption(u"lblCustName"_s), QString());
    EXPECT_EQ(Caption(u"lblPArea"_s), QString());
    EXPECT_EQ(List(u"cmbSaleType"_s)->currentIndex(), 0);
    EXPECT_EQ(List(u"cmbCheckStatus"_s)->currentIndex(), 0);
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309002"_s);
    EXPECT_EQ(Text(u"txtSaleDate"_s), u"2026年03月09日"_s);
    EXPECT_EQ(Text(u"txtReceiver"_s), u"[01]管"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥71.3"_s) << "the batch keeps its figure while the fields empty";
}

TEST_F(TicketSave, TheChangeGivenStaysWhileTheNextBatchIsTyped)
{
    Sell({.num = u"2"_s, .upr = u"4"_s, .closesBatch = true});
    Enter(u"txtRPrice"_s, u"10"_s);
    Sell();
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"¥2.0"_s);
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), u"¥8.0"_s);
    EXPECT_EQ(Text(u"txtRPrice"_s), QString());
}

TEST_F(TicketSave, TheLotOutlivesItsTicketSoAnEmptyNumberWritesNothingButMovesTheCounter)
{
    Sell();
    Press(Qt::Key_Return);
    Box(u"txtUPR"_s)->setText(u"3"_s);
    Box(u"txtSalesID"_s)->setText(u"11"_s);
    List(u"cmbCheckStatus"_s)->setCurrentIndex(1);
    TakeStatements();
    ClickSave();
    const QStringList sent = TakeStatements();
    EXPECT_EQ(sent.value(0), u"SELECT Deadline FROM Sys_Define"_s);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(NumSal(u"A-001"_s), u"90"_s);
    EXPECT_EQ(TicketCounter(), u"2"_s);
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309003"_s);
    EXPECT_EQ(Caption(u"lblTotal"_s), QString());
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), u"¥32.5"_s);
    Press(Qt::Key_Return);
    Sell();
    EXPECT_EQ(TicketRow(u"01260309003"_s, u"ITM"_s), QStringList{u"1"_s}) << "the batch was closed";
}

// Printing

TEST_F(TicketSave, ThePrintComesAfterTheStockMovedAndBeforeTheCratesAndTheClearing)
{
    PrinterSpy printer;
    printer.look = [this] {
        return u"%1 %2 %3 %4 %5"_s.arg(Text(u"txtPRDNo"_s), Caption(u"lblTotal"_s), NumSal(u"B-001"_s),
                                       CratesOut(), TicketCounter());
    };
    SetDocumentPrinter(&printer);
    const QStringList expected{u"pre-printed B-001 共1张，合计金额¥82.5元。 190 0 "_s};
    for (const QString& style : {u"0"_s, u"1"_s}) {
        Db().Run(u"UPDATE DFN_Paper SET PrintStyle='%1' WHERE PaperID='P03'"_s.arg(style));
        Press(Qt::Key_C, Qt::AltModifier);
        OpenTill();
        if (style == u"0") {
            Sell();
            EXPECT_EQ(printer.prints, QStringList());
            Db().Run(u"DELETE FROM Count_Bill; DELETE FROM Sal_List"_s);
            continue;
        }
        Sell({.prdNo = u"B-001"_s, .closesBatch = true});
        EXPECT_EQ(printer.prints, expected);
    }
}

TEST_F(TicketSave, StyleTwoPrintsWithFrameAndTheStyleIsReadAtOpening)
{
    PrinterSpy printer;
    printer.look = [] { return QString(); };
    SetDocumentPrinter(&printer);
    Db().Run(u"UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P03'"_s);
    Sell();
    EXPECT_EQ(printer.prints, QStringList());
    Press(Qt::Key_C, Qt::AltModifier);
    OpenTill();
    Sell();
    EXPECT_EQ(printer.prints, QStringList{u"framed "_s});
}

// Over midnight

TEST_F(TicketSave, OverMidnightTheMainMachineGoesOnAndLosesTheFirstNumberOfTheDay)
{
    TypeTicket();
    SetClock(u"2026-03-10 00:00:05"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(TicketRow(FirstNo, u"SaleDate,FSaleDate,SaleTime"_s),
              (QStringList{u"2026-03-10"_s, u"2026-03-10"_s, u"00:00:05"_s}));
    EXPECT_EQ(Db().Rows(u"SELECT CurrDate,CurrNumber FROM Count_Bill"_s),
              (std::vector<QStringList>{{u"2026-03-10"_s, u"1"_s}}));
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260310002"_s);
    EXPECT_TRUE(TillIsOpen());
}

TEST_F(TicketSave, MidnightWithinASaveMovesTheCounterOfTheTicketsDay)
{
    PrinterSpy printer;
    printer.look = [this] {
        SetClock(u"2026-03-10 00:00:01"_s);
        return QString();
    };
    SetDocumentPrinter(&printer);
    Db().Run(u"UPDATE DFN_Paper SET PrintStyle='2' WHERE PaperID='P03'"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    OpenTill();
    TypeTicket();
    SetClock(u"2026-03-09 23:59:59"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(TicketRow(FirstNo, u"SaleDate,SaleTime"_s), (QStringList{u"2026-03-09"_s, u"23:59:59"_s}));
    EXPECT_EQ(Db().Rows(u"SELECT CurrDate,CurrNumber FROM Count_Bill"_s),
              (std::vector<QStringList>{{u"2026-03-09"_s, u"1"_s}}));
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260310001"_s) << "the new day begins with its first number";
}

TEST_F(TicketSave, OverMidnightAWorkstationSavesTheTicketAndCloses)
{
    Session::ClientFlag = u"1"_s;
    Session::ServerDate = u"2026-03-09"_s;
    TypeTicket();
    SetClock(u"2026-03-10 00:00:05"_s);
    boxes.Expect(u"本地时间与服务器时间不同步，请修正后再操作！"_s);
    TakeStatements();
    Press(Qt::Key_Return);
    EXPECT_TRUE(TakeStatements().last().startsWith(u"INSERT INTO Count_Bill"_s));
    EXPECT_EQ(TicketRow(FirstNo, u"SaleDate"_s), QStringList{u"2026-03-10"_s});
    EXPECT_FALSE(TillIsOpen());
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(TicketSave, AWorkstationInStepGoesOn)
{
    Session::ClientFlag = u"1"_s;
    Session::ServerDate = u"2026-03-09"_s;
    Sell();
    EXPECT_TRUE(TillIsOpen());
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309002"_s);
}
