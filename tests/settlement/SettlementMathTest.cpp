#include "settlement/SettlementMath.h"

#include "core/base/RunTimeError.h"
#include "core/common/Formats.h"
#include "tests/support/TestText.h"

using namespace Qt::StringLiterals;

TEST(SettlementMath, UnweighedPiecesCountWithTheWeightOfOne)
{
    EXPECT_EQ(WeightShown(0, 40, 25), 1000);
    EXPECT_EQ(WeightShown(120.5, 40, 25), 1120.5);
    EXPECT_EQ(WeightShown(120.5, 40, 0), 120.5);
    EXPECT_EQ(WeightShown(120.5, 40, -25), 120.5);
}

TEST(SettlementMath, TheWeightOfOnePieceIsAWholeNumberHalvesToEven)
{
    EXPECT_EQ(WeightShown(0, 10, 2.5), 20);
    EXPECT_EQ(WeightShown(0, 10, 3.5), 40);
    EXPECT_EQ(WeightShown(7, 10, 0.5), 7);
    EXPECT_EQ(WeightShown(0, 1, 32767.4), 32767);
    EXPECT_THROW(WeightShown(0, 1, 32767.5), OverflowError);
    EXPECT_THROW(WeightShown(0, 1, 40000), OverflowError);
}

TEST(SettlementMath, TheTotalTakesAllTenLines)
{
    EXPECT_EQ(TotalOfDeductions({1, 2, 4, 8, 16, 32, 64, 128, 256, 512}), 1023);
    EXPECT_EQ(TotalOfDeductions({0.1, 0.2, 0.1, 0.2, 0.1, 0.2, 0.1, 0.2, 0.1, 0.2}), 1.5);
    EXPECT_EQ(TotalOfDeductions({10, -2.5}), 7.5);
}

TEST(SettlementMath, TheNetCarriesNoNoiseOfTheBinarySum)
{
    EXPECT_EQ(NetToOwner(1000, 100.3), 899.7);
    EXPECT_EQ(NetToOwner(8.2, 0.7), 7.5);
    EXPECT_EQ(NetToOwner(0.8, TotalOfDeductions({0.7, 0.1})), 0);
    EXPECT_EQ(NetToOwner(100, 250), -150);
}

TEST(SettlementMath, FeesByPercentByTonneAndByPiece)
{
    EXPECT_EQ(FeeByPercent(5, 1000), 50);
    EXPECT_EQ(FeeByWeight(30, 2500), 75);
    EXPECT_EQ(FeeByCount(30, 100), 3000);
    // A tie of the typed digits, not of their binary neighbours.
    EXPECT_EQ(FormatAmount(FeeByPercent(1.5, 1003.3), u"1"_s), u"15.0"_s);
    EXPECT_EQ(FormatAmount(FeeByPercent(2.5, 10), u"1"_s), u"0.3"_s);
    EXPECT_EQ(FormatAmount(FeeByWeight(1.15, 3000), u"1"_s), u"3.5"_s);
}
