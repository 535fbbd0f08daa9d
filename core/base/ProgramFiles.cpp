#include "core/base/ProgramFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace {

QString programDirectory;

/// One step down from a folder, ignoring case where the exact name is absent.
QString Entry(const QString& folder, const QString& name)
{
    QString exact = folder + u'/' + name;
    if (QFileInfo::exists(exact))
        return exact;
    const QStringList entries =
        QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::Hidden);
    for (const QString& entry : entries) {
        if (entry.compare(name, Qt::CaseInsensitive) == 0)
            return folder + u'/' + entry;
    }
    return exact;
}

} // namespace

QString ProgramDirectory()
{
    return programDirectory.isEmpty() ? QCoreApplication::applicationDirPath() : programDirectory;
}

void SetProgramDirectory(const QString& directory)
{
    programDirectory = directory;
}

QString ProgramPath(const QString& relative)
{
    QString slashed = relative;
    slashed.replace(u'\\', u'/');
    QString path = ProgramDirectory();
    const QStringList steps = slashed.split(u'/', Qt::SkipEmptyParts);
    for (const QString& step : steps)
        path = step == u".." || step == u"." ? path + u'/' + step : Entry(path, step);
    return path;
}

bool FileExists(const QString& path)
{
    return !path.isEmpty() && QFileInfo(path).isFile();
}
