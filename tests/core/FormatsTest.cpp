#include "core/common/Formats.h"
#include "core/base/Clock.h"
#include "core/base/RunTimeError.h"
#include "core/common/Lookups.h"
#include "tests/support/TestText.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

TEST(MoneyToCapitals, ReadsAsOnAReceipt)
{
    const struct {
        double amount;
        QString words;
    } cases[] = {
        {0, u""_s},
        {-0.0, u""_s},
        {1000.5, u"壹仟元伍角"_s},
        {10000, u"壹万元"_s},
        {10100, u"壹万零壹佰元"_s},
        {100100, u"壹拾万零壹佰元"_s},
        {0.05, u"伍分"_s},
        {10, u"壹拾元"_s},
        {-12.5, u"负壹拾贰元伍角"_s},
        {123456789, u"贰仟叁佰肆拾伍万陆仟柒佰捌拾玖元"_s},
        {1.5, u"壹元伍角"_s},
        {0.5, u"伍角"_s},
        {100000000, u"万元"_s},
        {1.105, u"壹元壹角零分"_s},
        {1.101, u"壹元壹角零分"_s},
        {1.05, u"壹元伍分"_s},
        {1.25, u"壹元贰角伍分"_s},
        {1.259, u"壹元贰角伍分"_s},
        {0.001, u"零分"_s},
        {101, u"壹佰零壹元"_s},
        {1001, u"壹仟零壹元"_s},
        {1010, u"壹仟零壹拾元"_s},
        {10001, u"壹万零壹元"_s},
        {11000, u"壹万壹仟元"_s},
        {20005000, u"贰仟万伍仟元"_s},
        {1000000, u"壹佰万元"_s},
        {1010000, u"壹佰零壹万元"_s},
        {10010000, u"壹仟零壹万元"_s},
        {100.1 + 200.2, u"叁佰元叁角"_s},
        {580, u"伍佰捌拾元"_s},
        {99999999.99, u"玖仟玖佰玖拾玖万玖仟玖佰玖拾玖元玖角玖分"_s},
        {101234567, u"壹佰贰拾叁万肆仟伍佰陆拾柒元"_s},
        {1e15, u"万元"_s},
        {-0.5, u"负伍角"_s},
    };
    for (const auto& c : cases)
        EXPECT_EQ(MoneyToCapitals(c.amount), c.words) << c.amount;
}

TEST(Formats, AmountsHaveTheDecimalsAskedForGroupsAndAMinus)
{
    EXPECT_EQ(FormatAmount(1234.5, u"2"_s), u"1,234.50"_s);
    EXPECT_EQ(FormatAmount(1234.5, u"1"_s), u"1,234.5"_s);
    EXPECT_EQ(FormatAmount(1234.56, QString()), u"1,234.6"_s);
    EXPECT_EQ(FormatAmount(-1234.56, QString()), u"-1,234.6"_s);
    EXPECT_EQ(FormatAmount(0.5, u"0"_s), u"1"_s);
    EXPECT_EQ(FormatAmount(.5, u"1"_s), u"0.5"_s);
    EXPECT_THROW(FormatAmount(1, u"x"_s), TypeMismatchError);
}

TEST(Formats, ATextBoxIsRewrittenInTheNumberFormat)
{
    QLineEdit box;
    box.setText(u"1234.56"_s);
    FormatTextBox(&box, QString());
    EXPECT_EQ(box.text(), u"1,234.6"_s);
    FormatTextBox(&box, u"2"_s);
    EXPECT_EQ(box.text(), u"1,234.60"_s);
    box.setText(u"-.25"_s);
    FormatTextBox(&box, u"1"_s);
    EXPECT_EQ(box.text(), u"-0.3"_s);
    box.setText(u"abc"_s);
    EXPECT_THROW(FormatTextBox(&box, u"1"_s), TypeMismatchError);
    EXPECT_EQ(box.text(), u"abc"_s);
}

TEST(Formats, MoneyHasTheSignInFrontOneDecimalAndGroups)
{
    const struct {
        double value;
        QString text;
    } cases[] = {{0, u"¥0.0"_s},          {-0.04, u"¥0.0"_s},
                 {580, u"¥580.0"_s},      {-12.5, u"-¥12.5"_s},
                 {1234.5, u"¥1,234.5"_s}, {999.95, u"¥1,000.0"_s},
                 {0.25, u"¥0.3"_s},       {-1234567.89, u"-¥1,234,567.9"_s}};
    for (const auto& c : cases) {
        EXPECT_EQ(FormatMoney(c.value), c.text);
        EXPECT_EQ(FormatMoney(c.value).count(QChar(0x00A5)), 1);
    }
}

TEST(Formats, DatesAndTimesAreTheTextsOfTheColumns)
{
    const QDate date(2026, 3, 9);
    EXPECT_EQ(FormatDate(date), u"2026-03-09"_s);
    EXPECT_EQ(FormatTime(QTime(7, 5, 3)), u"07:05:03"_s);
    EXPECT_EQ(FormatTime(QTime(0, 0, 0)), u"00:00:00"_s);
    EXPECT_EQ(FormatTime(QTime(23, 59, 59)), u"23:59:59"_s);
    EXPECT_EQ(LongDate(date), u"2026年03月09日"_s);
}

TEST(Formats, FlagsAndKindsHaveTheirWords)
{
    EXPECT_EQ(CheckMark(u"1"_s), u"√"_s);
    for (const QString& flag : {u"0"_s, u""_s, u"2"_s, u"11"_s, u" 1"_s})
        EXPECT_EQ(CheckMark(flag), QString());

    const QStringList stockChanges{u"进货"_s, u"转出"_s, u"损耗"_s};
    const QStringList crateMovements{u"进筐"_s, u"退筐"_s, u"损筐"_s, u"还筐"_s, u"借筐"_s};
    for (int i = 0; i < 10; ++i) {
        EXPECT_EQ(StockChangeName(QString::number(i)), stockChanges.value(i));
        EXPECT_EQ(PackTypeName(QString::number(i)), crateMovements.value(i));
    }
    for (const QString& type : {u""_s, u"-1"_s, u"01"_s, u"x"_s, u" 1"_s, u"１"_s}) {
        EXPECT_EQ(StockChangeName(type), QString()) << type.toStdString();
        EXPECT_EQ(PackTypeName(type), QString()) << type.toStdString();
    }
}

TEST(Formats, ATextIsRepeatedOrNot)
{
    EXPECT_EQ(RepeatText(u"ab"_s, 3), u"ababab"_s);
    EXPECT_EQ(RepeatText(u"ab"_s, 1), u"ab"_s);
    EXPECT_EQ(RepeatText(u"ab"_s, 0), QString());
    EXPECT_EQ(RepeatText(u"ab"_s, -2), QString());
}

TEST(Formats, ANullIsZero)
{
    EXPECT_EQ(NullToZero(QVariant()), 0);
    EXPECT_EQ(NullToZero(QVariant(12.5)), 12.5);
    EXPECT_EQ(NullToZero(QVariant(qlonglong(7))), 7);
}
