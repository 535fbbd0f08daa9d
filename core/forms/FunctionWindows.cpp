#include "core/forms/FunctionWindows.h"

#include "core/common/Messages.h"
#include "core/forms/WindowRegistry.h"

#include <QHash>
#include <QScopeGuard>
#include <QWidget>

using namespace Qt::StringLiterals;

QString RecordFormOf(const QString& menuKey)
{
    static const QHash<QString, QString> forms{
        {u"UserList"_s, u"frmUserList"_s}, {u"Sales"_s, u"frmSales"_s},     {u"PRDSort"_s, u"frmPRDSort"_s},
        {u"CustList"_s, u"frmCustList"_s}, {u"PRDList"_s, u"frmPRDList"_s}, {u"PackSort"_s, u"frmPackSort"_s},
        {u"FeeType"_s, u"frmFeeType"_s},
    };
    return forms.value(menuKey);
}

QWidget* MainFrame()
{
    Form* frame = Windows().Find(u"frmMain"_s);
    return frame ? frame->Widget() : nullptr;
}

void ShowFunctionWindow(const QString& name)
{
    if (Windows().Knows(name))
        Windows().Show(name, MainFrame());
    else
        ShowInfo(u"此功能在本版本中尚未提供。"_s);
}

void ShowInFrame(Form* window)
{
    if (Form* frame = Windows().Find(u"frmMain"_s))
        frame->Hold(window);
    else
        window->Widget()->show();
}

void EditRecord(const QString& menuKey, const QString& key)
{
    const QString name = RecordFormOf(menuKey);
    if (name.isEmpty())
        return;
    if (!Windows().Knows(name)) {
        ShowFunctionWindow(name);
        return;
    }
    Form* form = Windows().Load(name, MainFrame());
    if (!form)
        return;
    // A key that cannot be read is told, but must not leave a loaded window that nobody sees.
    const auto show = qScopeGuard([&name] { ShowFunctionWindow(name); });
    form->SetKey(key);
}
