#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "printing/DrawingLog.h"
#include "printing/PrintQueue.h"
#include "printing/ctlPreview.h"
#include "printing/frmPrint.h"
#include "tests/reports/paper/SheetProbe.h"
#include "tests/support/PrintServer.h"
#include "tests/support/WindowTest.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

constexpr int RowsOfAPage = 33; // A4 lying: the last of them stands below the limit

/// A report on the screen, printed and previewed as the toolbar does it.
class PrintedReport : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmReport"_s, [](QWidget* owner) -> Form* { return new SheetProbe(owner); });
        Windows().Register(u"frmPrint"_s, [](QWidget* owner) -> Form* { return new frmPrint(owner); });
        QDir().mkpath(PdfFolder());  // known already
        Session::PaperSizeCode = 11; // of the documents; a report is on A4 always
        Session::CurrentMenuKey = u"RptSaleDetail"_s;
        Open(u"frmReport"_s);
        Probe().captions = {{ReportView::Line::Company, u"青禾果品批发代销行"_s},
                            {ReportView::Line::Title, u"收银情况明细表"_s},
                            {ReportView::Line::Condition, u"日期：2026-03-01至2026-03-09 收银员：管理员"_s}};
    }

    SheetProbe& Probe() { return dynamic_cast<SheetProbe&>(*Windows().Find(u"frmReport"_s)); }

    frmPrint& Printer()
    {
        auto& printer = dynamic_cast<frmPrint&>(*Windows().Load(u"frmPrint"_s, nullptr));
        printer.Record(&m_log);
        return printer;
    }

    /// A report of so many records, and spacer and total behind them.
    void Show(int records)
    {
        using Kind = SheetColumn::Kind;
        Sheet sheet;
        sheet.SetColumns({{u"品名"_s, 1500, Kind::Text},
                          {u"净重（公斤）"_s, 600, Kind::Number}, // cut on paper
                          {u"金额"_s, 1170, Kind::Number}});
        for (int i = 1; i <= records; ++i)
            sheet.Append({{u"贵妃芒果%1"_s.arg(i), u"12.5"_s, u"1,234.5"_s}, Sheet::RowKind::Record});
        sheet.Append({{}, Sheet::RowKind::Spacer});
        sheet.Append({{u"总计"_s, QString(), u"12,345.0"_s}, Sheet::RowKind::Total});
        Probe().List()->Show(std::move(sheet));
    }
    /// Income and expense: eight headings without words, the first of them without width.
    void ShowAmount()
    {
        Session::CurrentMenuKey = u"RptAmount"_s;
        Sheet sheet;
        std::vector<SheetColumn> columns;
        for (const int width : {2900, 2000, 900, 2300, 2900, 2000, 2100})
            columns.push_back({QString(), width, SheetColumn::Kind::Text});
        sheet.SetColumns(std::move(columns));
        for (const QString& line : {u"S1"_s, u"S2"_s, u"S3"_s})
            sheet.Append({{line, u"1,000.0"_s, QString(), line, u"0.0"_s, QString(), u"1,000.0"_s},
                          Sheet::RowKind::Record});
        Probe().List()->Show(std::move(sheet));
    }

    void SetPaper(const QString& leftArea, int orientation)
    {
        Db().Run(u"UPDATE DFN_Paper SET LeftArea=%1,TopArea=7 WHERE PaperID='P06';"
                 "UPDATE Sys_Define SET Orientation=%2"_s.arg(leftArea)
                     .arg(orientation));
    }

    QStringList Drawing(bool toPrinter)
    {
        Printer();
        if (toPrinter) {
            boxes.ExpectContaining(u"存为 PDF 文件"_s);
            Probe().ToolbarPrint();
        } else {
            Probe().ToolbarPreview();
        }
        Settle();
        boxes.Verify();
        return m_log.TakeLines();
    }

    void ExpectGolden(const QString& name, const QStringList& lines)
    {
        QFile file(QStringLiteral(GOLDEN_FOLDER "/") + name + u".txt"_s);
        const QString drawn = lines.join(u'\n') + u'\n';
        if (qEnvironmentVariableIsSet("ORVANE_REWRITE_GOLDEN")) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(drawn.toUtf8());
            return;
        }
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << file.fileName().toStdString();
        EXPECT_EQ(QString::fromUtf8(file.readAll()).toStdString(), drawn.toStdString());
    }

    static QStringList PdfFiles()
    {
        const QDir folder(PdfFolder());
        QStringList files = folder.entryList({u"*.pdf"_s}, QDir::Files, QDir::Name);
        for (QString& file : files)
            file = folder.filePath(file);
        return files;
    }

    DrawingLog m_log;
};

// Drawn as the golden files say

