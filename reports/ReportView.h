#pragma once

#include <QString>

class Sheet;

/// What the condition window hands to the report, beside the session's ReportKind, ConditionAll,
/// ConditionKey and ConditionCaption.
struct ReportCondition {
    QString searchCond;         ///< where-clause with its order, without the word Where
    QString startDate;          ///< "yyyy-mm-dd"; empty for a report without dates
    QString endDate;            ///< the same
    bool getEditStatus = false; ///< read the copies that adjustments have left
};

/// The report on the screen, as the windows beside it see it. Printer and export read nothing else.
class ReportView {
public:
    enum class Line {
        Company,
        Title,
        Condition, ///< the words of the condition, under the title
    };

    ReportView() = default;
    virtual ~ReportView() = default;
    ReportView(const ReportView&) = delete;
    ReportView& operator=(const ReportView&) = delete;

    virtual void SetCondition(const ReportCondition& condition) = 0;
    /// Builds the report of Session::CurrentMenuKey anew. With `useColStatus` false in the second layout
    /// of its columns. @throws RunTimeError
    virtual void ShowData(bool useColStatus) = 0;

    virtual QString Caption(Line line) const = 0;
    /// Columns and rows as shown, widths as the user left them.
    virtual const Sheet& Content() const = 0;
    /// False for a report that was stopped while it was built: it is neither printed nor exported.
    virtual bool IsWhole() const = 0;
};

/// The report window while it is loaded, shown or not; nullptr otherwise.
ReportView* OpenReport();

/// Loads the report window without showing it; nullptr in a program without it.
ReportView* LoadReport();
