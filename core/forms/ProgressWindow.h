#pragma once

#include "core/forms/FormWindow.h"

#include <QElapsedTimer>

#include <memory>

namespace Ui {
class ProgressWindow;
}

/// Shows how far a long run has come, over every other window. It paints itself while the run goes on;
/// of keys and clicks it takes Esc alone, and that where the run allows it. It is known under the names of
/// those who show it: frmScroll for the clearing of tables, frmProgress for a report.
///
/// The run asks it after each step: `for (…) { …; progress->Reach(++done); if (progress->IsCancelled()) … }`.
class ProgressWindow : public FormWindow {
    Q_OBJECT

public:
    explicit ProgressWindow(QWidget* owner = nullptr);
    ~ProgressWindow() override;

    /// Before Begin: Esc asks the run to stop, and the window says so.
    void AllowCancel();
    /// Before the first step: how many there are. Returns once the window stands on the screen.
    void Begin(int steps);
    /// Says what is under way, and paints.
    void Tell(const QString& text);
    /// So many steps are done. Painted a few times a second at the most, so that a run of small steps may
    /// call it after each.
    void Reach(int steps);
    /// Esc was pressed. The run ends itself, where it can.
    bool IsCancelled() const { return m_isCancelled; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    /// A run ends this window; the desktop's own way to close a window only cancels.
    void closeEvent(QCloseEvent* event) override;

private:
    void Paint();
    void Cancel();

    std::unique_ptr<Ui::ProgressWindow> ui;
    QElapsedTimer m_sincePaint;
    bool m_mayCancel = false;
    bool m_isCancelled = false;
};
