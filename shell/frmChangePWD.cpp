#include "shell/frmChangePWD.h"

#include "core/base/Texts.h"
#include "core/common/Messages.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

#include "ui_frmChangePWD.h"

using namespace Qt::StringLiterals;

frmChangePWD::frmChangePWD(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmChangePWD>())
{
    ui->setupUi(this);
    Chain().Field(ui->txtOldPWD).AtMost(60);
    Chain().Field(ui->txtNewPWD).AtMost(60);
    Chain().Field(ui->txtConfirmPWD).AtMost(60).OnEnter([this] { Save(); });
    OnPress(ui->cmdSubmit, [this] { Save(); });
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmChangePWD::~frmChangePWD() = default;

void frmChangePWD::Save()
{
    GuardedUnlogged([this] {
        // Passwords count here to the last blank, unlike at the logon.
        const QString oldPassword = ui->txtOldPWD->text();
        const QString newPassword = ui->txtNewPWD->text();
        const QString confirmation = ui->txtConfirmPWD->text();
        if (oldPassword.isEmpty())
            return void(Refuse(ui->txtOldPWD, u"请输入原密码！"_s));
        if (newPassword.isEmpty())
            return void(Refuse(ui->txtNewPWD, u"请输入新密码！"_s));
        if (confirmation.isEmpty())
            return void(Refuse(ui->txtConfirmPWD, u"请确认密码！"_s));
        if (newPassword != confirmation)
            return void(Refuse(ui->txtConfirmPWD, u"新密码与确认密码不一致！"_s));
        const QString user = u"UserID='"_s + Session::CurrentUserID + u"'"_s;
        const RecordSet stored = Gateway().SelectRows(u"User_List"_s, u"UserPWD"_s, user);
        if (stored.Eof())
            return ShowInfo(u"用户信息校验错误，您不可以修改密码！"_s);
        if (stored.Text(0) != oldPassword)
            return void(Refuse(ui->txtOldPWD, u"原密码输入错误!"_s));
        Gateway().UpdateRows(u"User_List"_s, u"UserPWD='"_s + newPassword + u"'"_s, user);
        const RecordSet saved = Gateway().SelectRows(u"User_List"_s, u"UserID"_s,
                                                     user + u" And UserPWD='"_s + newPassword + u"'"_s);
        // A quote in the password can bring the rows of others.
        const bool isHis = saved.RecordCount() == 1 && IsSameText(saved.Text(0), Session::CurrentUserID);
        ShowInfo(isHis ? u"密码修改成功，新密码将在下次启动时生效！"_s : u"密码修改失败！请联系管理员！"_s);
    });
}
