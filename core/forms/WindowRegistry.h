#pragma once

#include "core/forms/Form.h"

#include <QHash>
#include <QSet>
#include <QString>

#include <functional>
#include <vector>

class QEventLoop;

/// The windows of the program by their names. There is one of each at the most.
class WindowRegistry {
public:
    using Factory = std::function<Form*(QWidget* owner)>;

    /// Makes a window known. Its object name becomes the name. `loadsBills` where it has a LoadBill of its
    /// own.
    void Register(const QString& name, const Factory& factory, bool loadsBills = false);
    bool Knows(const QString& name) const { return m_factories.contains(name); }
    /// True for a window that can be asked for a saved bill.
    bool LoadsBills(const QString& name) const { return m_billWindows.contains(name); }

    /// The window while it is loaded, shown or not; nullptr otherwise.
    Form* Find(const QString& name) const { return m_loaded.value(name); }

    /// The loaded window, or a new one after its OnLoad. nullptr when the load closed it, or when no such
    /// window is known. What OnLoad throws leaves the window unloaded and comes out here.
    Form* Load(const QString& name, QWidget* owner);

    /// Load; a window that is loaded already begins anew by its OnLoad, and is unloaded when that throws.
    Form* LoadAnew(const QString& name, QWidget* owner);

    /// Load, then show it in front with the keyboard.
    Form* Show(const QString& name, QWidget* owner);

    /// Load, show it over everything else, and return when it is closed. The owner gets the keyboard back.
    void ShowModal(const QString& name, QWidget* owner);

    /// Closes a window that has done its work; when the handler under way is over, shows the other one. Not
    /// shown when the first refused to close.
    void CloseThenShow(Form* finished, const QString& name, QWidget* owner);

    /// A window tells that it has closed.
    void Unloaded(Form* form);

    /// Called from the event loop once no window is loaded and no handler under way any more: the process has
    /// nothing left to do.
    void SetAllUnloadedHandler(std::function<void()> handler) { m_allUnloaded = std::move(handler); }

    /// Destroys every loaded window without its closing handler. For tests.
    void DropAll();

private:
    Form* RunLoad(const QString& name, Form* form);

    struct ModalLoop {
        Form* form;
        QEventLoop* loop;
    };

    QHash<QString, Factory> m_factories;
    QSet<QString> m_billWindows;
    std::vector<ModalLoop> m_modalLoops; ///< windows shown modally, the topmost last
    QHash<QString, Form*> m_loaded;
    std::function<void()> m_allUnloaded;
};

WindowRegistry& Windows();
