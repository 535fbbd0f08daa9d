#pragma once

#include "core/common/Sheet.h"

#include <QFont>
#include <QString>

#include <vector>

class clsPrint;

/// A report as it goes to paper: what stands in its window, and where. All measures are twips.
struct ReportPage {
    struct Caption {
        QString text{};
        double top = 0;
    };

    QString title{};                 ///< its name in the queue
    std::vector<Caption> captions{}; ///< above the list, the uppermost first, at the places of the design
    QFont captionFont{};             ///< name, size and bold of all captions; the list is as bold
    QFont listFont{};                ///< name and size
    double listLeft = 0;             ///< in the design
    double listTop = 0;
    Sheet sheet{};
};

/// Draws a report page by page, behind PrintStartDoc and without EndDoc: captions on the first page only,
/// headings and a number on every one. The table is in the middle of the sheet, or with a `leftOffset` other
/// than 0 that far right of where the design has the list. Nothing is fitted to the sheet: what is wider
/// runs off it.
///
/// `lastPage` ends the drawing with that page; 0 draws all. Answers how many pages were drawn.
/// @throws RunTimeError when the printer refuses
int DrawReport(clsPrint& page, const ReportPage& report, double leftOffset, int lastPage = 0);
