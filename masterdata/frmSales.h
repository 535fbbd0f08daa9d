#pragma once

#include "masterdata/CodeTableForm.h"

#include <memory>

namespace Ui {
class frmSales;
}

/// Salesmen: work number and name.
class frmSales : public CodeTableForm {
    Q_OBJECT

public:
    explicit frmSales(QWidget* owner = nullptr);
    ~frmSales() override;

private:
    std::unique_ptr<Ui::frmSales> ui;
};
