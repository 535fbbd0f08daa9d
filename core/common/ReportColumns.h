#pragma once

#include "core/common/Sheet.h"

#include <QString>

#include <vector>

/// The columns of a report by its DFN_RptCol rows, in their order: those shown in the normal layout, or
/// with `normal` false those of the alternate one. Widths are twips from 0 to 32767; a width that is no
/// number counts as 0. Empty for a report without rows. @throws DatabaseError
std::vector<SheetColumn> ReportColumns(const QString& reportName, bool normal);
