#pragma once

#include <QString>
#include <QVariant>

#include <memory>
#include <vector>

/// One value of a row, with its column's natural type: a number (double or qlonglong), a text, or a
/// null variant for SQL NULL.
struct Field {
    QVariant Value;

    /// The value as text: a number in its plain form, NULL as "".
    QString Text() const;
};

/// The rows of one select, read forward, columns addressed by position. The rows were fetched whole,
/// so the set stays readable whatever runs on the connection afterwards; copies share the rows but not
/// the reading position.
class RecordSet {
public:
    using Row = std::vector<QVariant>;

    RecordSet() : m_rows(std::make_shared<std::vector<Row>>()) {}
    explicit RecordSet(std::vector<Row> rows) : m_rows(std::make_shared<std::vector<Row>>(std::move(rows))) {}

    /// True behind the last row; true at once on an empty result. (The name EOF is a macro of stdio.)
    bool Eof() const { return m_at >= m_rows->size(); }

    /// Column `index`, counted from 0 in the order of the fields text.
    /// @throws EndOfDataError behind the last row, OutOfBoundsError for an index without a column.
    Field Fields(int index) const;

    /// Fields(index).Text().
    QString Text(int index) const { return Fields(index).Text(); }

    /// One row on. @throws EndOfDataError when already behind the last row.
    void MoveNext();

    /// The exact number of rows of the result.
    int RecordCount() const { return static_cast<int>(m_rows->size()); }

private:
    std::shared_ptr<const std::vector<Row>> m_rows;
    std::size_t m_at = 0;
};
