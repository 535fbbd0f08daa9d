#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmMultiLogon;
}

/// Logon of an installation with several account sets: the set is chosen, the name typed.
class frmMultiLogon : public FormWindow {
    Q_OBJECT

public:
    explicit frmMultiLogon(QWidget* owner = nullptr);
    ~frmMultiLogon() override;

    void OnLoad() override;

private:
    void Submit();
    bool ChooseAccountSet();
    bool IsInStepWithServer();
    bool Connect();

    std::unique_ptr<Ui::frmMultiLogon> ui;
    /// Once a connection stands, another account set chosen after a failed password does not change it.
    bool m_isConnected = false;
};
