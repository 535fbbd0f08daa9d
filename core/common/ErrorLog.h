#pragma once

#include <QString>

/// Writes one row of ErrInfo with the date and time of now. Any failure inside is ignored: a description
/// with a quote breaks its own insert, and a lost connection takes no row.
void LogError(const QString& user, const QString& description, const QString& source);
