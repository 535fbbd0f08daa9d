#include "printing/Documents.h"

#include "core/forms/RecordForms.h"
#include "core/forms/WindowRegistry.h"

using namespace Qt::StringLiterals;

namespace {

DocumentPrinter* replacement = nullptr;

class NoPaper : public DocumentPrinter {
public:
    void Print(Document /*document*/, PrintMode /*mode*/, const QWidget& /*form*/) override {}
};

} // namespace

DocumentPrinter& Documents()
{
    static NoPaper noPaper;
    if (replacement)
        return *replacement;
    auto* window = dynamic_cast<DocumentPrinter*>(Windows().Load(u"frmPrint"_s, MainFrame()));
    return window ? *window : noPaper;
}

void SetDocumentPrinter(DocumentPrinter* printer)
{
    replacement = printer;
}

void PrintDocument(Document document, const QString& printStyle, const QWidget& form)
{
    if (printStyle == u"1")
        Documents().Print(document, PrintMode::Stationery, form);
    else if (printStyle == u"2")
        Documents().Print(document, PrintMode::Sheet, form);
}
