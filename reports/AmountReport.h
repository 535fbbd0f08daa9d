#pragma once

#include "core/common/Sheet.h"

#include <QString>

#include <vector>

class ReportSink;
struct ReportCondition;

/// The menu key of the income and expense statement.
extern const QString AmountReportKey;

/// Its columns: no words, widths of its own. No rows of DFN_RptCol stand behind them.
std::vector<SheetColumn> AmountColumns();

/// The income and expense statement of a period: nineteen lines. What is outstanding is as of now. False when
/// the sink has ended it, before the first line. @throws DatabaseError
bool BuildAmountReport(const ReportCondition& condition, ReportSink& sink);
