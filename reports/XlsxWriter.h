#pragma once

#include <QString>

class SpreadsheetPage;

/// Writes the page into a new file: a workbook of Excel 2007 and later with one sheet.
/// @throws RunTimeError when it cannot be written
void WriteXlsx(const SpreadsheetPage& page, const QString& path);
