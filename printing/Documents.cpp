#include "printing/Documents.h"

#include "core/forms/FunctionWindows.h"
#include "core/forms/WindowRegistry.h"

using namespace Qt::StringLiterals;

namespace {
DocumentPrinter* replacement = nullptr;
}

DocumentPrinter& Documents()
{
    static DocumentPrinter noPaper;
    if (replacement)
        return *replacement;
    auto* window = dynamic_cast<DocumentPrinter*>(Windows().Load(u"frmPrint"_s, MainFrame()));
    return window ? *window : noPaper;
}

void SetDocumentPrinter(DocumentPrinter* printer)
{
    replacement = printer;
}
