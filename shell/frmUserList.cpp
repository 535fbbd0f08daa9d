#include "shell/frmUserList.h"

#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/FunctionWindows.h"
#include "core/gateway/DataGateway.h"

#include "ui_frmUserList.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

QString FlagOf(const QCheckBox* check)
{
    return check->isChecked() ? u"1"_s : u"0"_s;
}

} // namespace

frmUserList::frmUserList(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmUserList>())
{
    ui->setupUi(this);
    Chain().Field(ui->txtUserID).AtMost(30).OnChange([this] { LookUp(); });
    Chain().Field(ui->txtUserName).AtMost(60);
    Chain().Field(ui->txtUserPWD).AtMost(60);
    Chain().Field(ui->txtUserIP).AtMost(50);
    Chain().Check(ui->chkIP);
    Chain().Check(ui->chkSearch);
    Chain().Check(ui->chkEdit).OnEnter([this] { Save(); });
    OnPress(ui->cmdSubmit, [this] { Save(); });
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmUserList::~frmUserList() = default;

void frmUserList::SetKey(const QString& key)
{
    WriteText(ui->txtUserID, key);
}

void frmUserList::LookUp()
{
    // Also when the lookup fails: an update of a missing row would save nothing, and the password and the
    // rights on the screen would go in under the new number.
    m_isFound = false;
    ClearUser();
    const RecordSet row =
        Gateway().SelectRows(u"User_List"_s, u"UserName,UserPWD,UserIP,bolIP,bolSearch,bolEdit"_s,
                             u"UserID="_s + Quoted(ui->txtUserID->text().trimmed()));
    m_isFound = !row.Eof();
    if (m_isFound)
        ShowUser(row);
}

void frmUserList::ShowUser(const RecordSet& row)
{
    WriteText(ui->txtUserName, row.Text(0));
    WriteText(ui->txtUserPWD, row.Text(1));
    WriteText(ui->txtUserIP, row.Text(2));
    ui->chkIP->setChecked(row.Text(3) == u"1");
    ui->chkSearch->setChecked(row.Text(4) == u"1");
    ui->chkEdit->setChecked(row.Text(5) == u"1");
}

void frmUserList::ClearUser()
{
    for (QLineEdit* box : {ui->txtUserName, ui->txtUserPWD, ui->txtUserIP})
        WriteText(box, QString());
    for (QCheckBox* check : {ui->chkIP, ui->chkSearch, ui->chkEdit})
        check->setChecked(false);
}

bool frmUserList::IsComplete()
{
    const auto isFilled = [this](QLineEdit* box, const QString& message) {
        return !box->text().trimmed().isEmpty() || Refuse(box, message);
    };
    return isFilled(ui->txtUserID, u"请填写用户编号！"_s) &&
           isFilled(ui->txtUserName, u"请填写用户姓名！"_s) &&
           isFilled(ui->txtUserPWD, u"请填写用户密码！"_s) &&
           (!ui->chkIP->isChecked() || isFilled(ui->txtUserIP, u"请填写用户IP！"_s));
}

void frmUserList::Save()
{
    Guarded(u"新增或修改用户信息"_s, [this] {
        if (!IsComplete())
            return;
        const QString id = Quoted(ui->txtUserID->text().trimmed());
        const QString name = Quoted(ui->txtUserName->text().trimmed());
        const QString password = Quoted(ui->txtUserPWD->text().trimmed());
        const QString address = Quoted(ui->txtUserIP->text().trimmed());
        const QString ip = Quoted(FlagOf(ui->chkIP));
        const QString search = Quoted(FlagOf(ui->chkSearch));
        const QString edit = Quoted(FlagOf(ui->chkEdit));
        if (m_isFound) {
            Gateway().UpdateRows(u"User_List"_s,
                                 u"UserName=%1,UserPWD=%2,UserIP=%3,bolIP=%4,bolSearch=%5,bolEdit=%6"_s.arg(
                                     name, password, address, ip, search, edit),
                                 u"UserID="_s + id);
        } else {
            Gateway().InsertRow(u"User_List"_s, u"UserID,UserName,UserPWD,UserIP,bolIP,bolSearch,bolEdit"_s,
                                QStringList{id, name, password, address, ip, search, edit}.join(u','));
        }
        WriteText(ui->txtUserID, QString());
        ClearUser();
        FocusAndSelect(ui->txtUserID);
        RefreshOpenList();
    });
}
