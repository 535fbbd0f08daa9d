#pragma once

#include <QString>

#include <vector>

/// One entry of the menu bar. `control` is what Menu_List and User_Menu call it.
struct MenuEntry {
    QString control;
    QString caption;
    QString key;    ///< what Session::CurrentMenuKey becomes; empty: stays as it was
    QString window; ///< the form it opens; empty: told apart in frmMain
};

struct TopMenu {
    QString control;
    QString caption;
    std::vector<MenuEntry> entries;
};

/// The menu bar from left to right.
const std::vector<TopMenu>& MenuBar();
