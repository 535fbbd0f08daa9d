#include "core/gateway/DataGateway.h"
#include "tests/till/TillTest.h"
#include "till/SaleLot.h"
#include "till/Ticket.h"

using namespace Qt::StringLiterals;

namespace {

const QString Number = u"A1260308003"_s;

/// A ticket of user A1 from the day before: 10 pieces of lot B-001 against a deposit, its second in the
/// batch, its deposit paid back already.
class TicketBooking : public TillTest {
protected:
    void SetUp() override
    {
        TillTest::SetUp();
        Db().Run(uR"(
            UPDATE PRD_List SET Num_Sal=190 WHERE PRDNo='B-001';
            UPDATE DFN_Pack SET Num_PACK=10 WHERE PackNo='K1';
            INSERT INTO Sal_List (SalNo,ListNo,ITM,ID,PRDNo,PRDName,CustName,Store,PArea,Vendee,SaleDate,
              FSaleDate,SaleTime,Num,Suttle,UPR,PerPack,PackAmount,PerForegift,ForegiftAmount,Amount,
              TotalAmount,Receiver,SalesID,SaleType,bForegiftRTN,EReceiver,EDate,ETime) VALUES
              ('A1260308003','XS-1',2,'20260309002','B-001','蜜橘','向德明','二号库','湖北宜昌','鲜多多',
               '2026-03-08','2026-03-09','17:59:58',10,85.5,3.25,0.5,5,5,50,277.9,332.9,'A1','11',1,'1',
               'A1','2026-03-08','18:30:00'),
              ('A1260308004','',1,'20260309002','B-001','蜜橘','向德明','二号库','湖北宜昌','',
               '2026-03-08','2026-03-08','09:00:00',1,0,3,0,0,5,5,3,8,'A1','11',0,'0','','','');
        )"_s);
        TakeStatements();
    }

    /// The same ticket with 8 pieces at another price, adjusted by user 01 now.
    static Ticket Adjusted()
    {
        return {.salNo = Number,
                .vendee = u"阿芳"_s,
                .saleDate = u"2026-03-09"_s,
                .saleTime = u"10:00:00"_s,
                .fSaleDate = u"2026-03-10"_s,
                .id = u"20260309002"_s,
                .prdNo = u"B-001"_s,
                .prdName = u"蜜橘"_s,
                .custName = u"向德明"_s,
                .store = u"二号库"_s,
                .pArea = u"湖北宜昌"_s,
                .num = 8,
                .suttle = 0,
                .upr = 30.05,
                .perPack = 0,
                .packAmount = 0,
                .perForegift = 5,
                .foregiftAmount = 40,
                .amount = 240.4,
                .totalAmount = 280.4,
                .listNo = u"XS-2"_s,
                .salesId = u"12"_s,
                .saleType = 0,
                .itm = 7,
                .receiver = u"01"_s,
                .bForegiftRTN = {},
                .eReceiver = u"01"_s,
                .eDate = u"2026-03-09"_s,
                .eTime = u"10:00:00"_s};
    }

    /// Replaces the ticket as an adjustment does, printing included.
    static bool Adjust(const Ticket& ticket)
    {
        if (!RedoTicket(ticket))
            return false;
        ApplyTicket(ticket, [] {});
        return true;
    }

    const QString ReadOld =
        u"SELECT Vendee,SaleDate,SaleTime,PRDNo,PRDName,Num,Suttle,UPR,PerPack,PackAmount,PerForegift,"
        "ForegiftAmount,Amount,TotalAmount,ListNo,Store,Receiver,ID,SalNo,SalesID,PArea,FSaleDate,SaleType,"
        "ITM,CustName,bForegiftRTN FROM Sal_List WHERE SalNo='A1260308003'"_s;
    const QString InsertNew =
        u"INSERT INTO Sal_List (Vendee,SaleDate,FSaleDate,SaleTime,CustName,PRDNo,PRDName,Num,Suttle,UPR,"
        "PerPack,PackAmount,PerForegift,ForegiftAmount,Amount,TotalAmount,ListNo,Store,Receiver,ID,SalNo,"
        "SalesID,PArea,SaleType,ITM,bForegiftRTN,EReceiver,EDate,ETime) VALUES "_s;
    const QString InsertAdjusted =
        InsertNew + u"('阿芳','2026-03-08','2026-03-09','17:59:58','向德明','B-001','蜜橘',8,0,30.05,0,0,5,"
                    "40,240.4,280.4,'XS-2','二号库','A1','20260309002','A1260308003','12','湖北宜昌','0',"
                    "'2','1','01','2026-03-09','10:00:00')"_s;
};

} // namespace

