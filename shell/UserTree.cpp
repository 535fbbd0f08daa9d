#include "shell/UserTree.h"

#include <QKeyEvent>

UserTree::UserTree(QWidget* parent) : QTreeWidget(parent)
{
    connect(this, &QTreeWidget::itemClicked, this, [this](const QTreeWidgetItem* node) {
        if (!m_pressMarked)
            emit Chosen(node);
    });
}

void UserTree::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QTreeWidget::currentChanged(current, previous);
    m_pressMarked = true;
    if (const QTreeWidgetItem* node = itemFromIndex(current))
        emit Chosen(node);
}

void UserTree::keyPressEvent(QKeyEvent* event)
{
    QTreeWidget::keyPressEvent(event);
    if (const QTreeWidgetItem* node = currentItem(); node && event->key() == Qt::Key_Space)
        emit Chosen(node);
}

void UserTree::mousePressEvent(QMouseEvent* event)
{
    m_pressMarked = false;
    QTreeWidget::mousePressEvent(event);
}
