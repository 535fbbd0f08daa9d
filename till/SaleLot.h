#pragma once

#include <QString>

#include <optional>

/// What the till takes from a lot.
struct SaleLot {
    QString prdNo;
    QString id;
    QString prdName;
    QString custName; ///< the owner
    QString pArea;
    QString store;
    QString perForegift; ///< yuan per crate, as text
};

/// The open lot of a number or shortcut number. One statement. @throws DatabaseError
std::optional<SaleLot> FindSaleLot(const QString& number);

/// True when the lot is not settled yet. An empty ID is no lot. @throws DatabaseError
bool LotIsOpen(const QString& lotId);

/// How many pieces of the lot may still be sold, worked out anew from its delivery, its stock changes and
/// its tickets. Another till may sell while this is read. @throws DatabaseError
double StockLimit(const QString& lotId);

/// The type of the lot's crates, "" for a lot without. @throws DatabaseError
QString CrateTypeOf(const QString& lotId);
