#include "tests/reports/GoldenReports.h"
#include "reports/AmountReport.h"
#include "reports/ReportDefinitions.h"

#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

/// Each report over the two months as tests/reports/golden says. tests/reports/rewrite-golden writes those
/// files anew; their difference is then to be read.
const QString Folder = QStringLiteral(REPORTS_FOLDER "/golden");

bool IsRewriting()
{
    return qEnvironmentVariableIsSet("ORVANE_REWRITE_GOLDEN");
}

QString AlignmentName(Qt::Alignment alignment)
{
    return alignment == Qt::AlignRight ? u"right"_s : alignment == Qt::AlignHCenter ? u"centre"_s : u"left"_s;
}

class GoldenReportTest : public ReportTest, public ::testing::WithParamInterface<ReportCase> {
protected:
    QStringList Lines(const ReportView& report)
    {
        QStringList lines{u"company "_s + report.Caption(ReportView::Line::Company),
                          u"title "_s + report.Caption(ReportView::Line::Title),
                          u"condition "_s + report.Caption(ReportView::Line::Condition)};
        for (int i = 0; i < Content().ColumnCount(); ++i)
            lines << u"column %1 %2 %3 "_s.arg(i)
                             .arg(Content().Column(i).widthTwips)
                             .arg(AlignmentName(Content().Column(i).Alignment())) +
                         Content().Column(i).heading;
        static const QStringList kinds{u"row"_s, u"spacer"_s, u"total"_s};
        for (int row = 0; row < Content().RowCount(); ++row)
            lines << kinds[static_cast<int>(Content().KindOf(row))] + u' ' + Row(row).join(u" | "_s);
        for (QString& line : lines)
            line = line.trimmed();
        return lines;
    }
};

TEST_P(GoldenReportTest, IsBuiltAsItsGoldenFileSays)
{
    const ReportView& report = Build(GetParam());
    EXPECT_TRUE(report.IsWhole());
    const QString built = Lines(report).join(u'\n') + u'\n';
    QFile file(Folder + u'/' + GetParam().name + u".txt"_s);
    if (IsRewriting()) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(built.toUtf8());
        return;
    }
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << "no golden file " << file.fileName().toStdString();
    EXPECT_EQ(QString::fromUtf8(file.readAll()).toStdString(), built.toStdString());
}

INSTANTIATE_TEST_SUITE_P(All, GoldenReportTest, ::testing::ValuesIn(GoldenReports()), [](const auto& report) {
    return QString(report.param.name).replace(u'-', u'_').toStdString();
});

TEST(GoldenReportFiles, AreThoseOfTheReportsAndNoOthers)
{
    QStringList expected;
    for (const ReportCase& report : GoldenReports())
        expected << report.name + u".txt"_s;
    expected.sort();
    EXPECT_EQ(QDir(Folder).entryList(QDir::Files, QDir::Name), expected);
}

TEST(GoldenReportFiles, StandForEveryReportAndVariant)
{
    QStringList reports{AmountReportKey};
    for (const ReportDefinition& definition : ReportDefinitions())
        reports << definition.name;
    for (const QString& report : reports)
        EXPECT_TRUE(QFile::exists(Folder + u'/' + report + u".txt"_s)) << report.toStdString();
}

} // namespace
