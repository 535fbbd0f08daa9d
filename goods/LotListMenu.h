#pragma once

#include <QMenu>

#include <functional>
#include <utility>
#include <vector>

class QAction;

/// The menu of the right button over the list of lots: its orders, and the switch for every stock figure.
/// Both are settings of the whole stall.
class LotListMenu : public QMenu {
    Q_OBJECT

public:
    /// `rebuild` shows the list anew after a choice.
    LotListMenu(QWidget* parent, std::function<void()> rebuild);

    /// Shows the menu with what is in force checked. @throws DatabaseError
    void ShowAt(const QPoint& globalPosition);

private:
    QAction* Add(const QString& name, const QString& caption, const std::function<void()>& choose);
    void AddOrder(const QString& name, const QString& caption, const QString& order);
    void Set(const QString& assignment);

    std::function<void()> m_rebuild;
    std::vector<std::pair<QAction*, QString>> m_orders; ///< each with its text in Sys_Define.PRD_Order
    QAction* m_showStock = nullptr;
};
