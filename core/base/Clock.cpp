#include "core/base/Clock.h"

namespace {
std::optional<QDateTime> stoppedAt;
}

QDateTime Clock::Now()
{
    return stoppedAt ? *stoppedAt : QDateTime::currentDateTime();
}

void Clock::Set(std::optional<QDateTime> moment)
{
    stoppedAt = std::move(moment);
}

QString FormatDate(const QDate& date)
{
    return date.toString(QStringLiteral("yyyy-MM-dd"));
}

QString FormatTime(const QTime& time)
{
    return time.toString(QStringLiteral("HH:mm:ss"));
}

namespace {
const QString LongDateFormat = QStringLiteral("yyyy年MM月dd日");
} // namespace

QString LongDate(const QDate& date)
{
    return date.toString(LongDateFormat);
}

QDate ReadLongDate(const QString& text)
{
    return QDate::fromString(text, LongDateFormat);
}
