#pragma once

#include <QString>

/// The documents that leave the system on paper, one call each. The caller has filled the form that is
/// printed; nothing of a save is undone or repeated when printing fails.
///
/// `prePrinted`: only the data, on stationery. `framed`: labels, data and lines, on a blank sheet.
class DocumentPrinter {
public:
    DocumentPrinter() = default;
    virtual ~DocumentPrinter() = default;
    DocumentPrinter(const DocumentPrinter&) = delete;
    DocumentPrinter& operator=(const DocumentPrinter&) = delete;

    /// Which document the print window is about: "PRDList" or "EStore".
    virtual void PrintRpt(const QString& /*documentKey*/) {}
    /// The lot slip, from frmTemp.
    virtual void PrintPRDList(bool /*prePrinted*/, bool /*framed*/) {}
    /// The till ticket, from frmSale as it stands.
    virtual void PrintSaleList(bool /*prePrinted*/, bool /*framed*/) {}
    /// The settlement, from frmCheckOut as it stands.
    virtual void PrintCheckOut(bool /*prePrinted*/, bool /*framed*/) {}
    /// The settlement, from frmCheckOutA as it stands.
    virtual void PrintCheckOutA(bool /*prePrinted*/, bool /*framed*/) {}
};

/// The printer in use. The one this starts with hands nothing to paper yet.
DocumentPrinter& Documents();

/// Puts another in its place; nullptr brings the first back. The caller keeps ownership.
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
