#include "printing/PrintQueue.h"

#include "core/base/Clock.h"
#include "core/base/ProgramFiles.h"
#include "core/base/RunTimeError.h"

#include <QDir>
#include <QPageSize>
#include <QPrinter>
#include <QPrinterInfo>

using namespace Qt::StringLiterals;

namespace {

std::optional<QList<PaperSize>> replacement;

QString FreeFileName(const QString& title)
{
    const QDir folder(PdfFolder());
    const QString stem = Clock::Now().toString(u"yyyyMMdd-HHmmss-"_s) + title;
    QString name = stem + u".pdf"_s;
    for (int copy = 2; folder.exists(name); ++copy)
        name = stem + u'-' + QString::number(copy) + u".pdf"_s;
    return folder.filePath(name);
}

} // namespace

void SetPaperSizes(std::optional<QList<PaperSize>> sizes)
{
    replacement = std::move(sizes);
}

QList<PaperSize> PaperSizes()
{
    if (replacement)
        return *replacement;
    QList<PaperSize> sizes;
    const auto offered = QPrinterInfo::defaultPrinter().supportedPageSizes();
    for (const QPageSize& size : offered)
        sizes << PaperSize{size.name(), size.windowsId()};
    return sizes;
}

QString PdfFolder()
{
    return ProgramPath(u"\\单据PDF"_s);
}

PrintJob::PrintJob(const QString& title, int paperSizeCode, bool landscape)
    : m_printer(std::make_unique<QPrinter>(QPrinter::HighResolution))
{
    if (QPrinterInfo::defaultPrinter().isNull()) {
        if (!QDir().mkpath(PdfFolder()))
            throw RunTimeError(u"无法建立文件夹："_s + PdfFolder());
        m_printer->setOutputFormat(QPrinter::PdfFormat);
        m_printer->setOutputFileName(FreeFileName(title));
    }
    m_printer->setDocName(title);
    m_printer->setFullPage(true);
    const QPageSize::PageSizeId size = QPageSize::id(paperSizeCode);
    if (size != QPageSize::Custom)
        m_printer->setPageSize(QPageSize(size));
    m_printer->setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
}

PrintJob::~PrintJob() = default;

void PrintJob::HandOver()
{
    if (!m_printer->outputFileName().isEmpty() && !FileExists(m_printer->outputFileName()))
        throw RunTimeError(u"无法写入文件："_s + m_printer->outputFileName());
}
