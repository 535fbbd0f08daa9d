#pragma once

#include "core/forms/FormWindow.h"
#include "core/forms/WindowRegistry.h"

#include <QCloseEvent>
#include <QLineEdit>
#include <QVBoxLayout>

#include <functional>
#include <utility>

/// A window without rules of its own: the test puts the controls into it and wires them.
class ProbeForm : public FormWindow {
public:
    using Setup = std::function<void(ProbeForm&)>;

    ProbeForm(QWidget* owner, SlotUse slot, const Setup& setup)
        : FormWindow(owner, slot), m_layout(new QVBoxLayout(this))
    {
        setMinimumSize(200, 100);
        if (setup)
            setup(*this);
    }

    /// Adds a control under a name.
    template <typename Control = QLineEdit>
    Control* Add(const QString& name)
    {
        auto* control = new Control(this);
        control->setObjectName(name);
        m_layout->addWidget(control);
        return control;
    }

    void OnLoad() override
    {
        if (onLoad)
            onLoad();
    }
    void SetKey(const QString& key) override
    {
        if (onKey)
            onKey(key);
    }

    std::function<void()> onLoad;
    std::function<void(const QString&)> onKey;

    bool refusesToClose = false;

    using FormWindow::Chain;
    using FormWindow::CloseThenShow;
    using FormWindow::Guarded;
    using FormWindow::GuardedUnlogged;
    using FormWindow::OnPress;
    using FormWindow::Refuse;
    using FormWindow::TextBoxes;

protected:
    void closeEvent(QCloseEvent* event) override
    {
        if (refusesToClose)
            event->ignore();
        else
            FormWindow::closeEvent(event);
    }

private:
    QVBoxLayout* m_layout;
};

/// Makes a probe known under a name.
inline void RegisterProbe(const QString& name, ProbeForm::Setup setup, SlotUse slot = SlotUse::Untouched)
{
    Windows().Register(
        name, [setup = std::move(setup), slot](QWidget* owner) { return new ProbeForm(owner, slot, setup); });
}
