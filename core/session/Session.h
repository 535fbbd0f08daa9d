#pragma once

#include <QString>

#include <cstdint>

/// The values of one logged-on session, read everywhere, written only by the routine named. They live
/// as long as the process.
struct Session {
    // Logon screens
    static inline QString DataIniPath; ///< full path of the connection ini in use
    static inline QString ClientFlag;  ///< "1": a workstation; anything else: the main machine
    static inline QString ServerDate;  ///< workstation only: the server's date at logon, "yyyy-mm-dd"
    static inline QString CurrentUserID;
    static inline QString CurrentUserName;

    // Load of the main window (StartSession)
    static inline QString SessionCheckID; ///< start of the session, "hhmmss": its User_Status.CheckID
    static inline std::int16_t PaperSizeCode = 0;
    static inline QString SaleStockControl; ///< "1": the till refuses to sell beyond stock
    static inline QString CheckOutStyle;    ///< "1": settlement opens frmCheckOutA

    // The main window and every function window
    static inline bool WindowSlotFree = false; ///< true while no function window is open
    static inline QString CurrentMenuKey;      ///< the function last opened from the menu

    // CheckCreditLimit
    static inline double CreditLeft = 0; ///< yuan, as found by the last refused credit test

    // Reports and their conditions
    static inline bool EditMode = false; ///< a bill was opened for adjustment from a report
    static inline QString ReportKind;    ///< "Detail" or "Describe"
    static inline bool ConditionAll = false;
    static inline QString ConditionKey;
    static inline QString ConditionCaption;
    static inline QString SetColName;
    static inline QString FeeLabelKey; ///< "L0".."L9": the fee label being renamed

    /// Everything back to how a process starts. For tests.
    static void Reset();
};
