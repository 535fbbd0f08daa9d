#include "core/forms/FunctionWindows.h"

#include "core/common/Messages.h"
#include "core/forms/WindowRegistry.h"
#include "core/session/Session.h"

#include <QScopeGuard>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

Form* Frame()
{
    return Windows().Find(u"frmMain"_s);
}

} // namespace

QWidget* MainFrame()
{
    return Frame() ? Frame()->Widget() : nullptr;
}

void ShowFunctionWindow(const QString& name)
{
    if (Windows().Knows(name))
        Windows().Show(name, MainFrame());
    else
        TellNotProvided();
}

void TellNotProvided()
{
    ShowInfo(u"此功能在本版本中尚未提供。"_s);
}

void ShowRecord(const QString& window, const QString& key)
{
    if (!Windows().Knows(window)) {
        TellNotProvided();
        return;
    }
    Form* form = Windows().Load(window, MainFrame());
    if (!form)
        return;
    // A key that cannot be read is told, but must not leave a loaded window that nobody sees.
    const auto show = qScopeGuard([&window] { ShowFunctionWindow(window); });
    form->SetKey(key);
}

void ShowBill(const QString& window, const QString& number)
{
    if (!Windows().LoadsBills(window)) {
        TellNotProvided();
        return;
    }
    Form* form = Windows().Load(window, MainFrame());
    if (!form)
        return;
    try {
        form->LoadBill(number);
    } catch (...) {
        form->Widget()->close();
        throw;
    }
    Windows().ShowModal(window, MainFrame());
}

bool IsEntryEnabled(const QString& control)
{
    return Frame() && Frame()->IsEntryEnabled(control);
}

QString SettlementWindow()
{
    return Session::CheckOutStyle == u"1" ? u"frmCheckOutA"_s : u"frmCheckOut"_s;
}

void ShowInFrame(Form* window)
{
    if (Form* frame = Frame())
        frame->Hold(window);
    else
        window->Widget()->show();
}

void EnableToolbar(const QStringList& buttons)
{
    if (Form* frame = Frame())
        frame->EnableToolbar(buttons);
}

Form* OpenList()
{
    return Windows().Find(u"frmDataList"_s);
}

void RefreshOpenList()
{
    if (Form* list = OpenList())
        list->RefreshList();
}
