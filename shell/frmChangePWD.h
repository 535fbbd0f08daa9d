#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmChangePWD;
}

/// The current user's own password. It counts from the next logon on.
class frmChangePWD : public FormWindow {
    Q_OBJECT

public:
    explicit frmChangePWD(QWidget* owner = nullptr);
    ~frmChangePWD() override;

private:
    void Save();

    std::unique_ptr<Ui::frmChangePWD> ui;
};
