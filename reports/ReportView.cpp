#include "reports/ReportView.h"

#include "core/forms/Form.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/WindowRegistry.h"

using namespace Qt::StringLiterals;

namespace {
const QString ReportWindow = u"frmReport"_s;
}

ReportView* OpenReport()
{
    return dynamic_cast<ReportView*>(Windows().Find(ReportWindow));
}

ReportView* LoadReport()
{
    return dynamic_cast<ReportView*>(Windows().Load(ReportWindow, MainFrame()));
}
