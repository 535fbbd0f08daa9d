#pragma once

#include "masterdata/CodeTableForm.h"

#include <memory>

namespace Ui {
class frmFeeType;
}

/// Expense types: code and name.
class frmFeeType : public CodeTableForm {
    Q_OBJECT

public:
    explicit frmFeeType(QWidget* owner = nullptr);
    ~frmFeeType() override;

private:
    std::unique_ptr<Ui::frmFeeType> ui;
};
