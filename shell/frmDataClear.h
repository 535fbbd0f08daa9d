#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

namespace Ui {
class frmDataClear;
}

/// Empties whole tables, those that the installation's \Data\Table.ini lists. What belongs together is
/// the business of that file: no counter of another table is adjusted.
class frmDataClear : public FormWindow {
    Q_OBJECT

public:
    explicit frmDataClear(QWidget* owner = nullptr);
    ~frmDataClear() override;

    void OnLoad() override;

private:
    void TickAll(bool ticked);
    void Clear();
    void ClearTicked();

    std::unique_ptr<Ui::frmDataClear> ui;
};
