#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// How windows speak to each other: found by name in the registry, told through these few calls, never
/// included. What a window does not understand it ignores.
class Form {
public:
    Form() = default;
    virtual ~Form() = default;
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    /// The widget that is shown.
    virtual QWidget* Widget() = 0;

    /// The first steps of the window's life: its statements, its first texts. Runs before the window is
    /// seen, and again when the list window is chosen from the menu while it is open. May throw: the window
    /// is then unloaded again. May close the window.
    virtual void OnLoad() {}

    /// Puts a key into the window's key field; its Change handler fills the rest.
    virtual void SetKey(const QString& /*key*/) {}
    /// Loads a saved bill, by its number without "NO.", for adjustment. A window that has this is registered
    /// as one that loads bills.
    virtual void LoadBill(const QString& /*number*/) {}
    /// Takes the name that a picker was opened for.
    virtual void TakeName(const QString& /*name*/) {}
    /// Rebuilds the window's list.
    virtual void RefreshList() {}
    /// Text behind the where-clause of the window's list, from the next rebuild on: "" or " And ...".
    virtual void SetSearchClause(const QString& /*clause*/) {}
    /// Shows another window inside this one's work area; only the main window has one.
    virtual void Hold(Form* /*window*/) {}
    /// True when the menu entry of this name ("menuESale") is on; only the main window has menus.
    virtual bool IsEntryEnabled(const QString& /*control*/) const { return false; }
    /// Switches the toolbar's buttons of these keys ("mnuPrint"); only the main window has a toolbar.
    virtual void EnableToolbar(const QStringList& /*buttons*/, bool /*enabled*/ = true) {}

    // What the toolbar's buttons do to the window they act on: the list, or the report while the menu key is
    // a report's. Where that window is not open the main window answers.
    virtual void ToolbarNew() {}
    virtual void ToolbarPreview() {}
    virtual void ToolbarPrint() {}
    virtual void ToolbarEdit() {}
    virtual void ToolbarSearch() {}
    virtual void ToolbarDelete() {}
    virtual void ToolbarExport() {}
};
