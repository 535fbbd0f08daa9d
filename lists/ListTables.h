#pragma once

#include "core/forms/ListGrid.h"

#include <QString>

#include <vector>

/// One column of a list: how its values are shown and where they stand.
struct ListColumn {
    enum class Kind {
        Text,
        Number, ///< to the right
        Flag,   ///< a check mark for "1", centred
    };

    QString header;
    int widthTwips = 0;
    Kind kind = Kind::Text;
};

/// A list that is one statement: a table, its fields, and the order, one field to a column.
struct RecordTable {
    QString table;
    QString fields;
    QString order;
    std::vector<ListColumn> columns;
};

/// The list of a menu key; nullptr for a key that has none of this simple kind.
const RecordTable* RecordTableOf(const QString& menuKey);

/// The columns of the goods list: the short form, or the one with every stock figure.
std::vector<ListColumn> LotColumns(bool detailed);

/// The same as the list grid takes them.
std::vector<ListGrid::Column> GridColumns(const std::vector<ListColumn>& columns);
