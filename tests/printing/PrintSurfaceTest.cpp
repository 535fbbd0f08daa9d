#include "printing/DrawingLog.h"
#include "printing/PrintQueue.h"
#include "printing/SystemPrinter.h"
#include "printing/clsPrint.h"
#include "printing/ctlPreview.h"
#include "tests/support/WindowTest.h"

#include <QDir>
#include <QProcess>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

constexpr double Whole = 1;

/// One page on either target, its calls noted. The font is 12 points, so that a line has a known height.
class PrintSurface : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        QDir().mkpath(PdfFolder()); // known already: no box tells of it
        page.Record(&log);
    }

    void StartOnPaper()
    {
        page.PrintStartDoc(printer, Whole);
        ChooseFont();
    }
    void StartOnPreview(double scale = Whole)
    {
        page.PrintSetPsize(u"A5"_s, 0, 0);
        page.PrintStartDoc(preview, scale);
        ChooseFont();
    }
    void ChooseFont()
    {
        page.SetFontName(u"Noto Sans CJK SC"_s);
        page.SetFontSize(12);
        log.TakeLines();
    }
    /// The calls without their fonts.
    QStringList Calls()
    {
        QStringList calls = log.TakeLines();
        calls.replaceInStrings(u"\"Noto Sans CJK SC\" 12 "_s, QString());
        return calls;
    }
    void MoveTo(float x, float y)
    {
        page.SetCurrentX(x);
        page.SetCurrentY(y);
    }
    /// The left margin, as the next line shows it.
    float LeftMargin()
    {
        page.NewLine();
        return page.CurrentX();
    }
    int PagesOfThePdf()
    {
        const QDir folder(PdfFolder());
        const QStringList files = folder.entryList({u"*.pdf"_s}, QDir::Files);
        if (files.size() != 1)
            return -1;
        QProcess info;
        info.start(u"pdfinfo"_s, {folder.filePath(files[0])});
        EXPECT_TRUE(info.waitForFinished());
        const auto pages = QRegularExpression(u"Pages: +(\\d+)"_s).match(QString::fromUtf8(info.readAll()));
        return pages.captured(1).toInt();
    }
    bool IsInkAt(double x, double y)
    {
        return preview.Picture().pixelColor(int(x / 15), int(y / 15)).lightness() < 128;
    }

    SystemPrinter printer;
    ctlPreview preview;
    DrawingLog log;
    clsPrint page{printer};
};

// Margins and lines

TEST_F(PrintSurface, ABlockOfNoWidthGivesMarginsOfFifty)
{
    StartOnPaper();
    for (const double width : {0.0, -1.0}) {
        page.CenterPrn(width);
        EXPECT_EQ(page.CurrentX(), 50);
        EXPECT_EQ(LeftMargin(), 50);
    }
}

TEST_F(PrintSurface, ABlockIsCentredAndOneWiderThanTheTargetHasNoMargin)
{
    StartOnPreview();
    page.CenterPrn(8392 - 1000);
    EXPECT_EQ(LeftMargin(), 500);
    page.CenterPrn(8392 + 1000);
    EXPECT_EQ(LeftMargin(), 0);
}

TEST_F(PrintSurface, PaperHasNoGapAndNoMarginThePreviewTenAndFifty)
{
    StartOnPaper();
    MoveTo(700, 1000);
    page.NewLineBG(30);
    EXPECT_FLOAT_EQ(page.CurrentY(), 1000 + page.TextHeight(u"AA"_s) + 30);
    EXPECT_EQ(page.CurrentX(), 0);

    StartOnPreview();
    MoveTo(700, 1000);
    page.NewLineBG(30);
    EXPECT_FLOAT_EQ(page.CurrentY(), 1000 + page.TextHeight(u"AA"_s) + 10 + 30);
    page.CenterPrn(0);
    EXPECT_EQ(page.CurrentX(), 50);
    EXPECT_EQ(page.CurrentY(), 50);
}

TEST_F(PrintSurface, ThePreviewsGapAndMarginsAreGoneOnTheNextPaper)
{
    StartOnPreview();
    page.CenterPrn(0);
    StartOnPaper();
    MoveTo(700, 1000);
    page.NewLineBG(0);
    EXPECT_FLOAT_EQ(page.CurrentY(), 1000 + page.TextHeight(u"AA"_s));
    EXPECT_EQ(page.CurrentX(), 0);
    page.CenterPrn(0);
    EXPECT_EQ(page.CurrentY(), 0);
}

