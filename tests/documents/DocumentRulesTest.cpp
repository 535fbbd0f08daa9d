#include "tests/documents/DocumentTest.h"

#include "core/session/Session.h"
#include "goods/frmPrintEStore.h"
#include "goods/frmTemp.h"
#include "printing/PrintQueue.h"
#include "printing/clsPrint.h"
#include "printing/ctlPreview.h"

#include <QAction>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMdiArea>
#include <QPushButton>
#include <QToolBar>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

/// The number that follows in a call: 0 the left, 1 the top.
double Place(const QString& call, int index)
{
    return call.section(u' ', index + 1, index + 1).toDouble();
}

class PrintedForm : public DocumentTest {
protected:
    QStringList Draw(const QString& document, PrintMode mode)
    {
        if (!FormOf(document))
            Fill(document);
        Print(document, mode);
        return TakeDrawing();
    }
    /// The first call that ends with the text in quotes.
    static QString CallOf(const QString& text, const QStringList& drawing)
    {
        for (const QString& call : drawing) {
            if (call.endsWith(u'"' + text + u'"'))
                return call;
        }
        return {};
    }
    static bool Has(const QString& text, const QStringList& drawing)
    {
        return !CallOf(text, drawing).isEmpty();
    }
    void SetStyle(const QString& paper, const QString& style)
    {
        Db().Run(u"UPDATE DFN_Paper SET PrintStyle='%1' WHERE PaperID='%2'"_s.arg(style, paper));
    }
    /// The box of a document that is neither on paper nor a file.
    static QString Lost(const QString& title, const QString& reason)
    {
        return u"%1没有打印，也没有存成文件！\n%2"_s.arg(title, reason);
    }
    /// Where documents would go, a file stands: nothing can be printed.
    void BlockThePrinter()
    {
        ASSERT_TRUE(QDir(PdfFolder()).removeRecursively());
        QFile file(PdfFolder());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
};

// What prints

TEST_F(PrintedForm, AHiddenControlStaysOffTicketsAdvancesAndSettlements)
{
    const QList<std::tuple<QString, QString, QString>> hidden{
        {u"ticket"_s, u"txtListNo"_s, u"0038215"_s},
        {u"ticket"_s, u"lblPArea"_s, u"海南省三亚市崖州区"_s},
        {u"advance"_s, u"txtStore"_s, u"一号冷库东区"_s},
        {u"settlement"_s, u"txtCheckUser"_s, u"管理员"_s},
        {u"settlement-a"_s, u"txtCheckUser"_s, u"管理员"_s},
    };
    for (const auto& [document, control, text] : hidden) {
        Fill(document);
        for (const PrintMode mode : {PrintMode::Stationery, PrintMode::Sheet}) {
            const bool hasBlank =
                control.startsWith(u"txt") && !(mode == PrintMode::Stationery && document == u"ticket");
            const QString printed = hasBlank ? text + u' ' : text;
            EXPECT_TRUE(Has(printed, Draw(document, mode))) << document.toStdString() << text.toStdString();
            FormOf(document)->findChild<QWidget*>(control)->hide();
            EXPECT_FALSE(Has(printed, Draw(document, mode))) << document.toStdString() << text.toStdString();
            FormOf(document)->findChild<QWidget*>(control)->show();
        }
        FormOf(document)->close();
        Settle();
        Db().Run(u"DELETE FROM Sal_List; DELETE FROM CustDebit"_s);
    }
}

TEST_F(PrintedForm, AHiddenLabelAndLineOfATicketStayOff)
{
    Fill(u"ticket"_s);
    const auto linesOf = [](const QStringList& drawing) { return drawing.filter(u"line "_s).size(); };
    const auto before = linesOf(Draw(u"ticket"_s, PrintMode::Sheet));
    FormOf(u"ticket"_s)->findChild<QWidget*>(u"Tline_3"_s)->hide();
    EXPECT_EQ(linesOf(Draw(u"ticket"_s, PrintMode::Sheet)), before - 1);
}

TEST_F(PrintedForm, AFormThatIsNotOnTheScreenPrintsAllTheSame)
{
    Fill(u"ticket"_s);
    const QStringList drawing = Draw(u"ticket"_s, PrintMode::Sheet);
    EXPECT_TRUE(Has(u"0038215 "_s, drawing));
    FormOf(u"ticket"_s)->hide();
    EXPECT_EQ(Draw(u"ticket"_s, PrintMode::Sheet), drawing);
}

TEST_F(PrintedForm, SlipsPrintEveryTextBoxVisibleOrNot)
{
    for (const auto& [document, control, text] : QList<std::tuple<QString, QString, QString>>{
             {u"lot-slip"_s, u"txtMemo"_s, u"第三车，外箱略潮，先卖；司机电话留在磅单背面"_s},
             {u"stock-change"_s, u"txtMemo"_s, u"压坏，已当面点清"_s}}) {
        for (const PrintMode mode : {PrintMode::Stationery, PrintMode::Sheet}) {
            Fill(document);
            FormOf(document)->findChild<QWidget*>(control)->hide();
            EXPECT_TRUE(Has(mode == PrintMode::Stationery ? text : text + u' ', Draw(document, mode)));
        }
    }
}

TEST_F(PrintedForm, TheMoneyPaidNeverReachesATicket)
{
    Fill(u"ticket"_s);
    Find(u"frmSale"_s, u"txtRPrice"_s)->setText(u"90000"_s);
    for (const PrintMode mode : {PrintMode::Stationery, PrintMode::Sheet}) {
        const QStringList drawing = Draw(u"ticket"_s, mode);
        EXPECT_FALSE(drawing.isEmpty());
        EXPECT_TRUE(drawing.filter(u"90000"_s).isEmpty()) << int(mode);
    }
}

TEST_F(PrintedForm, ButtonsAndDisplaysOfTheTillStayOffTheTicket)
{
    Fill(u"ticket"_s);
    const QStringList drawing = Draw(u"ticket"_s, PrintMode::Sheet);
    for (const QString& text : {u"保存"_s, u"关闭"_s, u"本批收款"_s, u"找零"_s, u"付款"_s})
        EXPECT_FALSE(Has(text, drawing)) << text.toStdString();
    for (const QString& text : {u"编号"_s, u"收银员"_s})
        EXPECT_TRUE(Has(text, drawing)) << text.toStdString();
}

TEST_F(PrintedForm, ThePaymentPrintsOnStationeryButNotOnAFramedTicket)
{
    Fill(u"ticket"_s);
    const QString call = CallOf(u"现金"_s, Draw(u"ticket"_s, PrintMode::Stationery));
    const QWidget* combo = FormOf(u"ticket"_s)->findChild<QComboBox*>(u"cmbSaleType"_s);
    EXPECT_EQ(Place(call, 0), combo->x() * 15);
    EXPECT_NEAR(Place(call, 1), combo->y() * 15 * 1.33 + 120, 0.06);
    EXPECT_FALSE(Has(u"现金"_s, Draw(u"ticket"_s, PrintMode::Sheet)));
}

TEST_F(PrintedForm, OnlyTheLinesOfThePaperAreRuled)
{
    const QList<std::pair<QString, QString>> names{{u"ticket"_s, u"Tline"_s},
                                                   {u"advance"_s, u"Tline"_s},
                                                   {u"settlement"_s, u"TLine"_s},
                                                   {u"settlement-a"_s, u"Tline"_s}};
    for (const auto& [document, name] : names) {
        Fill(document);
        int lines = 0;
        const auto frames = FormOf(document)->findChildren<QFrame*>();
        for (const QFrame* frame : frames)
            lines += frame->objectName().startsWith(name + u'_') ? 1 : 0;
        EXPECT_GT(lines, 5);
        EXPECT_EQ(Draw(document, PrintMode::Sheet).filter(u"line "_s).size(), lines)
            << document.toStdString();
        EXPECT_EQ(Draw(document, PrintMode::Stationery).filter(u"line "_s).size(), 0)
            << document.toStdString();
        // The other spelling is another name.
        FormOf(document)
            ->findChild<QFrame*>(name + u"_1"_s)
            ->setObjectName(name == u"TLine" ? u"Tline_1"_s : u"TLine_1"_s);
        EXPECT_EQ(Draw(document, PrintMode::Sheet).filter(u"line "_s).size(), lines - 1)
            << document.toStdString();
        FormOf(document)->close();
        Settle();
        Db().Run(u"DELETE FROM Sal_List; DELETE FROM CustDebit"_s);
    }
}

// Where it prints

TEST_F(PrintedForm, NegativeOffsetsShiftThePrintUpAndLeft)
{
    for (const QString& document : DocumentNames()) {
        SetOffsets(document, u"0"_s, u"0"_s);
        const QStringList before = Draw(document, PrintMode::Stationery);
        SetOffsets(document, u"-0.4"_s, u"-0.2"_s);
        const QStringList after = Draw(document, PrintMode::Stationery);
        ASSERT_EQ(before.size(), after.size());
        int texts = 0;
        for (int i = 0; i < before.size(); ++i) {
            if (!before[i].startsWith(u"text "))
                continue;
            ++texts;
            EXPECT_NEAR(Place(after[i], 0), Place(before[i], 0) - 0.4 * 567, 0.11);
            EXPECT_NEAR(Place(after[i], 1), Place(before[i], 1) - 0.2 * 567, 0.11);
        }
        EXPECT_GT(texts, 8) << document.toStdString();
        if (QWidget* form = FormOf(document))
            form->close();
        Settle();
        Db().Run(u"DELETE FROM Sal_List; DELETE FROM CustDebit"_s);
    }
}

TEST_F(PrintedForm, FramedSlipsAndTicketsTakeNoTopOffset)
{
    for (const QString& document : {u"lot-slip"_s, u"stock-change"_s, u"ticket"_s}) {
        SetOffsets(document, u"0"_s, u"0"_s);
        const QStringList before = Draw(document, PrintMode::Sheet);
        SetOffsets(document, u"0"_s, u"3"_s);
        EXPECT_EQ(Draw(document, PrintMode::Sheet), before) << document.toStdString();
    }
}

TEST_F(PrintedForm, TheUserStandsLowerOnTheStationeryOfASlip)
{
    for (const QString& document : {u"lot-slip"_s, u"stock-change"_s}) {
        Fill(document);
        const double top = FormOf(document)->findChild<QWidget*>(u"txtUserID"_s)->y() * 15 + 120;
        EXPECT_NEAR(Place(CallOf(u"01"_s, Draw(document, PrintMode::Stationery)), 1), top + 1247.4, 0.06);
        EXPECT_NEAR(Place(CallOf(u"01 "_s, Draw(document, PrintMode::Sheet)), 1), top, 0.06);
    }
}

TEST_F(PrintedForm, ADocumentLeavesItsFormAsItWas)
{
    Draw(u"ticket"_s, PrintMode::Stationery);
    EXPECT_NE(Windows().Find(u"frmSale"_s), nullptr);
    EXPECT_EQ(TextOf(u"frmSale"_s, u"txtListNo"_s), u"0038215"_s);
}

TEST_F(PrintedForm, EachDocumentFitsAnA5SheetLyingWithRoomForThePrintersEdges)
{
    constexpr double Edge = 240; // 4.2 mm: what office printers cannot reach
    for (const QString& document : DocumentNames()) {
        Fill(document);
        Session::PaperSizeCode = 11;
        const QStringList drawing = Draw(document, PrintMode::Sheet);
        for (const QString& call : drawing.filter(u"line "_s)) {
            EXPECT_GE(Place(call, 0), Edge) << call.toStdString();
            EXPECT_LE(Place(call, 2), 11907 - Edge) << call.toStdString();
            EXPECT_LE(Place(call, 3), 8392 - Edge) << call.toStdString();
        }
        for (const QString& call : drawing.filter(u"text "_s)) {
            EXPECT_GE(Place(call, 1), Edge - 100)
                << call.toStdString(); // the ink begins below the line's top
            EXPECT_LE(Place(call, 1), 8392 - Edge - 350) << call.toStdString();
        }
        if (QWidget* form = FormOf(document))
            form->close();
        Settle();
        Db().Run(u"DELETE FROM Sal_List; DELETE FROM CustDebit"_s);
    }
}

TEST_F(PrintedForm, AHeadingWiderThanTheSheetIsNarrowedToTheSheet)
{
    const QString company = u"海南崖州热带果业合作社联合社江南果品批发市场南区代销总行第十二经营部"_s;
    Db().Run(u"UPDATE Sys_Define SET CompName='%1'"_s.arg(company));
    const QString heading = company + u"商品登记单"_s; // of 24 pixels each
    const double fitting = std::floor(100.0 * 794 / (24.0 * heading.size()));
    const QString call = CallOf(heading, Draw(u"lot-slip"_s, PrintMode::Sheet));
    EXPECT_TRUE(call.contains(u" bold stretch %1 \""_s.arg(fitting))) << call.toStdString();
    EXPECT_EQ(Place(call, 0), 0);
}

TEST_F(PrintedForm, AFontMeasuredInPixelsPrintsAsLargeAsOnTheForm)
{
    Fill(u"ticket"_s);
    QFont font = Find(u"frmSale"_s, u"txtListNo"_s)->font();
    font.setPixelSize(20); // of 15 twips each
    Find(u"frmSale"_s, u"txtListNo"_s)->setFont(font);
    EXPECT_TRUE(CallOf(u"0038215 "_s, Draw(u"ticket"_s, PrintMode::Sheet)).contains(u"\" 15 "_s));
}

// The preview

TEST_F(PrintedForm, NeitherStyleGoesToThePreviewWhichOpensByItself)
{
    Fill(u"ticket"_s);
    Documents();
    ASSERT_NE(Windows().Find(u"frmPrint"_s), nullptr);
    EXPECT_FALSE(Windows().Find(u"frmPrint"_s)->Widget()->isVisible());
    Print(u"ticket"_s, PrintMode::Preview);
    EXPECT_TRUE(Printer().isVisible());
    EXPECT_EQ(Printer().windowTitle(), u"打印预览"_s);
    const QStringList preview = TakeDrawing();
    EXPECT_EQ(preview.value(0), u"start preview 1 11907 16832"_s);
    EXPECT_EQ(preview.mid(1), Draw(u"ticket"_s, PrintMode::Sheet).mid(1));
    EXPECT_EQ(PdfFiles().size(), 1); // the one that was printed

    const QImage page = Printer().PagePreview().Picture();
    const auto inkOf = [&page](int row) {
        int ink = 0;
        for (int x = 0; x < page.width(); ++x)
            ink += page.pixelColor(x, row).lightness() < 128 ? 1 : 0;
        return ink;
    };
    EXPECT_GT(std::max(inkOf(148), inkOf(149)), 700); // the rule at the table's top
}

TEST_F(PrintedForm, ThePreviewHasThePaperOfTheSettings)
{
    Fill(u"ticket"_s);
    const auto pageFor = [this](int code) {
        Session::PaperSizeCode = static_cast<std::int16_t>(code);
        Print(u"ticket"_s, PrintMode::Preview);
        return TakeDrawing().value(0);
    };
    EXPECT_EQ(pageFor(9), u"start preview 1 11907 16832"_s);
    EXPECT_EQ(pageFor(11), u"start preview 1 11907 8391.6"_s); // turned, or the ticket would not fit
    EXPECT_EQ(pageFor(0), u"start preview 1 11907 16839.9"_s); // the printer's own
}

TEST_F(PrintedForm, ThePreviewStandsInTheMainWindowAndItsExitUnloadsIt)
{
    auto* frame = Open(u"frmMain"_s);
    Fill(u"ticket"_s);
    Print(u"ticket"_s, PrintMode::Preview);
    const auto* area = frame->findChild<QMdiArea*>();
    ASSERT_NE(area, nullptr);
    EXPECT_TRUE(area->isAncestorOf(&Printer()));

    Printer().findChild<QAction*>(u"mnuSetup"_s)->trigger();
    Settle();
    EXPECT_TRUE(Printer().isVisible());
    EXPECT_EQ(PdfFiles().size(), 0);
    const auto* zoom = Printer().findChild<QComboBox*>(u"cmbmnuZoom"_s);
    QStringList zooms;
    for (int i = 0; i < zoom->count(); ++i)
        zooms << zoom->itemText(i);
    EXPECT_EQ(zooms, (QStringList{u"0.25"_s, u"0.5"_s, u"1"_s, u"2"_s, u"3"_s}));
    EXPECT_EQ(zoom->currentText(), u"1"_s); // the size that is seen

    Printer().findChild<QAction*>(u"mnuExit"_s)->trigger();
    Settle();
    EXPECT_EQ(Windows().Find(u"frmPrint"_s), nullptr);
    Print(u"ticket"_s, PrintMode::Preview); // a new one opens
    EXPECT_TRUE(Printer().isVisible());
}

TEST_F(PrintedForm, ThePreviewsStripHasOneGroundAndNothingThatDoesNothing)
{
    Open(u"frmMain"_s);
    Fill(u"ticket"_s);
    Print(u"ticket"_s, PrintMode::Preview);
    Settle();
    const auto* strip = Printer().findChild<QToolBar*>(u"menuBar"_s);
    for (const auto& [key, isSeen] :
         {std::pair{u"mnuPrint"_s, true}, {u"mnuSetup"_s, false}, {u"mnuExit"_s, true}})
        EXPECT_EQ(Printer().findChild<QAction*>(key)->isVisible(), isSeen) << key.toStdString();
    for (const QString& name : {u"cmbmnuZoom"_s, u"cbmPageRec"_s, u"lblZoom"_s, u"lblPage"_s, u"lblKeys"_s}) {
        const auto* part = Printer().findChild<QWidget*>(name);
        EXPECT_TRUE(part->isVisible() && strip->isAncestorOf(part)) << name.toStdString();
        EXPECT_GE(part->width(), part->minimumSizeHint().width()) << name.toStdString();
    }
    EXPECT_FALSE(Printer().findChild<QWidget*>(u"Command1"_s)->isVisible());

    const QImage window = Printer().grab().toImage();
    for (const int x : {window.width() - 3, window.width() - 40}) // behind its last entry
        EXPECT_EQ(window.pixel(x, strip->height() / 2), window.pixel(window.width() - 20, 3)) << x;
    EXPECT_EQ(strip->geometry().right(), Printer().rect().right());
}

TEST_F(PrintedForm, ThePreviewPrintsTheSheetThatItShowsAndTellsOfItsFile)
{
    Fill(u"ticket"_s);
    Print(u"ticket"_s, PrintMode::Preview);
    const QStringList shown = TakeDrawing();
    FormOf(u"ticket"_s)->close(); // and with it what was typed
    Settle();
    Printer().activateWindow();
    Printer().setFocus();
    Settle();
    boxes.ExpectContaining(u"这台电脑没有打印机，收款清单存为 PDF 文件：\n"_s + PdfFolder());
    Press(Qt::Key_P, Qt::AltModifier);
    boxes.Verify();
    EXPECT_EQ(PdfFiles().size(), 1);
    EXPECT_TRUE(boxes.Seen().value(0).endsWith(PdfFiles().value(0)));
    QStringList printed = TakeDrawing();
    printed.removeAll(u"new page"_s); // after the last thing: no sheet of its own
    EXPECT_EQ(printed.value(0), u"start printer 1"_s);
    EXPECT_EQ(printed.mid(1), shown.mid(1));
}

TEST_F(PrintedForm, AnotherZoomDrawsTheSamePageLarger)
{
    Fill(u"ticket"_s);
    Print(u"ticket"_s, PrintMode::Preview);
    const QStringList once = TakeDrawing();
    const QSize size = Printer().PagePreview().Picture().size();
    FormOf(u"ticket"_s)->close();
    Settle();
    Printer().activateWindow();
    Settle();
    Press(Qt::Key_Z, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"cmbmnuZoom"_s);
    Press(Qt::Key_Down); // from 1 to 2
    EXPECT_EQ(Printer().PagePreview().Picture().size(), 2 * size);
    const QStringList twice = TakeDrawing();
    EXPECT_EQ(twice.value(0), u"start preview 2 11907 16832"_s);
    EXPECT_EQ(twice.mid(1), once.mid(1));
    EXPECT_EQ(Printer().findChild<QComboBox*>(u"cbmPageRec"_s)->count(), 1);

    Fill(u"ticket"_s);
    Print(u"ticket"_s, PrintMode::Preview); // the next one begins at its size
    EXPECT_EQ(Printer().findChild<QComboBox*>(u"cmbmnuZoom"_s)->currentText(), u"1"_s);
    EXPECT_EQ(Printer().PagePreview().Picture().size(), size);
}

TEST_F(PrintedForm, EscapeLeavesThePreview)
{
    Fill(u"ticket"_s);
    Print(u"ticket"_s, PrintMode::Preview);
    Printer().activateWindow();
    Printer().setFocus();
    Settle();
    EXPECT_EQ(FocusName(), u"PagePreview"_s);
    Press(Qt::Key_Escape);
    EXPECT_EQ(Windows().Find(u"frmPrint"_s), nullptr);
}

// With the saves

TEST_F(PrintedForm, WithStyleZeroATicketIsSavedAndNothingPrinted)
{
    SetStyle(u"P03"_s, u"0"_s);
    Fill(u"ticket"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(PdfFiles(), QStringList());
}

TEST_F(PrintedForm, ASavedTicketIsPrintedInItsStyle)
{
    for (const QString& style : {u"1"_s, u"2"_s}) {
        SetStyle(u"P03"_s, style);
        Fill(u"ticket"_s);
        dynamic_cast<frmPrint&>(Documents());
        Press(Qt::Key_S, Qt::AltModifier);
        Windows().Find(u"frmSale"_s)->Widget()->close();
        Settle();
    }
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    EXPECT_EQ(PdfFiles().size(), 2);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(PrintedForm, ASettlementIsPrintedWhileItsFieldsAreFilled)
{
    SetStyle(u"P05"_s, u"2"_s);
    Fill(u"settlement"_s);
    DrawingLog log;
    Documents();
    Printer().Record(&log);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"CheckOut"_s), 1);
    EXPECT_EQ(PdfFiles().size(), 1);
    EXPECT_TRUE(Has(u"(柒万伍仟壹佰柒拾伍元壹角)"_s, log.TakeLines()));
}

// When printing fails

TEST_F(PrintedForm, ALostDocumentLeavesARowAndIsTold)
{
    BlockThePrinter();
    const QList<std::tuple<QString, QString, QString>> labels{
        {u"lot-slip"_s, u"打印客户信息"_s, u"商品登记单"_s},
        {u"stock-change"_s, u"打印客户信息"_s, u"库存变更单"_s},
        {u"ticket"_s, u"打印收银清单"_s, u"收款清单"_s},
        {u"advance"_s, u"打印预支款清单"_s, u"预支款登记单"_s},
        {u"settlement"_s, u"打印结算清单"_s, u"结算清单"_s},
        {u"settlement-a"_s, u"打印结算清单"_s, u"结算清单"_s},
    };
    for (const auto& [document, label, title] : labels) {
        Fill(document);
        boxes.Expect(Lost(title, u"无法建立文件夹："_s + PdfFolder()));
        PrintFailing(document);
        Settle();
        boxes.Verify();
        const auto rows = Db().Rows(u"SELECT ErrSource,ErrUserName FROM ErrInfo"_s);
        ASSERT_EQ(rows.size(), 1U) << document.toStdString();
        EXPECT_EQ(rows[0], (QStringList{label, u"管理员"_s}));
        Db().Run(u"DELETE FROM ErrInfo; DELETE FROM Sal_List; DELETE FROM CustDebit"_s);
        if (QWidget* form = FormOf(document))
            form->close();
        Settle();
    }
}

TEST_F(PrintedForm, AFailedPrintNeitherUndoesNorRepeatsTheSave)
{
    SetStyle(u"P03"_s, u"2"_s);
    Fill(u"ticket"_s);
    BlockThePrinter();
    boxes.Expect(Lost(u"收款清单"_s, u"无法建立文件夹："_s + PdfFolder()));
    boxes.WhileOpen([this] { // the save is over, its screen cleared
        EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='01'"_s), u"1"_s);
        EXPECT_EQ(TextOf(u"frmSale"_s, u"txtNum"_s), QString());
    });
    Press(Qt::Key_S, Qt::AltModifier);
    boxes.Verify();
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(Value(u"SELECT Num_Sal+0 FROM PRD_List"_s), u"11610.000000"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE TID='01'"_s), u"1"_s);
    EXPECT_EQ(TextOf(u"frmSale"_s, u"txtNum"_s), QString()); // cleared for the next ticket
    EXPECT_EQ(Count(u"ErrInfo"_s), 1);

    QFile::remove(PdfFolder());
    QDir().mkpath(PdfFolder()); // the printer is back, and prints the next one only
    Windows().Find(u"frmSale"_s)->Widget()->close();
    Settle();
    Fill(u"ticket"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    EXPECT_EQ(PdfFiles().size(), 1);
}

TEST_F(PrintedForm, AFailedLookupOfTheOffsetsIsToldToo)
{
    Fill(u"ticket"_s);
    Db().Run(u"RENAME TABLE DFN_Paper TO DFN_Paper_Away"_s);
    const QString table = u"%1.DFN_Paper"_s.arg(Value(u"SELECT DATABASE()"_s));
    boxes.Expect(Lost(u"收款清单"_s, u"Table '%1' doesn't exist"_s.arg(table)));
    PrintFailing(u"ticket"_s);
    Settle();
    boxes.Verify();
    Db().Run(u"RENAME TABLE DFN_Paper_Away TO DFN_Paper"_s);
    EXPECT_EQ(PdfFiles(), QStringList());
}

TEST_F(PrintedForm, WithoutAConnectionNothingComesOutOfAPrint)
{
    Fill(u"ticket"_s);
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(Lost(u"收款清单"_s, QString()));
    PrintFailing(u"ticket"_s);
    Settle();
    boxes.Verify();
    EXPECT_EQ(Count(u"ErrInfo"_s), 0); // the row needs the connection too
}

TEST_F(PrintedForm, APreviewThatFailsIsNoLostDocument)
{
    Fill(u"ticket"_s);
    FailStatement(1, Refusal::MissingTable);
    Documents().Print(Document::SaleList, PrintMode::Preview, *FormOf(u"ticket"_s));
    Settle();
    EXPECT_EQ(boxes.Seen(), QStringList());
    EXPECT_FALSE(Printer().isVisible());
}

// What people type and sites set

TEST_F(PrintedForm, OddTextsPlacesAndPapersPrintAllTheSame)
{
    Fill(u"ticket"_s);
    const QStringList texts{QString(), u"  "_s, u"一行\n二行\t\x01\x7f"_s, QString(5000, u'货'),
                            u"🍎𠮷é'\\\""_s};
    for (const QString& text : texts) {
        FormOf(u"ticket"_s)->findChild<QLabel*>(u"lblTotal"_s)->setText(text);
        Print(u"ticket"_s, PrintMode::Stationery);
        EXPECT_TRUE(TakeDrawing().filter(u"bold"_s).size() > 0);
    }
    for (const int code : {-5, 0, 1, 256, 32000}) {
        Session::PaperSizeCode = static_cast<std::int16_t>(code);
        Print(u"ticket"_s, PrintMode::Sheet);
    }
    Session::PaperSizeCode = 9;
    for (const QString& offset : {u"100"_s, u"-100"_s, u"99999999999999"_s}) {
        SetOffsets(u"ticket"_s, offset, offset);
        Print(u"ticket"_s, PrintMode::Stationery);
    }
    Db().Run(u"DELETE FROM DFN_Paper"_s);
    Print(u"ticket"_s, PrintMode::Sheet); // without a row nothing is shifted
    EXPECT_EQ(PdfFiles().size(), texts.size() + 5 + 3 + 1);
}

TEST_F(PrintedForm, AHundredDocumentsInARowOfOneSecondAreAHundredFiles)
{
    const auto openFiles = [] {
        return QDir(u"/proc/self/fd"_s).entryList(QDir::Files | QDir::System).size();
    };
    Fill(u"ticket"_s);
    Print(u"ticket"_s, PrintMode::Sheet);
    const auto before = openFiles();
    for (int i = 1; i < 100; ++i)
        Print(u"ticket"_s, i % 2 == 0 ? PrintMode::Stationery : PrintMode::Sheet);
    EXPECT_EQ(PdfFiles().size(), 100);
    EXPECT_EQ(openFiles(), before);
}

// From the list of lots

TEST_F(PrintedForm, TheToolbarPrintsTheSlipOfTheSelectedLot)
{
    SetStyle(u"P01"_s, u"2"_s);
    auto* frame = Open(u"frmMain"_s);
    frame->findChild<QAction*>(u"menuPRDList"_s)->trigger();
    Settle();
    Documents();
    DrawingLog log;
    Printer().Record(&log);
    frame->findChild<QAction*>(u"mnuPrint"_s)->trigger();
    Settle();
    const QStringList drawing = log.TakeLines();
    EXPECT_TRUE(Has(u"海南崖州果业合作社 "_s, drawing));
    EXPECT_TRUE(Has(u"12860件 "_s, drawing));
    EXPECT_EQ(PdfFiles().size(), 1);
}

TEST_F(PrintedForm, TheToolbarPrintsNoSlipWithoutALotOrWithSlipsOff)
{
    auto* frame = Open(u"frmMain"_s);
    frame->findChild<QAction*>(u"menuPRDList"_s)->trigger();
    Settle();
    frame->findChild<QAction*>(u"mnuPrint"_s)->trigger();
    SetStyle(u"P01"_s, u"2"_s);
    Db().Run(u"DELETE FROM PRD_List"_s);
    Windows().Find(u"frmDataList"_s)->RefreshList();
    frame->findChild<QAction*>(u"mnuPrint"_s)->trigger();
    Settle();
    EXPECT_EQ(PdfFiles(), QStringList());
}

} // namespace
