#include "core/common/ErrorLog.h"

#include "core/base/Clock.h"
#include "core/gateway/DataGateway.h"

#include <QStringList>

using namespace Qt::StringLiterals;

void LogError(const QString& user, const QString& description, const QString& source)
{
    const QDateTime now = Clock::Now();
    try {
        Gateway().InsertRow(u"ErrInfo"_s, u"ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime"_s,
                            QStringList{Quoted(user), Quoted(description), Quoted(source),
                                        Quoted(FormatDate(now.date())), Quoted(FormatTime(now.time()))}
                                .join(u','));
    } catch (const RunTimeError&) {
        // The user has already seen the failure that was to be logged; a second one would only hide it.
    }
}
