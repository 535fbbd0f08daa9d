#include "reports/ReportListMenu.h"

#include "core/common/Handlers.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/ListGrid.h"
#include "core/forms/WindowRegistry.h"

using namespace Qt::StringLiterals;

ReportListMenu::ReportListMenu(ListGrid* list) : QMenu(list)
{
    setObjectName(u"mnuPop"_s);
    QAction* entry = addAction(u"报表设置"_s);
    entry->setObjectName(u"mnuSetField"_s);
    connect(entry, &QAction::triggered, this, [list] {
        RunHandler([list] {
            if (Windows().Knows(u"frmSetField"_s))
                Windows().ShowModal(u"frmSetField"_s, list->window());
            else
                TellNotProvided();
        });
    });
    connect(list, &ListGrid::PopupAsked, this, [this](const QPoint& place) { popup(place); });
}
