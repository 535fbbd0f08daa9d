#pragma once

#include "core/forms/ListContents.h"

#include <QString>

/// How the list of lots is shown: settings of the whole stall, which every workstation's next rebuild
/// follows.
struct LotView {
    QString order = QStringLiteral(" Order By ID Desc"); ///< the end of the statement: newest delivery first
    bool isDetailed = false;                             ///< every stock figure, computed from the movements
};

/// The settings as they stand; the default ones before there are any. @throws DatabaseError
LotView ReadLotView();

/// The open lots. `filter` is "" or " And ...", behind the condition of the statement. The short form takes
/// one more statement a lot, the detailed form four. @throws DatabaseError
ListContents ReadLots(const QString& filter);
