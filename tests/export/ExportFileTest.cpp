#include "reports/BiffRecords.h"
#include "reports/SpreadsheetFile.h"
#include "reports/SpreadsheetPage.h"
#include "reports/XlsWriter.h"
#include "tests/export/ExportCase.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// What is exported is one page, whoever reads it: as the writers get it, as a reader of each kind of file
/// finds it, and as another spreadsheet program understood it.
class ExportFile : public ExportCase {};

QString CellName(int row, int column)
{
    return QChar(u'A' + column) + QString::number(row + 1);
}

QString Words(const CellLook& look)
{
    QStringList words{QString::number(look.points)};
    if (look.isBold)
        words << u"bold"_s;
    if (look.alignment.testFlag(Qt::AlignLeft))
        words << u"left"_s;
    if (look.alignment.testFlag(Qt::AlignHCenter))
        words << u"centre"_s;
    if (look.alignment.testFlag(Qt::AlignVCenter))
        words << u"middle"_s;
    if (look.isBordered)
        words << u"border"_s;
    if (look.isText)
        words << u"@"_s;
    return words.join(u' ');
}

QString Described(const SpreadsheetPage& page)
{
    QString text = u"sheets 1\ncolumns"_s;
    for (int column = 0; column < page.ColumnCount(); ++column)
        text += u' ' + QString::number(page.ColumnWidth(column));
    text += u'\n';
    for (int row = 0; row < page.RowCount(); ++row) {
        text += u"row %1 of %2 points"_s.arg(row + 1).arg(qRound(page.RowHeight(row) * 20) / 20.0);
        if (page.IsMerged(row))
            text += u", merged %1:%2"_s.arg(CellName(row, 0), CellName(row, page.TableWidth() - 1));
        text += u'\n';
        for (int column = 0; column < page.ColumnCount(); ++column) {
            const CellLook& look = SpreadsheetPage::Details(page.LookOf(row, column));
            const QString words = page.Text(row, column);
            if (!words.isEmpty() || look.isBordered)
                text += (CellName(row, column) + u' ' + Words(look) + u": "_s + words).trimmed() + u'\n';
        }
    }
    return text;
}

void ExpectGolden(const QString& name, const QString& text)
{
    QFile file(SourcePath(u"tests/export/golden/"_s + name + u".txt"_s));
    if (qEnvironmentVariableIsSet("ORVANE_REWRITE_GOLDEN")) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << file.fileName().toStdString();
    EXPECT_EQ(QString::fromUtf8(file.readAll()).toStdString(), text.toStdString());
}

} // namespace

class ExportFileOf : public ExportFile, public ::testing::WithParamInterface<bool> {
protected:
    void SetUp() override
    {
        ExportFile::SetUp();
        if (GetParam())
            FillWithStatement(*report);
    }
    QString Golden() const { return GetParam() ? u"statement"_s : u"sales"_s; }
};

TEST_P(ExportFileOf, IsThePageOfItsGoldenFile)
{
    ExpectGolden(Golden(), Described(SpreadsheetPage(*report, GetParam())));
}

TEST_P(ExportFileOf, IsReadBackFromAnXlsFile)
{
    OpenExport();
    boxes.Expect(ExportDone, ExportTitle);
    ExportTo(Path(u"报表.xls"_s));
    ExpectGolden(Golden(), ReadBack(Path(u"报表.xls"_s)));
    ExpectGolden(Golden(), ReadBack(Converted(Path(u"报表.xls"_s), u".xlsx"_s)));
}

TEST_P(ExportFileOf, IsReadBackFromAnXlsxFile)
{
    OpenExport();
    boxes.Expect(ExportDone, ExportTitle);
    ExportTo(Path(u"报表.xlsx"_s));
    ExpectGolden(Golden(), ReadBack(Path(u"报表.xlsx"_s)));
    ExpectGolden(Golden(), ReadBack(Converted(Path(u"报表.xlsx"_s), u".xls"_s)));
}

INSTANTIATE_TEST_SUITE_P(Two, ExportFileOf, ::testing::Bool(),
                         [](const auto& which) { return which.param ? "TheStatement" : "AReport"; });

