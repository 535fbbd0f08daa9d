#pragma once

#include "core/common/Sheet.h"
#include "reports/ReportView.h"
#include "tests/support/WindowTest.h"

class ListGrid;

/// A report as it is asked for: what menu, condition window and session say of it.
struct ReportCase {
    QString name = {}; ///< of its golden file
    QString menuKey = {};
    QString kind = {};
    bool all = true;
    QString key = {};
    ReportCondition condition = {};
    QString caption = {};
};

/// A program with all its windows over two months of a stall.
class ReportTest : public WindowTest {
protected:
    void SetUp() override;

    void Ask(const ReportCase& asked);
    /// Asks for a report and builds it; the window need not be shown.
    ReportView& Build(const ReportCase& asked);
    /// The same with the window in front.
    ReportView& Show(const ReportCase& asked);

    ListGrid* List();
    const Sheet& Content() { return OpenReport()->Content(); }
    /// A row's texts, from sub-item 1 on.
    QStringList Row(int row);
    /// Texts of one column.
    QStringList Column(int subItem);
    QStringList Headings();
    QStringList LastRow() { return Row(Content().RowCount() - 1); }
};

/// "(field>='start' And field<='end')"
QString Period(const QString& field, const QString& start, const QString& end);

/// Over the two months; `pieces` is what stands behind the dates.
ReportCondition TwoMonths(const QString& field, const QString& pieces = {}, bool adjusted = false);
