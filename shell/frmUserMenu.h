#pragma once

#include "core/forms/FormWindow.h"

#include <memory>

class QTreeWidgetItem;

namespace Ui {
class frmUserMenu;
}

/// Which menu entries each user may use: the users in a tree, the entries in a check list. Clicking a
/// user shows his rights, and so does moving to him with the keys, so that the marked user is the one
/// whose rights are shown and saved. They count from his next logon on.
class frmUserMenu : public FormWindow {
    Q_OBJECT

public:
    explicit frmUserMenu(QWidget* owner = nullptr);
    ~frmUserMenu() override;

    void OnLoad() override;

private:
    void ClickNode(const QTreeWidgetItem* node);
    void ShowUserRights(const QString& user);
    void Save();
    /// Says above the check list whose rights these are, and how they stand.
    void ShowState(const QString& state);

    std::unique_ptr<Ui::frmUserMenu> ui;
    QString m_user;     ///< the number of the user in hand; empty: nobody was clicked yet
    QString m_userName; ///< his name
};
