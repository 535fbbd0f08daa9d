#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmDebit;
}

/// Money paid to an owner ahead of settlement; the window is also the printed slip. It has its layout
/// and its headings; looking up a lot and saving are not in it yet, so no menu opens it.
class frmDebit : public FormWindow {
    Q_OBJECT

public:
    explicit frmDebit(QWidget* owner = nullptr);
    ~frmDebit() override;

    void OnLoad() override;

private:
    std::unique_ptr<Ui::frmDebit> ui;
};