TEST_F(PrintedReport, OnePageLyingInTheMiddle)
{
    Show(3);
    ExpectGolden(u"paper-landscape"_s, Drawing(true));
    KeepDocument(PdfFiles().value(0), u"report-landscape.pdf"_s);
}

TEST_F(PrintedReport, OnePageUprightAtTheLeftOfThePaper)
{
    SetPaper(u"0.8"_s, 1);
    Show(3);
    ExpectGolden(u"paper-portrait-left"_s, Drawing(true));
}

TEST_F(PrintedReport, ThePageBreaksAtTheLimit)
{
    Show(RowsOfAPage + 3);
    ExpectGolden(u"paper-break"_s, Drawing(true));
    EXPECT_EQ(PdfInfo(PdfFiles().value(0), u"Pages"_s), u"2"_s);
    KeepDocument(PdfFiles().value(0), u"report-break.pdf"_s);
}

TEST_F(PrintedReport, ALastRowPastTheLimitLeavesAPageOfHeadings)
{
    Show(RowsOfAPage - 3);
    EXPECT_EQ(Drawing(false).count(u"new page"_s), 0);
    Show(RowsOfAPage - 2);
    ExpectGolden(u"paper-last-row"_s, Drawing(true));
    EXPECT_EQ(PdfInfo(PdfFiles().value(0), u"Pages"_s), u"2"_s);
}

TEST_F(PrintedReport, IncomeAndExpenseHasEmptyFramesForHeadings)
{
    ShowAmount();
    ExpectGolden(u"paper-amount"_s, Drawing(true));
    KeepDocument(PdfFiles().value(0), u"report-amount.pdf"_s);
}

TEST_F(PrintedReport, OnThePreviewItHasTheGapOfThePreview)
{
    Show(1);
    ExpectGolden(u"paper-preview"_s, Drawing(false));
}

// What the golden files show, told

TEST_F(PrintedReport, ItIsReadFromTheScreenAlone)
{
    Show(3);
    Printer();
    TakeStatements();
    Drawing(true);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT Orientation FROM Sys_Define"_s,
                                             u"SELECT LeftArea FROM DFN_Paper WHERE PaperID='P06'"_s}));
}

TEST_F(PrintedReport, AZeroLeftCentresTheTableAnyOtherMovesIt)
{
    Show(1);
    const double wide = 3270; // twips of the three columns
    const auto firstEdge = [this] {
        return Drawing(true).filter(u"line "_s).value(0).section(u' ', 1, 1).toDouble();
    };
    EXPECT_NEAR(firstEdge(), 16839.9 / 2 - wide / 2, 0.1);
    SetPaper(u"-0.1"_s, 2);
    EXPECT_NEAR(firstEdge(), 120 - 56.7, 0.1);
    SetPaper(u"2"_s, 1);
    EXPECT_NEAR(firstEdge(), 120 + 1134, 0.1);
    SetPaper(u"0"_s, 1);
    EXPECT_NEAR(firstEdge(), 11907.0 / 2 - wide / 2, 0.1);
}

TEST_F(PrintedReport, AMissingRowOfSettingsIsUpright)
{
    Db().Run(u"DELETE FROM Sys_Define; DELETE FROM DFN_Paper"_s);
    Show(1);
    EXPECT_EQ(Drawing(false).value(0), u"start preview 1 11907 16832"_s);
}

TEST_F(PrintedReport, ADraggedColumnIsAsWideOnPaper)
{
    Show(1);
    Probe().List()->setColumnWidth(1, 200);
    const QStringList drawn = Drawing(true);
    EXPECT_TRUE(drawn.join(u'\n').contains(u"line 6035 2073.2 9035 2073.2 1"_s))
        << drawn.join(u'\n').toStdString();
}

TEST_F(PrintedReport, AWideReportRunsOffThePaper)
{
    Show(1);
    for (int column = 1; column <= 3; ++column)
        Probe().List()->setColumnWidth(column, 600);
    const QStringList edges = Drawing(true).filter(u"line "_s);
    double right = 0;
    for (const QString& edge : edges)
        right = std::max(right, edge.section(u' ', 3, 3).toDouble());
    EXPECT_NEAR(right, 16839.9 / 2 + 27000 / 2.0, 0.1);
}

TEST_F(PrintedReport, AReportWithoutRowsPrintsItsHeadingsAndANumber)
{
    Probe().List()->Show({});
    Show(0);
    Probe().List()->ClearRows();
    const QStringList texts = Drawing(true).filter(u"text "_s);
    EXPECT_EQ(texts.size(), 3 + 4 + 1);
    EXPECT_TRUE(texts.value(7).endsWith(u"\".1.\""_s));
}

// The preview

