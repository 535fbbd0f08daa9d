#include "tests/documents/DocumentTest.h"

#include "core/base/Twips.h"
#include "tests/support/PrintServer.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace {

/// What a program says about a file.
QString OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return QString::fromUtf8(process.readAllStandardOutput());
}

const QString Ideograph = u"\\x{4e00}-\\x{9fff}"_s;
const QString Radical = u"\\x{2e80}-\\x{2fdf}"_s; // twins of some ideographs, drawn with the same glyph

/// The Chinese characters of a text. Of figures a font has several glyphs, and a PDF file tells the
/// character of one of them only; its Chinese can be read back.
QString Chinese(const QString& text)
{
    return QString(text).remove(QRegularExpression(u"[^"_s + Ideograph + Radical + u']'));
}

/// Finds a text whose glyphs may be told as the twins.
QRegularExpression Pattern(const QString& chinese)
{
    QString pattern;
    for (const QChar character : chinese)
        pattern += u'[' + QString(character) + Radical + u']';
    return QRegularExpression(pattern);
}

/// The Chinese of each text that was drawn.
QStringList ChineseTexts(const QStringList& drawing)
{
    QStringList texts;
    static const QRegularExpression text(u"^text .*\\d (?:bold )?\"(.*)\"$"_s);
    for (const QString& line : drawing)
        texts << Chinese(text.match(line).captured(1));
    texts.removeAll(QString());
    return texts;
}

class PdfOf : public DocumentTest, public ::testing::WithParamInterface<QString> {
protected:
    void ExpectOnePageWithAllTexts(PrintMode mode)
    {
        Fill(GetParam());
        Print(GetParam(), mode);
        const QStringList files = PdfFiles();
        ASSERT_EQ(files.size(), 1);
        const bool isStationery = mode == PrintMode::Stationery;
        KeepDocument(files[0], GetParam() + (isStationery ? u"-stationery.pdf"_s : u"-sheet.pdf"_s));

        EXPECT_TRUE(OutputOf(u"pdfinfo"_s, {files[0]}).contains(QRegularExpression(u"Pages: +1\n"_s)));
        const QString fonts = OutputOf(u"pdffonts"_s, {files[0]});
        EXPECT_TRUE(fonts.contains(u"NotoSansCJKsc"_s) || fonts.contains(u"NotoSerifCJKsc"_s))
            << fonts.toStdString();
        EXPECT_FALSE(fonts.contains(u"CJKjp"_s)) << fonts.toStdString();
        const QString page = Chinese(OutputOf(u"pdftotext"_s, {u"-raw"_s, files[0], u"-"_s}));
        const QStringList texts = ChineseTexts(TakeDrawing());
        EXPECT_GE(texts.size(), isStationery ? 5 : 15);
        for (const QString& text : texts)
            EXPECT_TRUE(page.contains(Pattern(text))) << text.toStdString();
    }
};

TEST_P(PdfOf, TheSheetIsOnePageWithEveryTextInSimplifiedGlyphs)
{
    ExpectOnePageWithAllTexts(PrintMode::Sheet);
}

TEST_P(PdfOf, TheStationeryIsOnePageWithEveryTextInSimplifiedGlyphs)
{
    ExpectOnePageWithAllTexts(PrintMode::Stationery);
}

/// The right end of the ink of a text on the page of a PDF file, in twips; 0 when the page does not have it.
double RightEnd(const QString& file, const QString& text)
{
    static const QRegularExpression word(u"xMax=\"([0-9.]+)\"[^>]*>([^<]*)<"_s);
    const QString page = OutputOf(u"pdftotext"_s, {u"-bbox"_s, file, u"-"_s});
    for (const auto& match : word.globalMatch(page)) {
        if (Pattern(Chinese(text)).match(match.captured(2)).hasMatch())
            return match.captured(1).toDouble() * 20;
    }
    return 0;
}

struct LongText {
    QString document;
    QString control;
    QString text;
};

class LongTextOf : public DocumentTest, public ::testing::WithParamInterface<LongText> {
protected:
    void ExpectWholeTextWithinItsField(PrintMode mode)
    {
        const auto& [document, control, text] = GetParam();
        Fill(document);
        auto* field = FormOf(document)->findChild<QWidget*>(control);
        ASSERT_NE(field, nullptr);
        ASSERT_TRUE(field->setProperty("text", text));
        const double width = field->width() * TwipsPerPixel;
        const double rightEdge = field->x() * TwipsPerPixel + width;
        Print(document, mode);
        const QStringList files = PdfFiles();
        ASSERT_EQ(files.size(), 1);
        KeepDocument(files[0], document + u'-' + control +
                                   (mode == PrintMode::Sheet ? u"-sheet.pdf"_s : u"-stationery.pdf"_s));
        const double end = RightEnd(files[0], text);
        EXPECT_GT(end, rightEdge - 0.03 * width) << "narrowed more than needed, or not there";
        EXPECT_LE(end, rightEdge + 1);
    }
};

TEST_P(LongTextOf, StandsWholeWithinItsFieldOnASheet)
{
    ExpectWholeTextWithinItsField(PrintMode::Sheet);
}

TEST_P(LongTextOf, StandsWholeWithinItsFieldOnStationery)
{
    ExpectWholeTextWithinItsField(PrintMode::Stationery);
}

const QString Memo =
    u"第三车外箱略潮先卖司机电话留在磅单背面货主要求当天结清余款转账到合作社账户不收现金卸车时少两件"
    "已当面点清双方签字为凭另有空筐三十只"_s;

INSTANTIATE_TEST_SUITE_P(
    All, LongTextOf,
    ::testing::Values(LongText{u"settlement"_s, u"txtCustName"_s, u"海南崖州热带果业合作社"_s},
                      LongText{u"settlement-a"_s, u"txtCustName"_s, u"海南崖州热带果业合作社"_s},
                      LongText{u"ticket"_s, u"lblCustName"_s, u"海南崖州热带果业合作社"_s},
                      LongText{u"ticket"_s, u"txtVendee"_s, u"江南鲜多多连锁超市有限公司城北分店"_s},
                      LongText{u"lot-slip"_s, u"txtMemo"_s, Memo},
                      LongText{u"stock-change"_s, u"txtMemo"_s, Memo},
                      LongText{u"advance"_s, u"txtMemo"_s, Memo}),
    [](const auto& text) {
        return QString(text.param.document + u'_' + text.param.control).remove(u'-').toStdString();
    });

INSTANTIATE_TEST_SUITE_P(Six, PdfOf, ::testing::ValuesIn(DocumentNames()), [](const auto& document) {
    return QString(document.param).remove(u'-').toStdString();
});

} // namespace
