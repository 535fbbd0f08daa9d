#pragma once

#include "reports/ConditionFrames.h"
#include "reports/ReportView.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

/// What one control says. A text says the same everywhere.
struct ChosenCondition {
    QString value; ///< in the where-clause
    QString words; ///< in the caption
    QString key;   ///< as the report's key
};

/// What the controls of a frame say: those that are filled, ticked or chosen, by their names, and the days,
/// "yyyy-mm-dd".
struct ConditionValues {
    QHash<QString, ChosenCondition> filled;
    QString startDate;
    QString endDate;

    bool Has(const QString& control) const { return filled.contains(control); }
};

/// A condition as the report takes it. What is not told stays as the report before left it.
struct ComposedCondition {
    ReportCondition report;
    QString caption;
    std::optional<bool> all;
    std::optional<QString> key;
    std::optional<QString> reportKind;

    /// Puts all but `report` into the session.
    void HandOver() const;
};

/// Why a report cannot be asked for like this.
struct ConditionRefusal {
    QString message;
    QString control; ///< the one to be filled
};

/// "2026-03-01至2026-03-09"; one day alone where both are the same.
QString GetSearchDate(const QString& startDate, const QString& endDate);

/// The first check that the values do not pass.
std::optional<ConditionRefusal> RefusalOf(const ConditionFrame& frame, const ConditionValues& values);

/// The controls as a condition. Texts go into the clause as they were typed.
/// @throws DatabaseError where a lot is looked up by its number
ComposedCondition Compose(const ConditionFrame& frame, const ConditionValues& values);

/// One entry of a combo box.
struct ConditionChoice {
    QString shown;
    ChosenCondition chosen;
};

struct ConditionChoices {
    std::vector<ConditionChoice> choices;
    bool isPinned = false; ///< the first is chosen and stays so
};

/// What a combo box offers just now. @throws DatabaseError
ConditionChoices ReadChoices(Choices choices);
