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
#include "printing/ReportPage.h"
#include "printing/clsPrint.h"
#include "printing/ctlPreview.h"
#include "ui_frmPrint.h"

#include <QAction>
#include <QApplication>
#include <QShortcut>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double TwipsPerCentimetre = 567;
constexpr int A4Code = 9;
constexpr int A5Code = 11;
constexpr int LandscapeOrientation = 2;
const QString ReportPaperId = u"P06"_s;
const QString ReportErrorLabel = u"打印报表"_s;
const QString FullSize = u"1"_s; // the zoom that every preview begins with

struct ToolbarKey {
    QString key;
    QString caption;
    QList<QKeySequence> shortcuts;
    bool isOffered;
};

const QList<ToolbarKey>& ToolbarKeys()
{
    static const QList<ToolbarKey> keys{
        {u"mnuPrint"_s, u"打印"_s, {QKeySequence(u"Alt+P"_s)}, true},
        {u"mnuSetup"_s, u"设置"_s, {}, false}, // nothing stands behind it
        {u"mnuExit"_s, u"退出"_s, {QKeySequence(u"Esc"_s), QKeySequence(u"Alt+C"_s)}, true},
    };
    return keys;
}

/// A long report takes seconds.
class WaitCursor {
public:
    WaitCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
};

} // namespace

frmPrint::frmPrint(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmPrint>())
{
    ui->setupUi(this);
    setFocusProxy(ui->PagePreview);
    ui->PagePreview->SetBackColor(White);
    ui->PagePreview->SetForeColor(0);
    ui->cmbmnuZoom->addItems({u"0.25"_s, u"0.5"_s, u"1"_s, u"2"_s, u"3"_s});
    ui->cmbmnuZoom->setCurrentText(FullSize);
    WireStrip();
}

frmPrint::~frmPrint() = default;

void frmPrint::WireStrip()
{
    for (const ToolbarKey& key : ToolbarKeys()) {
        QAction* action = ui->menuBar->addAction(key.caption);
        action->setObjectName(key.key);
        action->setVisible(key.isOffered);
        action->setShortcuts(key.shortcuts);
        connect(action, &QAction::triggered, this,
                [this, name = key.key] { RunHandler([this, &name] { PressToolbar(name); }); });
    }
    ui->menuBar->addSeparator();
    const auto addBox = [this](QLabel* caption, QComboBox* box, const QString& key) {
        ui->menuBar->addWidget(caption);
        ui->menuBar->addWidget(box);
        connect(box, &QComboBox::activated, this,
                [this] { RunHandler([this] { DrawPreview(ui->cbmPageRec->currentIndex() + 1); }); });
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, box,
                [box] { box->setFocus(Qt::ShortcutFocusReason); });
    };
    addBox(ui->lblZoom, ui->cmbmnuZoom, u"Alt+Z"_s);
    addBox(ui->lblPage, ui->cbmPageRec, u"Alt+G"_s);
    ui->menuBar->addSeparator();
    ui->menuBar->addWidget(ui->lblKeys);
    const auto turn = [this](const QString& key, int step) {
        connect(new QShortcut(QKeySequence(key), this), &QShortcut::activated, this,
                [this, step] { RunHandler([this, step] { TurnPage(step); }); });
    };
    turn(u"Ctrl+PgUp"_s, -1);
    turn(u"Ctrl+PgDown"_s, 1);
}

void frmPrint::PressToolbar(const QString& key)
{
    if (key == u"mnuExit")
        close();
    else if (key == u"mnuPrint" && m_previewed.draw)
        TellFailures(m_previewed.title, m_previewed.errorLabel, Waiting::Person,
                     [this] { return PrintOut(m_previewed); });
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
    const bool isPreview = mode == PrintMode::Preview;
    TellFailures(rules.title, rules.errorLabel, isPreview ? Waiting::Nobody : Waiting::Save, [&] {
        const Printable printable = DocumentToPrint(rules, mode, form);
        if (!isPreview)
            return PrintOut(printable);
        ShowPreview(printable);
        return QString();
    });
}

void frmPrint::StartPrintDoc(const ReportPage& report, bool toPrinter)
{
    if (toPrinter)
        TellFailures(report.title, ReportErrorLabel, Waiting::Person,
                     [&] { return PrintOut(ReportToPrint(report)); });
    else
        ShowPreview(ReportToPrint(report));
}