TEST_F(ExportFile, KeepsEveryCellOfThousandsOfRowsInBothFormats)
{
    report->sheet = LargeSheet(6000, 18);
    const QString expected = Described(SpreadsheetPage(*report, false));
    for (const QString& name : {u"long.xls"_s, u"long.xlsx"_s}) {
        WriteSpreadsheet(SpreadsheetPage(*report, false), Path(name));
        EXPECT_TRUE(ReadBack(Path(name)) == expected) << name.toStdString();
    }
}

TEST_F(ExportFile, KeepsTextsThatAreLongerThanARecord)
{
    report->sheet.Clear();
    for (const int length : {2737, 4096, 5000, 8215, 8216, 8217, 16500, SpreadsheetPage::MostLetters}) {
        report->sheet.Append({{QString(length, u'a'), QString(length, u'水'), u"𠮷"_s.repeated(length / 2)}});
    }
    report->sheet.Append({{QString(40000, u'x'), u'a' + u"𠮷"_s.repeated(20000)}});
    const QString expected = Described(SpreadsheetPage(*report, false));
    ASSERT_TRUE(expected.contains(QString(SpreadsheetPage::MostLetters, u'x')));
    ASSERT_FALSE(expected.contains(QString(SpreadsheetPage::MostLetters + 1, u'x')));
    for (const QString& name : {u"long.xls"_s, u"long.xlsx"_s}) {
        WriteSpreadsheet(SpreadsheetPage(*report, false), Path(name));
        EXPECT_TRUE(ReadBack(Path(name)) == expected) << name.toStdString();
    }
}

TEST_F(ExportFile, AColumnWiderThanASpreadsheetTakesIsItsWidest)
{
    report->sheet.SetWidth(1, 40000);
    report->sheet.SetWidth(2, -10);
    const SpreadsheetPage page(*report, false);
    EXPECT_EQ(page.ColumnWidth(0), 255);
    EXPECT_EQ(page.ColumnWidth(1), 0);
}

TEST_F(ExportFile, CaptionsWithoutWordsAreEmptyRows)
{
    report->captions = {QString(), QString(), QString()};
    for (const QString& name : {u"bare.xls"_s, u"bare.xlsx"_s}) {
        WriteSpreadsheet(SpreadsheetPage(*report, false), Path(name));
        EXPECT_EQ(ReadBack(Path(name)), Described(SpreadsheetPage(*report, false)));
    }
}

TEST_F(ExportFile, OfOneColumnMergesNothing)
{
    report->sheet.SetColumns({{u"编号"_s, 1000, SheetColumn::Kind::Text}});
    report->sheet.Append({{u"1"_s}});
    for (const QString& name : {u"one.xls"_s, u"one.xlsx"_s}) {
        WriteSpreadsheet(SpreadsheetPage(*report, false), Path(name));
        EXPECT_EQ(ReadBack(Path(name)), Described(SpreadsheetPage(*report, false)));
        EXPECT_FALSE(ReadBack(Path(name)).contains(u"merged"));
    }
}

TEST(SharedStrings, AreNeverTornInTheirHeadsNorInALetter)
{
    // Each length leaves another rest at the end of the first record.
    for (int length = 8190; length < 8224; ++length) {
        SharedStrings strings;
        strings.NumberOf(QString(length, u'a'));
        strings.NumberOf(u"水果"_s);
        BiffRecords records;
        strings.Write(records);
        const QByteArray bytes = records.Bytes();
        for (qsizetype at = 0; at < bytes.size();) {
            const auto low = static_cast<unsigned char>(bytes[at + 2]);
            const auto high = static_cast<unsigned char>(bytes[at + 3]);
            const qsizetype size = low + 256 * high;
            ASSERT_LE(size, BiffRecords::MostBytes) << length;
            at += 4 + size;
            ASSERT_LE(at, bytes.size()) << length;
        }
        // The second text stands whole, or goes on behind its first letter and the kind of its letters.
        const QByteArray head("\x02\x00\x01\x34\x6c", 5);
        const QByteArray rest("\x9c\x67", 2);
        EXPECT_TRUE(bytes.endsWith(head + rest) ||
                    bytes.endsWith(head + QByteArray("\x3c\x00\x03\x00\x01", 5) + rest))
            << length;
    }
}
