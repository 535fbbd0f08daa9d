#include "core/session/Session.h"
#include "tests/till/TillTest.h"

using namespace Qt::StringLiterals;

namespace {

class TicketLimits : public OpenTillTest {};

const QString FirstNo = u"01260309001"_s;
const QString SecondNo = u"01260309002"_s;

} // namespace

// Credit

TEST_F(TicketLimits, CreditTicketUpToTheLimitPasses)
{
    Db().Run(u"INSERT INTO Sal_List (SalNo,Vendee,SaleType,TotalAmount) VALUES ('X','鲜多多',1,900)"_s);
    Sell({.vendee = u"鲜多多"_s, .num = u"1"_s, .upr = u"100"_s, .onCredit = true});
    EXPECT_EQ(TicketRow(FirstNo, u"Vendee,SaleType,TotalAmount"_s),
              (QStringList{u"鲜多多"_s, u"1"_s, u"100"_s}));
}

TEST_F(TicketLimits, CreditTicketAboveTheLimitIsRefusedWithTheCreditLeft)
{
    Db().Run(u"INSERT INTO Sal_List (SalNo,Vendee,SaleType,TotalAmount) VALUES ('X','鲜多多',1,900)"_s);
    TypeTicket({.vendee = u"鲜多多"_s, .num = u"1"_s, .upr = u"100.1"_s, .onCredit = true});
    boxes.Expect(u"已超出购买方信用额度，可用信用额度为100元。"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"cmbCheckStatus"_s);
    EXPECT_EQ(Session::CreditLeft, 100);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(NumSal(u"A-001"_s), u"100"_s);
    EXPECT_EQ(Count(u"Count_Bill"_s), 0);
}

