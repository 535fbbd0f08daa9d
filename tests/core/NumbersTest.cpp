#include "core/base/Numbers.h"
#include "core/base/RunTimeError.h"
#include "tests/support/TestText.h"

#include <cmath>
#include <limits>

using namespace Qt::StringLiterals;

TEST(Numbers, PlainTextHasFifteenDigitsAndNeitherGroupsNorExponent)
{
    const struct {
        double value;
        QString text;
    } cases[] = {
        {0, u"0"_s},
        {-0.0, u"0"_s},
        {10, u"10"_s},
        {40.50, u"40.5"_s},
        {0.5, u"0.5"_s},
        {-0.05, u"-0.05"_s},
        {1000 - 900.1, u"99.9"_s},
        {100.1 + 200.2, u"300.3"_s},
        {8.2 - 0.7, u"7.5"_s},
        {18 * 0.3 + 0.1, u"5.5"_s},
        {1e5, u"100000"_s},
        {1e15, u"1000000000000000"_s},
        {1e21, u"1000000000000000000000"_s},
        {1e-7, u"0.0000001"_s},
        {10.125, u"10.125"_s},
        {1.0 / 3, u"0.333333333333333"_s},
        {123456789012345, u"123456789012345"_s},
        {-1234.5, u"-1234.5"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(NumberText(c.value), c.text);
    EXPECT_THROW(NumberText(std::numeric_limits<double>::infinity()), OverflowError);
    EXPECT_THROW(NumberText(std::nan("")), OverflowError);
}

TEST(Numbers, AStatementTakesNoNumberThatNoColumnHolds)
{
    EXPECT_EQ(SqlNumber(100000), u"100000"_s);
    EXPECT_EQ(SqlNumber(-0.1), u"-0.1"_s);
    EXPECT_EQ(SqlNumber(99999999999999.0), u"99999999999999"_s);
    EXPECT_THROW(SqlNumber(1e14), OverflowError);
    EXPECT_THROW(SqlNumber(-1e14), OverflowError);
    EXPECT_THROW(SqlNumber(std::numeric_limits<double>::infinity()), OverflowError);
    EXPECT_THROW(SqlNumber(std::nan("")), OverflowError);
}

TEST(Numbers, ANumberThatRoundsUpToTheLimitOfTheColumnsIsRefusedToo)
{
    EXPECT_THROW(SqlNumber(99999999999999.98), OverflowError);
}

TEST(Numbers, ShownDecimalsRoundTheDigitsAPersonSeesAndHalvesAwayFromZero)
{
    const struct {
        double value;
        int decimals;
        QString text;
    } cases[] = {
        {3 * 1.15, 1, u"3.5"_s},
        {0.25, 1, u"0.3"_s},
        {100.25, 1, u"100.3"_s},
        {-100.25, 1, u"-100.3"_s},
        {0.15, 1, u"0.2"_s},
        {0.35, 1, u"0.4"_s},
        {0.45, 1, u"0.5"_s},
        {1.005, 2, u"1.01"_s},
        {277.875, 1, u"277.9"_s},
        {277.875, 2, u"277.88"_s},
        {999.95, 1, u"1,000.0"_s},
        {-0.04, 1, u"0.0"_s},
        {-0.05, 1, u"-0.1"_s},
        {0, 1, u"0.0"_s},
        {-0.0, 2, u"0.00"_s},
        {1234567.8, 1, u"1,234,567.8"_s},
        {999999.96, 1, u"1,000,000.0"_s},
        {0.5, 0, u"1"_s},
        {1.4999, 0, u"1"_s},
        {0.04, 1, u"0.0"_s},
        {0.999, 2, u"1.00"_s},
        {123, 0, u"123"_s},
        {1e15, 1, u"1,000,000,000,000,000.0"_s},
        {2.675, 2, u"2.68"_s},
        {8.2 - 0.7, 0, u"8"_s},
        {1e-9, 2, u"0.00"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(RoundedText(c.value, c.decimals, true), c.text) << c.value;
    EXPECT_EQ(RoundedText(1234.5, 2, false), u"1234.50"_s);
    EXPECT_THROW(RoundedText(std::numeric_limits<double>::infinity(), 1, true), OverflowError);
}

TEST(Numbers, SettledTakesTheNoiseOfSumsOffAndNothingElse)
{
    EXPECT_EQ(Settled(50.3 - 50.2), 0.1);
    EXPECT_EQ(Settled(8.2 - 0.7), 7.5);
    EXPECT_EQ(Settled(18 * 0.3 + 0.1), 5.5);
    EXPECT_EQ(Settled(0.8 - (0.7 + 0.1)), 0);
    EXPECT_EQ(Settled(1000000.3 - 1000000.2), 0.1);
    EXPECT_EQ(Settled(0.123456), 0.123456);
    EXPECT_EQ(Settled(12.34), 12.34);
    EXPECT_EQ(Settled(-1e20), -1e20);
}

TEST(Numbers, WhatAPersonWritesIsRead)
{
    const struct {
        QString text;
        double value;
    } cases[] = {
        {u"0"_s, 0},
        {u"12"_s, 12},
        {u"1."_s, 1},
        {u".5"_s, 0.5},
        {u"1,234.5"_s, 1234.5},
        {u"1,"_s, 1},
        {u"-5"_s, -5},
        {u"+5"_s, 5},
        {u"¥12.5"_s, 12.5},
        {u"￥12.5"_s, 12.5},
        {u"$12.5"_s, 12.5},
        {u"-¥12.5"_s, -12.5},
        {u"¥-12.5"_s, -12.5},
        {u" 12.5 "_s, 12.5},
        {u" -¥1,234.5 "_s, -1234.5},
        {u"(12.5)"_s, -12.5},
        {u"(¥1,000)"_s, -1000},
        {u"1e3"_s, 1000},
        {u"1E+3"_s, 1000},
        {u"1d-2"_s, 0.01},
        {u"1D2"_s, 100},
        {u"-.5"_s, -0.5},
        {u"007"_s, 7},
        {u"1.5e2"_s, 150},
        {u"¥ 5"_s, 5},
        {u"99999999999999999999"_s, 1e20},
    };
    for (const auto& c : cases) {
        const auto value = ParseNumber(c.text);
        ASSERT_TRUE(value.has_value()) << c.text.toStdString();
        EXPECT_DOUBLE_EQ(*value, c.value) << c.text.toStdString();
        EXPECT_TRUE(IsNumeric(c.text));
    }
}

TEST(Numbers, WhatIsNoNumberIsRefused)
{
    for (const QString& text :
         {u""_s,      u" "_s,     u"-"_s,    u"+"_s,    u"."_s,   u","_s,     u"¥"_s,     u"-¥"_s,
          u"abc"_s,   u"12a"_s,   u"1-"_s,   u"--1"_s,  u"+-1"_s, u"-¥-1"_s,  u"1.2.3"_s, u"1e"_s,
          u"e5"_s,    u"1e5.5"_s, u"0x1F"_s, u"&H1F"_s, u"nan"_s, u"inf"_s,   u"-inf"_s,  u"１２"_s,
          u"一"_s,    u",5"_s,    u"1 2"_s,  u"(5"_s,   u"5)"_s,  u"(-5)"_s,  u"()"_s,    u"1.5,0"_s,
          u"1e999"_s, u"5'"_s,    u"5\\"_s,  u"5;"_s,   u"\t"_s,  u"12\n3"_s, u"¥¥5"_s,   u"√"_s})
        EXPECT_FALSE(IsNumeric(text)) << text.toStdString();
    EXPECT_FALSE(IsNumeric(QString(400, u'9'))) << "digits beyond what a double holds";
}

TEST(Numbers, AMoneyTextComesBackAsItsNumber)
{
    for (const double value : {0.0, 12.5, -12.5, 1234.5, -1234567.8, 999.9})
        EXPECT_EQ(TextToDouble(u"¥"_s + RoundedText(value, 1, true)), value);
    EXPECT_EQ(TextToDouble(u"-¥12.5"_s), -12.5);
}

TEST(Numbers, AnEmptyTextCountsAsZeroExceptWhereANumberIsRequired)
{
    EXPECT_EQ(TextToDouble(QString()), 0);
    EXPECT_EQ(TextToDouble(u"   "_s), 0);
    EXPECT_EQ(TextToDouble(u" 7 "_s), 7);
    EXPECT_THROW(TextToDouble(u"abc"_s), TypeMismatchError);
    EXPECT_THROW(RequiredNumber(QString()), TypeMismatchError);
    EXPECT_THROW(RequiredNumber(u" "_s), TypeMismatchError);
    EXPECT_EQ(RequiredNumber(u"1,5"_s), 15);
    try {
        RequiredNumber(QString());
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Description(), u"类型不匹配"_s);
    }
}

TEST(Numbers, AnIniValueIsTheNumberItBeginsWith)
{
    const struct {
        QString text;
        double value;
    } cases[] = {{u""_s, 0},     {u"abc"_s, 0}, {u"12"_s, 12}, {u"12abc"_s, 12},   {u" 7 "_s, 7},
                 {u"-3x"_s, -3}, {u"+5"_s, 5},  {u"5."_s, 5},  {u".5"_s, 0.5},     {u"1.5.2"_s, 1.5},
                 {u"１２"_s, 0}, {u"1,2"_s, 1}, {u"--5"_s, 0}, {u"40000"_s, 40000}};
    for (const auto& c : cases)
        EXPECT_EQ(LeadingNumber(c.text), c.value) << c.text.toStdString();
}

TEST(Numbers, SixteenBitsTakeHalvesToEvenAndOverflowInsteadOfWrapping)
{
    const struct {
        double value;
        int whole;
    } cases[] = {{0, 0},         {2.5, 2},         {3.5, 4},         {0.5, 0},
                 {0.51, 1},      {-0.5, 0},        {-0.6, -1},       {-2.5, -2},
                 {32767, 32767}, {32767.4, 32767}, {-32768, -32768}, {-32768.5, -32768}};
    for (const auto& c : cases)
        EXPECT_EQ(ToInt16(c.value), c.whole) << c.value;
    for (const double value : {32768.0, 32767.5, -32769.0, 40000.0, 1e300, -1e300,
                               std::numeric_limits<double>::infinity(), std::nan("")})
        EXPECT_THROW(ToInt16(value), OverflowError) << value;
    try {
        ToInt16(40000);
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.Description(), u"溢出"_s);
    }
}

TEST(Numbers, RoundHalfUpGoesUpAtOneHalfOnBothSidesOfZero)
{
    const struct {
        double value;
        double whole;
    } cases[] = {{2.5, 3},       {-2.5, -2},          {2.4999, 2},  {2.4999999, 2}, {2, 2},    {-2, -2},
                 {-2.51, -3},    {-2.4, -2},          {0.5, 1},     {-0.5, 0},      {0.49, 0}, {0, 0},
                 {8.2 - 0.7, 8}, {18 * 0.3 + 0.1, 6}, {1e15, 1e15}, {578.5, 579}};
    for (const auto& c : cases)
        EXPECT_EQ(RoundHalfUp(c.value), c.whole) << c.value;
}
