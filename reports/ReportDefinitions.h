#pragma once

#include <QList>
#include <QString>

#include <vector>

struct ReportQuery;

/// How the value at a position is shown.
enum class Cell {
    Text,       ///< as it stands; a number in its plain form
    Amount,     ///< in the number format
    Mark,       ///< a flag
    UserName,   ///< the name of the user with this number
    ChangeType, ///< the words for a kind of stock change
    PackType,   ///< the words for a kind of crate movement
};

/// Positions that are not plain text.
struct CellRange {
    int first = 0;
    int last = 0;
    Cell kind = Cell::Text;
};

/// What a report's rows stand for.
enum class RowsOf {
    Records, ///< a row for each record of the source
    Days,    ///< a row for each day of the period, and no source
    Key,     ///< one row, of the chosen key, and no source
};

/// A statement that gives each row its figures. Its condition names, between braces, what is put in:
///  - a column of the row's record, "{UserID}"; "{day}", the row's day;
///  - "{key}", the chosen key; of a key "11-周建国" "{id}" is 11 and "{name}" 周建国;
///  - "{start}" and "{end}", the period;
///  - "{cond}", the condition of the condition window; with its And, "{cond And }" or "{ And cond}", which
///    are nothing when the condition is.
struct FigureQuery {
    QString table = {};
    QString fields = {};
    QString where = {};
};

/// Which rows a report with figures shows.
enum class Shown {
    All,
    WithCount,  ///< whose last sum, the count, is above 0
    WithAmount, ///< whose first sum is not 0
};

/// A report: where its rows come from, what stands at which position, in which order, what is totalled.
///
/// A row's positions are the values that `shows` names, then the sums, then the further figures. What of
/// them is seen, and where, say the rows of DFN_RptCol.
struct ReportDefinition {
    QString name;         ///< the report or its variant
    QString columns = {}; ///< its rows in DFN_RptCol; empty: under its own name

    RowsOf rows = RowsOf::Records;
    QString table = {};
    QString adjustedTable = {}; ///< read instead for what adjustments have left
    QString fields = {};
    bool distinct = false;
    QString where = QStringLiteral("{cond}"); ///< with the order, as in FigureQuery
    QString whereWithKey = {};                ///< in its place when a key was chosen

    QString shows = {}; ///< columns of the record, "day", "name", "key"; empty: all columns
    std::vector<CellRange> cells = {};

    FigureQuery sums = {};                 ///< one statement for a row
    std::vector<FigureQuery> further = {}; ///< sums of one column each
    bool hasStock = false;                 ///< F2 to F9 of the stock sheet
    Shown shown = Shown::All;

    QList<int> totals = {};
    QString totalsPlacedBy = {};       ///< the report in DFN_RptCol that places the totals, if not its own
    bool totalsOnlyForOneKind = false; ///< none while ConditionAll is set: they would add up unlike things
};

/// Every report but the income and expense statement, which has lines of its own (AmountReport).
const std::vector<ReportDefinition>& ReportDefinitions();

/// The definition that a query shows; nullptr where the menu key is not one of theirs.
const ReportDefinition* DefinitionOf(const ReportQuery& query);
