#pragma once

#include "printing/DrawingSurface.h"

#include <QSizeF>

#include <memory>
#include <optional>

class PrintJob;
class QPainter;

/// The printer as a page to draw on. A job opens with the first thing that is drawn and ends with
/// EndDoc. Paper, direction and title count from the next job on.
class SystemPrinter : public DrawingSurface {
public:
    SystemPrinter();
    ~SystemPrinter() override;

    /// The number of a paper size in the platform's table, 9 for A4; 0 or one that is not in the table
    /// leaves the queue's own paper.
    void SetPaperSize(int code);
    /// Turns the sheet.
    void SetLandscape(bool on) { m_isLandscape = on; }
    /// Names the document in the queue.
    void SetTitle(const QString& title) { m_title = title; }

    /// The sheet in twips, as it is printed.
    float ScaleWidth() const override { return static_cast<float>(SheetSize().width()); }
    float ScaleHeight() const override { return static_cast<float>(SheetSize().height()); }

    /// The next sheet. It is put in with the next thing that is drawn, so that no document ends with a
    /// blank one. The pen goes to its corner.
    void NewPage();
    /// Closes the job and hands it over. Nothing without an open one. Answers as PrintJob::HandOver.
    /// @throws KeptAsFileError when the queue did not take it and it became a file; RunTimeError when it
    /// is lost
    QString EndDoc();
    /// Drops an open job: nothing of it reaches the queue.
    void KillDoc();

protected:
    /// @throws RunTimeError when no job can be opened
    void Paint(const std::function<void(QPainter&)>& draw) override;

private:
    struct OpenJob;

    QSizeF SheetSize() const;
    void Open();

    std::unique_ptr<OpenJob> m_job;
    QString m_title;
    int m_paperCode = 0;
    mutable std::optional<QSizeF> m_uprightSheet; ///< asked of the queue once per document at most
    bool m_isLandscape = false;
    bool m_hasPageBreak = false;
};
