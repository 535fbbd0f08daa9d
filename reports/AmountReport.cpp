#include "reports/AmountReport.h"

#include "core/common/Formats.h"
#include "core/common/Lookups.h"
#include "core/gateway/DataGateway.h"
#include "reports/ReportBuilder.h"

#include <QHash>

#include <variant>

using namespace Qt::StringLiterals;

const QString AmountReportKey = u"RptAmount"_s;

namespace {

constexpr int LabelWidth = 2150; // twips
constexpr int FigureWidth = 1850;
constexpr int FigureColumns = 6;

enum class Figure {
    CashAmount, ///< goods sold for cash in the period, and so on
    CashPack,
    CashForegift,
    CashTotal,
    CreditAmount,
    CreditPack,
    CreditForegift,
    CreditTotal,
    TotalAmountSum,
    TotalPackSum,
    TotalForegiftSum,
    SaleTotalSum,
    ReturnTotal, ///< credit tickets collected in the period, whenever they were sold
    DebitTotal,
    PayTotal, ///< to owners, by settlements
    FeeTotal,
    ForegiftReturned, ///< deposits paid back at the till
    ForegiftOfCrates, ///< deposits paid back in the crate ledger
    ForegiftBackTotal,
    PaidTotal,
    ManageFees,
    CashBalance,
    OpenCredit, ///< from here on as of now
    OpenForegift,
    OpenSettlement,
    OpenDebit,
};

using Figures = QHash<Figure, double>;

/// A statement and the figures that its columns are. %1 and %2 are the first and the last day.
struct FigureSource {
    QString table;
    QString fields;
    QString where;
    std::vector<Figure> figures;
};

const std::vector<FigureSource>& Sources()
{
    static const QString saleSums = u"SUM(Amount),SUM(PackAmount),SUM(ForegiftAmount),SUM(TotalAmount)"_s;
    static const std::vector<FigureSource> sources{
        {u"Sal_List"_s,
         saleSums,
         u"(SaleDate>='%1' And SaleDate<='%2') And SaleType='0'"_s,
         {Figure::CashAmount, Figure::CashPack, Figure::CashForegift, Figure::CashTotal}},
        {u"Sal_List"_s,
         saleSums,
         u"(SaleDate>='%1' And SaleDate<='%2') And SaleType='1'"_s,
         {Figure::CreditAmount, Figure::CreditPack, Figure::CreditForegift, Figure::CreditTotal}},
        {u"Sal_List"_s,
         u"SUM(TotalAmount)"_s,
         u"(ReturnDate>='%1' And ReturnDate<='%2') And bolReturn='1'"_s,
         {Figure::ReturnTotal}},
        {u"CustDebit"_s,
         u"SUM(DebitAmount)"_s,
         u"(DebitDate>='%1' And DebitDate<='%2')"_s,
         {Figure::DebitTotal}},
        {u"CheckOut"_s,
         u"SUM(GTotalPrice)"_s,
         u"(CheckDate>='%1' And CheckDate<='%2')"_s,
         {Figure::PayTotal}},
        {u"Fee_List"_s, u"SUM(Amount)"_s, u"(FeeDate>='%1' And FeeDate<='%2')"_s, {Figure::FeeTotal}},
        {u"Foregift_RTN"_s,
         u"SUM(ForegiftAmount_R)"_s,
         u"(RForegiftDate>='%1' And RForegiftDate<='%2')"_s,
         {Figure::ForegiftReturned}},
        {u"Pack_List"_s,
         u"SUM(ForegiftAmount)"_s,
         u"(PackDate>='%1' And PackDate<='%2') And PackType='1'"_s,
         {Figure::ForegiftOfCrates}},
        {u"CheckOut"_s,
         u"SUM(LManagePrice)"_s,
         u"(CheckDate>='%1' And CheckDate<='%2')"_s,
         {Figure::ManageFees}},
        {u"Sal_List"_s, u"SUM(TotalAmount)"_s, u"SaleType='1' And bolReturn='0'"_s, {Figure::OpenCredit}},
        {u"Sal_List"_s,
         u"SUM(ForegiftAmount)"_s,
         u"bForegiftRTN='0' And ForegiftAmount>0"_s,
         {Figure::OpenForegift}},
        {u"Sal_List"_s, u"SUM(Amount)"_s, u"bolCheckOut='0'"_s, {Figure::OpenSettlement}},
        {u"CustDebit"_s, u"SUM(DebitAmount)"_s, u"bolCheckOut='0'"_s, {Figure::OpenDebit}},
    };
    return sources;
}

void Compute(Figures& f)
{
    f[Figure::TotalAmountSum] = f[Figure::CashAmount] + f[Figure::CreditAmount];
    f[Figure::TotalPackSum] = f[Figure::CashPack] + f[Figure::CreditPack];
    f[Figure::TotalForegiftSum] = f[Figure::CashForegift] + f[Figure::CreditForegift];
    f[Figure::SaleTotalSum] = f[Figure::CashTotal] + f[Figure::CreditTotal];
    f[Figure::ForegiftBackTotal] = f[Figure::ForegiftReturned] + f[Figure::ForegiftOfCrates];
    f[Figure::PaidTotal] =
        f[Figure::DebitTotal] + f[Figure::PayTotal] + f[Figure::FeeTotal] + f[Figure::ForegiftBackTotal];
    // Without the management fees: they have come off what the owners were paid.
    f[Figure::CashBalance] = f[Figure::ReturnTotal] + f[Figure::CashTotal] - f[Figure::PaidTotal];
}

using LineCell = std::variant<QString, Figure>;
using Line = std::vector<LineCell>; ///< from sub-item 1

/// From top to bottom.
const std::vector<Line>& Lines()
{
    static const QString none;
    static const std::vector<Line> lines{
        {},
        {u"销售收入"_s},
        {none, u"销售收银"_s, u"包装费"_s, u"押包费"_s, none, u"合计"_s},
        {u"现金"_s, Figure::CashAmount, Figure::CashPack, Figure::CashForegift, none, Figure::CashTotal},
        {u"赊销"_s, Figure::CreditAmount, Figure::CreditPack, Figure::CreditForegift, none,
         Figure::CreditTotal},
        {u"销售合计"_s, Figure::TotalAmountSum, Figure::TotalPackSum, Figure::TotalForegiftSum, none,
         Figure::SaleTotalSum},
        {},
        {u"销售回款"_s, none, none, none, none, Figure::ReturnTotal},
        {},
        {u"支出"_s},
        {none, u"预支款"_s, u"结算付款"_s, u"费用"_s, u"退押箱费"_s, u"总计"_s},
        {none, Figure::DebitTotal, Figure::PayTotal, Figure::FeeTotal, Figure::ForegiftBackTotal,
         Figure::PaidTotal},
        {},
        {u"结算收费（管理费）"_s, none, none, none, none, Figure::ManageFees},
        {u"结余（现金）"_s, none, none, none, none, Figure::CashBalance},
        {u"结余（应收累计）"_s, none, none, none, none, Figure::OpenCredit},
        {u"结余（未退押箱累计）"_s, none, none, none, none, Figure::OpenForegift},
        {u"结余（待结算累计）"_s, none, none, none, none, Figure::OpenSettlement},
        {u"结余（预支款累计）"_s, none, none, none, none, Figure::OpenDebit},
    };
    return lines;
}

QString CellText(const LineCell& cell, const Figures& figures)
{
    const auto* words = std::get_if<QString>(&cell);
    return words ? *words : FormatAmount(figures.value(std::get<Figure>(cell)), QString());
}

} // namespace

