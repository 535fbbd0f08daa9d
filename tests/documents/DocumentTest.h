#pragma once

#include "printing/DrawingLog.h"
#include "printing/frmPrint.h"
#include "tests/support/WindowTest.h"

/// The six documents, by the name of their golden files.
const QStringList& DocumentNames();

/// The forms that are documents, filled as on a busy morning: long names, five-digit amounts.
class DocumentTest : public WindowTest {
protected:
    void SetUp() override;
    void TearDown() override;

    /// Opens or loads the form of a document and fills it.
    void Fill(const QString& document);
    /// Prints it, as its caller does. The slips must be filled anew for each print.
    void Print(const QString& document, PrintMode mode);
    /// The same where it is made to fail.
    void PrintFailing(const QString& document);
    /// The form that the document is.
    QWidget* FormOf(const QString& document);
    /// Offsets of the document's paper, in centimetres.
    void SetOffsets(const QString& document, const QString& left, const QString& top);
    /// The drawing calls since the last call.
    QStringList TakeDrawing();
    /// The files that documents went to, oldest first.
    QStringList PdfFiles() const;

    frmPrint& Printer();

private:
    void Call(const QString& document, PrintMode mode);
    void FillTicket();
    void FillAdvance();
    void FillSettlement(const QString& form);

    DrawingLog m_log;
};
