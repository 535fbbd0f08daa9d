#pragma once

#include <QDateTime>

#include <optional>

/// The only source of date and time: the workstation's local clock. A save reads it once for all its
/// columns.
namespace Clock {

QDateTime Now();

/// Stops the clock at a moment (tests), or lets it run again with std::nullopt.
void Set(std::optional<QDateTime> moment);

} // namespace Clock

/// "yyyy-mm-dd", the form of every date column.
QString FormatDate(const QDate& date);
/// "hh:mm:ss", 24 hours, the form of every time column.
QString FormatTime(const QTime& time);
/// "2026年03月09日": a date as documents and screens show it.
QString LongDate(const QDate& date);

/// The day of such a text; an invalid day for any other.
QDate ReadLongDate(const QString& text);
