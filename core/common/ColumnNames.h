#pragma once

#include <QString>
#include <QStringList>

/// The columns that a select asks for, so that its rows are read by name and not by counting positions.
class ColumnNames {
public:
    /// `names` as they stand in the statement: "ID,PRDNo,Num".
    explicit ColumnNames(const QString& names);

    /// As they stand in the statement.
    const QString& Text() const { return m_text; }

    /// The position of a column in the rows. @throws OutOfBoundsError for a column not asked for
    int At(const QString& name) const;

private:
    QString m_text;
    QStringList m_names;
};
