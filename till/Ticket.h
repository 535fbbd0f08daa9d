#pragma once

#include <QString>

/// One ticket as the till's screen shows it, every figure read back from its text: what is saved is what
/// the buyer was shown, one decimal included.
struct Ticket {
    QString salNo; ///< without "NO."
    QString vendee;
    QString saleDate;
    QString saleTime;
    QString businessDate; ///< FSaleDate: the market day the sale counts for
    QString lotId;
    QString prdNo;
    QString prdName;
    QString custName; ///< the lot's owner
    QString store;
    QString pArea;
    double num = 0;    ///< pieces
    double suttle = 0; ///< kilograms; 0: sold by the piece
    double upr = 0;    ///< yuan per kilogram or piece
    double perPack = 0;
    double packAmount = 0;
    double perForegift = 0;
    double foregiftAmount = 0;
    double amount = 0;
    double totalAmount = 0;
    QString listNo;
    QString salesId;
    int saleType = 0; ///< entry of cmbSaleType; 1 is credit
    int itm = 0;      ///< place in the batch, from 1
};

/// True when a ticket stands under the number (without "NO."). @throws DatabaseError
bool TicketExists(const QString& salNo);

/// True when the lot is not settled yet. An empty ID is no lot. @throws DatabaseError
bool LotIsOpen(const QString& lotId);

/// How many pieces of the lot may still be sold, worked out anew from its delivery, its stock changes and
/// its tickets. Another till may sell while this is read. @throws DatabaseError
double StockLimit(const QString& lotId);