TEST_F(PrintSurface, ANewLineIsOneLineLowerAtTheMargin)
{
    StartOnPaper();
    MoveTo(700, 1000);
    page.NewLine();
    EXPECT_EQ(page.CurrentX(), 0);
    EXPECT_FLOAT_EQ(page.CurrentY(), 1000 + page.TextHeight(u"AA"_s));
}

TEST_F(PrintSurface, TextIsMeasuredInTwipsOfThePage)
{
    StartOnPaper();
    EXPECT_FLOAT_EQ(page.TextWidth(u"收款"_s), 2 * 12 * 20);
    EXPECT_FLOAT_EQ(page.TextWidth(u"收款 "_s), page.TextWidth(u"收款"_s) + page.TextWidth(u" "_s));
    EXPECT_GT(page.TextHeight(u"XX的"_s), 12 * 20);
    EXPECT_FLOAT_EQ(page.TextHeight(u"的\n的"_s), 2 * page.TextHeight(u"的"_s));
    const float onPaper = page.TextWidth(u"编号K-128"_s);
    StartOnPreview();
    EXPECT_FLOAT_EQ(page.TextWidth(u"编号K-128"_s), onPaper);
}

// Page sizes

TEST_F(PrintSurface, KnownPapersGoByTheirNamesInAnyCaseOthersByTheirSizes)
{
    const auto sizeOf = [this](const QString& name) {
        page.PrintSetPsize(name, 5000, 7000);
        page.PrintStartDoc(preview, Whole);
        return QSizeF(preview.ScaleWidth(), preview.ScaleHeight());
    };
    EXPECT_EQ(sizeOf(u"a4"_s), QSizeF(11907, 16832));
    EXPECT_EQ(sizeOf(u"A4"_s), QSizeF(11907, 16832));
    EXPECT_EQ(sizeOf(u"a5"_s), QSizeF(8392, 11907));
    EXPECT_EQ(sizeOf(u"A4 "_s), QSizeF(5000, 7000));
    EXPECT_EQ(sizeOf(QString()), QSizeF(5000, 7000));
}

// Framed cells

TEST_F(PrintSurface, ACellHasItsFrameItsTextAndLeavesThePenAtItsRightCorner)
{
    StartOnPaper();
    const float height = page.TextHeight(u"XX的"_s) + 80;
    MoveTo(1000, 2000);
    page.SetDrawWidth(3);
    QString text = u"编号"_s;
    page.BoxOut(text, 900, u"L"_s, 80, u"1234"_s);
    const QString bottom = QString::number(2000 + height);
    EXPECT_EQ(Calls(),
              (QStringList{u"line 1000 2000 1000 %1 1"_s.arg(bottom), u"line 1000 2000 1900 2000 2"_s,
                           u"line 1900 2000 1900 %1 3"_s.arg(bottom), u"line 1000 %1 1900 %1 4"_s.arg(bottom),
                           u"text 1000 2040 \"编号\""_s}));
    EXPECT_EQ(page.CurrentX(), 1900);
    EXPECT_EQ(page.CurrentY(), 2000);
    EXPECT_EQ(page.DrawWidth(), 3);
}

TEST_F(PrintSurface, InThePreviewACellIsTenWiderHigherAndIndented)
{
    StartOnPreview();
    const float height = page.TextHeight(u"XX的"_s) + 80 + 10;
    MoveTo(1000, 2000);
    QString text = u"编号"_s;
    page.BoxOut(text, 900, u"L"_s, 80, u"1000"_s);
    EXPECT_EQ(Calls(),
              (QStringList{u"line 1000 2000 1000 %1 1"_s.arg(2000 + height), u"text 1010 2045 \"编号\""_s}));
    EXPECT_EQ(page.CurrentX(), 1910);
}

TEST_F(PrintSurface, TextStandsAtTheSideThatIsAskedForInAnyCase)
{
    StartOnPaper();
    const auto place = [this](const QString& align) {
        MoveTo(1000, 2000);
        QString text = u"编号"_s; // 480 twips wide
        page.BoxOut(text, 900, align, 0, u"0000"_s);
        return Calls().value(0).section(u' ', 1, 1).toDouble();
    };
    EXPECT_EQ(place(u"R"_s), 1000 + 900 - 480);
    EXPECT_EQ(place(u"r"_s), 1000 + 900 - 480);
    EXPECT_EQ(place(u"C"_s), 1000 + (900 - 480) / 2);
    EXPECT_EQ(place(u"c"_s), 1000 + (900 - 480) / 2);
    EXPECT_EQ(place(u"L"_s), 1000);
    EXPECT_EQ(place(QString()), 1000);
    EXPECT_EQ(place(u"RR"_s), 1000);
}

