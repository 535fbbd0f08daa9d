#include "reports/XlsWriter.h"

#include "core/base/RunTimeError.h"
#include "reports/BiffRecords.h"
#include "reports/OleFile.h"
#include "reports/SpreadsheetPage.h"

#include <QList>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr int MostRows = 65536;
constexpr auto FontName = u"宋体";
constexpr auto SheetName = u"Sheet1";

// Kinds of records.
constexpr std::uint16_t Bof = 0x0809;
constexpr std::uint16_t Eof = 0x000a;
constexpr std::uint16_t CodePage = 0x0042;
constexpr std::uint16_t Window1 = 0x003d;
constexpr std::uint16_t Font = 0x0031;
constexpr std::uint16_t Format = 0x041e;
constexpr std::uint16_t Xf = 0x00e0;
constexpr std::uint16_t Style = 0x0293;
constexpr std::uint16_t BoundSheet = 0x0085;
constexpr std::uint16_t Dimensions = 0x0200;
constexpr std::uint16_t DefaultRowHeight = 0x0225;
constexpr std::uint16_t DefaultColumnWidth = 0x0055;
constexpr std::uint16_t ColumnInfo = 0x007d;
constexpr std::uint16_t Row = 0x0208;
constexpr std::uint16_t LabelSst = 0x00fd;
constexpr std::uint16_t Blank = 0x0201;
constexpr std::uint16_t MergedCells = 0x00e5;
constexpr std::uint16_t Window2 = 0x023e;

constexpr std::uint16_t Globals = 0x0005;
constexpr std::uint16_t Worksheet = 0x0010;
constexpr std::uint16_t TextFormat = 49; // built in: "@"
constexpr std::uint16_t Utf16 = 1200;

// Every workbook begins with fifteen formats of styles and the plain format of a cell; ours follow.
constexpr int StyleFormats = 15;
constexpr int FirstLook = StyleFormats;

void AddBegin(BiffRecords& records, std::uint16_t kind)
{
    records.Add(Bof, {0x0600, kind, 0x0dbb, 0x07cc, 0x00c1, 0x0000, 0x0006, 0x0000});
}

void AddFont(BiffRecords& records, const CellLook& look)
{
    const QString name = QString::fromUtf16(FontName);
    const bool isWide = IsWide(name);
    records.Begin(Font).Words({static_cast<std::uint16_t>(look.points * 20), // twips
                               0, 0x7fff, static_cast<std::uint16_t>(look.isBold ? 700 : 400), 0});
    records.Byte(0).Byte(0).Byte(0x86).Byte(0); // no underline, no family, Chinese letters
    records.Byte(static_cast<std::uint8_t>(name.size())).Byte(isWide).Letters(name, isWide);
}

// Fonts 0 to 3 are the plain one. There is no font 4, for no reason that anybody remembers: numbers go
// on with 5. Each look has a font of its own.
std::uint16_t FontOf(int look)
{
    return static_cast<std::uint16_t>(look == 0 ? 0 : 4 + look);
}

void AddFonts(BiffRecords& records)
{
    for (int i = 0; i < 4; ++i)
        AddFont(records, {});
    for (int look = 1; look < SpreadsheetPage::LookCount; ++look)
        AddFont(records, SpreadsheetPage::Details(static_cast<SpreadsheetPage::Look>(look)));
}

std::uint8_t AlignmentBits(Qt::Alignment alignment)
{
    const int across = alignment.testFlag(Qt::AlignLeft)      ? 1
                       : alignment.testFlag(Qt::AlignHCenter) ? 2
                       : alignment.testFlag(Qt::AlignRight)   ? 3
                                                              : 0;
    const int down = alignment.testFlag(Qt::AlignTop) ? 0 : alignment.testFlag(Qt::AlignVCenter) ? 1 : 2;
    return static_cast<std::uint8_t>(across | down << 4);
}

void AddFormat(BiffRecords& records, int font, const CellLook& look, bool isStyle)
{
    constexpr std::uint16_t lockedStyle = 0xfff5; // of no parent
    constexpr std::uint16_t lockedCell = 0x0001;  // of style 0
    records.Begin(Xf).Words({static_cast<std::uint16_t>(font), look.isText ? TextFormat : std::uint16_t{0},
                             isStyle ? lockedStyle : lockedCell});
    // The last byte of these four: which groups are the format's own. A style tells those it leaves open.
    records.Byte(AlignmentBits(look.alignment)).Byte(0).Byte(0).Byte(isStyle ? 0xf4 : 0xfc);
    const std::uint16_t lines = look.isBordered ? 0x1111 : 0;             // thin, on four sides
    const std::uint16_t colours = look.isBordered ? 0x2040 : 0;           // of two sides each: the text's own
    records.Word(lines).Word(colours).Word(colours).Word(0).Word(0x20c0); // no fill
}

void AddFormats(BiffRecords& records)
{
    records.Begin(Format).Word(TextFormat).Word(1).Byte(0).Letters(u"@", false);
    for (int style = 0; style < StyleFormats; ++style)
        AddFormat(records, 0, {}, true);
    for (int look = 0; look < SpreadsheetPage::LookCount; ++look)
        AddFormat(records, FontOf(look), SpreadsheetPage::Details(static_cast<SpreadsheetPage::Look>(look)),
                  false);
    records.Begin(Style).Word(0x8000).Byte(0).Byte(0xff); // format 0 is the style "Normal"
}

