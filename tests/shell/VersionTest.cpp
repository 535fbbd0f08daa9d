#include "core/base/Version.h"
#include "tests/support/TestServer.h"
#include "tests/support/TestText.h"

#include <QFile>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString FirstVersion(const QString& file, const QString& before)
{
    QFile text(SourcePath(file));
    EXPECT_TRUE(text.open(QIODevice::ReadOnly));
    const QRegularExpression pattern(QRegularExpression::escape(before) + u"([0-9]+\\.[0-9]+\\.[0-9]+)"_s);
    return pattern.match(QString::fromUtf8(text.readAll())).captured(1);
}

} // namespace

TEST(Version, TheProgramTheHandbookAndTheLatestChangesAreOfOneRelease)
{
    EXPECT_EQ(ProgramVersion(), FirstVersion(u"CMakeLists.txt"_s, u"project(orvane VERSION "_s));
    EXPECT_EQ(ProgramVersion(), FirstVersion(u"help/index.htm"_s, u"程序版本 "_s));
    EXPECT_EQ(ProgramVersion(), FirstVersion(u"CHANGELOG.md"_s, u"## "_s));
}
