#pragma once

#include <QString>

/// Path of \Config.ini.
QString ConfigIniPath();

/// The first steps of the main window's load: the User_Status row of this session, the last user's name
/// in \Config.ini (workstations, where the file can be written), the default paper, and the settings kept for
/// the session.
/// @throws DatabaseError, OverflowError (a paper code beyond sixteen bits)
void StartSession();

/// True while this session still owns its user: the first User_Status row of the user carries this
/// session's SessionCheckID. @throws DatabaseError
bool CheckSession();

/// Deletes this session's User_Status row and closes the connection. @throws DatabaseError, the
/// connection being closed all the same.
void EndSession();

/// Ends a session whose main window could not load: the row goes if it was written, the connection is
/// closed. Does not throw, since the failure of the load is what the user has to read.
void AbandonSession();

/// True when today differs from the server's date of the logon, on a workstation. The main machine
/// never differs.
bool IsOutOfStepWithServer();
