#include "core/session/SessionControl.h"

#include "core/base/Clock.h"
#include "core/base/IniFile.h"
#include "core/base/Numbers.h"
#include "core/base/ProgramFiles.h"
#include "core/base/RunTimeError.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

#include <QScopeGuard>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr std::int16_t PaperA4 = 9; // the printing system's code of A4

void RememberUser(const QString& config)
{
    try {
        WriteIniValue(config, u"Define"_s, u"UserName"_s, Session::CurrentUserName);
    } catch (const RunTimeError&) {
        // A program folder that the cashier may not write to costs him the proposed name, not the logon.
    }
}

} // namespace

QString ConfigIniPath()
{
    return ProgramPath(u"\\Config.ini"_s);
}

void StartSession()
{
    const QDateTime now = Clock::Now();
    Session::SessionCheckID = now.toString(u"HHmmss"_s);
    Gateway().InsertRow(u"User_Status"_s, u"UserID,CheckID,LogDate,LogTime"_s,
                        QStringList{Quoted(Session::CurrentUserID), Quoted(Session::SessionCheckID),
                                    Quoted(FormatDate(now.date())), Quoted(FormatTime(now.time()))}
                            .join(u','));
    const QString config = ConfigIniPath();
    if (Session::ClientFlag == u"1")
        RememberUser(config);
    Session::PaperSizeCode = FileExists(config)
                                 ? ToInt16(LeadingNumber(ReadIniValue(config, u"Define"_s, u"PaperSize"_s)))
                                 : PaperA4;
    const RecordSet define =
        Gateway().SelectRows(u"Sys_Define"_s, u"Control_Sale,CheckOutStyle"_s, QString());
    if (!define.Eof()) {
        Session::SaleStockControl = define.Text(0);
        Session::CheckOutStyle = define.Text(1);
    }
}

bool CheckSession()
{
    const RecordSet status =
        Gateway().SelectRows(u"User_Status"_s, u"CheckID"_s, u"UserID="_s + Quoted(Session::CurrentUserID));
    return !status.Eof() && status.Text(0).compare(Session::SessionCheckID, Qt::CaseInsensitive) == 0;
}

void EndSession()
{
    const auto close = qScopeGuard([] { Gateway().CloseConnection(); });
    Gateway().DeleteRows(u"User_Status"_s, u"UserID="_s + Quoted(Session::CurrentUserID) +
                                               u" And CheckID="_s + Quoted(Session::SessionCheckID));
}

void AbandonSession()
{
    try {
        EndSession();
    } catch (const RunTimeError&) {
        // The next logon of the user sweeps the row away.
    }
}

bool IsOutOfStepWithServer()
{
    return Session::ClientFlag == u"1" &&
           FormatDate(Clock::Now().date()).compare(Session::ServerDate, Qt::CaseInsensitive) != 0;
}
