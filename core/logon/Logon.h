#pragma once

#include <QString>

/// What a logon screen does with a name that is not in User_List.
enum class UnknownName {
    ReadAnyway, ///< the row is read all the same, and the failure of that read is shown
    Refuse,     ///< "不存在的用户名！"
};

/// Checks name and password, ends every earlier session of the user, then checks the address. True: the
/// session values of the user are set. False: the user has been told why; an error is shown here too.
bool TryLogon(const QString& name, const QString& password, UnknownName unknownName);

/// Loads the main window and shows the splash over it. When the main window cannot load, its error is
/// shown and nothing stays open.
void EnterMainWindow();

/// Characters of User_List.UserName. A field that takes no more has no room for a statement that returns
/// its own text.
inline constexpr int UserNameWidth = 60;

/// Texts both logon screens show.
extern const QString ServerUnreachable;
extern const QString ClockOutOfStep;
