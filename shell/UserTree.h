#pragma once

#include <QTreeWidget>

/// A tree in which the marked node is always the chosen one, however it came to be marked: by the mouse,
/// the arrow keys or by typing the start of a name. A click on the marked node, or the space bar on it,
/// chooses it again.
class UserTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit UserTree(QWidget* parent = nullptr);

signals:
    void Chosen(const QTreeWidgetItem* node);

protected:
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    bool m_pressMarked = false; ///< the press of the present click has chosen its node
};
