#include "masterdata/NameMatch.h"

#include <algorithm>

qsizetype FirstMatch(const QStringList& names, const QString& typed)
{
    if (typed.isEmpty())
        return -1;
    auto match = std::find_if(names.begin(), names.end(), [&typed](const QString& name) {
        return name.startsWith(typed, Qt::CaseInsensitive);
    });
    if (match == names.end())
        match = std::find_if(names.begin(), names.end(), [&typed](const QString& name) {
            return name.contains(typed, Qt::CaseInsensitive);
        });
    return match == names.end() ? -1 : match - names.begin();
}