TEST_F(PrintedReport, ThePreviewKeepsTheLastPageAndShowsTheOthersWhenAsked)
{
    Show(2 * RowsOfAPage + 10); // the next pages have room for more
    const QStringList all = Drawing(false);
    EXPECT_EQ(all.count(u"new page"_s), 2);
    auto* pages = Printer().findChild<QComboBox*>(u"cbmPageRec"_s);
    EXPECT_EQ(pages->count(), 3);
    EXPECT_EQ(pages->currentText(), u"3"_s);
    const QImage last = Printer().PagePreview().Picture().copy();

    Printer().activateWindow();
    Settle();
    Press(Qt::Key_G, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"cbmPageRec"_s);
    Press(Qt::Key_Home);
    QStringList first = m_log.TakeLines();
    EXPECT_FALSE(first.contains(u"new page"_s));
    EXPECT_EQ(first.takeLast(), u"end"_s);
    EXPECT_TRUE(first.constLast().endsWith(u"\".1.\""_s)) << first.constLast().toStdString();
    EXPECT_EQ(first, all.mid(0, first.size()));
    EXPECT_NE(Printer().PagePreview().Picture(), last);

    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(pages->currentText(), u"2"_s);
    EXPECT_EQ(m_log.TakeLines().count(u"new page"_s), 1);
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Printer().PagePreview().Picture(), last);
    m_log.TakeLines();
    Press(Qt::Key_PageDown, Qt::ControlModifier); // there is no other
    EXPECT_EQ(m_log.TakeLines(), QStringList());
}

TEST_F(PrintedReport, ThePreviewPrintsAllPagesAlsoWhenTheReportHasGone)
{
    Show(RowsOfAPage);
    const QStringList shown = Drawing(false);
    Probe().close();
    Settle();
    Printer().activateWindow();
    Settle();
    boxes.ExpectContaining(u"收银情况明细表存为 PDF 文件：\n"_s);
    Press(Qt::Key_P, Qt::AltModifier);
    Settle();
    boxes.Verify();
    EXPECT_EQ(PdfInfo(PdfFiles().value(0), u"Pages"_s), u"2"_s);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Windows().Find(u"frmPrint"_s), nullptr);
}

// What goes wrong

TEST_F(PrintedReport, AStoppedReportIsNeitherPrintedNorShown)
{
    Show(3);
    Probe().isWhole = false;
    boxes.Expect(u"报表没有查询完，不能预览和打印！请重新查询。"_s);
    boxes.Expect(u"报表没有查询完，不能预览和打印！请重新查询。"_s);
    Printer();
    Probe().ToolbarPrint();
    Probe().ToolbarPreview();
    boxes.Verify();
    EXPECT_EQ(m_log.TakeLines(), QStringList());
    EXPECT_EQ(PdfFiles(), QStringList());
    EXPECT_FALSE(Printer().isVisible());
}

TEST_F(PrintedReport, OneThatIsLostIsARowAndABox)
{
    Show(3);
    ASSERT_TRUE(QDir(PdfFolder()).removeRecursively());
    WriteProgramFile(u"单据PDF"_s, QString());
    const QString reason = u"无法建立文件夹："_s + PdfFolder();
    boxes.Expect(u"收银情况明细表没有打印，也没有存成文件！\n"_s + reason);
    Probe().ToolbarPrint();
    Settle();
    boxes.Verify();
    EXPECT_EQ(Db().Rows(u"SELECT ErrSource,ErrDescription,ErrUserName FROM ErrInfo"_s),
              (std::vector<QStringList>{{u"打印报表"_s, reason, u"管理员"_s}}));
}

TEST_F(PrintedReport, ThroughARealQueueItArrivesWholeOnA4)
{
    PrintServer queue;
    Show(RowsOfAPage);
    Probe().ToolbarPrint();
    Settle();
    const QList<ReceivedDocument> received = queue.Received(1);
    ASSERT_EQ(received.size(), 1);
    EXPECT_EQ(received[0].title, u"收银情况明细表"_s);
    EXPECT_EQ(PdfInfo(received[0].file, u"Pages"_s), u"2"_s);
    const QString size = PdfInfo(received[0].file, u"Page size"_s);
    EXPECT_TRUE(size.contains(u"A4"_s)) << size.toStdString();
    EXPECT_GT(size.section(u' ', 0, 0).toDouble(), size.section(u' ', 2, 2).toDouble());
    EXPECT_EQ(PdfFiles(), QStringList());
    EXPECT_EQ(boxes.Seen(), QStringList());
}

TEST_F(PrintedReport, AQueueThatRefusesIsToldWithTheFile)
{
    PrintServer queue;
    queue.Run(u"cupsreject"_s, {u"till"_s});
    Show(1);
    boxes.ExpectContaining(u"打印队列暂不接收单据，单据存为文件："_s);
    Probe().ToolbarPrint();
    Settle();
    boxes.Verify();
    EXPECT_EQ(PdfFiles().size(), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s, u"ErrSource='打印报表'"_s), 1);
}

} // namespace
