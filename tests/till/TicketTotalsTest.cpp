#include "till/TicketTotals.h"

#include "core/base/RunTimeError.h"
#include "tests/support/TestText.h"

#include <gtest/gtest.h>

#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct TotalsRow {
    const char* name;
    double num, suttle, upr, packAmount, foregiftAmount;
    bool roundToYuan;
    double amount, total;
};

class TicketTotalsTable : public ::testing::TestWithParam<TotalsRow> {};

} // namespace

TEST_P(TicketTotalsTable, Holds)
{
    const TotalsRow& row = GetParam();
    const TicketTotals totals = ComputeTicketTotals(row.num, row.suttle, row.upr, row.packAmount,
                                                    row.foregiftAmount, row.roundToYuan);
    EXPECT_EQ(totals.amount, row.amount);
    EXPECT_EQ(totals.total, row.total);
}

INSTANTIATE_TEST_SUITE_P(
    Totals, TicketTotalsTable,
    ::testing::Values(TotalsRow{"ByThePieceWithoutNetWeight", 10, 0, 3.25, 0, 0, false, 32.5, 32.5},
                      TotalsRow{"ByNetWeightWhenThereIsOne", 10, 85.5, 3.25, 0, 0, false, 277.9, 277.9},
                      TotalsRow{"ANegativeNetWeightCountsToo", 10, -2, 3, 0, 0, false, -6, -6},
                      TotalsRow{"AmountHalvesGoAwayFromZero", 1, 0, 0.25, 0, 0, false, 0.3, 0.3},
                      TotalsRow{"NegativeAmountHalvesToo", -1, 0, 0.25, 0, 0, false, -0.3, -0.3},
                      TotalsRow{"BinaryNoiseDoesNotRoundDown", 3, 0, 1.15, 0, 0, false, 3.5, 3.5},
                      TotalsRow{"FeeAndDepositGoInUnrounded", 1, 0, 1, 0.25, 0.25, false, 1, 1.5},
                      TotalsRow{"WholeYuanOnTheTotalAlone", 10, 85.5, 3.25, 2, 10, true, 277.9, 290},
                      TotalsRow{"WholeYuanDownBelowAHalf", 1, 0, 12.4, 0, 0, true, 12.4, 12},
                      TotalsRow{"WholeYuanOfANegativeTotalAgainstTheFloor", -1, 0, 2.5, 0, 0, true, -2.5, -2},
                      TotalsRow{"SumNoiseIsGoneBeforeRounding", 1, 0, 0.1, 18 * 0.3, 0, true, 0.1, 6},
                      TotalsRow{"NothingComesToNothing", 0, 0, 0, 0, 0, true, 0, 0}),
    [](const auto& row) { return row.param.name; });

TEST(TicketTotals, BeyondADoubleIsAnOverflow)
{
    EXPECT_THROW(ComputeTicketTotals(1e300, 0, 1e300, 0, 0, false), OverflowError);
}

namespace {

struct CutOffRow {
    const char* name;
    QString time;
    QString deadline;
    QString day;
};

class CutOff : public ::testing::TestWithParam<CutOffRow> {};

} // namespace

TEST_P(CutOff, DecidesTheMarketDay)
{
    const QDateTime now(QDate(2026, 3, 9), QTime::fromString(GetParam().time, u"HH:mm:ss"_s));
    EXPECT_EQ(BusinessDate(now, GetParam().deadline), GetParam().day);
}

INSTANTIATE_TEST_SUITE_P(
    Days, CutOff,
    ::testing::Values(CutOffRow{"OneSecondBefore", u"17:59:59"_s, u"18:00:00"_s, u"2026-03-09"_s},
                      CutOffRow{"ToTheSecond", u"18:00:00"_s, u"18:00:00"_s, u"2026-03-10"_s},
                      CutOffRow{"Later", u"23:59:59"_s, u"18:00:00"_s, u"2026-03-10"_s},
                      CutOffRow{"SwitchedOff", u"23:59:59"_s, u"00:00:00"_s, u"2026-03-09"_s},
                      CutOffRow{"WithoutSeconds", u"18:00:00"_s, u"18:00"_s, u"2026-03-10"_s},
                      CutOffRow{"WithoutALeadingZeroItNeverComes", u"23:00:00"_s, u"8:00:00"_s,
                                u"2026-03-09"_s},
                      CutOffRow{"WordsNeverCome", u"23:59:59"_s, u"abc"_s, u"2026-03-09"_s},
                      CutOffRow{"ABlankIsBelowEveryTime", u"00:00:00"_s, u" "_s, u"2026-03-10"_s}),
    [](const auto& row) { return row.param.name; });

TEST(BusinessDay, CrossesTheEndOfTheYear)
{
    EXPECT_EQ(BusinessDate(QDateTime(QDate(2026, 12, 31), QTime(19, 0)), u"18:00:00"_s), u"2027-01-01"_s);
}
