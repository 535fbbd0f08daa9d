#include "core/gateway/ConnectionSettings.h"

#include "core/base/IniFile.h"

using namespace Qt::StringLiterals;

namespace {

/// The value in braces that opens at `open`: up to the closing brace, a doubled one standing for itself.
/// Sets `end` to the closing brace, or behind the text.
QString BracedValue(const QString& text, qsizetype open, qsizetype& end)
{
    QString value;
    for (end = open + 1; end < text.size(); ++end) {
        if (text[end] == u'}') {
            if (text.mid(end + 1, 1) != u"}")
                break;
            ++end;
        }
        value += text[end];
    }
    return value;
}

/// The value that starts at `at`, bare or in braces. Moves `at` behind the ";" that ends it.
QString TakeValue(const QString& text, qsizetype& at)
{
    while (at < text.size() && text[at].isSpace())
        ++at;
    QString value;
    qsizetype end = at;
    const bool isBraced = text.mid(at, 1) == u"{";
    if (isBraced)
        value = BracedValue(text, at, end);
    const auto semicolon = text.indexOf(u';', qMin(end, text.size()));
    end = semicolon < 0 ? text.size() : semicolon;
    if (!isBraced)
        value = text.mid(at, end - at).trimmed();
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
