#pragma once

#include "core/forms/FormWindow.h"
#include "printing/Documents.h"
#include "printing/SystemPrinter.h"

#include <memory>

class clsPrint;
class ctlPreview;
class DrawingLog;
struct DocumentRules;

namespace Ui {
class frmPrint;
}

/// The print window: it turns forms into documents, on the printer or on its preview. Loaded with the
/// first document and not seen until one is previewed.
class frmPrint : public FormWindow, public DocumentPrinter {
    Q_OBJECT

public:
    explicit frmPrint(QWidget* owner = nullptr);
    ~frmPrint() override;

    void Print(Document document, PrintMode mode, const QWidget& form) override;

    /// Tells the drawing calls of the documents to `log`, beside drawing them; nullptr ends that.
    void Record(DrawingLog* log);

    /// The preview. Touching it shows the window.
    ctlPreview& PagePreview();

private:
    void PrintForm(const DocumentRules& rules, PrintMode mode, const QWidget& form);
    void ChoosePaper(const QWidget& form);
    clsPrint& Page();
    void PressToolbar(const QString& key);

    std::unique_ptr<Ui::frmPrint> ui;
    SystemPrinter m_printer;
    std::unique_ptr<clsPrint> m_page;
    DrawingLog* m_log = nullptr;
};
