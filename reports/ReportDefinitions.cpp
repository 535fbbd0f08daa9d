#include "reports/ReportDefinitions.h"

#include "reports/ReportBuilder.h"

#include <algorithm>
#include <numeric>

using namespace Qt::StringLiterals;

namespace {

const QString SevenSums =
    u"SUM(Num),SUM(Suttle),SUM(Amount),SUM(PackAmount),SUM(ForegiftAmount),SUM(TotalAmount),COUNT(*)"_s;
const QString FiveSums = u"SUM(Amount),SUM(PackAmount),SUM(ForegiftAmount),SUM(TotalAmount),COUNT(*)"_s;
const QString BuyerSums = u"SUM(Amount),SUM(PackAmount),SUM(ForegiftAmount),SUM(TotalAmount),Count(*)"_s;
const QString SettlementSums =
    u"SUM(Amount),SUM(LManagePrice),SUM(LElectPrice),SUM(LPackPrice),SUM(LUnloadPrice),SUM(LExpendPrice),"
    "SUM(LSanitationPrice),SUM(LRecoupPrice),SUM(LChillPrice),SUM(LFieldPrice),SUM(LOtherPrice),"
    "SUM(LTotalPrice),SUM(GTotalPrice),SUM(ListNum)"_s;

const QString Collected = u"Vendee='{%1}' And SaleType='1' And bolReturn='1' And (ReturnDate>='{start}' And "
                          "ReturnDate<='{end}')"_s;
const QString StillOpen = u"Vendee='{%1}' And SaleType='1' And bolReturn='0'"_s;

/// What a buyer has paid back in the period, and what is open today, whenever it was sold. `buyer` names
/// the value that is the buyer.
std::vector<FigureQuery> Receivables(const QString& buyer)
{
    return {{u"Sal_List"_s, u"TotalAmount"_s, Collected.arg(buyer)},
            {u"Sal_List"_s, u"TotalAmount"_s, StillOpen.arg(buyer)}};
}

QList<int> Ids(int first, int last)
{
    QList<int> ids(last - first + 1);
    std::iota(ids.begin(), ids.end(), first);
    return ids;
}

std::vector<ReportDefinition> SalesReports()
{
    return {
        {.name = u"RptSaleDetail"_s,
         .table = u"Sal_List"_s,
         .adjustedTable = u"Sal_List_B"_s,
         .fields = u"SalNo,PRDNo,PRDName,CustName,Num,Suttle,UPR,Amount,PackAmount,ForegiftAmount,"
                   "TotalAmount,ListNo,SalesID,SaleTime,bolCheckOut,CheckDate"_s,
         .cells = {{5, 11, Cell::Amount}, {15, 15, Cell::Mark}},
         .totals = {5, 6, 8, 9, 10, 11}},
        {.name = u"RptSalesDetail"_s,
         .table = u"Sal_List"_s,
         .fields = u"SaleDate,Vendee,PRDNo,PRDName,CustName,Num,Suttle,UPR,Amount,PackAmount,"
                   "ForegiftAmount,TotalAmount,ListNO"_s,
         .cells = {{6, 12, Cell::Amount}},
         .totals = Ids(6, 12)},
        {.name = u"RptSalesDescribe"_s,
         .table = u"Sales"_s,
         .fields = u"SalesID,SalesName"_s,
         .where = u" Order By SalesID"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"{cond} And SalesID='{SalesID}'"_s},
         .shown = Shown::WithCount,
         .totals = Ids(3, 9)},
        {.name = u"RptSalesDescribe2"_s,
         .rows = RowsOf::Days,
         .shows = u"day,name"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"SaleDate='{day}' And SalesID='{id}'"_s},
         .totals = Ids(3, 9)},
        {.name = u"RptSaleDescribe"_s,
         .table = u"User_List"_s,
         .fields = u"UserID,UserName"_s,
         .where = u" Order By UserID"_s,
         .sums = {u"Sal_List"_s, FiveSums, u"{cond} And Receiver='{UserID}'"_s},
         .shown = Shown::WithCount,
         .totals = Ids(3, 7)},
        {.name = u"RptSaleDescribe2"_s,
         .rows = RowsOf::Days,
         .shows = u"day"_s,
         .sums = {u"Sal_List"_s, FiveSums, u"SaleDate='{day}' And {key}"_s},
         .totals = Ids(2, 6)},
        {.name = u"RptPRDDescribe"_s,
         .table = u"PRD_Sort"_s,
         .fields = u"SortName"_s,
         .where = u" Order By SortID"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"{cond} And PRDName='{SortName}'"_s},
         .shown = Shown::WithCount,
         .totals = Ids(2, 8)},
        {.name = u"RptPRDDescribe2"_s,
         .rows = RowsOf::Days,
         .shows = u"day"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"SaleDate='{day}' And PRDName='{key}'"_s},
         .totals = Ids(2, 8)},
        {.name = u"RptStoreDetail"_s,
         .table = u"Sal_List"_s,
         .fields = u"SaleDate,SalNo,PRDNo,PRDName,Num,Suttle,UPR,Amount,PackAmount,ForegiftAmount,"
                   "TotalAmount,ListNO,SalesID"_s,
         .cells = {{5, 11, Cell::Amount}},
         .totals = Ids(5, 11)},
        {.name = u"RptStoreDescribe"_s,
         .table = u"Store"_s,
         .fields = u"Store"_s,
         .where = u" Order By Store"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"{cond} And Store='{Store}'"_s},
         .shown = Shown::WithCount,
         .totals = Ids(2, 8)},
        {.name = u"RptStoreDescribe2"_s,
         .rows = RowsOf::Days,
         .shows = u"day"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"SaleDate='{day}' And Store='{key}'"_s},
         .totals = Ids(2, 8)},
    };
}