TEST_F(TicketBooking, AnAdjustmentArchivesUndoesDeletesAndWritesAnew)
{
    EXPECT_TRUE(Adjust(Adjusted()));
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            ReadOld,
            u"INSERT INTO Sal_List_B (Vendee,SaleDate,SaleTime,PRDNo,PRDName,Num,Suttle,UPR,PerPack,"
            "PackAmount,PerForegift,ForegiftAmount,Amount,TotalAmount,ListNo,Store,Receiver,ID,SalNo,SalesID,"
            "PArea,FSaleDate,SaleType,ITM,CustName,bForegiftRTN,EReceiver,EDate,ETime) VALUES ('鲜多多',"
            "'2026-03-08','17:59:58','B-001','蜜橘',10,85.5,3.25,0.5,5,5,50,277.9,332.9,'XS-1','二号库','A1',"
            "'20260309002','A1260308003','11','湖北宜昌','2026-03-09',1,2,'向德明','1','01','2026-03-09',"
            "'10:00:00')"_s,
            u"UPDATE PRD_List SET Num_Sal=Num_Sal+10 WHERE ID='20260309002'"_s,
            u"SELECT PackNo FROM PRD_List WHERE ID='20260309002' And PackNo<>''"_s,
            u"UPDATE DFN_Pack SET Num_Pack=Num_Pack-10 WHERE PackNo='K1'"_s,
            u"DELETE FROM Sal_List WHERE SalNo='A1260308003'"_s,
            InsertAdjusted,
            u"SELECT PRDNo FROM Sal_List WHERE SalNo='A1260308003'"_s,
            u"UPDATE PRD_List SET Num_Sal=Num_Sal-8 WHERE ID='20260309002'"_s,
            u"SELECT PackNo FROM PRD_List WHERE ID='20260309002' And PackNo<>''"_s,
            u"UPDATE DFN_Pack SET Num_Pack=Num_Pack+8 WHERE PackNo='K1'"_s,
        }));
    EXPECT_EQ(NumSal(u"B-001"_s), u"192"_s);
    EXPECT_EQ(NumSal(u"A-001"_s), u"100"_s);
    EXPECT_EQ(CratesOut(), u"8"_s);
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    EXPECT_EQ(TicketRow(Number, u"Num,SaleDate,ITM,bForegiftRTN,Receiver,EReceiver"_s),
              (QStringList{u"8"_s, u"2026-03-08"_s, u"2"_s, u"1"_s, u"A1"_s, u"01"_s}));
    EXPECT_EQ(Db().Rows(u"SELECT SalNo,EReceiver,EDate,ETime FROM Sal_List_B"_s),
              (std::vector<QStringList>{{Number, u"01"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
    EXPECT_EQ(TicketRow(u"A1260308004"_s, u"Num,EReceiver"_s), (QStringList{u"1"_s, QString()}));
    EXPECT_EQ(Count(u"Pack_List"_s), 0);
}

TEST_F(TicketBooking, EachAdjustmentLeavesOneMoreRowInTheHistory)
{
    EXPECT_TRUE(Adjust(Adjusted()));
    Ticket again = Adjusted();
    again.num = 3;
    again.eReceiver = u"02"_s;
    EXPECT_TRUE(Adjust(again));
    EXPECT_EQ(Db().Rows(u"SELECT Num+0,EReceiver FROM Sal_List_B ORDER BY Num"_s),
              (std::vector<QStringList>{{u"8.000000"_s, u"02"_s}, {u"10.000000"_s, u"01"_s}}));
    EXPECT_EQ(NumSal(u"B-001"_s), u"197"_s);
    EXPECT_EQ(CratesOut(), u"3"_s);
}

TEST_F(TicketBooking, ATicketMovedToAnotherLotComesBackToTheOldOne)
{
    Ticket moved = Adjusted();
    moved.id = u"20260309001"_s;
    moved.prdNo = u"A-001"_s;
    moved.perForegift = 0;
    EXPECT_TRUE(Adjust(moved));
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
    EXPECT_EQ(NumSal(u"A-001"_s), u"92"_s);
    EXPECT_EQ(CratesOut(), u"0"_s);
    EXPECT_EQ(TicketRow(Number, u"ID,PRDNo"_s), (QStringList{u"20260309001"_s, u"A-001"_s}));
}

TEST_F(TicketBooking, WithoutPiecesOrDepositNoCratesMoveAndNoTypeIsAskedFor)
{
    Db().Run(u"UPDATE Sal_List SET Num=0,PerForegift=5 WHERE SalNo='A1260308003'"_s);
    UndoTicket(*FindTicket(Number));
    Db().Run(u"UPDATE Sal_List SET Num=10,PerForegift=0 WHERE SalNo='A1260308003'"_s);
    UndoTicket(*FindTicket(Number));
    Ticket none = Adjusted();
    none.num = 0;
    ApplyTicket(none, [] {});
    none.num = -2;
    ApplyTicket(none, [] {});
    EXPECT_EQ(TakeStatements(), (QStringList{
                                    ReadOld,
                                    u"UPDATE PRD_List SET Num_Sal=Num_Sal+0 WHERE ID='20260309002'"_s,
                                    ReadOld,
                                    u"UPDATE PRD_List SET Num_Sal=Num_Sal+10 WHERE ID='20260309002'"_s,
                                    u"UPDATE PRD_List SET Num_Sal=Num_Sal-0 WHERE ID='20260309002'"_s,
                                    u"UPDATE PRD_List SET Num_Sal=Num_Sal--2 WHERE ID='20260309002'"_s,
                                }));
    EXPECT_EQ(CratesOut(), u"10"_s);
}

TEST_F(TicketBooking, ALotWithoutCrateTypeMovesNoCrates)
{
    Db().Run(u"UPDATE PRD_List SET PackNo='' WHERE PRDNo='B-001'"_s);
    UndoTicket(*FindTicket(Number));
    EXPECT_EQ(TakeStatements().last(),
              u"SELECT PackNo FROM PRD_List WHERE ID='20260309002' And PackNo<>''"_s);
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
    EXPECT_EQ(CratesOut(), u"10"_s);
}

TEST_F(TicketBooking, TheDocumentIsMadeBetweenStockAndCrates)
{
    QStringList atPrint;
    ApplyTicket(Adjusted(), [&] { atPrint << NumSal(u"B-001"_s) << CratesOut(); });
    EXPECT_EQ(atPrint, (QStringList{u"182"_s, u"10"_s}));
    EXPECT_EQ(CratesOut(), u"18"_s);
}

// A redo that failed half way

TEST_F(TicketBooking, AFailureBehindTheDeletionLeavesTheTicketInTheHistoryOnly)
{
    FailStatement(7, Refusal::Signalled);
    EXPECT_THROW(Adjust(Adjusted()), DatabaseError);
    EXPECT_EQ(Count(u"Sal_List"_s, u"SalNo='A1260308003'"_s), 0);
    EXPECT_EQ(Count(u"Sal_List_B"_s), 1);
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
    EXPECT_EQ(CratesOut(), u"0"_s);
}

TEST_F(TicketBooking, ASecondAttemptWritesTheTicketWithTodaysDaysWithoutPlaceAndFlag)
{
    FailStatement(7, Refusal::Signalled);
    EXPECT_THROW(Adjust(Adjusted()), DatabaseError);
    TakeStatements();
    EXPECT_TRUE(Adjust(Adjusted()));
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            ReadOld,
            u"DELETE FROM Sal_List WHERE SalNo='A1260308003'"_s,
            InsertNew + u"('阿芳','2026-03-09','2026-03-10','10:00:00','向德明','B-001','蜜橘',8,0,30.05,0,0,"
                        "5,40,240.4,280.4,'XS-2','二号库','A1','20260309002','A1260308003','12','湖北宜昌',"
                        "'0','','','01','2026-03-09','10:00:00')"_s,
            u"SELECT PRDNo FROM Sal_List WHERE SalNo='A1260308003'"_s,
            u"UPDATE PRD_List SET Num_Sal=Num_Sal-8 WHERE ID='20260309002'"_s,
            u"SELECT PackNo FROM PRD_List WHERE ID='20260309002' And PackNo<>''"_s,
            u"UPDATE DFN_Pack SET Num_Pack=Num_Pack+8 WHERE PackNo='K1'"_s,
        }));
    EXPECT_EQ(Count(u"Sal_List_B"_s), 1);
    EXPECT_EQ(NumSal(u"B-001"_s), u"192"_s);
    EXPECT_EQ(CratesOut(), u"8"_s);
}

