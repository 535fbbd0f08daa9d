#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmSetField;
}

/// The columns of the report on the screen. A column is changed in frmSetCol, which stores it at once; 确定
/// builds the report anew, 关闭 leaves it as it was.
class frmSetField : public FormWindow {
    Q_OBJECT

public:
    explicit frmSetField(QWidget* owner = nullptr);
    ~frmSetField() override;

    void OnLoad() override;
    /// After a column was stored.
    void RefreshList() override { ShowRptCol(); }

private:
    void ShowRptCol();
    void EditColumn(int row);
    void RebuildReport();

    std::unique_ptr<Ui::frmSetField> ui;
};
