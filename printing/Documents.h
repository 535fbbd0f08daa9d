#pragma once

#include <QString>

class QWidget;

/// The documents that leave the system on paper. Each is a form, printed as it stands.
enum class Document {
    PRDList,   ///< the lot slip, frmTemp
    EStore,    ///< the stock change slip, frmPrintEStore
    SaleList,  ///< the till ticket, frmSale
    Debit,     ///< the advance slip, frmDebit
    CheckOut,  ///< the settlement, frmCheckOut
    CheckOutA, ///< the settlement, frmCheckOutA
};

enum class PrintMode {
    Stationery, ///< only the data, on paper that carries the rest
    Sheet,      ///< labels, data and lines, on a blank sheet
    Preview,    ///< as the sheet, on the screen
};

/// Prints `form` as `document`, in the style that DFN_Paper.PrintStyle tells: "1" on stationery, "2" on a
/// blank sheet; with any other style nothing prints. The caller has filled the form. Nothing is thrown when
/// printing fails, and the save that printed goes on: the failure is a row of ErrInfo. A document that
/// could not be kept as a file either is told in a box when the present handler has ended.
void PrintDocument(Document document, const QString& printStyle, const QWidget& form);

/// What turns forms into paper.
class DocumentPrinter {
public:
    DocumentPrinter() = default;
    virtual ~DocumentPrinter() = default;
    DocumentPrinter(const DocumentPrinter&) = delete;
    DocumentPrinter& operator=(const DocumentPrinter&) = delete;

    /// As PrintDocument, in a mode. The form is as it was afterwards.
    virtual void Print(Document document, PrintMode mode, const QWidget& form) = 0;
};

/// The print window, loaded with the first document. In a program without that window nothing prints.
DocumentPrinter& Documents();

/// Puts another in its place; nullptr brings the print window back. The caller keeps ownership.
void SetDocumentPrinter(DocumentPrinter* printer);
