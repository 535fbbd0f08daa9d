#include "tests/support/MenuCatalogue.h"

#include "core/forms/MenuTable.h"

using namespace Qt::StringLiterals;

QStringList MenuCatalogue()
{
    QStringList catalogue;
    for (const TopMenu& top : MenuBar()) {
        if (top.control == u"menuSysHelp")
            continue;
        for (const MenuEntry& entry : top.entries)
            catalogue << entry.control + u' ' + entry.caption;
    }
    return catalogue;
}

int MenuEntryCount()
{
    int count = 0;
    for (const TopMenu& top : MenuBar())
        count += static_cast<int>(top.entries.size());
    return count;
}

int TopMenuCount()
{
    return static_cast<int>(MenuBar().size());
}
