#include "core/logon/frmMultiLogon.h"

#include "ui_frmMultiLogon.h"

#include "core/base/Clock.h"
#include "core/base/IniFile.h"
#include "core/base/Numbers.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/logon/Logon.h"
#include "core/session/ServerDate.h"
#include "core/session/Session.h"
#include "core/session/SessionControl.h"

using namespace Qt::StringLiterals;

frmMultiLogon::frmMultiLogon(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmMultiLogon>())
{
    ui->setupUi(this);
    Chain().Combo(ui->cmbAccName);
    Chain().Field(ui->txtUserName).AtMost(UserNameWidth).MovesOnWhenFilled();
    Chain().Field(ui->txtUserPWD).OnEnter([this] { Submit(); });
    OnPress(ui->cmdSubmit, [this] { Submit(); });
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmMultiLogon::~frmMultiLogon() = default;

void frmMultiLogon::OnLoad()
{
    const QString config = ConfigIniPath();
    const int sets = ToInt16(LeadingNumber(ReadIniValue(config, u"Define"_s, u"AccNum"_s)));
    for (int n = 1; n <= sets; ++n)
        ui->cmbAccName->addItem(ReadIniValue(config, u"Acc%1"_s.arg(n), u"AccName"_s));
    ui->cmbAccName->setCurrentIndex(0);
    m_isConnected = false;
    ui->txtUserName->setText(ReadIniValue(config, u"Define"_s, u"UserName"_s));
}

void frmMultiLogon::Submit()
{
    const QString name = ui->txtUserName->text().trimmed();
    const QString password = ui->txtUserPWD->text().trimmed();
    if (name.isEmpty()) {
        Refuse(ui->txtUserName, u"用户名为空！"_s);
        return;
    }
    if (password.isEmpty()) {
        Refuse(ui->txtUserPWD, u"密码为空！"_s);
        return;
    }
    if (!ChooseAccountSet() || !IsInStepWithServer() || !Connect())
        return;
    if (TryLogon(name, password, UnknownName::Refuse)) {
        close();
        EnterMainWindow();
    }
}

bool frmMultiLogon::ChooseAccountSet()
{
    const QString section = u"Acc%1"_s.arg(ui->cmbAccName->currentIndex() + 1);
    Session::DataIniPath = ProgramPath(ReadIniValue(ConfigIniPath(), section, u"ConnFile"_s));
    if (!FileExists(Session::DataIniPath)) {
        ShowInfo(u"数据库配置文件未找到，请检查系统文件的完整性!"_s);
        m_isConnected = false;
        return false;
    }
    Session::ClientFlag = ReadIniValue(ConfigIniPath(), section, u"Client"_s);
    return true;
}

bool frmMultiLogon::IsInStepWithServer()
{
    if (Session::ClientFlag != u"1")
        return true;
    if (ReadIniValue(Session::DataIniPath, u"DataProp"_s, u"ServerName"_s).isEmpty()) {
        ShowInfo(u"数据库配置错误，请重新配置！"_s);
        close();
        return false;
    }
    const auto date = FetchServerDate(Session::DataIniPath);
    if (!date) {
        ShowInfo(ServerUnreachable);
        Windows().Show(u"frmDBC"_s, nullptr);
        close();
        return false;
    }
    Session::ServerDate = *date;
    if (date->compare(FormatDate(Clock::Now().date()), Qt::CaseInsensitive) != 0) {
        ShowInfo(ClockOutOfStep);
        close();
        return false;
    }
    return true;
}

bool frmMultiLogon::Connect()
{
    if (!m_isConnected)
        Gateway().OpenConnection(Session::DataIniPath);
    const QString error = Gateway().LastError();
    if (!error.isEmpty()) {
        ShowInfo(u"数据库连接失败，错误信息如下："_s + u"\r\n"_s + error);
        Gateway().CloseConnection();
        return false;
    }
    m_isConnected = true;
    return true;
}
