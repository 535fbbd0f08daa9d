#pragma once

#include "goods/TransferForm.h"

#include <QWidget>

struct LotSlip;

namespace Ui {
class frmTemp;
}

/// The lot slip as a form: never shown, it exists to be filled and printed. Its absolute layout is the
/// paper, one pixel to 15 twips, and its controls print in their order. Loading it fills the headings
/// (two lookups), and throws DatabaseError when those fail.
class frmTemp : public QWidget, public TransferForm<frmTemp> {
    Q_OBJECT

public:
    ~frmTemp() override;

    /// Writes the texts of a slip. `stock` in the slip's unit.
    void Fill(const LotSlip& slip, double stock);

private:
    friend class TransferForm<frmTemp>;
    frmTemp();

    std::unique_ptr<Ui::frmTemp> ui;
};
