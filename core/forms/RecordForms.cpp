#include "core/forms/RecordForms.h"

#include "core/common/Messages.h"
#include "core/forms/WindowRegistry.h"

#include <QHash>
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

void EditRecord(const QString& menuKey, const QString& key)
{
    const QString name = RecordFormOf(menuKey);
    if (name.isEmpty())
        return;
    if (Form* form = Windows().Load(name, MainFrame())) {
        try {
            form->SetKey(key);
        } catch (...) {
            // Left loaded and unseen it would hold the slot with nothing to close.
            ShowFunctionWindow(name);
            throw;
        }
    }
    ShowFunctionWindow(name);
}
