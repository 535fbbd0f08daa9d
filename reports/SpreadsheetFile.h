#pragma once

#include <QString>

class SpreadsheetPage;

/// The full path of a file that a user named: under the user's own folder unless the name says where, and
/// with the ending .xls unless it ends in .xls or .xlsx. A folder stays what it is.
QString SpreadsheetPath(const QString& name);

/// True when another program has the file open, as the lock beside it tells that office programs leave.
bool IsOpenElsewhere(const QString& path);

/// Writes the page as the ending of the path says. A file of that name exists before a cell is written: an
/// empty workbook where there was none. What stood there is replaced at the end and in one step, so that a
/// failure leaves it as it was.
/// @throws RunTimeError when it cannot be written, or when the page is wider than a spreadsheet of ours
void WriteSpreadsheet(const SpreadsheetPage& page, const QString& path);
