#pragma once

#include "core/base/RunTimeError.h"

#include <QBuffer>
#include <QList>
#include <QPdfWriter>
#include <QSizeF>
#include <QString>

#include <memory>
#include <optional>

class CupsQueue;

/// A paper size that a print queue offers. `code` is the number of the size in the platform's paper
/// table, which Define/PaperSize of Config.ini stores: 9 is A4, 11 is A5.
struct PaperSize {
    QString name;
    int code = 0;
};

/// The paper sizes of the default print queue that have a number, in the queue's order. Empty without a
/// queue, and when the print server does not answer.
QList<PaperSize> PaperSizes();

/// Puts a list in place of the queue's; std::nullopt brings the queue's back. Tests run with a queue and
/// without.
void SetPaperSizes(std::optional<QList<PaperSize>> sizes);

/// A sheet of a paper size upright, in millimetres; with a code that the table does not have the queue's
/// own sheet, A4 where there is none.
QSizeF UprightSheet(int paperSizeCode);

/// The folder that documents go to as PDF files where there is no print queue: 单据PDF, beside the
/// program.
QString PdfFolder();

/// A document that was not printed and stands as a file instead; the description tells both.
class KeptAsFileError : public RunTimeError {
public:
    using RunTimeError::RunTimeError;
};

/// One document on its way to the default print queue, or, where there was none when the job was opened,
/// into a PDF file of PdfFolder(). The user is told of the folder once, when it is made; never in the
/// middle of a save. A document is one sheet of what the queue receives and is never lost without a word.
class PrintJob {
public:
    /// `title` names the document in the queue and in the file's name. `landscape` turns the sheet.
    /// A paper code without a size takes the queue's own paper, A4 where there is none. The sheet is
    /// painted to its edges: (0, 0) is the corner of the paper.
    PrintJob(const QString& title, int paperSizeCode, bool landscape);
    ~PrintJob();
    PrintJob(const PrintJob&) = delete;
    PrintJob& operator=(const PrintJob&) = delete;

    /// What to paint on.
    QPdfWriter& Paper() { return m_paper; }

    /// Called once the painter has ended. Answers the file that the document went to where there is no print
    /// queue, "" when a queue has it. @throws KeptAsFileError when the queue did not take the document,
    /// which then stands in PdfFolder() under the name that the error tells. @throws RunTimeError when the
    /// document is lost: it could not be written there either, or nothing was painted
    QString HandOver();

private:
    QString KeepAsFile() const;
    QString WriteFile() const;

    QString m_title;
    bool m_isLandscape;
    QBuffer m_document;
    QPdfWriter m_paper;
    std::unique_ptr<CupsQueue> m_queue;
};