std::vector<ReportDefinition> MoneyReports()
{
    return {
        {.name = u"RptUnCheckOut"_s,
         .table = u"PRD_List"_s,
         .fields = u"PRDNo,PRDName,CustName,CustInDate,Num,ID"_s,
         .shows = u"PRDNo,PRDName,CustName,CustInDate,Num"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"ID='{ID}'"_s},
         .further = {{u"CustDebit"_s, u"DebitAmount"_s, u"ID='{ID}'"_s}},
         .totals = Ids(6, 13)},
        {.name = u"RptCheckOutDetail"_s,
         .table = u"CheckOut"_s,
         .adjustedTable = u"CheckOut_B"_s,
         .fields = u"CheckNo,PRDNo,PRDName,CustName,Amount,LManagePrice,LElectPrice,LPackPrice,LUnloadPrice,"
                   "LExpendPrice,LSanitationPrice,LRecoupPrice,LChillPrice,LFieldPrice,LOtherPrice,"
                   "LTotalPrice,GTotalPrice,ListNum"_s,
         .cells = {{5, 18, Cell::Amount}},
         .totals = Ids(5, 18)},
        {.name = u"RptCheckOutDescribe"_s,
         .rows = RowsOf::Days,
         .shows = u"day"_s,
         .sums = {u"CheckOut"_s, SettlementSums, u"{cond And }CheckDate='{day}'"_s},
         .totals = Ids(2, 15)},
        {.name = u"RptDebit"_s,
         .table = u"CustDebit"_s,
         .fields = u"DebitDate,PRDNo,PRDName,CustName,DebitAmount,Receiver,Memo"_s,
         .where = u"{cond} Order By DebitDate"_s,
         .cells = {{5, 5, Cell::Amount}, {6, 6, Cell::UserName}},
         .totals = {5}},
        {.name = u"RptChequeDetail"_s,
         .table = u"Sal_List"_s,
         .fields = u"SaleDate,SalNo,PRDNo,PRDName,Num,Suttle,UPR,Amount,PackAmount,ForegiftAmount,"
                   "TotalAmount,ListNO,SalesID"_s,
         .cells = {{5, 11, Cell::Amount}},
         .totals = Ids(5, 11)},
        {.name = u"RptChequeDescribe"_s,
         .table = u"Cust_List"_s,
         .fields = u"CustName"_s,
         .where = u" Order By CustName"_s,
         .sums = {u"Sal_List"_s, BuyerSums, u"{cond} And Vendee='{CustName}' And SaleType='1'"_s},
         .further = Receivables(u"CustName"_s),
         .shown = Shown::WithCount,
         .totals = Ids(2, 8)},
        {.name = u"RptChequeDescribeOfBuyer"_s,
         .columns = u"RptChequeDescribe"_s,
         .rows = RowsOf::Key,
         .shows = u"key"_s,
         .sums = {u"Sal_List"_s, BuyerSums, u"{cond} And SaleType='1'"_s},
         .further = Receivables(u"key"_s),
         .totals = Ids(2, 8)},
        {.name = u"RptCheckCheque"_s,
         .table = u"Sal_List"_s,
         .fields = u"PRDNo,PRDName,SalNo,Num,Suttle,UPR,Amount,PackAmount,ForegiftAmount,TotalAmount,"
                   "ReturnDate"_s,
         .cells = {{4, 10, Cell::Amount}},
         .totals = Ids(4, 10),
         .totalsPlacedBy = u"RptChequeDetail"_s},
        {.name = u"RptFeeDetail"_s,
         .table = u"Fee_List"_s,
         .fields = u"FeeDate,FeeNo,FeeName,DSC,Amount"_s,
         .where = u"{cond} Order By FeeNo,ITM"_s,
         .cells = {{5, 5, Cell::Amount}},
         .totals = {5}},
        {.name = u"RptFeeDescribe"_s,
         .table = u"Fee_Type"_s,
         .fields = u"FeeID,FeeName"_s,
         .where = u" Order By FeeID"_s,
         .whereWithKey = u"FeeID='{key}'"_s,
         .shows = u"FeeName"_s,
         .sums = {u"Fee_List"_s, u"SUM(Amount)"_s, u"{cond} And FeeID='{FeeID}'"_s},
         .shown = Shown::WithAmount,
         .totals = {2}},
    };
}

