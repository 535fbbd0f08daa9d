#include "reports/SpreadsheetFile.h"

#include "core/base/ProgramFiles.h"
#include "reports/SpreadsheetPage.h"
#include "reports/WriteFailure.h"
#include "reports/XlsWriter.h"
#include "reports/XlsxWriter.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cerrno>
#include <cstdio>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

const QString NewFormat = u".xlsx"_s;
const QString OldFormat = u".xls"_s;

bool IsNewFormat(const QString& path)
{
    return path.endsWith(NewFormat, Qt::CaseInsensitive);
}

/// What a new file may be read and written by, as for every file of this process.
mode_t UsualMode()
{
    const mode_t withheld = umask(0);
    umask(withheld);
    return 0666 & ~withheld;
}

/// A temporary file beside the path it is to replace.
class Replacement {
public:
    explicit Replacement(const QString& path)
        : m_path(QFileInfo(path).isSymLink() ? QFileInfo(path).canonicalFilePath() : path),
          m_file(QFileInfo(m_path).path() + u"/.export-XXXXXX"_s)
    {
        const QFileInfo present(m_path);
        if (present.isDir())
            throw WriteFailure(EISDIR);
        if (present.exists() && !present.isWritable())
            throw WriteFailure(EACCES);
        if (!present.dir().exists())
            throw WriteFailure(ENOENT);
        errno = 0;
        if (!m_file.open())
            throw WriteFailure(errno);
    }

    QString Path() const { return m_file.fileName(); }

    void TakePlace()
    {
        const QByteArray name = QFile::encodeName(m_path);
        struct stat present {};
        const mode_t mode = stat(name.constData(), &present) == 0 ? present.st_mode & 07777 : UsualMode();
        // The writers wrote into this very file, by its name.
        if (fchmod(m_file.handle(), mode) != 0 || fsync(m_file.handle()) != 0 ||
            std::rename(QFile::encodeName(Path()).constData(), name.constData()) != 0)
            throw WriteFailure(errno);
        m_file.setAutoRemove(false);
    }

private:
    QString m_path;
    QTemporaryFile m_file;
};

void Write(const SpreadsheetPage& page, const QString& path)
{
    Replacement file(path);
    if (IsNewFormat(path))
        WriteXlsx(page, file.Path());
    else
        WriteXls(page, file.Path());
    file.TakePlace();
}

} // namespace

QString SpreadsheetPath(const QString& name)
{
    QString path = QDir::cleanPath(QDir::home().absoluteFilePath(name));
    if (QFileInfo(path).isDir() || name.endsWith(u'/') || IsNewFormat(path) ||
        path.endsWith(OldFormat, Qt::CaseInsensitive))
        return path;
    return path + OldFormat;
}

bool IsOpenElsewhere(const QString& path)
{
    const QFileInfo file(path);
    return FileExists(file.path() + u"/.~lock."_s + file.fileName() + u'#');
}

void WriteSpreadsheet(const SpreadsheetPage& page, const QString& path)
{
    if (!QFileInfo::exists(path))
        Write({}, path);
    if (page.TableWidth() > SpreadsheetPage::MostColumns)
        throw RunTimeError(u"报表有%1栏，最多只能导出%2栏，导出停止！"_s.arg(page.TableWidth())
                               .arg(SpreadsheetPage::MostColumns));
    if (page.TableWidth() < 1)
        throw RunTimeError(u"报表没有显示的栏，导出停止！"_s);
    Write(page, path);
}
