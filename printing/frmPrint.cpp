#include "printing/frmPrint.h"

#include "core/base/RunTimeError.h"
#include "core/common/ErrorLog.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/forms/HoverBox.h"
#include "core/forms/RecordForms.h"
#include "core/forms/WindowRegistry.h"
#include "core/session/Session.h"
#include "printing/DocumentRules.h"
#include "printing/clsPrint.h"
#include "printing/ctlPreview.h"
#include "printing/frmPrintEStore.h"
#include "printing/frmTemp.h"
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

/// Printing is asked for from the main window; the preview's own buttons for it have no action.
const QList<ToolbarKey>& ToolbarKeys()
{
    static const QList<ToolbarKey> keys{
        {u"mnuPrint"_s, u"打印"_s, false},
        {u"mnuSetup"_s, u"设置"_s, false},
        {u"mnuExit"_s, u"退出"_s, true},
    };
    return keys;
}

const QWidget& OpenForm(const QString& name)
{
    Form* form = Windows().Find(name);
    if (!form)
        throw RunTimeError(u"要打印的窗口没有打开："_s + name);
    return *form->Widget();
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
        action->setEnabled(key.isOffered);
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

void frmPrint::PrintPRDList(bool prePrinted, bool framed)
{
    PrintDocument(LotSlipRules(), prePrinted, framed);
    frmTemp::Unload();
}

void frmPrint::PrintEStore(bool prePrinted, bool framed)
{
    PrintDocument(StockChangeRules(), prePrinted, framed);
    frmPrintEStore::Unload();
}

void frmPrint::PrintSaleList(bool prePrinted, bool framed)
{
    PrintDocument(TicketRules(), prePrinted, framed);
}

void frmPrint::PrintDebit(bool prePrinted, bool framed)
{
    PrintDocument(AdvanceRules(), prePrinted, framed);
}

void frmPrint::PrintCheckOut(bool prePrinted, bool framed)
{
    PrintDocument(SettlementRules(), prePrinted, framed);
}

void frmPrint::PrintCheckOutA(bool prePrinted, bool framed)
{
    PrintDocument(SettlementARules(), prePrinted, framed);
}

void frmPrint::PrintDocument(const DocumentRules& rules, bool prePrinted, bool framed)
{
    try {
        const QWidget& form = rules.form == u"frmTemp"          ? frmTemp::Load()
                              : rules.form == u"frmPrintEStore" ? frmPrintEStore::Load()
                                                                : OpenForm(rules.form);
        PrintForm(rules, form, prePrinted, framed);
    } catch (const std::exception& error) {
        // The save behind the document stands and goes on; the row is all that tells of the failure.
        LogError(Session::CurrentUserName, QString::fromUtf8(error.what()), rules.errorLabel);
    }
}

void frmPrint::PrintForm(const DocumentRules& rules, const QWidget& form, bool prePrinted, bool framed)
{
    const double left = GetPaperLeft(rules.paperId) * TwipsPerCentimetre;
    const double top = GetPaperTop(rules.paperId) * TwipsPerCentimetre;
    clsPrint& page = Page();
    m_printer.SetTitle(rules.title);
    ChoosePaper(form);
    if (prePrinted || framed)
        page.PrintStartDoc(m_printer, 1);
    else
        page.PrintStartDoc(PagePreview(), 1);

    DrawForm(page, form, prePrinted ? rules.stationery : rules.sheet, left, top);

    if (prePrinted ? rules.stationery.endsWithNewPage : framed && rules.sheet.endsWithNewPage)
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
