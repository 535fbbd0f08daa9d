#pragma once

#include "tests/reports/ReportTest.h"

/// A report for each golden file.
const std::vector<ReportCase>& GoldenReports();

/// @throws std::out_of_range for a name without a golden file
const ReportCase& GoldenReport(const QString& name);
