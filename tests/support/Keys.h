#pragma once

#include <QString>
#include <Qt>

#include <functional>

class QWidget;

// The keyboard of the tests: every key goes to the widget that has the focus, wherever that is.

/// Object name of the widget with the focus, "" without one.
QString FocusName();

/// One key, then the events it set off.
void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Types a text: Latin characters as keys, any other by the input method.
void Type(const QString& text);

/// Checks that the named control has the focus, replaces its selection by the text, and presses Enter.
void Enter(const QString& control, const QString& text);

/// A left click in the middle of a control.
void Click(QWidget* control);
void DoubleClick(QWidget* control);

/// Runs events until the condition holds; fails the test when it does not within ten seconds.
void WaitFor(const std::function<bool()>& condition);

/// Runs the events that wait.
void Settle();
