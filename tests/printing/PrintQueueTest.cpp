#include "printing/PrintQueue.h"

#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "tests/support/PrintServer.h"
#include "tests/support/WindowTest.h"

#include <QDir>
#include <QElapsedTimer>
#include <QPainter>

#include <cups/cups.h>

#include <csignal>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

namespace {

class PrintQueue : public WindowTest {
protected:
    static void Paint(PrintJob& job)
    {
        QPainter painter(&job.Paper());
        painter.drawText(QRectF(0, 0, job.Paper().width(), job.Paper().height()), Qt::AlignCenter,
                         u"红富士苹果 12 件"_s);
    }

    static void Print(int paperSizeCode = 9, bool landscape = false)
    {
        PrintJob job(u"收银票"_s, paperSizeCode, landscape);
        Paint(job);
        job.HandOver();
    }

    /// What HandOver says, "" when it went well.
    static QString Refusal(PrintJob& job)
    {
        try {
            job.HandOver();
        } catch (const RunTimeError& error) {
            return error.Description();
        }
        return {};
    }

    void ExpectFolderBox()
    {
        boxes.Expect(u"没有打印机接收的单据存为 PDF 文件，放在这个文件夹里：\n"_s + ProgramFolder() +
                     u"/单据PDF"_s);
    }

    QString KeptFile() const { return ProgramFolder() + u"/单据PDF/20260309-100000-收银票.pdf"_s; }
    static QStringList Kept() { return QDir(PdfFolder()).entryList(QDir::Files, QDir::Name); }

    /// The job was refused like this, and its one page stands in the folder.
    void ExpectKept(PrintJob& job, const QString& why)
    {
        ExpectFolderBox();
        EXPECT_EQ(Refusal(job), why + u"，单据存为文件："_s + KeptFile());
        EXPECT_EQ(PdfInfo(KeptFile(), u"Pages"_s), u"1"_s);
        Settle();
        boxes.Verify();
    }
};

} // namespace

TEST_F(PrintQueue, TheDefaultQueueReceivesOnePageOfThePaperAskedFor)
{
    PrintServer server;
    Print(11, true);
    const auto received = server.Received(1);
    ASSERT_EQ(received.size(), 1);
    EXPECT_EQ(received[0].title, u"收银票"_s);
    EXPECT_TRUE(received[0].options.contains(u"media=iso_a5_148x210mm"_s));
    EXPECT_TRUE(received[0].options.contains(u"PageSize=A5"_s));
    EXPECT_TRUE(received[0].options.contains(u"orientation-requested=4"_s));
    EXPECT_EQ(PdfInfo(received[0].file, u"Pages"_s), u"1"_s);
    EXPECT_EQ(PdfInfo(received[0].file, u"Page size"_s), u"595 x 420 pts (A5)"_s);
    EXPECT_EQ(PdfInfo(received[0].file, u"Title"_s), u"收银票"_s);
    EXPECT_EQ(server.JobCount(), 1);
    EXPECT_EQ(Kept(), QStringList());
}

TEST_F(PrintQueue, TwoDocumentsAreTwoJobsOfOnePage)
{
    PrintServer server;
    Print(9, false);
    Print(11, false);
    const auto received = server.Received(2);
    ASSERT_EQ(received.size(), 2);
    EXPECT_TRUE(received[0].options.contains(u"PageSize=A4"_s));
    EXPECT_TRUE(received[0].options.contains(u"orientation-requested=3"_s));
    EXPECT_TRUE(received[1].options.contains(u"PageSize=A5"_s));
    for (const ReceivedDocument& document : received)
        EXPECT_EQ(PdfInfo(document.file, u"Pages"_s), u"1"_s);
    EXPECT_EQ(server.JobCount(), 2);
}

TEST_F(PrintQueue, ThePapersAreTheQueuesThatHaveANumber)
{
    PrintServer server;
    QStringList seen;
    for (const PaperSize& size : PaperSizes())
        seen << u"%1 %2"_s.arg(size.name).arg(size.code);
    seen.sort();
    EXPECT_EQ(seen, (QStringList{u"A4 9"_s, u"A5 11"_s, u"Letter / ANSI A 1"_s}));
}

