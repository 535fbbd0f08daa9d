#include "core/forms/Fields.h"

#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>

#include <algorithm>

void FocusAndSelect(QWidget* field)
{
    field->setFocus(Qt::OtherFocusReason);
    if (auto* date = qobject_cast<QDateEdit*>(field)) {
        date->setSelectedSection(date->sectionAt(0)); // a day is typed from its year on
        return;
    }
    auto* box = qobject_cast<QLineEdit*>(field);
    if (!box)
        return;
    if (box->isReadOnly())
        box->setSelection(static_cast<int>(box->text().size()),
                          -static_cast<int>(box->text().size())); // shows its beginning
    else
        box->selectAll();
}

void Lock(QLineEdit* field)
{
    field->setReadOnly(true);
    field->home(false);
    // The style sheet asks for the property, and looks again only when told.
    field->style()->unpolish(field);
    field->style()->polish(field);
}

void ShowCentred(QLabel* heading, const QString& text)
{
    heading->ensurePolished(); // measured in its own font also before the form is seen
    heading->setText(text);
    heading->adjustSize();
    heading->move(std::max(0, (heading->parentWidget()->width() - heading->width()) / 2), heading->y());
}
