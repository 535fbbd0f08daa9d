#include "core/common/Sheet.h"
#include "tests/support/TestText.h"

#include <gtest/gtest.h>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

using Kind = SheetColumn::Kind;
using RowKind = Sheet::RowKind;

Sheet Owners()
{
    Sheet sheet;
    sheet.SetColumns({{u"货主"_s, 1500, Kind::Text}, {u"金额"_s, 1170, Kind::Number}});
    return sheet;
}

QStringList Names(const Sheet& sheet)
{
    QStringList names;
    for (int row = 0; row < sheet.RowCount(); ++row)
        names << sheet.Text(row, 1);
    return names;
}

} // namespace

TEST(SheetTest, PositionZeroIsABlankColumnOfWidthZero)
{
    Sheet sheet = Owners();
    sheet.Append({{u"王老板"_s, u"12.5"_s}});
    ASSERT_EQ(sheet.ColumnCount(), 3);
    EXPECT_EQ(sheet.Column(0).heading, QString());
    EXPECT_EQ(sheet.Column(0).widthTwips, 0);
    EXPECT_EQ(sheet.Column(1).heading, u"货主"_s);
    EXPECT_EQ(sheet.Column(2).widthTwips, 1170);
    EXPECT_EQ(sheet.Text(0, 0), QString());
    EXPECT_EQ(sheet.Text(0, 1), u"王老板"_s);
    EXPECT_EQ(sheet.Text(0, 2), u"12.5"_s);
    EXPECT_THROW(sheet.Column(3), std::out_of_range);
    EXPECT_EQ(Sheet().ColumnCount(), 1);
}

TEST(SheetTest, WhatIsNotThereReadsAsNothing)
{
    Sheet sheet = Owners();
    sheet.Append({{u"王老板"_s, u"12.5"_s}});
    for (const auto& [row, position] : {std::pair(0, 3), std::pair(0, -1), std::pair(1, 1), std::pair(-1, 1)})
        EXPECT_EQ(sheet.Text(row, position), QString()) << row << ' ' << position;
    EXPECT_EQ(sheet.KindOf(0), RowKind::Record);
    EXPECT_EQ(sheet.KindOf(1), RowKind::Spacer);
    sheet.SetText(1, 1, u"x"_s);
    sheet.SetText(-1, 1, u"x"_s);
    sheet.SetText(0, 0, u"x"_s);
    sheet.SetText(0, -1, u"x"_s);
    EXPECT_EQ(sheet.RowCount(), 1);
    EXPECT_EQ(sheet.Text(0, 0), QString());
    EXPECT_EQ(sheet.Text(0, 1), u"王老板"_s);
}

TEST(SheetTest, ATextGoesToItsPositionAndTheLaterOneWins)
{
    Sheet sheet = Owners();
    sheet.Append({{}, RowKind::Total});
    sheet.SetText(0, 2, u"7.0"_s);
    sheet.SetText(0, 2, u"8.0"_s);
    sheet.SetText(0, 5, u"behind the last column"_s);
    EXPECT_EQ(sheet.Text(0, 1), QString());
    EXPECT_EQ(sheet.Text(0, 2), u"8.0"_s);
    EXPECT_EQ(sheet.Text(0, 4), QString());
    EXPECT_EQ(sheet.Text(0, 5), u"behind the last column"_s);
    EXPECT_EQ(sheet.ColumnCount(), 3);
    EXPECT_EQ(sheet.KindOf(0), RowKind::Total);
}

TEST(SheetTest, AlignmentFollowsTheKindOfTheValues)
{
    EXPECT_EQ((SheetColumn{u"a"_s, 1}).Alignment(), Qt::AlignLeft);
    EXPECT_EQ((SheetColumn{u"a"_s, 1, Kind::Number}).Alignment(), Qt::AlignRight);
    EXPECT_EQ((SheetColumn{u"a"_s, 1, Kind::Centred}).Alignment(), Qt::AlignHCenter);
    EXPECT_EQ((SheetColumn{u"a"_s, 1, Kind::Flag}).Alignment(), Qt::AlignHCenter);
}

