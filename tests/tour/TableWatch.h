#pragma once

#include "tests/support/TestServer.h"

#include <QHash>
#include <QString>
#include <QStringList>

/// Tells what changed in a database since it was last asked, row by row.
class TableWatch {
public:
    explicit TableWatch(const QString& database);

    /// Lines such as "+ Sal_List  SalNo=01260309001 Num=10": rows that came (+) and went (-). A changed
    /// row shows as both. Columns that hold nothing but a default are left out.
    QStringList Changes();

    SideConnection& Connection() { return m_connection; }

private:
    QStringList Rows(const QString& table);

    SideConnection m_connection;
    QStringList m_tables;
    QHash<QString, QStringList> m_columns;
    QHash<QString, QStringList> m_seen;
};
