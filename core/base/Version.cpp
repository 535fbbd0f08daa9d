#include "core/base/Version.h"

QString ProgramVersion()
{
    return QStringLiteral(ORVANE_VERSION);
}
