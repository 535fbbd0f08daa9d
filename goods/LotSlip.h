#pragma once

#include <QDate>
#include <QString>

/// What an intake slip says about a lot.
struct LotSlip {
    QDate date;    ///< the day on the slip: today
    QString lotId; ///< PRD_List.ID, "" for a lot that has just been made: its stock changes are none
    QString custName;
    QString prdNo;
    QString verifyId;
    QString prdName;
    double num = 0; ///< delivered, in `unit`
    QString unit;
    QString mPercent; ///< kilograms per unit, as text
    QString pArea;
    QString store;
    double debitPrice = 0; ///< yuan paid to the owner at intake
    QString memo;
};

/// Loads frmTemp and fills it, with the stock that came of deliveries and stock changes. @throws
/// DatabaseError
void FillLotSlip(const LotSlip& slip);

/// True for a DFN_Paper.PrintStyle above 0, which is when a slip is made at all.
bool IsSlipWanted(const QString& printStyle);

/// Makes the slip and prints it as `printStyle` says; nothing when none is wanted. frmTemp is unloaded
/// afterwards. @throws DatabaseError from making the slip
void PrintLotSlip(const LotSlip& slip, const QString& printStyle);

/// Prints the slip of the open lot of this number once more, with today's date and the stock changes it
/// has seen. Nothing when slips are off or no open lot has the number. @throws DatabaseError
void ReprintLotSlip(const QString& prdNo);
