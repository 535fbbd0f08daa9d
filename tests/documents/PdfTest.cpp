#include "tests/documents/DocumentTest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

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

/// With ORVANE_DOCUMENTS set to a folder, the documents stay there to be looked at.
void Keep(const QString& file, const QString& name)
{
    const QString folder = qEnvironmentVariable("ORVANE_DOCUMENTS");
    if (folder.isEmpty())
        return;
    QDir().mkpath(folder);
    QFile::remove(folder + u'/' + name);
    EXPECT_TRUE(QFile::copy(file, folder + u'/' + name));
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
        Keep(files[0], GetParam() + (isStationery ? u"-stationery.pdf"_s : u"-sheet.pdf"_s));

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

INSTANTIATE_TEST_SUITE_P(Six, PdfOf, ::testing::ValuesIn(DocumentNames()), [](const auto& document) {
    return QString(document.param).remove(u'-').toStdString();
});

} // namespace
