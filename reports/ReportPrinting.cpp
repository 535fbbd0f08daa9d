#include "reports/ReportPrinting.h"

#include "core/common/Messages.h"
#include "core/forms/Form.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/WindowRegistry.h"
#include "printing/ReportPage.h"
#include "printing/frmPrint.h"
#include "reports/ReportLayout.h"
#include "reports/ReportView.h"

#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

/// The font of a control of the report window, as its style sheet gives it.
QFont FontOf(ReportView& report, const QString& control)
{
    auto* form = dynamic_cast<Form*>(&report);
    auto* found = form ? form->Widget()->findChild<QWidget*>(control) : nullptr;
    if (!found)
        return {};
    found->ensurePolished();
    return found->font();
}

ReportPage PageOf(ReportView& report)
{
    using Line = ReportView::Line;
    const QString title = report.Caption(Line::Title);
    return {.title = title.isEmpty() ? u"报表"_s : title,
            .captions = {{report.Caption(Line::Company), ReportLayout::CompNameTop},
                         {title, ReportLayout::ReportNameTop},
                         {report.Caption(Line::Condition), ReportLayout::SearchStrTop}},
            .captionFont = FontOf(report, u"lblCompName"_s),
            .listFont = FontOf(report, u"lvReport"_s),
            .listLeft = ReportLayout::Left,
            .listTop = ReportLayout::ListTop,
            .sheet = report.Content()};
}

} // namespace

void PrintReport(bool toPrinter)
{
    ReportView* report = OpenReport();
    if (!report)
        return;
    if (!report->IsWhole()) {
        ShowInfo(u"报表没有查询完，不能预览和打印！请重新查询。"_s);
        return;
    }
    auto* printer = dynamic_cast<frmPrint*>(Windows().Load(u"frmPrint"_s, MainFrame()));
    if (printer)
        printer->StartPrintDoc(PageOf(*report), toPrinter);
    else
        TellNotProvided();
}
