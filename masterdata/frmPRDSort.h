#pragma once

#include "masterdata/CodeTableForm.h"

#include <memory>

namespace Ui {
class frmPRDSort;
}

/// Product sorts: code and name. The running number of a sort belongs to goods registration.
class frmPRDSort : public CodeTableForm {
    Q_OBJECT

public:
    explicit frmPRDSort(QWidget* owner = nullptr);
    ~frmPRDSort() override;

private:
    std::unique_ptr<Ui::frmPRDSort> ui;
};
