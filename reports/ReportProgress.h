#pragma once

#include "reports/ReportBuilder.h"

#include <QElapsedTimer>

class ListGrid;
class ProgressWindow;
class QWidget;

/// Shows a report in the window's list while it is built. Once that takes longer than a moment, the progress
/// window stands over it, and Esc ends the build; the report window is disabled meanwhile.
class ReportProgress : public ReportSink {
public:
    ReportProgress(QWidget* window, ListGrid* list);
    ~ReportProgress() override;

    void TakeColumns(std::vector<SheetColumn> columns) override;
    void TakeRows(std::vector<Sheet::Row> rows) override;
    void Begin(int steps) override;
    bool Reach(int steps) override;

private:
    void ShowProgress();

    QWidget* m_window;
    ListGrid* m_list;
    ProgressWindow* m_progress = nullptr;
    QElapsedTimer m_sinceBegin;
    int m_steps = 0;
    bool m_wasFocused = false;
};
