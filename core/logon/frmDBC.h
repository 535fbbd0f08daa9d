#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmDBC;
}

/// Where the database is: writes the connection ini. Reached from a failed logon only.
class frmDBC : public FormWindow {
    Q_OBJECT

public:
    explicit frmDBC(QWidget* owner = nullptr);
    ~frmDBC() override;

    void OnLoad() override;

private:
    void Save();

    std::unique_ptr<Ui::frmDBC> ui;
};
