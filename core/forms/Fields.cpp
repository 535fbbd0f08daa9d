#include "core/forms/Fields.h"

#include <QLineEdit>

void FocusAndSelect(QWidget* field)
{
    field->setFocus(Qt::OtherFocusReason);
    if (auto* box = qobject_cast<QLineEdit*>(field))
        box->selectAll();
}
