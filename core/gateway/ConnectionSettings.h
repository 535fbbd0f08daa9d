#pragma once

#include <QString>

/// Where the database is and as whom to enter it.
struct ConnectionSettings {
    QString server;
    QString user;
    QString password;
    QString database;
    unsigned int port = 0; ///< 0: the client's default
    QString socket;        ///< empty: the client's default
};

/// Takes a connection text apart: "KEY=value;..." with keys SERVER, DATABASE, UID or USER, PWD or
/// PASSWORD, PORT, SOCKET in any case, a value bare or in braces (a closing brace inside is written
/// twice); other keys are passed over.
ConnectionSettings ParseConnectionText(const QString& text);

/// What a connection ini says: the connection text `ConnStr` of the section that `DBType`/`Drive`
/// names decides alone where it is not empty; otherwise the keys of `DataProp`.
/// @throws RunTimeError when the file is there and cannot be read
ConnectionSettings ReadConnectionSettings(const QString& iniPath);
