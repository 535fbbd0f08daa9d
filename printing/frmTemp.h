#pragma once

#include <QWidget>

#include <memory>

struct LotSlip;

namespace Ui {
class frmTemp;
}

/// The lot slip as a form: never shown, it exists to be filled and printed. Its absolute layout is the
/// paper, one pixel to 15 twips, and its controls print in their order.
class frmTemp : public QWidget {
    Q_OBJECT

public:
    /// The form, loaded with its headings (two lookups) unless it stands already. @throws DatabaseError
    static frmTemp& Load();
    /// The form while it is loaded, nullptr otherwise.
    static frmTemp* Loaded();
    static void Unload();

    ~frmTemp() override;

    /// Writes the texts of a slip. `stock` in the slip's unit.
    void Fill(const LotSlip& slip, double stock);

private:
    frmTemp();

    void ShowHeadings();

    std::unique_ptr<Ui::frmTemp> ui;
};