TEST_F(PrintQueue, WithoutAQueueThereAreNoPapers)
{
    EXPECT_TRUE(PaperSizes().isEmpty());
}

TEST_F(PrintQueue, APaperCodeChoosesTheSheetAndZeroIsItsCorner)
{
    PrintJob job(u"结算清单"_s, 11, true);
    EXPECT_EQ(job.Paper().pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_EQ(job.Paper().pageLayout().orientation(), QPageLayout::Landscape);
    EXPECT_EQ(job.Paper().pageLayout().paintRectPoints(), QRect(0, 0, 595, 420));
}

TEST_F(PrintQueue, AnUnknownPaperCodeTakesTheQueuesOwnPaper)
{
    EXPECT_EQ(PrintJob(u"收银票"_s, 9999, false).Paper().pageLayout().pageSize().id(), QPageSize::A4);
    PrintServer server;
    EXPECT_EQ(PrintJob(u"收银票"_s, 9999, false).Paper().pageLayout().pageSize().id(), QPageSize::A5);
    server.Run(u"lpadmin"_s, {u"-p"_s, u"till"_s, u"-o"_s, u"PageSize=Slip"_s});
    const QSize slip = PrintJob(u"收银票"_s, 9999, false).Paper().pageLayout().pageSize().sizePoints();
    EXPECT_EQ(slip, QSize(215, 400));
}

TEST_F(PrintQueue, WithoutAQueueTheFolderIsToldOnceAndAfterTheSave)
{
    ExpectFolderBox();
    RunHandler([this] {
        Print();
        Settle();
        Print();
        EXPECT_EQ(boxes.Seen(), QStringList());
    });
    boxes.Verify();
    Print();
    Settle();
    EXPECT_EQ(Kept(), (QStringList{u"20260309-100000-收银票-2.pdf"_s, u"20260309-100000-收银票-3.pdf"_s,
                                   u"20260309-100000-收银票.pdf"_s}));
    EXPECT_EQ(PdfInfo(KeptFile(), u"Pages"_s), u"1"_s);
}

TEST_F(PrintQueue, TheFolderIsNotToldOverABoxOfTheSave)
{
    boxes.Expect(u"保存成功"_s);
    ExpectFolderBox();
    boxes.WhileOpen([] { Settle(); });
    RunHandler([] {
        Print();
        ShowInfo(u"保存成功"_s);
    });
}

TEST_F(PrintQueue, AFolderThatCannotBeMadeIsToldInItsPlace)
{
    WriteProgramFile(u"单据PDF"_s, QString());
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    EXPECT_EQ(Refusal(job), u"无法建立文件夹："_s + ProgramFolder() + u"/单据PDF"_s);
}

TEST_F(PrintQueue, AFullDiskLeavesNoHalfFile)
{
    ASSERT_TRUE(QDir().mkpath(PdfFolder()));
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{100, before.rlim_max};
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    const QString refusal = Refusal(job);
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handler);
    EXPECT_EQ(refusal, u"无法写入文件："_s + KeptFile());
    EXPECT_EQ(Kept(), QStringList());
}

TEST_F(PrintQueue, AFolderThatTookNoFileIsGoneAndNotTold)
{
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{100, before.rlim_max};
    const auto handler = signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    const QString refusal = Refusal(job);
    setrlimit(RLIMIT_FSIZE, &before);
    signal(SIGXFSZ, handler);
    EXPECT_EQ(refusal, u"无法写入文件："_s + KeptFile());
    Settle();
    EXPECT_FALSE(QDir(PdfFolder()).exists());

    ExpectFolderBox(); // with the first file
    Print();
    EXPECT_EQ(Kept().size(), 1);
}

TEST_F(PrintQueue, ARefusedDocumentThatNoFolderTakesTellsBothReasons)
{
    PrintServer server;
    server.Run(u"cupsreject"_s, {u"till"_s});
    WriteProgramFile(u"单据PDF"_s, QString());
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    EXPECT_EQ(Refusal(job), u"打印队列暂不接收单据，无法建立文件夹："_s + ProgramFolder() + u"/单据PDF"_s);
}

