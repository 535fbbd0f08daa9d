#pragma once

#include <QStringList>

/// The place in `names` of the entry that a typed beginning stands for: the first that begins with it,
/// else the first that contains it, without regard to case; -1 for an empty text or no such entry.
qsizetype FirstMatch(const QStringList& names, const QString& typed);
