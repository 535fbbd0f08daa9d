#include "printing/Documents.h"

namespace {
DocumentPrinter* replacement = nullptr;
}

DocumentPrinter& Documents()
{
    static DocumentPrinter noPaper;
    return replacement ? *replacement : noPaper;
}

void SetDocumentPrinter(DocumentPrinter* printer)
{
    replacement = printer;
}
