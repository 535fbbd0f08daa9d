#include "core/base/IniFile.h"

#include "core/base/RunTimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStringConverter>
#include <QStringList>

#include <optional>

using namespace Qt::StringLiterals;

namespace {

enum class Encoding {
    Utf8,
    Utf8WithMark,
    Gb18030,
    Bytes, ///< neither of them: each byte stands as one character, so that it is written as it was read
};

struct IniText {
    QStringList lines;
    Encoding encoding = Encoding::Utf8;
    QString lineEnd = u"\n"_s;
};

constexpr QByteArrayView Utf8Mark("\xEF\xBB\xBF");

/// The refusal in the user's language, for the reasons that he can do something about.
QString Reason(const QFileDevice& file, bool isAllowed, const QString& refusal)
{
    if (!isAllowed)
        return refusal;
    return file.error() == QFileDevice::ResourceError ? u"磁盘已满"_s : file.errorString();
}

RunTimeError FileError(const QString& what, const QString& path, const QString& reason)
{
    return RunTimeError(u"%1：%2（%3）"_s.arg(what, path, reason).remove(u'\''));
}

/// None where no file stands. A file that is there and cannot be read is not an empty one: the values of
/// the latter would stand for the former's, and a write would put one line in the place of all.
std::optional<IniText> Load(const QString& path)
{
    const QFileInfo info(path);
    if (!info.isFile())
        return std::nullopt;
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        throw FileError(u"无法读取文件"_s, path, Reason(file, info.isReadable(), u"没有读取权限"_s));
    IniText ini;
    if (bytes.startsWith(Utf8Mark)) {
        ini.encoding = Encoding::Utf8WithMark;
        bytes.remove(0, Utf8Mark.size());
    }
    QStringDecoder utf8(QStringConverter::Utf8, QStringConverter::Flag::Stateless);
    QString text = utf8(bytes);
    if (utf8.hasError() && ini.encoding == Encoding::Utf8) {
        QStringDecoder chinese("GB18030");
        if (chinese.isValid())
            text = chinese(bytes);
        ini.encoding = chinese.isValid() && !chinese.hasError() ? Encoding::Gb18030 : Encoding::Bytes;
    }
    if (ini.encoding == Encoding::Bytes)
        text = QString::fromLatin1(bytes);
    if (text.contains(u"\r\n"_s))
        ini.lineEnd = u"\r\n"_s;
    text.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n');
    ini.lines = text.split(u'\n');
    if (ini.lines.last().isEmpty())
        ini.lines.removeLast();
    return ini;
}

bool IsWritable(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() ? info.isWritable()
                         : !QFileInfo::exists(info.path()) || QFileInfo(info.path()).isWritable();
}

void Save(const QString& path, const IniText& ini)
{
    const QString text = ini.lines.join(ini.lineEnd) + ini.lineEnd;
    QByteArray bytes;
    if (ini.encoding == Encoding::Gb18030) {
        QStringEncoder chinese("GB18030");
        bytes = chinese(text);
    } else if (ini.encoding == Encoding::Bytes) {
        bytes = text.toLatin1();
    } else {
        bytes =
            (ini.encoding == Encoding::Utf8WithMark ? Utf8Mark.toByteArray() : QByteArray()) + text.toUtf8();
    }
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.commit())
        throw FileError(u"无法写入文件"_s, path, Reason(file, IsWritable(path), u"没有写入权限"_s));
}

/// The name between the brackets of a section line.
std::optional<QString> SectionOf(const QString& line)
{
    const QString text = line.trimmed();
    if (!text.startsWith(u'['))
        return std::nullopt;
    const auto end = text.indexOf(u']');
    return text.mid(1, end < 0 ? -1 : end - 1).trimmed();
}

bool HasKey(const QString& line, const QString& key)
{
    const QString text = line.trimmed();
    const auto equals = text.indexOf(u'=');
    return equals >= 0 && !text.startsWith(u';') &&
           text.left(equals).trimmed().compare(key, Qt::CaseInsensitive) == 0;
}

struct Place {
    qsizetype key = -1; ///< the line of the key, -1 when it is missing
    qsizetype sectionEnd =
        -1; ///< behind the last line of the section that says something, -1 without the section
};

Place Find(const IniText& ini, const QString& section, const QString& key)
{
    Place place;
    bool inside = false;
    for (qsizetype i = 0; i < ini.lines.size(); ++i) {
        if (const auto name = SectionOf(ini.lines[i])) {
            if (place.sectionEnd >= 0 && inside)
                break;
            inside = name->compare(section, Qt::CaseInsensitive) == 0;
            if (inside)
                place.sectionEnd = i + 1;
        } else if (inside) {
            if (HasKey(ini.lines[i], key)) {
                place.key = i;
                break;
            }
            if (!ini.lines[i].trimmed().isEmpty())
                place.sectionEnd = i + 1;
        }
    }
    return place;
}

} // namespace

QString ReadIniValue(const QString& file, const QString& section, const QString& key, const QString& fallback)
{
    const auto ini = Load(file);
    if (!ini)
        return fallback;
    const Place place = Find(*ini, section, key);
    if (place.key < 0)
        return fallback;
    QString value = ini->lines[place.key].section(u'=', 1).trimmed();
    if (ini->encoding == Encoding::Bytes)
        value = QString::fromUtf8(value.toLatin1());
    const bool quoted = value.size() >= 2 && (value.startsWith(u'"') || value.startsWith(u'\'')) &&
                        value.back() == value.front();
    if (quoted)
        value = value.mid(1, value.size() - 2);
    return value.left(IniValueLength);
}

void WriteIniValue(const QString& file, const QString& section, const QString& key, const QString& value)
{
    IniText ini = Load(file).value_or(IniText());
    const Place place = Find(ini, section, key);
    QString line = key + u'=' + value;
    // A pasted line break would begin a line of its own, a section even.
    line.replace(u'\r', u' ').replace(u'\n', u' ');
    if (ini.encoding == Encoding::Bytes)
        line = QString::fromLatin1(line.toUtf8());
    if (place.key >= 0) {
        ini.lines[place.key] = line;
    } else if (place.sectionEnd >= 0) {
        ini.lines.insert(place.sectionEnd, line);
    } else {
        ini.lines << u'[' + section + u']' << line;
    }
    Save(file, ini);
}

void KeepOldIni(const QString& file)
{
    if (!QFileInfo(file).isFile())
        return;
    const QString kept = file + u".old"_s;
    QFile old(file);
    QSaveFile copy(kept);
    const auto bytes = old.open(QIODevice::ReadOnly) ? old.readAll() : QByteArray();
    if (old.error() != QFileDevice::NoError)
        throw FileError(u"无法读取文件"_s, file,
                        Reason(old, QFileInfo(file).isReadable(), u"没有读取权限"_s));
    // Before the first byte: it may hold a password.
    if (!copy.open(QIODevice::WriteOnly) || !copy.setPermissions(old.permissions()) ||
        copy.write(bytes) != bytes.size() || !copy.commit())
        throw FileError(u"无法写入文件"_s, kept, Reason(copy, IsWritable(kept), u"没有写入权限"_s));
}
