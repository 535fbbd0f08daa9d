#include "tests/documents/DocumentTest.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Each document on stationery and on a sheet, at three positions on the paper, drawn as
/// tests/documents/golden says. tests/documents/rewrite-golden writes those files anew; their difference is
/// then to be read. The preview needs no file: it is the sheet on the screen.
struct Style {
    QString name;
    PrintMode mode;
};

struct Offsets {
    QString left;
    QString top;
};

const QList<Style> Styles{{u"stationery"_s, PrintMode::Stationery}, {u"sheet"_s, PrintMode::Sheet}};
const QList<Offsets> Positions{{u"0"_s, u"0"_s}, {u"0.8"_s, u"1.2"_s}, {u"-0.5"_s, u"-0.3"_s}};

bool IsRewriting()
{
    return qEnvironmentVariableIsSet("ORVANE_REWRITE_GOLDEN");
}

class GoldenDocument : public DocumentTest, public ::testing::WithParamInterface<QString> {
protected:
    QStringList Drawing(PrintMode mode, const Offsets& position)
    {
        SetOffsets(GetParam(), position.left, position.top);
        if (!FormOf(GetParam()))
            Fill(GetParam());
        Print(GetParam(), mode);
        return TakeDrawing();
    }

    void ExpectGolden(const QString& name, const QStringList& lines)
    {
        QFile file(QStringLiteral(GOLDEN_FOLDER "/") + name + u".txt"_s);
        const QString drawn = lines.join(u'\n') + u'\n';
        if (IsRewriting()) {
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(drawn.toUtf8());
            return;
        }
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << file.fileName().toStdString();
        EXPECT_EQ(QString::fromUtf8(file.readAll()).toStdString(), drawn.toStdString());
    }
};

TEST_P(GoldenDocument, IsDrawnAsItsGoldenFileSays)
{
    for (const auto& [name, mode] : Styles) {
        QStringList drawing;
        for (const Offsets& position : Positions)
            drawing << u"== left %1 cm, top %2 cm"_s.arg(position.left, position.top)
                    << Drawing(mode, position);
        ExpectGolden(GetParam() + u'-' + name, drawing);
    }
}

TEST_P(GoldenDocument, OnThePreviewIsTheSheetWithoutItsPageBreak)
{
    for (const Offsets& position : Positions) {
        QStringList sheet = Drawing(PrintMode::Sheet, position);
        const QStringList preview = Drawing(PrintMode::Preview, position);
        ASSERT_EQ(sheet.value(0), u"start printer 1"_s);
        sheet[0] = u"start preview 1 11907 16832"_s; // A4
        sheet.removeAll(u"new page"_s);              // which would wipe the preview
        EXPECT_EQ(preview, sheet);
    }
}

INSTANTIATE_TEST_SUITE_P(Six, GoldenDocument, ::testing::ValuesIn(DocumentNames()), [](const auto& document) {
    return QString(document.param).remove(u'-').toStdString();
});

TEST(GoldenFiles, AreThoseOfTheDocumentsAndNoOthers)
{
    QStringList expected;
    for (const QString& document : DocumentNames()) {
        for (const Style& style : Styles)
            expected << document + u'-' + style.name + u".txt"_s;
    }
    expected.sort();
    EXPECT_EQ(QDir(QStringLiteral(GOLDEN_FOLDER)).entryList(QDir::Files, QDir::Name), expected);
}

} // namespace
