#include "tests/support/PrintServer.h"

#include "tests/support/Keys.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFile>

#include <cups/cups.h>
#include <gtest/gtest.h>

#include <csignal>
#include <stdexcept>

#include <sys/prctl.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int StartLimit = 20000; // milliseconds

/// The printer: keeps the document of a job under the job's number, complete or not at all.
const QString Printer = uR"text(#!/bin/sh
[ $# -ge 5 ] || exit 0
name='%1'/$(printf %05d "$1")
[ $# -lt 6 ] || exec <"$6"
printf '%s\n' "$3" "$5" >"$name.txt"
cat >"$name.part" && mv "$name.part" "$name.pdf"
)text"_s;

/// What the printer can do: takes PDF as it comes.
const QString Abilities = uR"text(*PPD-Adobe: "4.3"
*FormatVersion: "4.3"
*FileVersion: "1.0"
*LanguageVersion: English
*LanguageEncoding: ISOLatin1
*PCFileName: "TILL.PPD"
*Manufacturer: "Test"
*Product: "(Test)"
*ModelName: "Test"
*ShortNickName: "Test"
*NickName: "Test"
*PSVersion: "(3010.000) 0"
*LanguageLevel: "3"
*ColorDevice: False
*DefaultColorSpace: Gray
*FileSystem: False
*Throughput: "1"
*cupsFilter2: "application/pdf application/pdf 0 -"
*OpenUI *PageSize/Paper: PickOne
*OrderDependency: 10 AnySetup *PageSize
*DefaultPageSize: A5
*PageSize A5/A5: ""
*PageSize A4/A4: ""
*PageSize Letter/Letter: ""
*PageSize Slip/Slip: ""
*CloseUI: *PageSize
*OpenUI *PageRegion/Paper: PickOne
*OrderDependency: 10 AnySetup *PageRegion
*DefaultPageRegion: A5
*PageRegion A5/A5: ""
*PageRegion A4/A4: ""
*PageRegion Letter/Letter: ""
*PageRegion Slip/Slip: ""
*CloseUI: *PageRegion
*DefaultImageableArea: A5
*ImageableArea A5: "0 0 420 595"
*ImageableArea A4: "0 0 595 842"
*ImageableArea Letter: "0 0 612 792"
*ImageableArea Slip: "0 0 215 400"
*DefaultPaperDimension: A5
*PaperDimension A5: "420 595"
*PaperDimension A4: "595 842"
*PaperDimension Letter: "612 792"
*PaperDimension Slip: "215 400"
)text"_s;

const QString Folders = uR"text(ServerRoot %1/conf
ServerBin %1/bin
RequestRoot %1/spool
TempDir %1/spool/tmp
StateDir %1/state
CacheDir %1/cache
AccessLog %1/log/access
ErrorLog %1/log/error
PageLog %1/log/page
Printcap
FatalErrors none
)text"_s;

/// Anybody who reaches the socket may do anything.
const QString Rules = uR"text(Listen %1/cups.sock
Browsing Off
WebInterface No
LogLevel info
PreserveJobHistory Yes
PreserveJobFiles No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order deny,allow
  </Limit>
</Policy>
)text"_s;

void Write(const QString& path, const QString& text)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text.toUtf8()) < 0)
        throw std::runtime_error(path.toStdString());
}

QString Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The socket's file stands a moment before the server listens.
bool IsListening(const QString& socket)
{
    http_t* connection = httpConnect2(socket.toUtf8().constData(), 0, nullptr, AF_UNSPEC,
                                      HTTP_ENCRYPTION_IF_REQUESTED, 1, 1000, nullptr);
    httpClose(connection);
    return connection != nullptr;
}

void UseServer(const QString& address)
{
    qputenv("CUPS_SERVER", address.toUtf8());
    cupsSetServer(nullptr); // forgets the one it read from the environment before
}

} // namespace

PrintServer::PrintServer() : m_folder(QDir::tempPath() + u"/orvane-print-XXXXXX"_s)
{
    Configure();
    // Dies with this process, however that ends.
    m_server.setChildProcessModifier([] { prctl(PR_SET_PDEATHSIG, SIGTERM); });
    m_server.setProcessChannelMode(QProcess::MergedChannels);
    m_server.start(Path(u"cupsd"_s),
                   {u"-f"_s, u"-c"_s, Path(u"conf/cupsd.conf"_s), u"-s"_s, Path(u"conf/cups-files.conf"_s)});
    UseServer(Path(u"cups.sock"_s));
    QDeadlineTimer limit(StartLimit);
    while (!IsListening(Path(u"cups.sock"_s))) {
        if (m_server.waitForFinished(10) || limit.hasExpired())
            GiveUp(u"cupsd does not start"_s);
    }
    Run(u"lpadmin"_s, {u"-p"_s, u"till"_s, u"-E"_s, u"-v"_s, u"keep:/"_s, u"-P"_s, Path(u"till.ppd"_s)});
    Run(u"lpadmin"_s, {u"-d"_s, u"till"_s});
}

