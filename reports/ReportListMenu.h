#pragma once

#include <QMenu>

class ListGrid;

/// The menu of the right button over the list of a report; the menu key and Shift+F10 open it, too. Its one
/// entry opens the columns of the report.
class ReportListMenu : public QMenu {
    Q_OBJECT

public:
    /// Belongs to `list` and goes with it.
    explicit ReportListMenu(ListGrid* list);
};
