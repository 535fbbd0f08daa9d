#pragma once

#include <QString>
#include <QStringList>

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

    bool operator==(const ListColumn&) const = default;
};

/// What a list shows: its columns, and row by row the texts under them. The first text is the row's key.
struct ListContents {
    std::vector<ListColumn> columns = {};
    std::vector<QStringList> rows = {};
};