frmPrint::Printable frmPrint::DocumentToPrint(const DocumentRules& rules, PrintMode mode, const QWidget& form)
{
    const double left = GetPaperLeft(rules.paperId) * TwipsPerCentimetre;
    const double top = GetPaperTop(rules.paperId) * TwipsPerCentimetre;
    const PageRules& pageRules = mode == PrintMode::Stationery ? rules.stationery : rules.sheet;
    // Taken from the form now: the preview outlives the record that the form shows.
    return {.title = rules.title,
            .errorLabel = rules.errorLabel,
            .paperCode = Session::PaperSizeCode,
            .isLandscape = MustTurn(form),
            .endsWithNewPage = pageRules.endsWithNewPage,
            .draw = [marks = ReadForm(form, pageRules, left, top)](clsPrint& page, int /*lastPage*/) {
                DrawMarks(page, marks);
                return 1;
            }};
}

frmPrint::Printable frmPrint::ReportToPrint(const ReportPage& report)
{
    const bool isLandscape = GetOrientation() == LandscapeOrientation;
    const double leftOffset = GetPaperLeft(ReportPaperId) * TwipsPerCentimetre;
    return {.title = report.title,
            .errorLabel = ReportErrorLabel,
            .paperCode = A4Code,
            .isLandscape = isLandscape,
            .draw = [report, leftOffset](clsPrint& page, int lastPage) {
                return DrawReport(page, report, leftOffset, lastPage);
            }};
}

/// The forms are as wide as A4 stands upright and A5 lies, to a pixel.
bool frmPrint::MustTurn(const QWidget& form)
{
    m_printer.SetPaperSize(Session::PaperSizeCode);
    m_printer.SetLandscape(false);
    return m_printer.ScaleWidth() < static_cast<float>((form.width() - 1) * TwipsPerPixel) &&
           m_printer.ScaleHeight() > m_printer.ScaleWidth();
}

void frmPrint::TakePaper(const Printable& printable)
{
    const int code = printable.paperCode;
    m_printer.SetTitle(printable.title);
    m_printer.SetPaperSize(code);
    m_printer.SetLandscape(printable.isLandscape);
    const QString name = printable.isLandscape ? QString()
                         : code == A4Code      ? u"A4"_s
                         : code == A5Code      ? u"A5"_s
                                               : QString();
    Page().PrintSetPsize(name, m_printer.ScaleWidth(), m_printer.ScaleHeight());
}

QString frmPrint::PrintOut(const Printable& printable)
{
    const WaitCursor wait;
    clsPrint& page = Page();
    TakePaper(printable);
    page.PrintStartDoc(m_printer, 1);
    printable.draw(page, 0);
    if (printable.endsWithNewPage)
        page.NewPage();
    return page.EndDoc();
}

void frmPrint::TellFailures(const QString& title, const QString& errorLabel, Waiting waiting,
                            const std::function<QString()>& print)
{
    // Behind the save, where there is one: nobody at a till reads the rows.
    const auto tell = [](const QString& text) { AfterHandler([text] { ShowInfo(text); }); };
    try {
        const QString file = print();
        if (!file.isEmpty() && waiting == Waiting::Person)
            tell(u"这台电脑没有打印机，%1存为 PDF 文件：\n%2"_s.arg(title, file));
    } catch (const KeptAsFileError& error) {
        LogError(Session::CurrentUserName, error.Description(), errorLabel);
        if (waiting == Waiting::Person)
            tell(error.Description());
    } catch (const std::exception& error) {
        const QString reason = QString::fromUtf8(error.what());
        LogError(Session::CurrentUserName, reason, errorLabel);
        if (waiting != Waiting::Nobody)
            tell(u"%1没有打印，也没有存成文件！\n%2"_s.arg(title, reason));
    }
}

void frmPrint::ShowPreview(Printable printable)
{
    ShowInFrame(this); // in front, where it stands behind the window that asks
    m_previewed = std::move(printable);
    ui->cmbmnuZoom->setCurrentText(FullSize);
    const int pages = DrawPreview(0);
    ui->cbmPageRec->clear();
    for (int page = 1; page <= pages; ++page)
        ui->cbmPageRec->addItem(QString::number(page));
    ui->cbmPageRec->setCurrentIndex(pages - 1); // the canvas keeps the last one
}

int frmPrint::DrawPreview(int lastPage)
{
    if (!m_previewed.draw)
        return 0;
    const WaitCursor wait;
    clsPrint& page = Page();
    TakePaper(m_previewed);
    page.PrintStartDoc(PagePreview(), ui->cmbmnuZoom->currentText().toDouble());
    const int pages = m_previewed.draw(page, lastPage);
    page.EndDoc();
    return pages;
}

void frmPrint::TurnPage(int step)
{
    const int page = ui->cbmPageRec->currentIndex() + step;
    if (page < 0 || page >= ui->cbmPageRec->count())
        return;
    ui->cbmPageRec->setCurrentIndex(page);
    DrawPreview(page + 1);
}
