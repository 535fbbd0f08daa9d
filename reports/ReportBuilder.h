#pragma once

#include "core/common/Sheet.h"
#include "reports/ReportView.h"

#include <QString>

#include <vector>

/// A report that is asked for, as session and condition window stand at the moment.
struct ReportQuery {
    QString menuKey;
    QString kind;     ///< "Detail" or "Describe"
    bool all = false; ///< no single key was chosen
    QString key;
    ReportCondition condition;
    bool normal = true; ///< the normal layout of the columns, otherwise the alternate one

    static ReportQuery OfSession(const ReportCondition& condition, bool normal);
};

/// Takes a report while it is built: its columns, then its rows, some at a time.
class ReportSink {
public:
    ReportSink() = default;
    virtual ~ReportSink() = default;
    ReportSink(const ReportSink&) = delete;
    ReportSink& operator=(const ReportSink&) = delete;

    virtual void TakeColumns(std::vector<SheetColumn> columns) = 0;
    virtual void TakeRows(std::vector<Sheet::Row> rows) = 0;

    /// Before the first of so many steps.
    virtual void Begin(int /*steps*/) {}
    /// So many steps are done. False ends the build.
    virtual bool Reach(int /*steps*/) { return true; }
};

/// Builds the report. True when it is whole, false when the sink has ended it: what it has taken by then is
/// all there is, without spacer and totals.
/// @throws DatabaseError; OverflowError above 32767 rows; OutOfBoundsError and TypeMismatchError for columns
/// that make no sense
bool BuildReport(const ReportQuery& query, ReportSink& sink);
