#include "core/session/ServerDate.h"

#include "core/base/IniFile.h"
#include "core/gateway/ConnectionSettings.h"

#include <QThread>

#include <mysql.h>

#include <memory>
#include <utility>

using namespace Qt::StringLiterals;

std::optional<QString> FetchServerDate(const QString& iniPath)
{
    ConnectionSettings settings = ReadConnectionSettings(iniPath);
    settings.server = ReadIniValue(iniPath, u"DataProp"_s, u"ServerName"_s);

    const std::unique_ptr<MYSQL, decltype(&mysql_close)> handle(mysql_init(nullptr), &mysql_close);
    const unsigned int seconds = 5;
    mysql_options(handle.get(), MYSQL_OPT_CONNECT_TIMEOUT, &seconds);
    mysql_options(handle.get(), MYSQL_OPT_READ_TIMEOUT, &seconds);
    const QByteArray socket = settings.socket.toUtf8();
    if (mysql_real_connect(handle.get(), settings.server.toUtf8().constData(),
                           settings.user.toUtf8().constData(), settings.password.toUtf8().constData(),
                           nullptr, settings.port, socket.isEmpty() ? nullptr : socket.constData(),
                           0) == nullptr ||
        mysql_query(handle.get(), "SELECT DATE_FORMAT(CURDATE(),'%Y-%m-%d')") != 0)
        return std::nullopt;
    const std::unique_ptr<MYSQL_RES, decltype(&mysql_free_result)> result(mysql_store_result(handle.get()),
                                                                          &mysql_free_result);
    MYSQL_ROW row = result ? mysql_fetch_row(result.get()) : nullptr;
    if (row == nullptr || row[0] == nullptr)
        return std::nullopt;
    return QString::fromUtf8(row[0]);
}

void FetchServerDateLater(const QString& iniPath, QObject* receiver,
                          std::function<void(std::optional<QString>)> receive)
{
    mysql_library_init(0, nullptr, nullptr); // not safe to leave to two threads at once
    auto answer = std::make_shared<std::optional<QString>>();
    QThread* thread = QThread::create([iniPath, answer] {
        *answer = FetchServerDate(iniPath);
        mysql_thread_end();
    });
    QObject::connect(thread, &QThread::finished, receiver,
                     [answer, receive = std::move(receive)] { receive(*answer); });
    QObject::connect(thread, &QThread::finished, thread, &QObject::deleteLater);
    thread->start();
}
