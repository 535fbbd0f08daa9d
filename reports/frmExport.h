#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

class ReportView;

namespace Ui {
class frmExport;
}

/// Writes the report on the screen into a spreadsheet file.
class frmExport : public FormWindow {
    Q_OBJECT

public:
    explicit frmExport(QWidget* owner = nullptr);
    ~frmExport() override;

private:
    void ChooseFile();
    void Export();
    void ExportToXls(const ReportView& report, const QString& fileName);
    /// A message, then the name of the file to be typed anew.
    void Refuse(const QString& text);

    std::unique_ptr<Ui::frmExport> ui;
};
