#pragma once

#include <QString>

#include <optional>

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

    /// The first steps of the window's life: its statements, its first texts. Runs once, before the
    /// window is seen. May throw: the window is then unloaded again. May close the window.
    virtual void OnLoad() {}

    /// Puts a key into the window's key field; its Change handler fills the rest.
    virtual void SetKey(const QString& /*key*/) {}
    /// Loads a saved bill, by its number without "NO.", for adjustment.
    virtual void LoadBill(const QString& /*number*/) {}
    /// Takes the name that a picker was opened for.
    virtual void TakeName(const QString& /*name*/) {}
    /// Rebuilds the window's list.
    virtual void RefreshList() {}
    /// Text behind the where-clause of the window's list, from the next rebuild on: "" or " And ...".
    virtual void SetSearchClause(const QString& /*clause*/) {}
    /// Shows another window inside this one's work area; only the main window has one.
    virtual void Hold(Form* /*window*/) {}
    /// The key of the selected row of the window's list, that is its sub-item 1; none without a row.
    virtual std::optional<QString> SelectedKey() const { return std::nullopt; }
};
