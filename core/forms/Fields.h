#pragma once

#include <QString>

class QLineEdit;
class QWidget;

/// Sets the focus on a control and, where it is a text box, selects the whole text.
void FocusAndSelect(QWidget* field);

/// Locks a field while the window stands: it shows its text, is reached by the keys, takes no typing,
/// and looks like the fields that are always locked.
void Lock(QLineEdit* field);