TEST_F(PrintSurface, ATextTooLongComesBackShortened)
{
    StartOnPaper();
    MoveTo(0, 0);
    QString text = u"海南崖州果业合作社"_s; // 240 twips each
    page.BoxOut(text, 1000, u"L"_s, 0, u"0000"_s);
    EXPECT_EQ(text, u"海南崖州"_s);
    EXPECT_EQ(Calls(), QStringList{u"text 0 0 \"海南崖州\""_s});
}

TEST_F(PrintSurface, ATextOfExactlyTheWidthStaysWhole)
{
    StartOnPaper();
    QString text = u"海南崖州"_s;
    page.BoxOut(text, 960, u"L"_s, 0, u"0000"_s);
    EXPECT_EQ(text, u"海南崖州"_s);
}

TEST_F(PrintSurface, OfACharacterWithTwoHalvesNoneIsLeftBehind)
{
    StartOnPaper();
    QString text = u"𠮷𠮷"_s;
    page.BoxOut(text, page.TextWidth(u"𠮷"_s) + 10, u"L"_s, 0, u"0000"_s);
    EXPECT_EQ(text, u"𠮷"_s);
}

TEST_F(PrintSurface, WhereNothingFitsTheTextIsEmptyAndTheFrameDrawn)
{
    StartOnPaper();
    MoveTo(1000, 2000);
    QString text = u"编号"_s;
    page.BoxOut(text, 100, u"C"_s, 0, u"0100"_s);
    EXPECT_EQ(text, QString());
    EXPECT_EQ(Calls(), (QStringList{u"line 1000 2000 1100 2000 1"_s, u"text 1050 2000 \"\""_s}));
}

TEST_F(PrintSurface, ACellOfNoWidthPrintsTheWholeText)
{
    StartOnPaper();
    MoveTo(1000, 2000);
    QString text = u"海南崖州果业合作社"_s;
    page.BoxOut(text, 0, u"L"_s, 0, u"0000"_s);
    EXPECT_EQ(text, u"海南崖州果业合作社"_s);
    EXPECT_EQ(Calls(), QStringList{u"text 1000 2000 \"海南崖州果业合作社\""_s});
    EXPECT_EQ(page.CurrentX(), 1000);
}

TEST_F(PrintSurface, ATextWiderThanItsFieldIsNarrowedToFitAndTheNextIsNot)
{
    StartOnPaper();
    const auto print = [this](const QString& text, double width) {
        MoveTo(0, 0);
        page.PrintFitted(text, width);
        return Calls().value(0);
    };
    EXPECT_EQ(print(u"货货货货"_s, 960), u"text 0 0 \"货货货货\""_s); // 240 each
    EXPECT_EQ(print(u"货货货货  "_s, 960), u"text 0 0 \"货货货货  \""_s) << "blanks may stand outside";
    EXPECT_EQ(print(u"货货货货货"_s, 960), u"text 0 0 stretch 80 \"货货货货货\""_s);
    EXPECT_EQ(print(u"货"_s, 960), u"text 0 0 \"货\""_s);
    EXPECT_EQ(page.TextWidth(u"货"_s), 240);
}

TEST_F(PrintSurface, NoTextIsNarrowedBelowHalfNorCut)
{
    StartOnPaper();
    for (const double width : {1200., 1100., 1., 0., -5.}) {
        MoveTo(0, 0);
        page.PrintFitted(QString(10, u'货'), width);
        EXPECT_EQ(Calls(), QStringList{u"text 0 0 stretch 50 \"货货货货货货货货货货\""_s}) << width;
    }
    page.PrintFitted(QString(), -5);
    page.PrintFitted(u" "_s, -5);
    EXPECT_TRUE(Calls().filter(u"stretch"_s).isEmpty());
}

