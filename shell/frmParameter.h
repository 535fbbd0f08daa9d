#pragma once

#include "core/forms/FormWindow.h"

#include <memory>
#include <vector>

class QComboBox;
class RecordSet;

namespace Ui {
class frmParameter;
}

/// The settings of the stall and of this workstation, on three pages: printing, background, rules. Menus
/// stay open beside it.
class frmParameter : public FormWindow {
    Q_OBJECT

public:
    explicit frmParameter(QWidget* owner = nullptr);
    ~frmParameter() override;

    void OnLoad() override;

private:
    /// One document's line; its DFN_Paper.PaperID is in `id`.
    struct PaperLine {
        QLineEdit* id;
        QLineEdit* left;
        QLineEdit* top;
        QComboBox* style;
    };

    void WirePages();
    void ShowPage(int page);

    void LoadDefine();
    void LoadBackground();
    void LoadPapers();
    /// The rule is that of the line's last control.
    FieldRule& AddPaperLine(const RecordSet& paper);
    void LoadRounds();
    void ListPaperSizes(const QString& chosenCode);

    void ChoosePicture();
    void ShowPicture();

    void Save();
    /// Before anything is saved. @throws OverflowError for a number that no column holds.
    bool OffsetsAreNumbers();
    void SaveDefine();
    void SaveBackground();
    void SavePaperSize();
    void SavePapers();
    void SaveRounds();
    void SaveFees();

    std::unique_ptr<Ui::frmParameter> ui;
    std::vector<PaperLine> m_papers;
};
