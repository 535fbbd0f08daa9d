#include "core/forms/Fields.h"

#include <QLineEdit>
#include <QStyle>

void FocusAndSelect(QWidget* field)
{
    field->setFocus(Qt::OtherFocusReason);
    if (auto* box = qobject_cast<QLineEdit*>(field))
        box->selectAll();
}

void Lock(QLineEdit* field)
{
    field->setReadOnly(true);
    // The style sheet asks for the property, and looks again only when told.
    field->style()->unpolish(field);
    field->style()->polish(field);
}
