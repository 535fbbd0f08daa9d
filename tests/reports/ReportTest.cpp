#include "tests/reports/ReportTest.h"

#include "app/StartProgram.h"
#include "core/forms/ListGrid.h"
#include "core/session/Session.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace {
const QString FirstDay = u"2026-01-01"_s;
const QString LastDay = u"2026-02-28"_s;
} // namespace

void ReportTest::SetUp()
{
    WindowTest::SetUp();
    RegisterWindows();
    QFile data(QStringLiteral(REPORTS_FOLDER "/two-months.sql"));
    ASSERT_TRUE(data.open(QIODevice::ReadOnly));
    Db().Run(QString::fromUtf8(data.readAll()));
}

void ReportTest::Ask(const ReportCase& asked)
{
    Session::CurrentMenuKey = asked.menuKey;
    Session::ReportKind = asked.kind;
    Session::ConditionAll = asked.all;
    Session::ConditionKey = asked.key;
    Session::ConditionCaption = asked.caption;
    LoadReport()->SetCondition(asked.condition);
}

ReportView& ReportTest::Build(const ReportCase& asked)
{
    Ask(asked);
    OpenReport()->ShowData(true);
    return *OpenReport();
}

ReportView& ReportTest::Show(const ReportCase& asked)
{
    Build(asked);
    Open(u"frmReport"_s);
    return *OpenReport();
}

ListGrid* ReportTest::List()
{
    return Find<ListGrid>(u"frmReport"_s, u"lvReport"_s);
}

QStringList ReportTest::Row(int row)
{
    QStringList texts;
    for (int i = 1; i < Content().ColumnCount(); ++i)
        texts << Content().Text(row, i);
    return texts;
}

QStringList ReportTest::Column(int subItem)
{
    QStringList texts;
    for (int row = 0; row < Content().RowCount(); ++row)
        texts << Content().Text(row, subItem);
    return texts;
}

QStringList ReportTest::Headings()
{
    QStringList headings;
    for (int i = 1; i < Content().ColumnCount(); ++i)
        headings << Content().Column(i).heading;
    return headings;
}

QString Period(const QString& field, const QString& start, const QString& end)
{
    return u"(%1>='%2' And %1<='%3')"_s.arg(field, start, end);
}

ReportCondition TwoMonths(const QString& field, const QString& pieces, bool adjusted)
{
    return {Period(field, FirstDay, LastDay) + pieces, FirstDay, LastDay, adjusted};
}
