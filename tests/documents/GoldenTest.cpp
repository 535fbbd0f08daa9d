#include "tests/documents/DocumentTest.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Each document in one style, at three positions on the paper, drawn as tests/documents/golden says.
/// tests/documents/rewrite-golden writes those files anew; their difference is then to be read.
struct Style {
    QString name;
    PrintMode mode;
};

struct Offsets {
    QString left;
    QString top;
};

const QList<Style> Styles{{u"stationery"_s, PrintMode::Stationery},
                          {u"sheet"_s, PrintMode::Sheet},
                          {u"preview"_s, PrintMode::Preview}};
const QList<Offsets> Positions{{u"0"_s, u"0"_s}, {u"0.8"_s, u"1.2"_s}, {u"-0.5"_s, u"-0.3"_s}};

bool IsRewriting()
{
    return qEnvironmentVariableIsSet("ORVANE_REWRITE_GOLDEN");
}

class GoldenDocument : public DocumentTest, public ::testing::WithParamInterface<QString> {
protected:
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
    const QString document = GetParam();
    for (const Style& style : Styles) {
        QStringList drawing;
        for (const Offsets& position : Positions) {
            SetOffsets(document, position.left, position.top);
            if (!FormOf(document))
                Fill(document);
            Print(document, style.mode);
            drawing << u"== left %1 cm, top %2 cm"_s.arg(position.left, position.top) << TakeDrawing();
        }
        ExpectGolden(document + u'-' + style.name, drawing);
    }
}

INSTANTIATE_TEST_SUITE_P(Six, GoldenDocument, ::testing::ValuesIn(DocumentNames()), [](const auto& document) {
    return QString(document.param).remove(u'-').toStdString();
});

} // namespace
