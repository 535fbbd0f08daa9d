#pragma once

#include <QString>

/// True when the two texts are one to the server, whose columns compare without case, accents and blanks
/// at the end.
bool IsSameText(const QString& left, const QString& right);
