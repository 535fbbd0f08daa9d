#include "core/session/LocalAddress.h"

#include <QHostAddress>
#include <QNetworkInterface>

QString LocalIP()
{
    const auto interfaces = QNetworkInterface::allInterfaces();
    for (const QNetworkInterface& interface : interfaces) {
        const bool usable = interface.flags().testFlag(QNetworkInterface::IsUp) &&
                            !interface.flags().testFlag(QNetworkInterface::IsLoopBack);
        if (!usable)
            continue;
        const auto entries = interface.addressEntries();
        for (const QNetworkAddressEntry& entry : entries) {
            if (entry.ip().protocol() == QAbstractSocket::IPv4Protocol && !entry.ip().isLoopback())
                return entry.ip().toString();
        }
    }
    return QHostAddress(QHostAddress::LocalHost).toString();
}
