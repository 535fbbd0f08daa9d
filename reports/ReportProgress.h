#pragma once

#include "core/gateway/DataGateway.h"
#include "reports/ReportBuilder.h"

#include <QElapsedTimer>

class ListGrid;
class ProgressWindow;
class QWidget;

/// Shows a report in the window's list while it is built. Once that takes longer than a moment, be it one
/// statement, the progress window stands over it, and Esc ends the build; the report window is disabled
/// meanwhile. As long as it stands a statement may take its time; one that Esc ends throws AnswerCancelled.
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
    bool IsStillWanted();

    QWidget* m_window;
    ListGrid* m_list;
    ProgressWindow* m_progress = nullptr;
    QElapsedTimer m_sinceBegin;
    int m_steps = 0; ///< not known before the records are there
    int m_done = 0;
    bool m_wasFocused = false;
    DataGateway::LongAnswer m_longAnswer;
};
