#include "printing/frmPrint.h"

#include "core/base/Twips.h"
#include "core/common/ErrorLog.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/FunctionWindows.h"
#include "core/session/Session.h"
#include "printing/DocumentRules.h"
#include "printing/PrintQueue.h"
#include "printing/clsPrint.h"
#include "printing/ctlPreview.h"
#include "ui_frmPrint.h"

#include <QAction>

using namespace Qt::StringLiterals;

namespace {

constexpr double TwipsPerCentimetre = 567;
constexpr int A4Code = 9;
constexpr int A5Code = 11;

struct ToolbarKey {
    QString key;
    QString caption;
    bool isOffered;
};

/// Printing is asked for from the main window, and the preview shows a page at its size: of the strip's
/// entries and boxes only those that do something are seen.
const QList<ToolbarKey>& ToolbarKeys()
{
    static const QList<ToolbarKey> keys{
        {u"mnuPrint"_s, u"打印"_s, false},
        {u"mnuSetup"_s, u"设置"_s, false},
        {u"mnuExit"_s, u"退出"_s, true},
    };
    return keys;
}

} // namespace

frmPrint::frmPrint(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmPrint>())
{
    ui->setupUi(this);
    setFocusProxy(ui->PagePreview);
    ui->PagePreview->SetBackColor(White);
    ui->PagePreview->SetForeColor(0);
    ui->cmbmnuZoom->addItems({u"0.25"_s, u"0.5"_s, u"1"_s, u"2"_s, u"3"_s});
    ui->cmbmnuZoom->setCurrentText(u"1"_s); // as every preview is
    for (const ToolbarKey& key : ToolbarKeys()) {
        QAction* action = ui->menuBar->addAction(key.caption);
        action->setObjectName(key.key);
        action->setVisible(key.isOffered);
        connect(action, &QAction::triggered, this,
                [this, name = key.key] { RunHandler([this, &name] { PressToolbar(name); }); });
    }
    ui->menuBar->actions().constLast()->setShortcuts({QKeySequence(u"Esc"_s), QKeySequence(u"Alt+C"_s)});
    ui->menuBar->actions().constLast()->setToolTip(u"退出 (Esc)"_s);
}

frmPrint::~frmPrint() = default;

void frmPrint::PressToolbar(const QString& key)
{
    if (key == u"mnuExit")
        close();
}

void frmPrint::Record(DrawingLog* log)
{
    m_log = log;
    if (m_page)
        m_page->Record(log);
}

ctlPreview& frmPrint::PagePreview()
{
    if (!isVisible())
        ShowInFrame(this);
    return *ui->PagePreview;
}

clsPrint& frmPrint::Page()
{
    if (!m_page) {
        m_page = std::make_unique<clsPrint>(m_printer);
        m_page->Record(m_log);
    }
    return *m_page;
}

void frmPrint::Print(Document document, PrintMode mode, const QWidget& form)
{
    const DocumentRules& rules = RulesOf(document);
    try {
        PrintForm(rules, mode, form);
    } catch (const KeptAsFileError& error) {
        LogError(Session::CurrentUserName, error.Description(), rules.errorLabel);
    } catch (const std::exception& error) {
        const QString reason = QString::fromUtf8(error.what());
        LogError(Session::CurrentUserName, reason, rules.errorLabel);
        // Somebody waits for this paper, and nobody at a till reads the row.
        if (mode != PrintMode::Preview)
            AfterHandler([title = rules.title, reason] {
                ShowInfo(u"%1没有打印，也没有存成文件！\n%2"_s.arg(title, reason));
            });
    }
}

void frmPrint::PrintForm(const DocumentRules& rules, PrintMode mode, const QWidget& form)
{
    const double left = GetPaperLeft(rules.paperId) * TwipsPerCentimetre;
    const double top = GetPaperTop(rules.paperId) * TwipsPerCentimetre;
    clsPrint& page = Page();
    m_printer.SetTitle(rules.title);
    ChoosePaper(form);
    if (mode == PrintMode::Preview)
        page.PrintStartDoc(PagePreview(), 1);
    else
        page.PrintStartDoc(m_printer, 1);

    const PageRules& pageRules = mode == PrintMode::Stationery ? rules.stationery : rules.sheet;
    DrawForm(page, form, pageRules, left, top);

    if (mode != PrintMode::Preview && pageRules.endsWithNewPage)
        page.NewPage();
    page.EndDoc();
}

void frmPrint::ChoosePaper(const QWidget& form)
{
    const int code = Session::PaperSizeCode;
    m_printer.SetPaperSize(code);
    m_printer.SetLandscape(false);
    // The forms are as wide as A4 stands upright and A5 lies, to a pixel.
    const bool isTurned = m_printer.ScaleWidth() < static_cast<float>((form.width() - 1) * TwipsPerPixel) &&
                          m_printer.ScaleHeight() > m_printer.ScaleWidth();
    m_printer.SetLandscape(isTurned);
    const QString name = isTurned         ? QString()
                         : code == A4Code ? u"A4"_s
                         : code == A5Code ? u"A5"_s
                                          : QString();
    Page().PrintSetPsize(name, m_printer.ScaleWidth(), m_printer.ScaleHeight());
}
