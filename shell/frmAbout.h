#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmAbout;
}

/// What this program is, and the way to the machine's own system information.
class frmAbout : public FormWindow {
    Q_OBJECT

public:
    explicit frmAbout(QWidget* owner = nullptr);
    ~frmAbout() override;

private:
    void ShowSystemInformation();

    std::unique_ptr<Ui::frmAbout> ui;
};