std::vector<ReportDefinition> StockReports()
{
    return {
        {.name = u"RptDaySale"_s,
         .table = u"PRD_List"_s,
         .fields = u"ID,PRDNo,PRDName,CustName,CustInDate,Num"_s,
         .where = u"{cond} Order By PRDNo"_s,
         .shows = u"PRDNo,PRDName,CustName,CustInDate,Num"_s,
         .cells = {{5, 5, Cell::Amount}},
         .hasStock = true,
         .totals = {13}},
        {.name = u"RptDayCust"_s,
         .table = u"Sal_List"_s,
         .fields = u"ID,PRDNo,PRDName,CustName"_s,
         .distinct = true,
         .where = u"{cond And }(SaleDate>='{start}' And SaleDate<='{end}') Order By PRDNo,ID"_s,
         .shows = u"PRDNo,PRDName,CustName"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"ID='{ID}'{ And cond}"_s},
         .totals = Ids(4, 10)},
        {.name = u"RptDayCustDetail"_s,
         .rows = RowsOf::Days,
         .shows = u"day"_s,
         .sums = {u"Sal_List"_s, SevenSums, u"PRDNo='{key}' And SaleDate='{day}'{ And cond}"_s},
         .totals = Ids(2, 8)},
        {.name = u"RptEStore"_s,
         .table = u"EStore_List"_s,
         .fields = u"EStoreDate,PRDNo,PRDName,CustName,EStoreType,Num,Memo"_s,
         .where = u"{cond} Order By EStoreDate,ITM"_s,
         .cells = {{5, 5, Cell::ChangeType}, {6, 6, Cell::Amount}},
         .totals = {6},
         .totalsOnlyForOneKind = true},
        {.name = u"RptPackList"_s,
         .table = u"Pack_List"_s,
         .fields = u"PackDate,PackNo,PackName,PackType,SalNo,Num,PerForegift,ForegiftAmount,Memo,bolCheck,"
                   "CheckDate"_s,
         .where = u"{cond} Order By PackDate,ITM"_s,
         .cells = {{4, 4, Cell::PackType}, {6, 6, Cell::Amount}, {8, 8, Cell::Amount}, {10, 10, Cell::Mark}},
         .totals = {6, 8},
         .totalsOnlyForOneKind = true},
        {.name = u"RptForegift"_s,
         .table = u"Foregift_RTN"_s,
         .fields = u"SalNo,RForegiftDate,PRDNo,PRDName,CustName,SaleDate,Num,PerForegift,ForegiftAmount,"
                   "Num_R,ForegiftAmount_R,Memo"_s,
         .where = u"{cond} Order By RForegiftDate"_s,
         .cells = {{7, 11, Cell::Amount}},
         .totals = {10, 11}},
    };
}

