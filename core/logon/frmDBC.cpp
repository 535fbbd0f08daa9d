#include "core/logon/frmDBC.h"

#include "ui_frmDBC.h"

#include "core/base/IniFile.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Messages.h"
#include "core/session/Session.h"

using namespace Qt::StringLiterals;

frmDBC::frmDBC(QWidget* owner) : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmDBC>())
{
    ui->setupUi(this);
    ui->txtUID->setText(u"root"_s);
    ui->txtDatabase->setText(u"Orvane_PUB"_s);
    Chain().Field(ui->txtServer).AtMost(IniValueLength).TakesQuotes();
    Chain().Field(ui->txtUID).AtMost(IniValueLength).TakesQuotes();
    Chain().Field(ui->txtPWD).AtMost(IniValueLength).TakesQuotes();
    Chain().Field(ui->txtDatabase).AtMost(IniValueLength).TakesQuotes();
    OnPress(
        ui->cmdOK, [this] { Save(); }, QKeySequence(u"Alt+S"_s));
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmDBC::~frmDBC() = default;

void frmDBC::OnLoad()
{
    const QString ini = Session::DataIniPath;
    if (!FileExists(ini))
        return;
    ui->txtServer->setText(ReadIniValue(ini, u"DataProp"_s, u"ServerName"_s));
    ui->txtUID->setText(ReadIniValue(ini, u"DataProp"_s, u"UserID"_s));
    ui->txtDatabase->setText(ReadIniValue(ini, u"DataProp"_s, u"DataBase"_s));
    // The stored password is never shown. Saving without typing it anew blanks it in the file.
}

void frmDBC::Save()
{
    const QString ini = Session::DataIniPath;
    const QString server = ui->txtServer->text();
    WriteIniValue(ini, u"DataProp"_s, u"ServerName"_s, server);
    WriteIniValue(ini, u"DataProp"_s, u"UserID"_s, ui->txtUID->text());
    WriteIniValue(ini, u"DataProp"_s, u"PWD"_s, ui->txtPWD->text());
    WriteIniValue(ini, u"DataProp"_s, u"DataBase"_s, ui->txtDatabase->text());
    WriteIniValue(ini, u"DBType"_s, u"Drive"_s, u"MYSQL"_s);
    // Only the server follows the form; database, user and password of the text are constants.
    WriteIniValue(ini, u"MYSQL"_s, u"ConnStr"_s,
                  u"DRIVER={MySQL ODBC 3.51 Driver};SERVER="_s + server +
                      u";DATABASE=Orvane_PUB;UID=root;PWD=;"_s);
    ShowInfo(u"请重新启动程序！"_s);
    close();
}
