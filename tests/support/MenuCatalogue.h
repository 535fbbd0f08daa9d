#pragma once

#include <QStringList>

/// Every menu entry that rights are given for, "control caption", in the order of the menu bar: all but the
/// help menu's.
QStringList MenuCatalogue();

/// Number of all entries, those of the help menu included, and of the top menus.
int MenuEntryCount();
int TopMenuCount();
