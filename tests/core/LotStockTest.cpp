#include "core/common/LotStock.h"

#include <gtest/gtest.h>

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
