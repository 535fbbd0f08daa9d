#include "core/common/ErrorLog.h"

#include "core/base/Clock.h"
#include "core/gateway/DataGateway.h"

using namespace Qt::StringLiterals;

void LogError(const QString& user, const QString& description, const QString& source)
{
    const QDateTime now = Clock::Now();
    try {
        Gateway().InsertRow(u"ErrInfo"_s, u"ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime"_s,
                            u"'"_s + user + u"','"_s + description + u"','"_s + source + u"','"_s +
                                FormatDate(now.date()) + u"','"_s + FormatTime(now.time()) + u"'"_s);
    } catch (const RunTimeError&) {
        // The user has already seen the failure that was to be logged; a second one would only hide it.
    }
}