TEST_F(PrintQueue, NothingPaintedIsNothingToHandOver)
{
    PrintServer server;
    PrintJob job(u"收银票"_s, 9, false);
    EXPECT_EQ(Refusal(job), u"单据没有画完：收银票"_s);
    EXPECT_EQ(server.JobCount(), 0);
}

TEST_F(PrintQueue, AServerGoneBeforeTheJobIsNoQueue)
{
    PrintServer server;
    server.Stop();
    ExpectFolderBox();
    Print();
    EXPECT_EQ(Kept().size(), 1);
}

TEST_F(PrintQueue, AServerWithoutADefaultQueueIsNoQueue)
{
    PrintServer server;
    server.Run(u"lpadmin"_s, {u"-x"_s, u"till"_s});
    ExpectFolderBox();
    Print();
    EXPECT_EQ(Kept().size(), 1);
}

TEST_F(PrintQueue, AQueueThatAppearsLaterIsSeen)
{
    ExpectFolderBox();
    Print();
    {
        PrintServer server;
        Print();
        EXPECT_EQ(server.Received(1).size(), 1);
        EXPECT_EQ(Kept().size(), 1);
    }
    Print();
    EXPECT_EQ(Kept().size(), 2);
}

TEST_F(PrintQueue, AServerGoneInTheMiddleLeavesTheDocumentAsAFile)
{
    PrintServer server;
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    server.Stop();
    ExpectKept(job, u"打印服务没有应答"_s);
}

TEST_F(PrintQueue, AQueueRemovedInTheMiddleLeavesTheDocumentAsAFile)
{
    PrintServer server;
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    server.Run(u"lpadmin"_s, {u"-x"_s, u"till"_s});
    ExpectKept(job, u"打印队列已不存在"_s);
}

TEST_F(PrintQueue, AQueueThatRejectsJobsLeavesTheDocumentAsAFile)
{
    PrintServer server;
    server.Run(u"cupsreject"_s, {u"till"_s});
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    ExpectKept(job, u"打印队列暂不接收单据"_s);
    EXPECT_EQ(server.JobCount(), 0);
}

TEST_F(PrintQueue, AQueueClosedToTheUserLeavesTheDocumentAsAFile)
{
    PrintServer server;
    server.Run(u"lpadmin"_s, {u"-p"_s, u"till"_s, u"-u"_s, u"deny:guest"_s});
    cupsSetUser("guest");
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    ExpectKept(job, u"打印队列不许本用户打印"_s);
    cupsSetUser(nullptr);
    EXPECT_EQ(server.JobCount(), 0);
}

TEST_F(PrintQueue, AStoppedQueueKeepsTheDocumentAndPrintsItLater)
{
    PrintServer server;
    server.Run(u"cupsdisable"_s, {u"till"_s});
    Print();
    EXPECT_EQ(server.JobCount(), 1);
    EXPECT_TRUE(server.Received(0).isEmpty());
    server.Run(u"cupsenable"_s, {u"till"_s});
    EXPECT_EQ(server.Received(1).size(), 1);
    EXPECT_EQ(Kept(), QStringList());
}

TEST_F(PrintQueue, AServerThatDoesNotAnswerHoldsTheTillForSecondsOnly)
{
    PrintServer server;
    server.Freeze();
    QElapsedTimer clock;
    clock.start();
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    ExpectKept(job, u"打印服务没有应答"_s);
    EXPECT_TRUE(PaperSizes().isEmpty());
    EXPECT_LT(clock.elapsed(), 10000);
}

TEST_F(PrintQueue, AServerThatFallsSilentInTheMiddleHoldsTheTillForSecondsOnly)
{
    PrintServer server;
    PrintJob job(u"收银票"_s, 9, false);
    Paint(job);
    server.Freeze();
    QElapsedTimer clock;
    clock.start();
    ExpectKept(job, u"打印服务没有应答"_s);
    EXPECT_LT(clock.elapsed(), 10000);
}
