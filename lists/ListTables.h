#pragma once

#include "core/forms/ListContents.h"

#include <QString>

#include <vector>

/// A statement that deletes a row of a list.
struct Deletion {
    QString table;
    QString where; ///< %1 stands for the row's key
};

/// What a menu key lists, and what can be done to its rows. This is the one place that tells it: a new list
/// is one more row of the table.
struct ListTable {
    QString menuKey;
    QString editWindow; ///< makes a row and changes one; takes the row's key, the text of the first column

    // The rows: one statement, one field to a column ...
    QString table = {};
    QString fields = {};
    QString order = {};
    std::vector<SheetColumn> columns = {};
    // ... or a routine, where they take more than that. `filter` is "" or " And ...".
    ListContents (*read)(const QString& filter) = nullptr;

    std::vector<Deletion> deletions = {}; ///< in their order; none: its rows are not deleted
    QString deleteQuestion = {};          ///< asked before them; "": they go without a question

    QString searchWindow = {};                   ///< filters the list
    void (*print)(const QString& key) = nullptr; ///< prints the document of a row
    bool hasLotMenu = false;                     ///< the right button brings the menu of the lots

    /// False while the program has no such list yet.
    bool IsProvided() const { return read || !columns.empty(); }
};

/// The list of a menu key; nullptr for a key that has none.
const ListTable* ListOf(const QString& menuKey);

/// What the list shows. @throws DatabaseError
ListContents ReadList(const ListTable& list, const QString& filter);

/// Deletes a row by its key. @throws DatabaseError; what was deleted before stays deleted
void DeleteRecord(const ListTable& list, const QString& key);

/// Opens the edit window of a menu key's list for a new row; nothing for a key without a list.
void NewRecord(const QString& menuKey);

/// Opens the search of a menu key: the filter of its list, for any other key the conditions of the reports.
void OpenSearch(const QString& menuKey);
