#include "core/gateway/ConnectionSettings.h"

#include "core/base/IniFile.h"

using namespace Qt::StringLiterals;

namespace {

/// The value between braces, a closing brace inside it being written twice. `open` is the place of the
/// opening one; moves `at` behind the value.
QString TakeBraced(const QString& text, qsizetype open, qsizetype& at)
{
    QString value;
    qsizetype i = open + 1;
    for (; i < text.size(); ++i) {
        if (text[i] == u'}' && !(i + 1 < text.size() && text[i + 1] == u'}'))
            break;
        if (text[i] == u'}')
            ++i;
        value += text[i];
    }
    const auto next = text.indexOf(u';', i);
    at = next < 0 ? text.size() : next + 1;
    return value;
}

/// The value that starts at `at`: up to the closing brace or the next ";". Moves `at` behind it.
QString TakeValue(const QString& text, qsizetype& at)
{
    if (text.mid(at).trimmed().startsWith(u'{'))
        return TakeBraced(text, text.indexOf(u'{', at), at);
    auto end = text.indexOf(u';', at);
    if (end < 0)
        end = text.size();
    const QString value = text.mid(at, end - at).trimmed();
    at = end + 1;
    return value;
}

void Take(ConnectionSettings& settings, const QString& key, const QString& value)
{
    if (key == u"SERVER")
        settings.server = value;
    else if (key == u"DATABASE")
        settings.database = value;
    else if (key == u"UID" || key == u"USER")
        settings.user = value;
    else if (key == u"PWD" || key == u"PASSWORD")
        settings.password = value;
    else if (key == u"PORT")
        settings.port = value.toUInt();
    else if (key == u"SOCKET")
        settings.socket = value;
}

} // namespace

ConnectionSettings ParseConnectionText(const QString& text)
{
    ConnectionSettings settings;
    qsizetype at = 0;
    while (at < text.size()) {
        const auto equals = text.indexOf(u'=', at);
        if (equals < 0)
            break;
        const QString key = text.mid(at, equals - at).section(u';', -1).trimmed().toUpper();
        at = equals + 1;
        Take(settings, key, TakeValue(text, at));
    }
    return settings;
}

ConnectionSettings ReadConnectionSettings(const QString& iniPath)
{
    const QString drive = ReadIniValue(iniPath, u"DBType"_s, u"Drive"_s);
    const QString text = drive.isEmpty() ? QString() : ReadIniValue(iniPath, drive, u"ConnStr"_s);
    if (!text.isEmpty())
        return ParseConnectionText(text);
    ConnectionSettings settings;
    settings.server = ReadIniValue(iniPath, u"DataProp"_s, u"ServerName"_s);
    settings.user = ReadIniValue(iniPath, u"DataProp"_s, u"UserID"_s);
    settings.password = ReadIniValue(iniPath, u"DataProp"_s, u"PWD"_s);
    settings.database = ReadIniValue(iniPath, u"DataProp"_s, u"DataBase"_s);
    return settings;
}
