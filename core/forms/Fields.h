#pragma once

#include <QString>

class QLabel;
class QLineEdit;
class QWidget;

/// Sets the focus on a control and, where it is a text box, selects the whole text; in a date the first part
/// of it, from where typing goes on to the next.
void FocusAndSelect(QWidget* field);

/// Locks a field while the window stands: it shows its text, is reached by the keys, takes no typing,
/// and looks like the fields that are always locked.
void Lock(QLineEdit* field);

/// Shows a heading in the middle of its form, as wide as its text: on paper a label begins at its left
/// edge, so that only such a one is centred there as well.
void ShowCentred(QLabel* heading, const QString& text);
