#pragma once

#include <QString>
#include <QStringList>

#include <array>
#include <vector>

/// A report's row by position: "01" is the first value that is read. Position 0 stays empty.
inline constexpr int LastPosition = 28;
using RowValues = std::array<QString, LastPosition + 1>;

/// Where the values of a report's rows come to stand: its DFN_RptCol rows, read once for a build.
class ReportPlaces {
public:
    /// @throws DatabaseError
    ReportPlaces(const QString& reportName, bool normal);

    bool IsEmpty() const { return m_places.empty(); }

    /// The sub-items of a row. Of two columns with the same order the later one stands; an order of 0 shows
    /// nothing. @throws OutOfBoundsError for a ColID behind the last position, TypeMismatchError for one that
    /// is no number
    QStringList Arrange(const RowValues& values);

    /// The sub-item of a column, 0 for one that is not shown.
    int PlaceOf(int position) const;

private:
    struct Place {
        QString id;
        int order = 0;     ///< 0: shows nothing
        int position = -1; ///< of the id; read with the first row, since a report without rows needs none
    };
    std::vector<Place> m_places;
    int m_width = 0; ///< the farthest order
};
