#pragma once

#include <QString>

class QWidget;

/// Sets the focus on a control and, where it is a text box, selects the whole text.
void FocusAndSelect(QWidget* field);