/// A spreadsheet counts pixels of its plain font and adds five for the space between two columns; kept is
/// the width in 256ths of a character.
std::uint16_t ColumnUnits(double characters)
{
    const double pixels =
        characters < 1 ? std::floor(characters * 12 + 0.5) : std::floor(characters * 7 + 0.5) + 5;
    return static_cast<std::uint16_t>(pixels / 7 * 256);
}

void AddColumns(BiffRecords& sheet, const SpreadsheetPage& page)
{
    for (int column = 0; column < page.ColumnCount(); ++column) {
        const double width = page.ColumnWidth(column);
        const auto place = static_cast<std::uint16_t>(column);
        const std::uint16_t isHidden = width <= 0 ? 1 : 0;
        sheet.Add(ColumnInfo, {place, place, ColumnUnits(width), FirstLook, isHidden, 0});
    }
}

void AddRow(BiffRecords& sheet, SharedStrings& strings, const SpreadsheetPage& page, int row)
{
    const auto line = static_cast<std::uint16_t>(row);
    for (int column = 0; column < page.ColumnCount(); ++column) {
        const SpreadsheetPage::Look look = page.LookOf(row, column);
        const QString text = page.Text(row, column);
        const auto place = static_cast<std::uint16_t>(column);
        const auto format = static_cast<std::uint16_t>(FirstLook + static_cast<int>(look));
        if (!text.isEmpty())
            sheet.Begin(LabelSst).Words({line, place, format}).Long(strings.NumberOf(text));
        else if (look != SpreadsheetPage::Look::Plain)
            sheet.Add(Blank, {line, place, format});
    }
}

// Rows come in blocks of 32: first what each row is, then its cells.
void AddRows(BiffRecords& sheet, SharedStrings& strings, const SpreadsheetPage& page)
{
    constexpr int block = 32;
    const auto columns = static_cast<std::uint16_t>(page.ColumnCount());
    for (int first = 0; first < page.RowCount(); first += block) {
        const int end = std::min(first + block, page.RowCount());
        for (int row = first; row < end; ++row) {
            constexpr std::uint16_t hasOwnHeight = 0x0140;
            const auto height = static_cast<std::uint16_t>(std::lround(page.RowHeight(row) * 20)); // twips
            sheet.Add(Row, {static_cast<std::uint16_t>(row), 0, columns, height, 0, 0, hasOwnHeight, 0});
        }
        for (int row = first; row < end; ++row)
            AddRow(sheet, strings, page, row);
    }
}

void AddMerges(BiffRecords& sheet, const SpreadsheetPage& page)
{
    QList<int> merged;
    for (int row = 0; row < page.RowCount() && page.IsMerged(row); ++row)
        merged << row;
    if (merged.isEmpty())
        return;
    sheet.Begin(MergedCells).Word(static_cast<std::uint16_t>(merged.size()));
    for (const int row : merged)
        sheet.Words({static_cast<std::uint16_t>(row), static_cast<std::uint16_t>(row), 0,
                     static_cast<std::uint16_t>(page.TableWidth() - 1)});
}

BiffRecords SheetOf(const SpreadsheetPage& page, SharedStrings& strings)
{
    BiffRecords sheet;
    AddBegin(sheet, Worksheet);
    sheet.Add(DefaultRowHeight, {0x0001, 300}); // of its own: 15 points
    sheet.Add(DefaultColumnWidth, {8});
    AddColumns(sheet, page);
    sheet.Begin(Dimensions).Long(0).Long(static_cast<std::uint32_t>(page.RowCount()));
    sheet.Words({0, static_cast<std::uint16_t>(page.ColumnCount()), 0});
    AddRows(sheet, strings, page);
    sheet.Add(Window2, {0x06b6, 0, 0, 0x0040, 0, 0, 0, 0, 0}); // grid lines shown, selected, plain colours
    AddMerges(sheet, page);
    sheet.Begin(Eof);
    return sheet;
}

BiffRecords GlobalsOf(const SharedStrings& strings)
{
    BiffRecords globals;
    AddBegin(globals, Globals);
    globals.Add(CodePage, {Utf16});
    globals.Add(Window1, {0, 0, 0x4000, 0x2000, 0x0038, 0, 0, 1, 600}); // a window with scroll bars and tabs
    AddFonts(globals);
    AddFormats(globals);
    const QString name = QString::fromUtf16(SheetName);
    globals.Begin(BoundSheet);
    const qsizetype place = globals.Size();
    globals.Long(0).Word(0).Byte(static_cast<std::uint8_t>(name.size())).Byte(0).Letters(name, false);
    strings.Write(globals);
    globals.Begin(Eof);
    globals.Patch(place, static_cast<std::uint32_t>(globals.Size())); // the sheet follows
    return globals;
}

} // namespace

void WriteXls(const SpreadsheetPage& page, const QString& path)
{
    if (page.RowCount() > MostRows)
        throw RunTimeError(
            u"xls文件最多%1行，该报表连表头共%2行，导出停止！请改存为xlsx文件。"_s.arg(MostRows).arg(
                page.RowCount()));
    SharedStrings strings;
    const BiffRecords sheet = SheetOf(page, strings);
    OleFile file(path, "Workbook");
    file.Write(GlobalsOf(strings).Bytes());
    file.Write(sheet.Bytes());
    file.Close();
}
