#include "tests/export/ExportCase.h"

#include "core/session/Session.h"
#include "reports/frmExport.h"

#include <QDir>
#include <QProcess>

#include <utility>

using namespace Qt::StringLiterals;

const QString ExportTitle = u"软件操作提示"_s;
const QString ExportDone = u"导出Excel文件成功！"_s;
const QString ExportFilter = u"Excel文件 （*.xls）|*.xls|Excel 2007文件 （*.xlsx）|*.xlsx"_s;

void ExportCase::SetUp()
{
    WindowTest::SetUp();
    Windows().Register(u"frmReport"_s, [](QWidget* owner) -> Form* { return new ProbeReport(owner); });
    Windows().Register(u"frmExport"_s, [](QWidget* owner) -> Form* { return new frmExport(owner); });
    Session::CurrentMenuKey = u"RptSaleDetail"_s;
    report = dynamic_cast<ProbeReport*>(LoadReport());
    ASSERT_NE(report, nullptr);
    FillWithSales(*report);
}

void ExportCase::OpenExport()
{
    Open(u"frmExport"_s);
    EXPECT_EQ(FocusName(), u"txtFileName"_s);
}

void ExportCase::ExportTo(const QString& name)
{
    Enter(u"txtFileName"_s, name);
}

QStringList ExportCase::FilesInFolder() const
{
    return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
}

void FillWithSales(ProbeReport& report)
{
    using Kind = SheetColumn::Kind;
    report.sheet.SetColumns({{u"单号"_s, 1600, Kind::Text},
                             {u"购买方"_s, 2050, Kind::Centred},
                             {u"净重"_s, 900, Kind::Number},
                             {u"隐藏"_s, 0, Kind::Number},
                             {u"金额"_s, 1200, Kind::Number}});
    report.sheet.Append({{u"012603090001"_s, u"张三 & <李四>"_s, u"1,234.5"_s, u"7"_s, u"3,456.0"_s}});
    report.sheet.Append({{u"012603090002"_s, u"=1+1"_s, u"-0.5"_s, {}, u"0.0"_s}});
    report.sheet.Append({{u"012603090003"_s, u"𠮷田 \"水果\""_s, {}, {}, u"2026-03-09"_s, u"列外"_s}});
    report.sheet.Append({{}, Sheet::RowKind::Spacer});
    report.sheet.Append({{u"总计"_s, {}, u"1,234.0"_s, {}, u"3,456.0"_s}, Sheet::RowKind::Total});
}

void FillWithStatement(ProbeReport& report)
{
    Session::CurrentMenuKey = u"RptAmount"_s;
    report.captions[1] = u"收支统计表"_s;
    std::vector<SheetColumn> columns(7, {QString(), 1850, SheetColumn::Kind::Text});
    columns[0].widthTwips = 2150;
    report.sheet.SetColumns(columns);
    const std::vector<QStringList> rows{
        {},
        {u"销售收入"_s},
        {{}, u"销售收银"_s, u"包装费"_s, u"押包费"_s, {}, u"合计"_s},
        {u"现金"_s, u"1,200.0"_s, u"12.0"_s, u"30.0"_s, {}, u"1,242.0"_s},
        {u"赊销"_s, u"800.5"_s, u"8.0"_s, u"0.0"_s, {}, u"808.5"_s},
        {u"销售合计"_s, u"2,000.5"_s, u"20.0"_s, u"30.0"_s, {}, u"2,050.5"_s},
        {},
        {u"销售回款"_s, {}, {}, {}, {}, u"500.0"_s},
        {},
        {u"支出"_s},
        {{}, u"预支款"_s, u"结算付款"_s, u"费用"_s, u"退押箱费"_s, u"总计"_s},
        {{}, u"100.0"_s, u"900.0"_s, u"50.0"_s, u"10.0"_s, u"1,060.0"_s},
        {},
        {u"结算收费（管理费）"_s, {}, {}, {}, {}, u"40.0"_s},
        {u"结余（现金）"_s, {}, {}, {}, {}, u"682.0"_s},
        {u"结余（应收累计）"_s, {}, {}, {}, {}, u"308.5"_s},
        {u"结余（未退押箱累计）"_s, {}, {}, {}, {}, u"20.0"_s},
        {u"结余（待结算累计）"_s, {}, {}, {}, {}, u"1,100.5"_s},
        {u"结余（预支款累计）"_s, {}, {}, {}, {}, u"100.0"_s},
    };
    for (const QStringList& row : rows)
        report.sheet.Append({row});
}

Sheet LargeSheet(int rows, int columns)
{
    Sheet sheet;
    std::vector<SheetColumn> headings;
    for (int column = 1; column <= columns; ++column)
        headings.push_back({u"第%1栏"_s.arg(column), 1000, SheetColumn::Kind::Text});
    sheet.SetColumns(headings);
    for (int row = 1; row <= rows; ++row) {
        QStringList texts;
        for (int column = 1; column <= columns; ++column)
            texts << (column % 3 == 0 ? u"第%1行，第%2栏"_s : u"%1.%2"_s).arg(row).arg(column);
        sheet.Append({texts});
    }
    return sheet;
}

QString OutputOf(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.start(program, arguments);
    const bool isOver = process.waitForFinished(120000);
    EXPECT_TRUE(isOver && process.exitCode() == 0)
        << qPrintable(program) << ": " << process.readAllStandardError().constData();
    return QString::fromUtf8(process.readAllStandardOutput());
}

QString ExportCase::ReadBack(const QString& file) const
{
    return OutputOf(SourcePath(u"tests/export/describe-spreadsheet"_s),
                    {file, QString::number(report->sheet.ColumnCount() - 1)});
}

QString Converted(const QString& file, const QString& ending)
{
    const QString made = file + u"-converted"_s + ending;
    OutputOf(u"ssconvert"_s, {file, made});
    return made;
}