TEST_F(TicketLimits, TheCreditLeftIsAPlainNumberAndMayBeNegative)
{
    Db().Run(u"INSERT INTO Sal_List (SalNo,Vendee,SaleType,TotalAmount) VALUES ('X','鲜多多',1,900.1)"_s);
    TypeTicket({.vendee = u"鲜多多"_s, .num = u"1"_s, .upr = u"500"_s, .onCredit = true});
    boxes.Expect(u"已超出购买方信用额度，可用信用额度为99.9元。"_s);
    Press(Qt::Key_Return);
    Db().Run(u"UPDATE Sal_List SET TotalAmount=2050 WHERE SalNo='X'"_s);
    boxes.Expect(u"已超出购买方信用额度，可用信用额度为-1050元。"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
}

TEST_F(TicketLimits, CreditTicketsPaidBackAndCashTicketsAreNotOwed)
{
    Db().Run(u"INSERT INTO Sal_List (SalNo,Vendee,SaleType,TotalAmount,bolReturn) VALUES "
             "('X','鲜多多',1,900,'1'),('Y','鲜多多',0,900,'0'),('Z','阿芳',1,900,'0')"_s);
    Sell({.vendee = u"鲜多多"_s, .num = u"1"_s, .upr = u"1000"_s, .onCredit = true});
    EXPECT_EQ(TicketRow(FirstNo, u"TotalAmount"_s), QStringList{u"1000"_s});
}

TEST_F(TicketLimits, ABuyerWithoutLimitOrOutsideTheListHasNone)
{
    Sell({.vendee = u"阿芳"_s, .upr = u"5000"_s, .onCredit = true});
    Sell({.vendee = u"路人"_s, .upr = u"5000"_s, .onCredit = true});
    EXPECT_EQ(Count(u"Sal_List"_s, u"SaleType=1"_s), 2);
}

TEST_F(TicketLimits, ACashTicketKeepsItsBuyerAndIsNeverTested)
{
    TypeTicket({.vendee = u"鲜多多"_s, .num = u"1"_s, .upr = u"5000"_s});
    TakeStatements();
    Press(Qt::Key_Return);
    for (const QString& sent : TakeStatements())
        EXPECT_FALSE(sent.contains(u"Cust_List"_s)) << sent.toStdString();
    EXPECT_EQ(TicketRow(FirstNo, u"Vendee,SaleType"_s), (QStringList{u"鲜多多"_s, u"0"_s}));
}

TEST_F(TicketLimits, AThirdKindOfSaleCountsAsCash)
{
    Db().Run(u"INSERT INTO DFN_SaleType VALUES ('2','代金券')"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    OpenTill();
    TypeTicket({.upr = u"5000"_s});
    List(u"cmbSaleType"_s)->setCurrentIndex(2);
    Press(Qt::Key_Return);
    EXPECT_EQ(TicketRow(FirstNo, u"Vendee,SaleType"_s), (QStringList{QString(), u"2"_s}));
}

// The business date

TEST_F(TicketLimits, FromTheDeadlineOnTheSaleCountsForTomorrow)
{
    Db().Run(u"UPDATE Sys_Define SET Deadline='18:00:00'"_s);
    SetClock(u"2026-03-09 17:59:59"_s);
    Sell();
    SetClock(u"2026-03-09 18:00:00"_s);
    Sell();
    EXPECT_EQ(TicketRow(FirstNo, u"SaleDate,FSaleDate,SaleTime"_s),
              (QStringList{u"2026-03-09"_s, u"2026-03-09"_s, u"17:59:59"_s}));
    EXPECT_EQ(TicketRow(SecondNo, u"SaleDate,FSaleDate,SaleTime"_s),
              (QStringList{u"2026-03-09"_s, u"2026-03-10"_s, u"18:00:00"_s}));
}

TEST_F(TicketLimits, WithoutADeadlineTheSaleCountsForToday)
{
    SetClock(u"2026-03-09 23:59:59"_s);
    for (const QString& change : {u"UPDATE Sys_Define SET Deadline='00:00:00'"_s,
                                  u"UPDATE Sys_Define SET Deadline=''"_s, u"DELETE FROM Sys_Define"_s}) {
        Db().Run(change);
        Sell();
    }
    EXPECT_EQ(Count(u"Sal_List"_s, u"FSaleDate='2026-03-09'"_s), 3);
}

// Stock

TEST_F(TicketLimits, TheLimitIsWorkedOutFromTheMovementsAndExactlyItPasses)
{
    Session::SaleStockControl = u"1"_s;
    Db().Run(u"INSERT INTO EStore_List (ID,EStoreType,Num) VALUES ('20260309001','0',10),"
             "('20260309001','1',5),('20260309001','2',5),('20260309002','0',99);"
             "INSERT INTO Sal_List (SalNo,ID,Num) VALUES ('X','20260309001',90),('Y','20260309002',50);"
             "UPDATE PRD_List SET Num_Sal=-7 WHERE PRDNo='A-001'"_s);
    TypeTicket({.num = u"10.5"_s});
    boxes.Expect(u"库存不足！仅允许销售10件。"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtNum"_s);
    EXPECT_EQ(Box(u"txtNum"_s)->selectedText(), u"10.5"_s);
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    Type(u"10"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(TicketRow(FirstNo, u"Num"_s), QStringList{u"10"_s});
    EXPECT_EQ(NumSal(u"A-001"_s), u"-17"_s);
}

TEST_F(TicketLimits, FractionsThatAreExactlyLeftPass)
{
    Session::SaleStockControl = u"1"_s;
    Db().Run(u"UPDATE PRD_List SET Num=50.3 WHERE PRDNo='A-001';"
             "INSERT INTO Sal_List (SalNo,ID,Num) VALUES ('X','20260309001',50.2)"_s);
    Sell({.num = u"0.1"_s});
    EXPECT_EQ(TicketRow(FirstNo, u"Num"_s), QStringList{u"0.1"_s});
}

TEST_F(TicketLimits, WithStockControlOffAnOversalePassesAndTheCounterGoesNegative)
{
    Session::SaleStockControl = u"0"_s;
    Db().Run(u"UPDATE Sys_Define SET Control_Sale='1'"_s); // read at logon, not now
    Sell({.num = u"150"_s});
    EXPECT_EQ(NumSal(u"A-001"_s), u"-50"_s);
}
