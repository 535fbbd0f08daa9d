#pragma once

#include <QString>
#include <QStringList>

class Form;
class QWidget;

/// The main window's widget, owner of every function window; nullptr before it is loaded.
QWidget* MainFrame();

/// Shows a window by its name, owned by the main window. When the program does not have that window,
/// one box says so and nothing else happens.
void ShowFunctionWindow(const QString& name);

/// Says that the program does not have what was chosen.
void TellNotProvided();

/// Shows a window with a record in it: puts the key into its key field, which loads the rest. A program
/// without that window says so.
void ShowRecord(const QString& window, const QString& key);

/// Shows a window for the adjustment of a saved bill, by its number without "NO.", and returns when it is
/// closed. A window that cannot load bills, or that the program does not have, is said to be missing.
/// @throws what the loading throws; the window is then closed again
void ShowBill(const QString& window, const QString& number);

/// True when the main window's menu entry of this name ("menuESale") is on for the user; false before there
/// is a main window.
bool IsEntryEnabled(const QString& control);

/// The settlement window of this stall, one of the two layouts, as Session::CheckOutStyle says.
QString SettlementWindow();

/// Shows a loaded window inside the main window's work area; on its own before there is a main window.
void ShowInFrame(Form* window);

/// Switches on the main window's toolbar buttons of these keys ("mnuPrint"), until the next menu choice.
void EnableToolbar(const QStringList& buttons);

/// The list window while it is open; nullptr otherwise.
Form* OpenList();

/// Rebuilds the list window's rows, if it is open: a save behind it may have changed them.
/// @throws DatabaseError
void RefreshOpenList();
