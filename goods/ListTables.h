#pragma once

#include "core/common/Sheet.h"

#include <QString>

#include <vector>

/// A list that is one statement: a table, its fields, and the order, one field to a column.
struct RecordTable {
    QString table;
    QString fields;
    QString order;
    std::vector<SheetColumn> columns;
};

/// The list of a menu key; nullptr for a key that has none of this simple kind.
const RecordTable* RecordTableOf(const QString& menuKey);

/// The columns of the goods list: the short form, or the one with every stock figure.
std::vector<SheetColumn> LotColumns(bool detailed);
