#pragma once

#include <QString>

class SpreadsheetPage;

/// Writes the page into a new file: a workbook of Excel 97 to 2003 (BIFF8) with one sheet.
/// @throws RunTimeError when it cannot be written, or when the page has more rows than such a sheet, 65,536
void WriteXls(const SpreadsheetPage& page, const QString& path);
