#include "core/logon/frmDBC.h"

#include "ui_frmDBC.h"

#include "core/base/IniFile.h"
#include "core/base/ProgramFiles.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/gateway/ConnectionSettings.h"
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
    Chain().Field(ui->txtDatabase).AtMost(IniValueLength).TakesQuotes().OnEnter([this] { Save(); });
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
    ToldAfterwards([this, &ini] {
        // What the file does not say key by key stands in its connection text. The stored password is
        // never shown: saving without typing it anew blanks it in the file.
        const ConnectionSettings used = ReadConnectionSettings(ini);
        const auto said = [&ini](const QString& key, const QString& otherwise) {
            const QString value = ReadIniValue(ini, u"DataProp"_s, key);
            return value.isEmpty() ? otherwise : value;
        };
        ui->txtServer->setText(said(u"ServerName"_s, used.server));
        ui->txtUID->setText(said(u"UserID"_s, used.user));
        ui->txtDatabase->setText(said(u"DataBase"_s, used.database));
    });
}

void frmDBC::Save()
{
    const QString ini = Session::DataIniPath;
    const QString server = ui->txtServer->text();
    KeepOldIni(ini); // port, socket, user and password of the connection text are not on the screen
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
