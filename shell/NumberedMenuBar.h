#pragma once

#include <QMenuBar>

/// A menu bar whose menus open by Alt+1, Alt+2, ... from the left, and that shows so: the key stands in small
/// letters behind the caption and is no part of it.
class NumberedMenuBar : public QMenuBar {
    Q_OBJECT

public:
    explicit NumberedMenuBar(QWidget* parent);

    /// Adds a menu at the right end, with its key.
    QMenu* AddMenu(const QString& caption);

protected:
    void paintEvent(QPaintEvent* event) override;
};
