#include "core/forms/WindowRegistry.h"

#include "core/common/Handlers.h"

#include <QEventLoop>
#include <QPointer>
#include <QWidget>

#include <utility>

void WindowRegistry::Register(const QString& name, const Factory& factory, bool loadsBills)
{
    m_factories.insert(name, factory);
    if (loadsBills)
        m_billWindows.insert(name);
    else
        m_billWindows.remove(name);
}

Form* WindowRegistry::Load(const QString& name, QWidget* owner)
{
    if (Form* loaded = Find(name))
        return loaded;
    const auto factory = m_factories.constFind(name);
    if (factory == m_factories.cend())
        return nullptr;
    Form* form = (*factory)(owner);
    form->Widget()->setObjectName(name);
    m_loaded.insert(name, form);
    return RunLoad(name, form);
}

Form* WindowRegistry::LoadAnew(const QString& name, QWidget* owner)
{
    Form* loaded = Find(name);
    return loaded ? RunLoad(name, loaded) : Load(name, owner);
}

Form* WindowRegistry::RunLoad(const QString& name, Form* form)
{
    try {
        form->OnLoad();
    } catch (...) {
        if (Find(name) == form)
            form->Widget()->close();
        if (Find(name) == form) { // it refused to close
            Unloaded(form);
            form->Widget()->deleteLater();
        }
        throw;
    }
    return Find(name);
}

Form* WindowRegistry::Show(const QString& name, QWidget* owner)
{
    Form* form = Load(name, owner);
    if (form) {
        form->Widget()->show();
        form->Widget()->raise();
        form->Widget()->activateWindow();
    }
    return form;
}

void WindowRegistry::ShowModal(const QString& name, QWidget* owner)
{
    Form* form = Load(name, owner);
    if (!form)
        return;
    const QPointer<QWidget> below = owner;
    {
        const NestedLoop nested;
        QEventLoop loop;
        m_modalLoops.push_back({form, &loop});
        form->Widget()->setWindowModality(Qt::ApplicationModal);
        form->Widget()->show();
        form->Widget()->activateWindow();
        if (Find(name) == form)
            loop.exec();
        m_modalLoops.pop_back();
    }
    if (below)
        below->activateWindow();
}

void WindowRegistry::CloseThenShow(Form* finished, const QString& name, QWidget* owner)
{
    if (!finished->Widget()->close())
        return;
    AfterHandler([this, name, below = QPointer<QWidget>(owner)] { Show(name, below); });
}

void WindowRegistry::Unloaded(Form* form)
{
    m_loaded.removeIf([form](const auto& entry) { return entry.value() == form; });
    for (const ModalLoop& modal : m_modalLoops) {
        if (modal.form == form)
            modal.loop->quit();
    }
    if (!m_loaded.isEmpty() || !m_allUnloaded)
        return;
    // One window may close just before the next one is loaded, or before a box says why: ask again then.
    WhenIdle([this] {
        if (m_loaded.isEmpty() && m_allUnloaded)
            m_allUnloaded();
    });
}

void WindowRegistry::DropAll()
{
    const QHash<QString, Form*> loaded = std::exchange(m_loaded, {});
    QList<QPointer<QWidget>> widgets;
    for (Form* form : loaded)
        widgets.append(form->Widget());
    for (const QPointer<QWidget>& widget : widgets)
        delete widget.data();
}

WindowRegistry& Windows()
{
    static WindowRegistry registry;
    return registry;
}
