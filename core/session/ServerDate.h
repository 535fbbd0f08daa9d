#pragma once

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

/// The server's date as "yyyy-mm-dd", asked over a short connection of its own to the `ServerName` of
/// the connection ini, with the file's other credentials. std::nullopt when the server cannot be asked
/// (it waits five seconds at the most).
std::optional<QString> FetchServerDate(const QString& iniPath);

/// The same without holding the caller up: `receive` runs later in `receiver`'s thread, and not at all
/// when `receiver` is gone by then.
void FetchServerDateLater(const QString& iniPath, QObject* receiver,
                          std::function<void(std::optional<QString>)> receive);
