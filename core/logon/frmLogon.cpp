#include "core/logon/frmLogon.h"

#include "ui_frmLogon.h"

#include "core/base/Clock.h"
#include "core/base/IniFile.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/common/Waiting.h"
#include "core/forms/Fields.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/logon/Logon.h"
#include "core/session/ServerDate.h"
#include "core/session/Session.h"
#include "core/session/SessionControl.h"

#include <QApplication>
#include <QPointer>

using namespace Qt::StringLiterals;

frmLogon::frmLogon(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmLogon>())
{
    ui->setupUi(this);
    ui->cmbUserName->setCompleter(nullptr); // a typed name is that name, not the first that begins so
    Chain().Combo(ui->cmbUserName).AtMost(UserNameWidth);
    Chain().Field(ui->txtUserPWD).OnEnter([this] { Submit(); });
    OnPress(ui->cmdSubmit, [this] { Submit(); });
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmLogon::~frmLogon() = default;

void frmLogon::OnLoad()
{
    Session::DataIniPath = ProgramPath(u"\\Data\\Data.ini"_s);
    if (!FileExists(Session::DataIniPath)) {
        ShowInfo(u"数据库配置文件未找到,请重新配置!"_s);
        close();
        return;
    }
    if (!FileExists(ConfigIniPath())) {
        ShowInfo(u"系统配置文件未找到，程序中止。"_s);
        close();
        return;
    }
    Session::ClientFlag = ReadIniValue(ConfigIniPath(), u"Define"_s, u"Client"_s);
    if (Session::ClientFlag == u"1")
        ConnectAsWorkstation();
    else
        ConnectAsMainMachine();
}

void frmLogon::ConnectAsMainMachine()
{
    Gateway().OpenConnection(Session::DataIniPath);
    FillUserNames();
}

void frmLogon::ConnectAsWorkstation()
{
    if (ReadIniValue(Session::DataIniPath, u"DataProp"_s, u"ServerName"_s).isEmpty()) {
        ShowInfo(u"数据库配置错误,请重新配置！"_s);
        close();
        Windows().Show(u"frmDBC"_s, nullptr);
        return;
    }
    // The date may arrive after this form is gone: it still counts for the session.
    FetchServerDateLater(Session::DataIniPath, qApp,
                         [form = QPointer<frmLogon>(this)](const std::optional<QString>& date) {
                             if (date)
                                 Session::ServerDate = *date;
                             AfterWait([form, date] {
                                 if (form && form->isEnabled())
                                     RunHandler([form, date] { form->ServerDateArrived(date); });
                             });
                         });
    Gateway().OpenConnection(Session::DataIniPath);
}

void frmLogon::ServerDateArrived(const std::optional<QString>& date)
{
    if (Windows().Find(objectName()) != this)
        return; // closed since
    if (!date) {
        ShowInfo(ServerUnreachable);
        Windows().Show(u"frmDBC"_s, nullptr);
        close();
    } else if (date->compare(FormatDate(Clock::Now().date()), Qt::CaseInsensitive) != 0) {
        ShowInfo(ClockOutOfStep);
        close();
    } else {
        FillUserNames();
    }
}

void frmLogon::FillUserNames()
{
    GuardedUnlogged([this] {
        const QString typed = ui->cmbUserName->currentText();
        RecordSet users = Gateway().SelectRows(u"User_List"_s, u"UserName"_s, QString());
        for (; !users.Eof(); users.MoveNext())
            ui->cmbUserName->addItem(users.Text(0));
        ui->cmbUserName->setCurrentIndex(-1);
        ui->cmbUserName->setEditText(typed);
    });
}

void frmLogon::Submit()
{
    const QString name = ui->cmbUserName->currentText().trimmed();
    const QString password = ui->txtUserPWD->text().trimmed();
    if (name.isEmpty()) {
        Refuse(ui->cmbUserName, u"用户名为空！"_s);
        return;
    }
    if (password.isEmpty()) {
        Refuse(ui->txtUserPWD, u"密码为空！"_s);
        return;
    }
    if (TryLogon(name, password, UnknownName::ReadAnyway)) {
        close();
        EnterMainWindow();
    }
}