TEST_F(TicketBooking, ATicketThatDoesNotStandAfterItsInsertIsToldSo)
{
    Db().Run(u"CREATE TRIGGER lost BEFORE INSERT ON Sal_List FOR EACH ROW SET NEW.SalNo='elsewhere'"_s);
    EXPECT_FALSE(RedoTicket(Adjusted()));
    EXPECT_EQ(TakeStatements().last(), u"SELECT PRDNo FROM Sal_List WHERE SalNo='A1260308003'"_s);
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s) << "given back, and not taken again";
}

TEST_F(TicketBooking, WithoutALotNumberNothingIsUndone)
{
    Ticket unnumbered = Adjusted();
    unnumbered.prdNo.clear();
    EXPECT_TRUE(RedoTicket(unnumbered));
    EXPECT_EQ(TakeStatements().first(), u"DELETE FROM Sal_List WHERE SalNo='A1260308003'"_s);
    EXPECT_EQ(Count(u"Sal_List_B"_s), 0);
}

// Rows

TEST_F(TicketBooking, ATicketIsReadBackColumnByColumn)
{
    const std::optional<Ticket> ticket = FindTicket(Number);
    ASSERT_TRUE(ticket);
    EXPECT_EQ(ticket->salNo, Number);
    EXPECT_EQ(ticket->vendee, u"鲜多多"_s);
    EXPECT_EQ(ticket->fSaleDate, u"2026-03-09"_s);
    EXPECT_EQ(ticket->suttle, 85.5);
    EXPECT_EQ(ticket->totalAmount, 332.9);
    EXPECT_EQ(ticket->saleType, 1);
    EXPECT_EQ(ticket->itm, 2);
    EXPECT_EQ(ticket->bForegiftRTN, u"1"_s);
    EXPECT_FALSE(ticket->IsAdjusted()) << "its last adjuster is not asked for";
    EXPECT_FALSE(FindTicket(u"A1260308999"_s));
}

TEST_F(TicketBooking, WhatWasNotAskedForStaysEmpty)
{
    const QString columns = u"TotalAmount,Vendee,EReceiver"_s;
    const Ticket ticket =
        TicketOfRow(Gateway().SelectRows(u"Sal_List"_s, columns, u"SalNo='A1260308003'"_s), columns);
    EXPECT_EQ(ticket.totalAmount, 332.9);
    EXPECT_EQ(ticket.vendee, u"鲜多多"_s);
    EXPECT_EQ(ticket.eReceiver, u"A1"_s);
    EXPECT_TRUE(ticket.IsAdjusted());
    EXPECT_EQ(ticket.prdNo, QString());
    EXPECT_EQ(ticket.itm, std::nullopt);
}

TEST_F(TicketBooking, TheCrateTypeIsThatOfTheLot)
{
    EXPECT_EQ(CrateTypeOf(u"20260309002"_s), u"K1"_s);
    EXPECT_EQ(CrateTypeOf(u"20260309001"_s), QString());
    EXPECT_EQ(CrateTypeOf(QString()), QString());
}
