#pragma once

#include "core/forms/FormWindow.h"

#include <memory>
#include <optional>

namespace Ui {
class frmLogon;
}

/// Logon of an installation with one account set: the users are offered in a list.
class frmLogon : public FormWindow {
    Q_OBJECT

public:
    explicit frmLogon(QWidget* owner = nullptr);
    ~frmLogon() override;

    void OnLoad() override;

private:
    void ConnectAsMainMachine();
    void ConnectAsWorkstation();
    void ServerDateArrived(const std::optional<QString>& date);
    void FillUserNames();
    void Submit();

    std::unique_ptr<Ui::frmLogon> ui;
};
