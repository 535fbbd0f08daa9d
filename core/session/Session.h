#pragma once

#include <QString>

#include <cstdint>

/// The values of one logged-on session as a process starts with them.
struct SessionValues {
    // Logon screens
    QString DataIniPath; ///< full path of the connection ini in use
    QString ClientFlag;  ///< "1": a workstation; anything else: the main machine
    QString ServerDate;  ///< workstation only: the server's date at logon, "yyyy-mm-dd"
    QString CurrentUserID;
    QString CurrentUserName;

    // Load of the main window (StartSession)
    QString SessionCheckID; ///< start of the session, "hhmmss": its User_Status.CheckID
    std::int16_t PaperSizeCode = 0;
    QString SaleStockControl; ///< "1": the till refuses to sell beyond stock
    QString CheckOutStyle;    ///< "1": settlement opens frmCheckOutA

    // The main window and every function window
    bool WindowSlotFree = false; ///< true while no function window is open
    QString CurrentMenuKey;      ///< the function last opened from the menu

    // CheckCreditLimit
    double CreditLeft = 0; ///< yuan, as found by the last refused credit test

    // Reports and their conditions
    bool EditMode = false; ///< a bill was opened for adjustment from a report
    QString ReportKind;    ///< "Detail" or "Describe"
    bool ConditionAll = false;
    QString ConditionKey;
    QString ConditionCaption;
    QString SetColName;
    QString FeeLabelKey; ///< "L0".."L9": the fee label being renamed
};

/// The session's values, read everywhere by their names, written only by the routine named above. They
/// live as long as the process.
class Session {
    static inline SessionValues values;

public:
    static inline QString& DataIniPath = values.DataIniPath;
    static inline QString& ClientFlag = values.ClientFlag;
    static inline QString& ServerDate = values.ServerDate;
    static inline QString& CurrentUserID = values.CurrentUserID;
    static inline QString& CurrentUserName = values.CurrentUserName;
    static inline QString& SessionCheckID = values.SessionCheckID;
    static inline std::int16_t& PaperSizeCode = values.PaperSizeCode;
    static inline QString& SaleStockControl = values.SaleStockControl;
    static inline QString& CheckOutStyle = values.CheckOutStyle;
    static inline bool& WindowSlotFree = values.WindowSlotFree;
    static inline QString& CurrentMenuKey = values.CurrentMenuKey;
    static inline double& CreditLeft = values.CreditLeft;
    static inline bool& EditMode = values.EditMode;
    static inline QString& ReportKind = values.ReportKind;
    static inline bool& ConditionAll = values.ConditionAll;
    static inline QString& ConditionKey = values.ConditionKey;
    static inline QString& ConditionCaption = values.ConditionCaption;
    static inline QString& SetColName = values.SetColName;
    static inline QString& FeeLabelKey = values.FeeLabelKey;

    /// Everything back to how a process starts. For tests.
    static void Reset() { values = {}; }
};
