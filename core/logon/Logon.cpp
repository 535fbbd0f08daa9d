#include "core/logon/Logon.h"

#include "core/base/RunTimeError.h"
#include "core/base/Texts.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/LocalAddress.h"
#include "core/session/Session.h"
#include "core/session/SessionControl.h"

#include <QWidget>

using namespace Qt::StringLiterals;

const QString ServerUnreachable = u"服务端未启动或配置错误！"_s;
const QString ClockOutOfStep = u"本地时间与服务器时间不同步，请修正后再登录！"_s;

namespace {

bool CheckUser(const QString& name, const QString& password, UnknownName unknownName)
{
    RecordSet user = Gateway().SelectRows(u"User_List"_s, u"UserID,UserName,UserPWD,UserIP"_s,
                                          u"UserName='"_s + name + u"'"_s);
    // Quotes go into the statement as they are typed, so that a "name" can bring a row of its own.
    while (!user.Eof() && !IsSameText(user.Text(1), name))
        user.MoveNext();
    if (unknownName == UnknownName::Refuse && user.Eof()) {
        ShowInfo(u"不存在的用户名！"_s);
        return false;
    }
    if (user.Text(2).trimmed() != password.trimmed()) {
        ShowInfo(u"用户名与密码不匹配！"_s);
        return false;
    }
    Session::CurrentUserID = user.Text(0);
    Session::CurrentUserName = user.Text(1);
    // Before the address check: even a logon refused there ends the earlier session.
    Gateway().DeleteRows(u"User_Status"_s, u"UserID='"_s + Session::CurrentUserID + u"' Or UserID=''"_s);
    if (UserMustMatchAddress(Session::CurrentUserID) &&
        user.Text(3).compare(LocalIP(), Qt::CaseInsensitive) != 0) {
        ShowInfo(u"对不起，用户IP身份验证失败！"_s);
        return false;
    }
    return true;
}

} // namespace

bool TryLogon(const QString& name, const QString& password, UnknownName unknownName)
{
    try {
        return CheckUser(name, password, unknownName);
    } catch (const RunTimeError& error) {
        ShowErrorMessage(error);
        return false;
    }
}

void EnterMainWindow()
{
    try {
        if (Form* frame = Windows().Load(u"frmMain"_s, nullptr))
            Windows().Show(u"frmSpash"_s, frame->Widget());
    } catch (const RunTimeError& error) {
        ShowErrorMessage(error);
        AbandonSession();
        if (Form* splash = Windows().Find(u"frmSpash"_s))
            splash->Widget()->close();
    }
}
