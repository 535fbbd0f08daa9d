#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// What a combo box offers.
enum class Choices {
    None,
    Stores,
    ProductSorts,
    FeeTypes,
    Salesmen,
    Cashiers, ///< all users, or only the one who asks, where he sees his own bills alone
    SaleTypes,
    CrateReturns, ///< 未退箱, 已退箱
    StockChanges,
    CrateMoves,
};

/// One control of a frame.
struct ConditionControl {
    enum class Kind { Text, Combo, Check, Radio };

    Kind kind = Kind::Text;
    QString name;
    QString caption; ///< of the label beside it; a check box or radio button carries it itself
    Choices choices = Choices::None;
    int maxLength = 0;          ///< of a text, as many characters as its column
    bool picksBuyer = false;    ///< F2 and a double click open the list of buyers
    QString usableWith = {};    ///< the check box that must be ticked, else the control is empty and locked
    QString usableWithout = {}; ///< the one that must not be
};

/// One step from the controls to the condition. Steps run in their order, and whatever a step has is
/// appended. In its texts "%1" is what the control says: its value in clause and key, its words in the
/// caption.
struct ConditionPiece {
    QString control = {};     ///< counts when this is filled, ticked or chosen; without one it always does
    bool whenEmpty = false;   ///< counts when the control is empty instead
    QString onlyWith = {};    ///< and only when this one is filled as well
    QString clause = {};      ///< to the where-clause
    QString words = {};       ///< to the caption
    QString key = {};         ///< to the key
    QString reportKind = {};  ///< becomes the kind of report
    bool looksUpLot = false;  ///< the value is the ID of the lot with the typed number
    bool readsCopies = false; ///< the copies that adjustments have left are read
    bool isOneType = false;   ///< clears ConditionAll in a report that never sets it
};

/// A control that must be filled, or one of several.
struct ConditionCheck {
    QStringList oneOf;
    QString onlyWith; ///< tested only when this one is ticked
    QString message;
};

/// What a report is asked for, and how the answers become its condition.
struct ConditionFrame {
    enum class Days { None, One, FromTo };

    QString report; ///< its menu key
    QString caption;
    Days days = Days::FromTo;
    QString dateColumn; ///< the clause begins with the days on this column; empty: it does not
    std::vector<ConditionControl> controls;
    std::vector<ConditionPiece> pieces;
    std::vector<ConditionCheck> checks = {};
    bool setsKey = true; ///< false: key and ConditionAll stay as the report before left them

    /// "Frame_SaleDetail"
    QString Name() const;
    /// "dtpDate_DaySale", "dtpSDate_SaleDetail"; empty without days.
    QString StartName() const;
    /// "dtpEDate_SaleDetail"; empty unless a period is asked for.
    QString EndName() const;

private:
    QString Suffix() const { return report.mid(3); }
};

/// All reports, in the order of their families.
const std::vector<ConditionFrame>& ConditionFrames();

/// The frame of a report; nullptr for a key that is no report's.
const ConditionFrame* ConditionFrameOf(const QString& report);
