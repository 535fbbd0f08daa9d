#include "reports/ReportProgress.h"

#include "core/forms/FunctionWindows.h"
#include "core/forms/ListGrid.h"
#include "core/forms/ProgressWindow.h"
#include "core/forms/WindowRegistry.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {
constexpr int Moment = 300; // milliseconds: a report that is there by then needs no window
}

ReportProgress::ReportProgress(QWidget* window, ListGrid* list)
    : m_window(window), m_list(list), m_longAnswer(Gateway(), [this] { return IsStillWanted(); })
{
    m_sinceBegin.start();
}

ReportProgress::~ReportProgress()
{
    if (!m_progress)
        return;
    m_progress->close();
    m_window->setEnabled(true);
    if (m_wasFocused) {
        m_window->activateWindow();
        m_list->setFocus();
    }
}

void ReportProgress::TakeColumns(std::vector<SheetColumn> columns)
{
    m_list->SetColumns(std::move(columns));
}

void ReportProgress::TakeRows(std::vector<Sheet::Row> rows)
{
    m_list->AddRows(std::move(rows));
}

void ReportProgress::Begin(int steps)
{
    m_steps = steps;
    if (m_progress && !m_progress->IsCancelled())
        m_progress->Begin(steps);
}

bool ReportProgress::Reach(int steps)
{
    m_done = steps;
    return (!m_progress && steps >= m_steps) || IsStillWanted();
}

/// Also asked while a statement waits for its answer.
bool ReportProgress::IsStillWanted()
{
    if (!m_progress && m_sinceBegin.hasExpired(Moment))
        ShowProgress();
    if (!m_progress)
        return true;
    m_progress->Reach(m_done);
    return !m_progress->IsCancelled();
}

void ReportProgress::ShowProgress()
{
    QWidget* owner = m_window->isVisible() ? m_window->window() : MainFrame();
    m_progress = dynamic_cast<ProgressWindow*>(Windows().Show(u"frmProgress"_s, owner));
    if (!m_progress)
        return;
    m_wasFocused = m_window->isVisible() && m_window->isActiveWindow();
    m_window->setEnabled(false);
    m_progress->AllowCancel();
    m_progress->Tell(u"正在生成报表……"_s);
    m_progress->Begin(m_steps);
}
