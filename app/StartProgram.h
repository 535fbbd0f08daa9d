#pragma once

/// Makes every window of the program known by its name.
void RegisterWindows();

/// The entry: tests \Config.ini and opens the logon screen that fits the installation, frmLogon for one
/// account set, frmMultiLogon for several. False when the program cannot start; the user has been told.
bool StartProgram();
