#include "reports/XlsxWriter.h"

#include "reports/SpreadsheetPage.h"
#include "reports/WriteFailure.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <cerrno>
#include <memory>

#include <gsf/gsf-infile-zip.h>
#include <gsf/gsf-infile.h>
#include <gsf/gsf-input-stdio.h>
#include <gsf/gsf-utils.h>
#include <xlsxwriter.h>

using namespace Qt::StringLiterals;

namespace {

using Formats = std::array<lxw_format*, SpreadsheetPage::LookCount>;

constexpr auto FontName = "宋体";
constexpr lxw_col_t LastColumn = LXW_COL_MAX - 1;

lxw_format* FormatOf(lxw_workbook* book, const CellLook& look)
{
    lxw_format* format = workbook_add_format(book);
    format_set_font_name(format, FontName);
    format_set_font_size(format, look.points);
    if (look.isBold)
        format_set_bold(format);
    if (look.alignment.testFlag(Qt::AlignLeft))
        format_set_align(format, LXW_ALIGN_LEFT);
    if (look.alignment.testFlag(Qt::AlignHCenter))
        format_set_align(format, LXW_ALIGN_CENTER);
    if (look.alignment.testFlag(Qt::AlignVCenter))
        format_set_align(format, LXW_ALIGN_VERTICAL_CENTER);
    if (look.isBordered)
        format_set_border(format, LXW_BORDER_THIN);
    if (look.isText)
        format_set_num_format(format, "@");
    return format;
}

void SetColumns(lxw_worksheet* sheet, const SpreadsheetPage& page, lxw_format* plain)
{
    for (int column = 0; column < page.ColumnCount(); ++column) {
        const double width = page.ColumnWidth(column);
        lxw_row_col_options options{};
        options.hidden = width <= 0;
        const auto place = static_cast<lxw_col_t>(column);
        worksheet_set_column_opt(sheet, place, place, width, plain, &options);
    }
    worksheet_set_column(sheet, static_cast<lxw_col_t>(page.ColumnCount()), LastColumn, LXW_DEF_COL_WIDTH,
                         plain);
}

// Rows are written from the first to the last: the library keeps one only. Answers how many cells there are.
int WriteRow(lxw_worksheet* sheet, const SpreadsheetPage& page, const Formats& formats, int row)
{
    const auto line = static_cast<lxw_row_t>(row);
    worksheet_set_row(sheet, line, page.RowHeight(row), nullptr);
    if (page.IsMerged(row)) {
        const SpreadsheetPage::Look look = page.LookOf(row, 0);
        worksheet_merge_range(sheet, line, 0, line, static_cast<lxw_col_t>(page.TableWidth() - 1),
                              page.Text(row, 0).toUtf8().constData(),
                              formats.at(static_cast<std::size_t>(look)));
        return page.TableWidth();
    }
    int cells = 0;
    for (int column = 0; column < page.ColumnCount(); ++column) {
        const QString text = page.Text(row, column);
        const SpreadsheetPage::Look look = page.LookOf(row, column);
        if (text.isEmpty() && look == SpreadsheetPage::Look::Plain)
            continue;
        worksheet_write_string(sheet, line, static_cast<lxw_col_t>(column), text.toUtf8().constData(),
                               formats.at(static_cast<std::size_t>(look)));
        ++cells;
    }
    return cells;
}

/// Cells in the file, as it stands on the disk; 0 for one that cannot be read. Where the folder for temporary
/// files is full the library notices nothing, and packs what was left of the sheet.
qsizetype CellsIn(const QByteArray& path)
{
    gsf_init();
    struct Unreference {
        void operator()(gpointer object) const { g_object_unref(object); }
    };
    const std::unique_ptr<GsfInput, Unreference> file(gsf_input_stdio_new(path.constData(), nullptr));
    if (!file)
        return 0;
    const std::unique_ptr<GsfInfile, Unreference> archive(gsf_infile_zip_new(file.get(), nullptr));
    if (!archive)
        return 0;
    const std::unique_ptr<GsfInput, Unreference> sheet(
        gsf_infile_child_by_vname(archive.get(), "xl", "worksheets", "sheet1.xml", nullptr));
    const QByteArray cell = "<c r="; // nowhere else: a text has no "<"
    qsizetype cells = 0;
    QByteArray block;
    while (sheet && gsf_input_remaining(sheet.get()) > 0) {
        const auto size =
            static_cast<std::size_t>(std::min<gsf_off_t>(gsf_input_remaining(sheet.get()), 65536));
        const guint8* bytes = gsf_input_read(sheet.get(), size, nullptr);
        if (!bytes)
            return 0;
        block = block.right(cell.size() - 1);
        block.append(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size));
        cells += block.count(cell);
    }
    return cells;
}

} // namespace

void WriteXlsx(const SpreadsheetPage& page, const QString& path)
{
    const QByteArray file = QFile::encodeName(path);
    QByteArray temporary = QFile::encodeName(QDir::tempPath());
    lxw_workbook_options options{};
    options.tmpdir = temporary.data();
    options.constant_memory = LXW_TRUE;
    lxw_workbook* book = workbook_new_opt(file.constData(), &options);
    errno = 0;
    lxw_worksheet* sheet = book ? workbook_add_worksheet(book, "Sheet1") : nullptr;
    if (!sheet) {
        const int error = errno;
        lxw_workbook_free(book);
        throw WriteFailure(error);
    }
    Formats formats{};
    for (int look = 0; look < SpreadsheetPage::LookCount; ++look)
        formats.at(static_cast<std::size_t>(look)) =
            FormatOf(book, SpreadsheetPage::Details(static_cast<SpreadsheetPage::Look>(look)));
    SetColumns(sheet, page, formats[0]);
    qsizetype cells = 0;
    for (int row = 0; row < page.RowCount(); ++row)
        cells += WriteRow(sheet, page, formats, row);
    errno = 0;
    if (workbook_close(book) != LXW_NO_ERROR)
        throw WriteFailure(errno);
    if (CellsIn(file) != cells)
        throw WriteFailure(ENOSPC);
}