TEST(SheetTest, WidthsAddUpAndTheBlankColumnStaysAtZero)
{
    Sheet sheet = Owners();
    EXPECT_EQ(sheet.Width(), 2670);
    sheet.SetWidth(1, 1515);
    sheet.SetWidth(0, 900);
    sheet.SetWidth(3, 900);
    sheet.SetWidth(-1, 900);
    EXPECT_EQ(sheet.Width(), 2685);
    EXPECT_EQ(sheet.Column(1).widthTwips, 1515);
    EXPECT_EQ(sheet.Column(0).widthTwips, 0);
}

TEST(SheetTest, NewColumnsDropTheRowsAndClearingKeepsTheColumns)
{
    Sheet sheet = Owners();
    sheet.Append({{u"王老板"_s}});
    sheet.Clear();
    EXPECT_EQ(sheet.RowCount(), 0);
    EXPECT_EQ(sheet.ColumnCount(), 3);
    sheet.Append({{u"王老板"_s}});
    sheet.SetColumns({{u"编号"_s, 900}});
    EXPECT_EQ(sheet.RowCount(), 0);
    EXPECT_EQ(sheet.ColumnCount(), 2);
}

TEST(SheetTest, SortsByNumbersNotByTexts)
{
    Sheet sheet = Owners();
    for (const auto& [name, amount] :
         {std::pair(u"a"_s, u"1,234.5"_s), std::pair(u"b"_s, u"-2.0"_s), std::pair(u"c"_s, u"99.0"_s),
          std::pair(u"d"_s, u"没有"_s), std::pair(u"e"_s, u"¥100.0"_s)})
        sheet.Append({{name, amount}});
    EXPECT_EQ(sheet.SortByNumber(2, Qt::AscendingOrder), (std::vector<int>{1, 3, 2, 4, 0}));
    EXPECT_EQ(Names(sheet), (QStringList{u"b"_s, u"d"_s, u"c"_s, u"e"_s, u"a"_s}));
    EXPECT_EQ(sheet.Text(4, 2), u"1,234.5"_s) << "a row goes as a whole";
    sheet.SortByNumber(2, Qt::DescendingOrder);
    EXPECT_EQ(Names(sheet), (QStringList{u"a"_s, u"e"_s, u"c"_s, u"d"_s, u"b"_s}));
}

TEST(SheetTest, EqualNumbersKeepTheirOrderBothWays)
{
    Sheet sheet = Owners();
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s})
        sheet.Append({{name, u"5.0"_s}});
    sheet.Append({{u"d"_s, u"4.0"_s}});
    sheet.SortByNumber(2, Qt::DescendingOrder);
    EXPECT_EQ(Names(sheet), (QStringList{u"a"_s, u"b"_s, u"c"_s, u"d"_s}));
    sheet.SortByNumber(2, Qt::AscendingOrder);
    EXPECT_EQ(Names(sheet), (QStringList{u"d"_s, u"a"_s, u"b"_s, u"c"_s}));
    sheet.SortByNumber(9, Qt::AscendingOrder);
    EXPECT_EQ(Names(sheet), (QStringList{u"d"_s, u"a"_s, u"b"_s, u"c"_s})) << "nothing stands there";
}

TEST(SheetTest, SpacersAndTotalsStayBehindTheRecords)
{
    Sheet sheet = Owners();
    sheet.Append({{u"a"_s, u"9.0"_s}});
    sheet.Append({{u"b"_s, u"7.0"_s}});
    sheet.Append({{}, RowKind::Spacer});
    sheet.Append({{u"总计"_s, u"16.0"_s}, RowKind::Total});
    for (const Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        sheet.SortByNumber(2, order);
        EXPECT_EQ(Names(sheet).mid(2), (QStringList{QString(), u"总计"_s}));
        EXPECT_EQ(sheet.KindOf(2), RowKind::Spacer);
        EXPECT_EQ(sheet.KindOf(3), RowKind::Total);
    }
    EXPECT_EQ(Names(sheet).first(2), (QStringList{u"a"_s, u"b"_s}));
}
