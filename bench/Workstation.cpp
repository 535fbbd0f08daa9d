#include "bench/Workstation.h"

#include "core/base/Clock.h"
#include "core/base/ProgramFiles.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/logon/Logon.h"
#include "core/session/Session.h"
#include "printing/Documents.h"
#include "printing/PrintQueue.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QTest>
#include <QWidget>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Stopwatch = std::chrono::steady_clock;

constexpr std::size_t MostStatements = 4096;

Form& Loaded(const QString& window)
{
    Form* form = Windows().Find(window);
    if (!form)
        GiveUp(window + u" did not open"_s);
    return *form;
}

/// Delivers what waits, repaints included, until nothing waits.
void Settle()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

} // namespace

Workstation::Workstation(const QString& programFolder, QTextStream& samples)
    : m_iniPath(programFolder + u"/Data/Data.ini"_s), m_samples(samples), m_replay(m_iniPath)
{
    SetProgramDirectory(programFolder);
    SetMessagePresenter(this);
    m_statements.reserve(MostStatements);
    Gateway().SetStatementObserver([this](const QString& statement) { m_statements.push_back(statement); });
    // The day's first ticket inserts its counter, which cannot be replayed: no measured ticket is that one.
    m_replay.Do(
        u"INSERT IGNORE INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES ('01','01','%1',0)"_s.arg(
            FormatDate(Clock::Now().date())));
    m_lots = m_replay.Column(
        u"SELECT PRDNo FROM PRD_List WHERE bolCheckOut='0' AND bolPack='1' ORDER BY MD5(ID) LIMIT %1"_s.arg(
            LotsInTurn));
    m_buyers =
        m_replay.Column(u"SELECT Vendee FROM Sal_List WHERE SaleType=1 AND bolReturn='0' GROUP BY Vendee "
                        "ORDER BY MD5(Vendee) LIMIT %1"_s.arg(LotsInTurn));
    if (m_lots.size() < LotsInTurn || m_buyers.size() < LotsInTurn)
        GiveUp(u"the database is not one that bench/run has filled"_s);
}

Workstation::~Workstation()
{
    Gateway().SetStatementObserver(nullptr);
    SetMessagePresenter(nullptr);
}

void Workstation::Inform(const QString& /*title*/, const QString& text)
{
    GiveUp(u"an unexpected box: "_s + text);
}

bool Workstation::AskBeforeDestroying(const QString& /*title*/, const QString& text)
{
    GiveUp(u"an unexpected question: "_s + text);
}

bool Workstation::Ask(const QString& /*title*/, const QString& /*text*/)
{
    return true; // the one question is whether to leave the program
}

void Workstation::StartMainWindow(const QString& action)
{
    Session::DataIniPath = m_iniPath;
    Gateway().OpenConnection(m_iniPath);
    if (!Gateway().LastError().isEmpty() || !TryLogon(u"管理员"_s, u"1"_s, UnknownName::Refuse))
        GiveUp(u"cannot log on: "_s + Gateway().LastError());
    Measure(action, [] {
        Windows().Load(u"frmMain"_s, nullptr);
        Windows().Show(u"frmMain"_s, nullptr);
    });
    if (!Loaded(u"frmMain"_s).Widget()->isVisible())
        GiveUp(u"the main window did not show"_s);
}

void Workstation::CloseMainWindow()
{
    CloseWindow(u"frmMain"_s);
}

void Workstation::Show(const QString& menu, const QString& window)
{
    Find<QAction>(u"frmMain"_s, menu)->trigger();
    Settle();
    QWidget* widget = Loaded(window).Widget();
    widget->activateWindow();
    if (!QTest::qWaitForWindowActive(widget))
        GiveUp(window + u" does not get the keyboard"_s);
    Settle();
}

void Workstation::CloseWindow(const QString& window)
{
    Loaded(window).Widget()->close();
    Settle();
    if (Windows().Find(window))
        GiveUp(window + u" did not close"_s);
}

template <typename Control>
Control* Workstation::Find(const QString& window, const QString& control)
{
    auto* found = Loaded(window).Widget()->findChild<Control*>(control);
    if (!found)
        GiveUp(u"there is no "_s + window + u'.' + control);
    return found;
}

void Workstation::Type(const QString& window, const QString& control, const QString& text)
{
    auto* box = Find<QLineEdit>(window, control);
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, text);
    Settle();
}

void Workstation::EnterTicket()
{
    const auto turn = m_ticket++ % LotsInTurn;
    Loaded(u"frmSale"_s).TakeName(m_buyers[turn]);
    Type(u"frmSale"_s, u"txtPRDNo"_s, m_lots[turn]);
    Type(u"frmSale"_s, u"txtNum"_s, u"3"_s);
    Type(u"frmSale"_s, u"txtSuttle"_s, u"52.5"_s);
    Type(u"frmSale"_s, u"txtUPR"_s, u"3.8"_s);
    Type(u"frmSale"_s, u"txtPerPack"_s, u"0.5"_s);
    Type(u"frmSale"_s, u"txtListNo"_s, u"031206"_s);
    Type(u"frmSale"_s, u"txtSalesID"_s, u"12"_s);
    Find<QComboBox>(u"frmSale"_s, u"cmbSaleType"_s)->setCurrentIndex(1);
    Find<QComboBox>(u"frmSale"_s, u"cmbCheckStatus"_s)->setFocus();
    Settle();
}