PrintServer::~PrintServer()
{
    UseNone();
    Stop();
}

void PrintServer::Configure()
{
    QDir folder(m_folder.path());
    for (const QString& name :
         {u"conf"_s, u"bin/backend"_s, u"spool/tmp"_s, u"state"_s, u"cache"_s, u"log"_s, u"received"_s})
        folder.mkpath(name);
    Write(Path(u"conf/cups-files.conf"_s), Folders.arg(m_folder.path()));
    Write(Path(u"conf/cupsd.conf"_s), Rules.arg(m_folder.path()));
    Write(Path(u"till.ppd"_s), Abilities);
    const QString printer = Path(u"bin/backend/keep"_s);
    Write(printer, Printer.arg(Path(u"received"_s)));
    // Closed to all others: the server then runs it as its own user, who may write here.
    QFile::setPermissions(printer, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    QFile::link(u"/usr/lib/cups/daemon"_s, Path(u"bin/daemon"_s));
    // A copy, because a machine may confine the program of that path to the folders of the system's own.
    if (!QFile::copy(u"/usr/sbin/cupsd"_s, Path(u"cupsd"_s)))
        throw std::runtime_error("no /usr/sbin/cupsd: the package cups-daemon is missing");
    QFile::setPermissions(Path(u"cupsd"_s), QFile::ReadOwner | QFile::ExeOwner);
}

void PrintServer::GiveUp(const QString& what)
{
    Stop();
    throw std::runtime_error(
        (what + u'\n' + QString::fromUtf8(m_server.readAll()) + Read(Path(u"log/error"_s))).toStdString());
}

void PrintServer::UseNone()
{
    UseServer(u"/nonexistent/cups.sock"_s);
    qunsetenv("LPDEST"); // names the user's own queue
    qunsetenv("PRINTER");
}

void PrintServer::Run(const QString& command, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    // Where an ordinary user has no path to the commands of the administrator.
    const QString system = u"/usr/sbin/"_s + command;
    process.start(QFile::exists(system) ? system : command, arguments);
    if (!process.waitForFinished(StartLimit) || process.exitCode() != 0)
        GiveUp(command + u": "_s + QString::fromUtf8(process.readAll()));
}

void PrintServer::Stop()
{
    if (m_server.state() == QProcess::NotRunning)
        return;
    Thaw();
    m_server.terminate();
    if (!m_server.waitForFinished(StartLimit)) {
        m_server.kill();
        m_server.waitForFinished();
    }
}

void PrintServer::Freeze()
{
    kill(static_cast<pid_t>(m_server.processId()), SIGSTOP);
}

void PrintServer::Thaw()
{
    kill(static_cast<pid_t>(m_server.processId()), SIGCONT);
}

QList<ReceivedDocument> PrintServer::Received(qsizetype count)
{
    const QDir folder(Path(u"received"_s));
    QStringList files;
    WaitFor([&] {
        files = folder.entryList({u"*.pdf"_s}, QDir::Files, QDir::Name);
        return files.size() >= count;
    });
    QList<ReceivedDocument> documents;
    for (const QString& name : files) {
        const QString file = folder.filePath(name);
        const QStringList lines = Read(file.chopped(4) + u".txt"_s).split(u'\n');
        documents << ReceivedDocument{lines.value(0), lines.value(1).split(u' ', Qt::SkipEmptyParts), file};
    }
    return documents;
}

int PrintServer::JobCount()
{
    cups_job_t* jobs = nullptr;
    const int count = cupsGetJobs(&jobs, "till", 0, CUPS_WHICHJOBS_ALL);
    if (count < 0)
        GiveUp(u"cannot count the jobs: "_s + QString::fromUtf8(cupsLastErrorString()));
    cupsFreeJobs(count, jobs);
    return count;
}

QString PdfInfo(const QString& file, const QString& key)
{
    QProcess process;
    process.start(u"pdfinfo"_s, {file});
    process.waitForFinished(StartLimit);
    const QStringList lines = QString::fromUtf8(process.readAllStandardOutput()).split(u'\n');
    for (const QString& line : lines) {
        if (line.startsWith(key + u':'))
            return line.mid(key.size() + 1).trimmed();
    }
    return {};
}

void KeepDocument(const QString& file, const QString& name)
{
    const QString folder = qEnvironmentVariable("ORVANE_DOCUMENTS");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    QFile::remove(folder + u'/' + name);
    EXPECT_TRUE(QFile::copy(file, folder + u'/' + name));
}
