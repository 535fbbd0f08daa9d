#pragma once

#include <QList>
#include <QString>

#include <memory>
#include <optional>

class QPrinter;

/// A paper size that a print queue offers. `code` is the number of the size in the platform's paper
/// table, which Define/PaperSize of Config.ini stores: 9 is A4, 11 is A5.
struct PaperSize {
    QString name;
    int code = 0;
};

/// The paper sizes of the default print queue, in the queue's order. Empty without a queue.
QList<PaperSize> PaperSizes();

/// Puts a list in place of the queue's; std::nullopt brings the queue's back. Tests run with a queue and
/// without.
void SetPaperSizes(std::optional<QList<PaperSize>> sizes);

/// The folder that documents go to as PDF files where there is no print queue: 单据PDF, beside the
/// program.
QString PdfFolder();

/// One document on its way to the default print queue, or, without a queue, into a PDF file of
/// PdfFolder(). The user is told of the folder once, when it is made; never in the middle of a save.
class PrintJob {
public:
    /// `title` names the document in the queue and in the file's name. `landscape` turns the sheet.
    /// A paper code that the printer does not know leaves the paper it has. The sheet is printed to its
    /// edges: (0, 0) is the corner of the paper.
    PrintJob(const QString& title, int paperSizeCode, bool landscape);
    ~PrintJob();
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// What to paint on.
    QPrinter& Paper() { return *m_printer; }

    /// Called once the painter has ended. @throws RunTimeError when the queue did not take the document
    /// or the file could not be written
    void HandOver();

private:
    std::unique_ptr<QPrinter> m_printer;
};