void Workstation::OpenTill()
{
    Show(u"menuSale"_s, u"frmSale"_s);
    EnterTicket();
}

void Workstation::CloseTill()
{
    CloseWindow(u"frmSale"_s);
}

void Workstation::TypePieces(int keystrokes, bool isWarmUp)
{
    auto* box = Find<QLineEdit>(u"frmSale"_s, u"txtNum"_s);
    box->setFocus();
    for (int i = 0; i < keystrokes; ++i) {
        if (i % 3 == 0)
            box->selectAll();
        Settle();
        const char digit = static_cast<char>('1' + i % 9);
        Measure(isWarmUp ? QString() : KeystrokeAction, [&] { QTest::keyPress(box, digit); });
        QTest::keyRelease(box, digit);
        if (m_statements.empty())
            GiveUp(u"a keystroke sent no statement"_s);
    }
}

void Workstation::SaveTickets(int tickets, bool isWarmUp)
{
    auto* number = Find<QLineEdit>(u"frmSale"_s, u"txtSalNo"_s);
    auto* last = Find<QComboBox>(u"frmSale"_s, u"cmbCheckStatus"_s);
    for (int i = 0; i < tickets; ++i) {
        EnterTicket();
        const QString salNo = u'\'' + number->text().mid(3) + u'\'';
        // The replayed ticket needs a number of its own, beside the first in the table.
        const QString again = salNo.chopped(1) + u"R'"_s;
        Measure(
            isWarmUp ? QString() : SaveAction, [&] { QTest::keyPress(last, Qt::Key_Return); },
            [&](QString statement) { return statement.replace(salNo, again); });
        const bool isSaved = std::any_of(m_statements.begin(), m_statements.end(), [](const QString& text) {
            return text.startsWith(u"INSERT INTO Sal_List");
        });
        if (!isSaved)
            GiveUp(u"a ticket was not saved"_s);
    }
}

void Workstation::PrintTickets(int tickets)
{
    EnterTicket();
    const QWidget& form = *Windows().Find(u"frmSale"_s)->Widget();
    Print(TicketDocument, tickets, [&form] { PrintDocument(Document::SaleList, u"2"_s, form); });
}

void Workstation::PrintSettlements(int settlements)
{
    const QString window = u"frmCheckOut"_s;
    Show(u"menuCheckOut"_s, window);
    Type(window, u"txtPRDNo"_s, m_lots[0]);
    QTest::keyClick(Find<QLineEdit>(window, u"txtPRDNo"_s), Qt::Key_Return);
    Settle();
    if (Find<QLineEdit>(window, u"txtCustName"_s)->text().isEmpty())
        GiveUp(u"the settlement found no lot"_s);
    const QWidget& form = *Windows().Find(window)->Widget();
    Print(SettlementDocument, settlements, [&form] { PrintDocument(Document::CheckOut, u"2"_s, form); });
    CloseWindow(window);
}

void Workstation::Print(const QString& action, int documents, const std::function<void()>& print)
{
    QDir folder(PdfFolder());
    folder.mkpath(u"."_s); // or the user would be told of it
    for (int i = 0; i <= documents; ++i) {
        Measure(i == 0 ? u"first "_s + action : action, print);
        const QStringList files = folder.entryList(QDir::Files);
        if (files.size() != 1 || !folder.remove(files[0]))
            GiveUp(u"a document was not handed over"_s);
    }
    folder.removeRecursively();
}

void Workstation::FillGoodsList(int fills)
{
    Show(u"menuPRDList"_s, u"frmDataList"_s);
    FillGoodsListIn(u"goods list, 500 open lots"_s, u"0"_s, fills);
    FillGoodsListIn(u"goods list, detailed"_s, u"1"_s, fills);
    CloseWindow(u"frmDataList"_s);
}

void Workstation::FillGoodsListIn(const QString& action, const QString& bolShowEStore, int fills)
{
    m_replay.Do(u"UPDATE Sys_Define SET bolShowEStore='"_s + bolShowEStore + u'\'');
    Form& list = Loaded(u"frmDataList"_s);
    for (int i = 0; i <= fills; ++i)
        Measure(i == 0 ? QString() : action, [&list] { list.RefreshList(); });
}

void Workstation::Measure(const QString& name, const std::function<void()>& action, const Rewrite& rewrite)
{
    Sample sample{.action = name};
    m_statements.clear();
    const auto start = Stopwatch::now();
    action();
    sample.program = Stopwatch::now() - start;
    Settle();
    sample.painted = Stopwatch::now() - start;

    std::vector<QByteArray> statements;
    for (const QString& statement : m_statements)
        statements.push_back((rewrite ? rewrite(statement) : statement).toUtf8());
    m_replay.Run(statements, sample);
    if (!name.isEmpty())
        Write(m_samples, sample);
}

int Workstation::ResidentMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly)) {
        const QList<QByteArray> lines = status.readAll().split('\n');
        for (const QByteArray& line : lines) {
            if (line.startsWith("VmRSS:"))
                return line.mid(6).trimmed().split(' ').first().toInt();
        }
    }
    GiveUp(u"cannot read the resident memory"_s);
}