std::vector<SheetColumn> AmountColumns()
{
    std::vector<SheetColumn> columns{{QString(), LabelWidth, SheetColumn::Kind::Text}};
    columns.resize(1 + FigureColumns, {QString(), FigureWidth, SheetColumn::Kind::Text});
    return columns;
}

bool BuildAmountReport(const ReportCondition& condition, ReportSink& sink)
{
    Figures figures;
    int done = 0;
    sink.Begin(static_cast<int>(Sources().size()));
    for (const FigureSource& source : Sources()) {
        const RecordSet sums = Gateway().SelectRows(
            source.table, source.fields,
            source.where.contains(u"%1") ? source.where.arg(condition.startDate, condition.endDate)
                                         : source.where);
        for (std::size_t i = 0; i < source.figures.size() && !sums.Eof(); ++i)
            figures[source.figures[i]] = NullToZero(sums.Fields(static_cast<int>(i)).Value);
        if (!sink.Reach(++done))
            return false;
    }
    Compute(figures);
    std::vector<Sheet::Row> rows;
    for (const Line& line : Lines()) {
        QStringList subItems;
        for (const LineCell& cell : line)
            subItems << CellText(cell, figures);
        rows.push_back({subItems, Sheet::RowKind::Record});
    }
    sink.TakeRows(std::move(rows));
    return true;
}
