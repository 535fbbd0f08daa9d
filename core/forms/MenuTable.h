#pragma once

#include <QString>
#include <QStringList>

#include <vector>

// What a new menu entry needs:
//  1. its row in MenuTable.cpp;
//  2. its row in Menu_List, in core/schema/seed.sql, so that rights can be given and taken; in an account set
//     without that row the entry is on for everybody;
//  3. its window: one line in app/StartProgram.cpp. Until then the entry says that it is not provided;
//  4. an entry that opens a list: its row in lists/ListTables.cpp; a report: its columns in DFN_RptCol,
//     core/schema/reports.sql;
//  5. its line in help/index.htm.
// The counts that tests expect come from this table.

/// One entry of the menu bar. `control` is what Menu_List and User_Menu call it.
struct MenuEntry {
    QString control;
    QString caption;
    QString key;              ///< what Session::CurrentMenuKey becomes; empty: stays as it was
    QString window;           ///< the form it opens; empty: told apart in frmMain
    QStringList buttons = {}; ///< toolbar buttons it switches on, besides those that every list has
    QString takesBuyer = {};  ///< the window that gets the name of the buyer picker under this key
};

struct TopMenu {
    QString control;
    QString caption;
    std::vector<MenuEntry> entries;
};

/// The menu bar from left to right.
const std::vector<TopMenu>& MenuBar();

/// The entry with this key; nullptr for none, as for an empty key.
const MenuEntry* MenuEntryOf(const QString& key);
