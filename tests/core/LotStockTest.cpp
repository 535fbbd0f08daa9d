#include "core/common/LotStock.h"
#include "tests/support/WindowTest.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(LotStock, TakesWhatLeftFromWhatCame)
{
    const LotStock stock{.delivered = 100, .added = 20, .movedOut = 5, .lost = 5, .sold = 30};
    EXPECT_EQ(stock.Arrived(), 120);
    EXPECT_EQ(stock.StayedForSale(), 110);
    EXPECT_EQ(stock.Left(), 80);
}

TEST(LotStock, IsNegativeAfterAnOversale)
{
    const LotStock stock{.delivered = 10, .sold = 12.5};
    EXPECT_EQ(stock.Left(), -2.5);
}

TEST(LotStock, ShowsDifferencesOfDecimalsWithoutBinaryNoise)
{
    const LotStock stock{.delivered = 50.3, .sold = 50.2};
    EXPECT_EQ(stock.Left(), 0.1);
    EXPECT_EQ((LotStock{.delivered = 0.3, .movedOut = 0.1, .lost = 0.2}.StayedForSale()), 0);
}

TEST(LotStock, NothingLeftIsZeroAndNotTheRestOfABinarySum)
{
    const LotStock stock{.delivered = 50.3, .lost = 0.1, .sold = 50.2};
    EXPECT_EQ(stock.Left(), 0);
    EXPECT_EQ((LotStock{.delivered = 0.1, .added = 0.2}.Arrived()), 0.3);
}

namespace {

/// Two lots with movements of every kind, so that each sum can be taken for another's.
class LotMovements : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Db().Run(uR"(
            INSERT INTO PRD_List (ID,Num) VALUES ('20260301001',100),('20260301002',7);
            INSERT INTO EStore_List (ID,EStoreType,Num) VALUES
              ('20260301001','0',20),('20260301001','0',2.5),('20260301001','1',7),('20260301001','2',3),
              ('20260301002','0',500),('20260301002','1',600),('20260301002','2',700);
            INSERT INTO Sal_List (SalNo,ID,Num) VALUES ('a','20260301001',40),('b','20260301001',1.5),
              ('c','20260301002',900);
        )"_s);
        TakeStatements();
    }

    const QString lot = u"20260301001"_s;
};

} // namespace

TEST_F(LotMovements, StockChangesAreThreeSumsInTheirOrder)
{
    const LotStock stock = ReadStockChanges(lot, 100);
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260301001' And EStoreType='0'"_s,
                           u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260301001' And EStoreType='1'"_s,
                           u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260301001' And EStoreType='2'"_s}));
    EXPECT_EQ(stock.delivered, 100);
    EXPECT_EQ(stock.added, 22.5);
    EXPECT_EQ(stock.movedOut, 7);
    EXPECT_EQ(stock.lost, 3);
    EXPECT_EQ(stock.sold, 0);
}

TEST_F(LotMovements, EachOtherSumIsAStatementOfItsOwn)
{
    EXPECT_EQ(SumDelivered(lot), 100);
    EXPECT_EQ(SumAdded(lot), 22.5);
    EXPECT_EQ(SumSold(lot), 41.5);
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT SUM(Num) FROM PRD_List WHERE ID='20260301001'"_s,
                           u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260301001' And EStoreType='0'"_s,
                           u"SELECT SUM(Num) FROM Sal_List WHERE ID='20260301001'"_s}));
}

TEST_F(LotMovements, NoLotHasNone)
{
    EXPECT_EQ(SumDelivered(QString()), 0);
    EXPECT_EQ(ReadStockChanges(QString(), 4).Left(), 4);
    EXPECT_EQ(SumSold(QString()), 0);
}
