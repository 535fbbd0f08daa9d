#pragma once

#include "core/common/Sheet.h"

#include <QString>

#include <vector>

/// The condition and order by which the DFN_RptCol rows of a report are read: those shown in the normal
/// layout, or with `normal` false those of the alternate one.
QString ShownColumns(const QString& reportName, bool normal);

/// The columns of a report by its ShownColumns. Widths are twips, from 0 to 32767. Empty for a report without
/// rows. @throws DatabaseError, TypeMismatchError for a width that is no number
std::vector<SheetColumn> ReportColumns(const QString& reportName, bool normal);