TEST_F(PrintSurface, ANarrowedTextIsAsWideInThePreviewAsItsField)
{
    StartOnPreview();
    MoveTo(300, 300);
    page.PrintFitted(QString(20, u'口'), 3600);
    const auto hasInk = [this](double from, double to) {
        for (double x = from; x < to; x += 15) {
            for (double y = 300; y < 700; y += 15) {
                if (IsInkAt(x, y))
                    return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(hasInk(3700, 3900));
    EXPECT_FALSE(hasInk(3930, 6000));
}

TEST_F(PrintSurface, WithoutSidesTheTextIsPrintedAllTheSame)
{
    StartOnPaper();
    for (const QString& sides : {u"0000"_s, QString()}) {
        MoveTo(1000, 2000);
        QString text = u"编号"_s;
        page.BoxOut(text, 900, u"L"_s, 0, sides);
        EXPECT_EQ(Calls(), QStringList{u"text 1000 2000 \"编号\""_s});
    }
}

TEST_F(PrintSurface, TheOtherCellHasOneBoxOfWidthOne)
{
    StartOnPaper();
    const float height = page.TextHeight(u"XX的"_s) + 60;
    page.SetDrawWidth(4);
    MoveTo(1000, 2000);
    QString text = u"海南崖州果业合作社"_s;
    page.BoxOutA(text, 1000, u"r"_s, 60);
    EXPECT_EQ(Calls(), (QStringList{u"box 1000 2000 2000 %1 1"_s.arg(2000 + height),
                                    u"text 1040 2030 \"海南崖州\""_s}));
    EXPECT_EQ(text, u"海南崖州"_s);
    EXPECT_EQ(page.DrawWidth(), 4);
    EXPECT_EQ(page.CurrentX(), 2000);
    EXPECT_EQ(page.CurrentY(), 2000);
    MoveTo(0, 0);
    page.BoxOutA(text, 1000, u"c"_s, 0);
    EXPECT_EQ(Calls().value(1), u"text 20 0 \"海南崖州\""_s);
}

// Pages and jobs

TEST_F(PrintSurface, ADocumentIsOneJobAndEndsWithoutABlankSheet)
{
    StartOnPaper();
    page.PrintPrint(u"第一页"_s);
    page.NewPage();
    page.PrintPrint(u"第二页"_s);
    page.NewPage();
    page.EndDoc();
    EXPECT_EQ(PagesOfThePdf(), 2);
}

TEST_F(PrintSurface, ADocumentWithoutDrawingIsAnOpenedJobAllTheSame)
{
    page.PrintStartDoc(printer, Whole);
    page.EndDoc();
    page.EndDoc(); // nothing is open any more
    EXPECT_EQ(PagesOfThePdf(), 1);
}

TEST_F(PrintSurface, ADroppedJobLeavesNothingAndTheNextOneIsWhole)
{
    StartOnPaper();
    page.PrintPrint(u"废页"_s);
    printer.KillDoc();
    printer.KillDoc();
    StartOnPaper();
    page.PrintPrint(u"好页"_s);
    page.EndDoc();
    EXPECT_EQ(PagesOfThePdf(), 1);
}

TEST_F(PrintSurface, ADocumentLeftOpenIsDroppedByTheNext)
{
    StartOnPaper();
    page.PrintPrint(u"断在半路"_s);
    page.NewPage();
    page.PrintPrint(u"第二页"_s);
    StartOnPaper();
    page.PrintPrint(u"好页"_s);
    page.EndDoc();
    EXPECT_EQ(PagesOfThePdf(), 1);
}

TEST_F(PrintSurface, OfTwoPagesThePreviewKeepsTheSecond)
{
    StartOnPreview();
    preview.SetBackColor(White);
    preview.Cls();
    page.PrintFilledBox(1000, 1000, 2000, 2000, 0);
    EXPECT_TRUE(IsInkAt(1500, 1500));
    page.NewPage();
    EXPECT_FALSE(IsInkAt(1500, 1500));
    page.PrintFilledBox(3000, 1000, 4000, 2000, 0);
    page.EndDoc();
    EXPECT_FALSE(IsInkAt(1500, 1500));
    EXPECT_TRUE(IsInkAt(3500, 1500));
}

TEST_F(PrintSurface, EveryCallDrawsOnTheCanvas)
{
    StartOnPreview();
    preview.SetBackColor(White);
    preview.Cls();
    page.SetDrawWidth(4);
    page.PrintLine(1000, 1000, 2000, 1000);
    page.PrintBox(1000, 2000, 2000, 3000);
    page.PrintCircle(4000, 2000, 500);
    page.PrintFilledBox(5000, 1000, 6000, 2000, 0x0000FF);
    page.PrintSet(7000, 1000, 0);
    QImage picture(4, 4, QImage::Format_RGB32);
    picture.fill(Qt::blue);
    page.PrintPicture(picture, 1000, 5000, 1000, 1000);
    page.SetFontSize(48);
    MoveTo(3000, 5000);
    page.PrintPrint(u"田"_s);

    EXPECT_TRUE(IsInkAt(1500, 1000));
    EXPECT_TRUE(IsInkAt(1000, 2500));
    EXPECT_FALSE(IsInkAt(1500, 2500)); // an outline
    EXPECT_TRUE(IsInkAt(4500, 2000));
    EXPECT_FALSE(IsInkAt(4000, 2000));
    EXPECT_EQ(preview.Picture().pixelColor(5500 / 15, 1500 / 15),
              QColor(255, 0, 0)); // red is the lowest byte
    EXPECT_TRUE(IsInkAt(7000, 1000));
    EXPECT_EQ(preview.Picture().pixelColor(1500 / 15, 5500 / 15), QColor(0, 0, 255));
    bool hasLetter = false;
    for (int x = 3000; x < 4000; x += 15)
        hasLetter = hasLetter || IsInkAt(x, 5900);
    EXPECT_TRUE(hasLetter);
    EXPECT_EQ(page.CurrentX(), 0); // the target left the pen below the text
    EXPECT_GT(page.CurrentY(), 5000);
}

TEST_F(PrintSurface, InksAndStylesAreTheTargets)
{
    StartOnPreview();
    page.SetForeColor(0x00FF00);
    page.SetBackColor(0x102030);
    page.SetDrawStyle(2);
    page.SetDrawMode(16);
    page.SetFontItalic(true);
    page.SetFontUnderline(true);
    page.SetFontStrikethru(true);
    page.SetFontBold(true);
    EXPECT_EQ(preview.ForeColor(), 0x00FF00);
    EXPECT_EQ(preview.BackColor(), 0x102030);
    EXPECT_EQ(preview.DrawStyle(), 2);
    EXPECT_EQ(preview.DrawMode(), 16);
    EXPECT_TRUE(preview.FontItalic() && preview.FontUnderline() && preview.FontStrikethru() &&
                preview.FontBold());
    EXPECT_EQ(preview.FontName(), u"Noto Sans CJK SC"_s);
    StartOnPaper(); // has its own
    EXPECT_EQ(page.ForeColor(), 0);
    EXPECT_EQ(page.BackColor(), White);
    EXPECT_EQ(page.DrawStyle(), 0);
    EXPECT_EQ(page.DrawMode(), 13);
    EXPECT_FALSE(page.FontItalic() || page.FontUnderline() || page.FontStrikethru() || page.FontBold());
}

TEST_F(PrintSurface, WhiteAndNoInkModesAreWhatTheySay)
{
    StartOnPreview();
    preview.SetBackColor(White);
    preview.Cls();
    page.PrintFilledBox(1000, 1000, 2000, 2000, 0);
    page.SetDrawMode(11);
    page.PrintFilledBox(1000, 1000, 2000, 2000, White);
    EXPECT_TRUE(IsInkAt(1500, 1500));
    page.SetDrawMode(16);
    page.PrintFilledBox(1000, 1000, 2000, 2000, 0);
    EXPECT_FALSE(IsInkAt(1500, 1500));
    page.SetDrawMode(1);
    page.PrintFilledBox(1000, 1000, 2000, 2000, White);
    EXPECT_TRUE(IsInkAt(1500, 1500));
}

// Zoom

TEST_F(PrintSurface, AZoomedPreviewScalesThePageAndTheFontButNotItsNumbers)
{
    StartOnPreview(2);
    EXPECT_EQ(preview.PaperWidth(), 2 * 8392);
    EXPECT_EQ(preview.ScaleWidth(), 8392);
    EXPECT_EQ(page.PaperWidth(), 8392);
    EXPECT_EQ(page.PaperHeight(), 11907);
    EXPECT_FLOAT_EQ(preview.FontSize(), 24);
    EXPECT_FLOAT_EQ(page.FontSize(), 12);
    EXPECT_FLOAT_EQ(page.TextWidth(u"收款"_s), 480);
}

TEST_F(PrintSurface, AScaleOfZeroOrAPageThatNoMemoryHoldsReachesNobody)
{
    for (const double scale : {0.0, -1.0, 1e9}) {
        StartOnPreview(scale);
        page.PrintLine(0, 0, 1000, 1000);
        page.PrintPrint(u"收款"_s);
        EXPECT_TRUE(preview.Picture().isNull());
    }
    page.PrintSetPsize(QString(), 0, 0);
    page.PrintStartDoc(preview, Whole);
    page.PrintPrint(u"收款"_s);
    EXPECT_TRUE(preview.Picture().isNull());
    EXPECT_EQ(log.TakeLines().size(), 3 + 1);
}

} // namespace
