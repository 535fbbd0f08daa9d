#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmSetFeeLabel;
}

/// Renames the settlement fee of Session::FeeLabelKey, and with it the fee's columns in both settlement
/// reports. Opened over a settlement, whose place as the open function it leaves alone.
class frmSetFeeLabel : public FormWindow {
    Q_OBJECT

public:
    explicit frmSetFeeLabel(QWidget* owner = nullptr);
    ~frmSetFeeLabel() override;

    /// The name that the fee has now.
    void TakeName(const QString& name) override;

private:
    void Save();

    std::unique_ptr<Ui::frmSetFeeLabel> ui;
};
