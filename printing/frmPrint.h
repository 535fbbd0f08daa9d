#pragma once

#include "core/forms/FormWindow.h"
#include "printing/Documents.h"
#include "printing/SystemPrinter.h"

#include <functional>
#include <memory>

class clsPrint;
class ctlPreview;
class DrawingLog;
struct DocumentRules;
struct ReportPage;

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

    /// Prints a report, or shows it on the preview, which keeps its last page: on A4, in the direction of the
    /// settings, at the place of the reports' paper. What was not printed is a row of ErrInfo and a box, and
    /// what became a file is told in one, too: somebody asked for this and waits for it.
    /// @throws RunTimeError when it cannot be shown
    void StartPrintDoc(const ReportPage& report, bool toPrinter);

    /// Tells the drawing calls of the documents to `log`, beside drawing them; nullptr ends that.
    void Record(DrawingLog* log);

    /// The preview. Touching it shows the window.
    ctlPreview& PagePreview();

private:
    /// Something to be drawn, on the printer or on the preview, as often as it is asked for.
    struct Printable {
        QString title{};
        QString errorLabel{};
        int paperCode = 0;
        bool isLandscape = false;
        bool endsWithNewPage = false;
        /// Draws all pages, or with a `lastPage` above 0 up to that one, and answers how many.
        std::function<int(clsPrint& page, int lastPage)> draw{};
    };
    enum class Waiting {
        Nobody,
        Save,   ///< and whoever made it, for the paper
        Person, ///< who asked for the paper and nothing else
    };

    void WireStrip();
    void PressToolbar(const QString& key);
    clsPrint& Page();

    Printable DocumentToPrint(const DocumentRules& rules, PrintMode mode, const QWidget& form);
    Printable ReportToPrint(const ReportPage& report);
    bool MustTurn(const QWidget& form);
    void TakePaper(const Printable& printable);
    QString PrintOut(const Printable& printable);
    /// Lets nothing out: a failure is a row of ErrInfo, and a box for whoever waits.
    static void TellFailures(const QString& title, const QString& errorLabel, Waiting waiting,
                             const std::function<QString()>& print);

    void ShowPreview(Printable printable);
    int DrawPreview(int lastPage);
    void TurnPage(int step);

    std::unique_ptr<Ui::frmPrint> ui;
    SystemPrinter m_printer;
    std::unique_ptr<clsPrint> m_page;
    DrawingLog* m_log = nullptr;
    Printable m_previewed; ///< what the preview shows
};