bool IsDetail(const ReportQuery& query)
{
    return query.kind == u"Detail";
}

bool HasKey(const ReportQuery& query)
{
    return !query.key.isEmpty();
}

bool IsOfOneKey(const ReportQuery& query)
{
    return !query.all;
}

bool HasKeyOverDays(const ReportQuery& query)
{
    return HasKey(query) && query.condition.endDate > query.condition.startDate;
}

bool Otherwise(const ReportQuery& /*query*/)
{
    return true;
}

/// The menu keys that show one report or another. The first test that holds decides; every other key shows
/// the report of its own name.
struct Variant {
    QString menuKey;
    bool (*test)(const ReportQuery&);
    QString definition;
};

const std::vector<Variant>& Variants()
{
    static const std::vector<Variant> variants{
        {u"RptSaleDescribe"_s, IsOfOneKey, u"RptSaleDescribe2"_s},
        {u"RptPRDDescribe"_s, HasKey, u"RptPRDDescribe2"_s},
        {u"RptCheque"_s, IsDetail, u"RptChequeDetail"_s},
        {u"RptCheque"_s, IsOfOneKey, u"RptChequeDescribeOfBuyer"_s},
        {u"RptCheque"_s, Otherwise, u"RptChequeDescribe"_s},
        {u"RptSales"_s, IsDetail, u"RptSalesDetail"_s},
        {u"RptSales"_s, HasKeyOverDays, u"RptSalesDescribe2"_s},
        {u"RptSales"_s, Otherwise, u"RptSalesDescribe"_s},
        {u"RptDayCust"_s, IsOfOneKey, u"RptDayCustDetail"_s},
        {u"RptStoreDescribe"_s, HasKey, u"RptStoreDescribe2"_s},
        {u"RptFee"_s, IsDetail, u"RptFeeDetail"_s},
        {u"RptFee"_s, Otherwise, u"RptFeeDescribe"_s},
    };
    return variants;
}

} // namespace

const std::vector<ReportDefinition>& ReportDefinitions()
{
    static const std::vector<ReportDefinition> definitions = [] {
        std::vector<ReportDefinition> all = SalesReports();
        for (const auto& family : {MoneyReports(), StockReports()})
            all.insert(all.end(), family.begin(), family.end());
        return all;
    }();
    return definitions;
}

const ReportDefinition* DefinitionOf(const ReportQuery& query)
{
    const auto variant = std::find_if(Variants().begin(), Variants().end(), [&query](const Variant& each) {
        return each.menuKey == query.menuKey && each.test(query);
    });
    const QString& name = variant == Variants().end() ? query.menuKey : variant->definition;
    const auto found = std::find_if(ReportDefinitions().begin(), ReportDefinitions().end(),
                                    [&name](const ReportDefinition& each) { return each.name == name; });
    return found == ReportDefinitions().end() ? nullptr : &*found;
}
