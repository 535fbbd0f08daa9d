#pragma once

#include <QString>
#include <QVariant>

#include <cstdint>

// One-value lookups, each one SelectRows. None catches a failure: it goes to the caller.
// Values go into the where text as they are given; @throws DatabaseError for all of them.

/// Sys_Define.CompName, "" without a row.
QString GetCompName();
/// Sys_Define.DepartName, "" without a row.
QString GetDepartName();
/// Sys_Define.PrintType is "1". Kept with the settings; no save tests it.
bool IsPrintOnSave();
/// Sys_Define.bolVerify is "1": the till asks for the lot's check code.
bool IsVerifyOn();
/// Sys_Define.Deadline "hh:mm:ss"; "00:00:00" (no cut-off) when empty or without a row.
QString GetDeadline();
/// Sys_Define.Orientation: 1 portrait, 2 landscape; 1 without a row. @throws OverflowError
std::int16_t GetOrientation();

/// One column of the user whose `whereColumn` has the value; "" without a row.
QString GetUserField(const QString& whereColumn, const QString& value, const QString& field);
/// True when the user was granted the menu entry.
bool HasMenuRight(const QString& user, const QString& menuName);
/// True unless User_List.bolSearch is "0": the user's queries see everyone's bills. False without a row.
bool UserSearchAll(const QString& user);
/// True unless User_List.bolEdit is "0": the user may adjust others' bills. False without a row.
bool UserMayEdit(const QString& user);
/// True when User_List.bolIP of the user is "1": logon only from User_List.UserIP.
bool UserMustMatchAddress(const QString& user);

/// DFN_RptTitle.RptTitle, "" without a row.
QString GetReportTitle(const QString& reportName);
/// One column of DRptFont as it stands; "" without a row.
QVariant GetReportFont(const QString& field);

/// True unless PRD_List.bolPack of the lot is "0"; false without the lot.
bool LotHasDeposit(const QString& lotId);
/// True when the open lot of this number has this check code.
bool LotVerifyMatches(const QString& prdNo, const QString& code);
/// True when the open lot of this number is locked (bolFixed "1").
bool LotIsFixed(const QString& prdNo);
/// True when the number belongs to the lot with this ID.
bool LotMatches(const QString& prdNo, const QString& lotId);

/// True when the storage place exists.
bool StoreExists(const QString& store);
/// True when the salesman exists; true for an empty work number, without a query.
bool SalesExists(const QString& salesId);
/// The salesman's name; "" for an empty work number (without a query) or an unknown one.
QString GetSalesName(const QString& salesId);

/// DFN_Paper.LeftArea and TopArea, centimetres; 0 without a row.
double GetPaperLeft(const QString& paperId);
double GetPaperTop(const QString& paperId);
/// DFN_Paper.PrintStyle: "0" no print, "1" on pre-printed paper, "2" with frame; "0" without a row.
QString GetPrintStyle(const QString& paperId);

/// True unless DFN_Round.bolRound is "0"; false without a row. "C01" till totals, "C02" settlement net.
bool IsRoundOn(const QString& countId);
/// DFN_CheckFee.CountID: "0" by weight, any other by pieces; "0" without a row. "F01" unloading, "F02"
/// sanitation.
QString GetFeeCountID(const QString& feeId);

/// 0 for NULL, else the value as a double.
double NullToZero(const QVariant& value);

/// SUM(field) over the rows of the where text; 0 over no rows.
double SumField(const QString& table, const QString& field, const QString& where);
