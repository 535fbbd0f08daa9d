#include "printing/SystemPrinter.h"

#include "core/base/RunTimeError.h"
#include "printing/PrintQueue.h"

#include <QPainter>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace {
constexpr double TwipsPerMillimetre = 56.7; // 567 to the centimetre, as everywhere in the documents
}

struct SystemPrinter::OpenJob {
    OpenJob(const QString& title, int paperCode, bool isLandscape) : job(title, paperCode, isLandscape)
    {
        if (!painter.begin(&job.Paper()))
            throw RunTimeError(u"打印机无法开始打印。"_s);
        const double dotsPerTwip = job.Paper().resolution() / (25.4 * TwipsPerMillimetre);
        painter.scale(dotsPerTwip, dotsPerTwip);
    }

    PrintJob job;
    QPainter painter; // ends before the job goes
};

SystemPrinter::SystemPrinter() = default;
SystemPrinter::~SystemPrinter() = default;

void SystemPrinter::SetPaperSize(int code)
{
    m_paperCode = code;
    m_uprightSheet.reset();
}

QSizeF SystemPrinter::SheetSize() const
{
    if (!m_uprightSheet)
        m_uprightSheet = UprightSheet(m_paperCode) * TwipsPerMillimetre;
    return m_isLandscape ? m_uprightSheet->transposed() : *m_uprightSheet;
}

void SystemPrinter::Open()
{
    m_job = std::make_unique<OpenJob>(m_title, m_paperCode, m_isLandscape);
    m_hasPageBreak = false;
}

void SystemPrinter::Paint(const std::function<void(QPainter&)>& draw)
{
    if (!m_job)
        Open();
    if (m_hasPageBreak) {
        m_hasPageBreak = false;
        if (!m_job->job.Paper().newPage())
            throw RunTimeError(u"打印机无法换页。"_s);
    }
    draw(m_job->painter);
}

void SystemPrinter::NewPage()
{
    m_hasPageBreak = m_job != nullptr;
    SetCurrentX(0);
    SetCurrentY(0);
}

QString SystemPrinter::EndDoc()
{
    const std::unique_ptr<OpenJob> ended = std::move(m_job);
    m_hasPageBreak = false;
    SetCurrentX(0);
    SetCurrentY(0);
    if (!ended)
        return {};
    ended->painter.end();
    return ended->job.HandOver();
}

void SystemPrinter::KillDoc()
{
    if (!m_job)
        return;
    m_job.reset();
    m_hasPageBreak = false;
    SetCurrentX(0);
    SetCurrentY(0);
}
