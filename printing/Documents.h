#pragma once

#include <QString>

/// The documents that leave the system on paper, one call each. The caller has filled the form that is
/// printed. Nothing is shown and nothing is thrown when printing fails: the failure is a row of ErrInfo,
/// and the save that printed goes on.
///
/// `prePrinted`: only the data, on stationery. `framed`: labels, data and lines, on a blank sheet.
/// Neither: as framed, on the preview.
class DocumentPrinter {
public:
    DocumentPrinter() = default;
    virtual ~DocumentPrinter() = default;
    DocumentPrinter(const DocumentPrinter&) = delete;
    DocumentPrinter& operator=(const DocumentPrinter&) = delete;

    /// Which document the print window is about: "PRDList" or "EStore".
    virtual void PrintRpt(const QString& /*documentKey*/) {}
    /// The lot slip, from frmTemp, which is unloaded.
    virtual void PrintPRDList(bool /*prePrinted*/, bool /*framed*/) {}
    /// The stock change slip, from frmPrintEStore, which is unloaded.
    virtual void PrintEStore(bool /*prePrinted*/, bool /*framed*/) {}
    /// The till ticket, from frmSale as it stands.
    virtual void PrintSaleList(bool /*prePrinted*/, bool /*framed*/) {}
    /// The advance slip, from frmDebit as it stands.
    virtual void PrintDebit(bool /*prePrinted*/, bool /*framed*/) {}
    /// The settlement, from frmCheckOut as it stands.
    virtual void PrintCheckOut(bool /*prePrinted*/, bool /*framed*/) {}
    /// The settlement, from frmCheckOutA as it stands.
    virtual void PrintCheckOutA(bool /*prePrinted*/, bool /*framed*/) {}
};

/// What prints the documents: the print window, loaded with the first of them. A program without that
/// window has no paper, and every call does nothing.
DocumentPrinter& Documents();

/// Puts another in its place; nullptr brings the print window back. The caller keeps ownership.
void SetDocumentPrinter(DocumentPrinter* printer);

/// How a document is printed, by DFN_Paper.PrintStyle: "1" and "2" print, anything else does not.
/// Calls `print` with (prePrinted, framed).
template <typename Print>
void PrintByStyle(const QString& printStyle, Print print)
{
    if (printStyle == u"1")
        print(true, false);
    else if (printStyle == u"2")
        print(false, true);
}
