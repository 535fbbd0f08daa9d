#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmSetCol;
}

/// One column of the definition in Session::SetColName. What is typed is stored as it stands: a width that
/// is no number shows when the report is built.
class frmSetCol : public FormWindow {
    Q_OBJECT

public:
    explicit frmSetCol(QWidget* owner = nullptr);
    ~frmSetCol() override;

    /// The column by its ColID.
    void SetKey(const QString& key) override;

private:
    void ShowColumn();
    void Save();

    std::unique_ptr<Ui::frmSetCol> ui;
};
