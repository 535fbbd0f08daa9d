#include "printing/PrintQueue.h"

#include "core/base/Clock.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "printing/CupsQueue.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

std::optional<QList<PaperSize>> replacement;

QPageSize PaperOf(int paperSizeCode, CupsQueue& queue)
{
    const QPageSize::PageSizeId known = QPageSize::id(paperSizeCode);
    if (known != QPageSize::Custom)
        return QPageSize(known);
    const auto own = queue.Papers("media-default");
    return own.isEmpty() ? QPageSize(QPageSize::A4) : own.first();
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
    const auto papers = CupsQueue().Papers("media-supported");
    for (const QPageSize& paper : papers) {
        if (QPageSize::id(paper.windowsId()) != QPageSize::Custom)
            sizes << PaperSize{paper.name(), paper.windowsId()};
    }
    return sizes;
}

QSizeF UprightSheet(int paperSizeCode)
{
    const QPageSize::PageSizeId known = QPageSize::id(paperSizeCode);
    if (known != QPageSize::Custom)
        return QPageSize::size(known, QPageSize::Millimeter);
    CupsQueue queue;
    return PaperOf(paperSizeCode, queue).size(QPageSize::Millimeter);
}

QString PdfFolder()
{
    return ProgramPath(u"\\单据PDF"_s);
}

PrintJob::PrintJob(const QString& title, int paperSizeCode, bool landscape)
    : m_title(title), m_isLandscape(landscape), m_paper(&m_document), m_queue(std::make_unique<CupsQueue>())
{
    m_document.open(QIODevice::WriteOnly);
    m_paper.setTitle(title);
    m_paper.setPageLayout(QPageLayout(PaperOf(paperSizeCode, *m_queue),
                                      landscape ? QPageLayout::Landscape : QPageLayout::Portrait,
                                      QMarginsF()));
}

PrintJob::~PrintJob() = default;

QString PrintJob::HandOver()
{
    if (!m_document.data().trimmed().endsWith("%%EOF"))
        throw RunTimeError(u"单据没有画完："_s + m_title);
    if (m_queue->Found() == CupsQueue::State::None)
        return KeepAsFile();
    const QString refusal =
        m_queue->Refusal(m_title, m_paper.pageLayout().pageSize(), m_isLandscape, m_document.data());
    if (refusal.isEmpty())
        return {};
    QString file;
    try {
        file = KeepAsFile();
    } catch (const RunTimeError& error) {
        throw RunTimeError(refusal + u'，' + error.Description());
    }
    throw KeptAsFileError(u"%1，单据存为文件：%2"_s.arg(refusal, file));
}

/// The user is told of the folder with the first file of a folder that was made for it.
QString PrintJob::KeepAsFile() const
{
    const QString folder = PdfFolder();
    const bool isNew = !QDir(folder).exists();
    if (isNew && !QDir().mkpath(folder))
        throw RunTimeError(u"无法建立文件夹："_s + folder);
    try {
        QString file = WriteFile();
        if (isNew)
            AfterHandler([folder] {
                ShowInfo(u"没有打印机接收的单据存为 PDF 文件，放在这个文件夹里：\n"_s + folder);
            });
        return file;
    } catch (const RunTimeError&) {
        if (isNew)
            QDir().rmdir(folder); // made anew, and told of, with the first file that it can take
        throw;
    }
}

QString PrintJob::WriteFile() const
{
    const QDir folder(PdfFolder());
    const QString stem = Clock::Now().toString(u"yyyyMMdd-HHmmss-"_s) + m_title;
    QFile file(folder.filePath(stem + u".pdf"_s));
    // Another till may write into the same folder: only opening tells whether a name is free.
    for (int copy = 2; !file.open(QIODevice::WriteOnly | QIODevice::NewOnly) && file.exists(); ++copy)
        file.setFileName(folder.filePath(u"%1-%2.pdf"_s.arg(stem).arg(copy)));
    const bool isOpen = file.isOpen();
    if (!isOpen || file.write(m_document.data()) != m_document.size() || !file.flush()) {
        if (isOpen)
            QFile::remove(file.fileName()); // the file's own remove() would first write what is left
        throw RunTimeError(u"无法写入文件："_s + file.fileName());
    }
    return file.fileName();
}
