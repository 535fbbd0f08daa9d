#include "settlement/SheetStyle.h"

#include <QWidget>

using namespace Qt::StringLiterals;

void ApplySheetStyle(QWidget* form)
{
    static const QString sheet =
        u"FormWindow { background: #efede6; }"
        "QLineEdit { background: white; border: 1px solid transparent; border-radius: 0;"
        " margin: 2px 0; padding: 4px 2px 0 3px; min-height: 0; }"
        "QLineEdit[readOnly=\"true\"] { background: transparent; }"
        "QLineEdit:focus { border: 2px solid #e07b00; padding: 3px 1px 0 2px; }"_s;
    form->setStyleSheet(form->styleSheet() + sheet);
}
