#pragma once

#include <QByteArray>
#include <QList>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

/// A document as it came out of the queue.
struct ReceivedDocument {
    QString title;
    QStringList options; ///< as the queue told the printer: "media=iso_a4_210x297mm", "PageSize=A4"
    QString file;        ///< the PDF, there until the server ends
};

/// A print server of the test's own: a private cupsd on a unix socket in a temporary folder, with the
/// default queue "till" whose printer keeps what it receives. Its papers are A5 (its own), A4, Letter
/// and a slip without a number. The process prints there as long as this lives, and nowhere before and
/// after. Runs as root and as anybody; leaves no process behind, not even when the test dies.
///
/// What cannot be started throws, which fails the test.
class PrintServer {
public:
    PrintServer();
    ~PrintServer();
    PrintServer(const PrintServer&) = delete;
    PrintServer& operator=(const PrintServer&) = delete;

    /// From now on this process finds no print server. Every test begins like this, so that none prints
    /// on the machine's own printer.
    static void UseNone();

    /// Runs one of the print system's commands against this server, as in Run("cupsreject", {"till"}).
    void Run(const QString& command, const QStringList& arguments);

    /// Ends the server, as a crash or a switched-off machine would.
    void Stop();
    /// The server goes on taking connections and questions, and answers none.
    void Freeze();
    void Thaw();

    /// The documents that the printer has, in the order of the jobs; waits until there are `count`.
    QList<ReceivedDocument> Received(qsizetype count);
    /// Jobs that the queue took, printed or not.
    int JobCount();

private:
    void Configure();
    [[noreturn]] void GiveUp(const QString& what);
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    QTemporaryDir m_folder;
    QProcess m_server;
};

/// One value of what poppler's pdfinfo tells of a file: "Pages", "Page size", "Title".
QString PdfInfo(const QString& file, const QString& key);

/// With ORVANE_DOCUMENTS set to a folder, a document stays there under a name, to be looked at.
void KeepDocument(const QString& file, const QString& name);
