#pragma once

#include <QString>

#include <array>
#include <optional>
#include <variant>

/// One settlement, as a row of CheckOut or CheckOut_B holds it. The members are its columns.
struct Settlement {
    QString id;        ///< PRD_List.ID of the lot
    QString checkNo;   ///< the bill number, without "NO."
    QString checkDate; ///< "yyyy-mm-dd"
    QString prdNo;
    QString prdName;
    double num = 0;     ///< pieces sold
    double suttle = 0;  ///< kilograms sold
    double amount = 0;  ///< what they were sold for, yuan
    double listNum = 0; ///< till tickets
    QString custName;
    QString store;
    double lManagePrice = 0; ///< this and the next nine: yuan taken off
    double lPackPrice = 0;
    double lUnloadPrice = 0;
    double lExpendPrice = 0; ///< the owner's advances
    double lSanitationPrice = 0;
    double lElectPrice = 0;
    double lRecoupPrice = 0;
    double lChillPrice = 0;
    double lFieldPrice = 0;
    double lOtherPrice = 0;
    double lTotalPrice = 0; ///< the ten together
    double gTotalPrice = 0; ///< the net to the owner, yuan
    QString checkUser;
    QString payUser;
    QString receiver;   ///< the user who saved it last
    QString perLManage; ///< the four rates as they were typed, "" for one not used
    QString perLElect;
    QString perLUnload;
    QString perLSani;
};

/// One of the thirty columns: how it is called, which member holds it (a text, which a statement quotes, or
/// a number), and how a window shows it, in the text box that is called "txt" and the column's name.
struct SettlementColumn {
    enum class Box {
        None,    ///< the window holds it in another way
        Plain,   ///< the text or the number itself
        Trimmed, ///< the same, and blanks around what is typed are no part of it
        BillNo,  ///< behind "NO."
        Date,    ///< as 2026年03月09日
    };

    QString name;
    std::variant<QString Settlement::*, double Settlement::*> member;
    Box box;
};

/// All columns, in the order in which they are stored.
const std::array<SettlementColumn, 30>& SettlementColumns();

/// The columns that a window shows a saved settlement from, in the order in which they are read and then
/// written: all but the number it is found by and the user who saved it. The rates come last, since each
/// works its fee out anew.
const std::array<const SettlementColumn*, 28>& ShownSettlementColumns();

/// Stores a settlement. @throws DatabaseError, also when its number is taken; OverflowError for a figure
/// that no column holds
void InsertSettlement(const Settlement& settlement);

/// The stored settlement of a number (without "NO."), but for its receiver; none when there is no such.
/// @throws DatabaseError
std::optional<Settlement> ReadSettlement(const QString& checkNo);

/// Keeps a copy of the settlement as it stands in CheckOut_B, before it is changed or taken back. False when
/// there is none of this number. @throws DatabaseError
bool ArchiveSettlement(const QString& checkNo);
