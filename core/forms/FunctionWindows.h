#pragma once

#include <QString>

class Form;
class QWidget;

/// The edit window of a list, by the menu key of the list: "Sales" gives "frmSales"; "" for a key whose
/// list has none.
QString RecordFormOf(const QString& menuKey);

/// The main window's widget, owner of every function window; nullptr before it is loaded.
QWidget* MainFrame();

/// Shows a window by its name, owned by the main window. When the program does not have that window,
/// one box says so and nothing else happens.
void ShowFunctionWindow(const QString& name);

/// Shows a loaded window inside the main window's work area; on its own before there is a main window.
void ShowInFrame(Form* window);

/// Opens the edit window of the list and puts the key into its key field, which loads the record.
void EditRecord(const QString& menuKey, const QString& key);
