#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmScroll;
}

/// Shows how far a long run has come. It paints itself while the run goes on, and lets nothing else
/// happen: keys and clicks of that time wait until the run is over.
class frmScroll : public FormWindow {
    Q_OBJECT

public:
    explicit frmScroll(QWidget* owner = nullptr);
    ~frmScroll() override;

    /// Before the first step: how many there are. Returns once the window stands on the screen.
    void Begin(int steps);
    /// Says what is under way.
    void Tell(const QString& text);
    /// So many steps are done.
    void Reach(int steps);

private:
    std::unique_ptr<Ui::frmScroll> ui;
};
