#include "core/session/ServerDate.h"

#include "core/base/IniFile.h"
#include "core/base/RunTimeError.h"
#include "core/gateway/Connection.h"
#include "core/gateway/ConnectionSettings.h"

#include <QThread>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestWait = 5000; // milliseconds

} // namespace

std::optional<QString> FetchServerDate(const QString& iniPath)
{
    ConnectionSettings settings;
    try {
        settings = ReadConnectionSettings(iniPath);
        settings.server = ReadIniValue(iniPath, u"DataProp"_s, u"ServerName"_s);
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
    settings.database.clear(); // the date needs none, and a wrong name is told at the logon

    Connection connection;
    Deadline deadline(LongestWait);
    if (!connection.Open(settings, deadline) ||
        !connection.Send("SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')", deadline))
        return std::nullopt;
    const auto date = connection.Take(deadline);
    return date && !date->Eof() ? std::optional(date->Text(0)) : std::nullopt;
}

void FetchServerDateLater(const QString& iniPath, QObject* receiver,
                          std::function<void(std::optional<QString>)> receive)
{
    Connection::PrepareThreads();
    auto answer = std::make_shared<std::optional<QString>>();
    QThread* thread = QThread::create([iniPath, answer] {
        *answer = FetchServerDate(iniPath);
        Connection::EndThread();
    });
    QObject::connect(thread, &QThread::finished, receiver,
                     [answer, receive = std::move(receive)] { receive(*answer); });
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}
