#include "tests/reports/GoldenReports.h"

#include <algorithm>
#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QString Detail = u"Detail"_s;
const QString Describe = u"Describe"_s;

/// Three days with sales on two of them.
ReportCondition ThreeDays(const QString& condition = {})
{
    return {condition, u"2026-01-22"_s, u"2026-01-24"_s};
}

std::vector<ReportCase> Sales()
{
    return {
        {.name = u"RptSaleDetail"_s,
         .menuKey = u"RptSaleDetail"_s,
         .condition = TwoMonths(u"SaleDate"_s, u" Order By SalNo"_s),
         .caption = u"2026-01-01至2026-02-28"_s},
        {.name = u"RptSaleDetail-adjusted"_s,
         .menuKey = u"RptSaleDetail"_s,
         .condition = TwoMonths(u"SaleDate"_s, u" Order By SalNo"_s, true)},
        {.name = u"RptSaleDescribe"_s,
         .menuKey = u"RptSaleDescribe"_s,
         .condition = TwoMonths(u"SaleDate"_s)},
        {.name = u"RptSaleDescribe2"_s,
         .menuKey = u"RptSaleDescribe"_s,
         .all = false,
         .key = u"Receiver='02' And SaleType='1'"_s,
         .condition = ThreeDays(),
         .caption = u"2026-01-22至2026-01-24 收银员：收银员 赊销"_s},
        {.name = u"RptSalesDetail"_s,
         .menuKey = u"RptSales"_s,
         .kind = Detail,
         .all = false,
         .key = u"11-周建国"_s,
         .condition = TwoMonths(u"SaleDate"_s, u" And SalesID='11' Order By SaleDate,SaleTime"_s)},
        {.name = u"RptSalesDescribe"_s,
         .menuKey = u"RptSales"_s,
         .kind = Describe,
         .condition = TwoMonths(u"SaleDate"_s)},
        {.name = u"RptSalesDescribe2"_s,
         .menuKey = u"RptSales"_s,
         .kind = Describe,
         .all = false,
         .key = u"12-陈-强"_s,
         .condition = ThreeDays()},
        {.name = u"RptPRDDescribe"_s, .menuKey = u"RptPRDDescribe"_s, .condition = TwoMonths(u"SaleDate"_s)},
        {.name = u"RptPRDDescribe2"_s,
         .menuKey = u"RptPRDDescribe"_s,
         .all = false,
         .key = u"雪梨"_s,
         .condition = ThreeDays()},
        {.name = u"RptStoreDetail"_s,
         .menuKey = u"RptStoreDetail"_s,
         .condition = TwoMonths(u"SaleDate"_s, u" And Store='二号库'"_s)},
        {.name = u"RptStoreDescribe"_s,
         .menuKey = u"RptStoreDescribe"_s,
         .condition = TwoMonths(u"SaleDate"_s)},
        {.name = u"RptStoreDescribe2"_s,
         .menuKey = u"RptStoreDescribe"_s,
         .all = false,
         .key = u"一号库"_s,
         .condition = ThreeDays()},
    };
}

std::vector<ReportCase> Money()
{
    return {
        {.name = u"RptUnCheckOut"_s,
         .menuKey = u"RptUnCheckOut"_s,
         .condition = {u"bolCheckOut='0'"_s, QString(), QString()}},
        {.name = u"RptCheckOutDetail"_s,
         .menuKey = u"RptCheckOutDetail"_s,
         .condition = TwoMonths(u"CheckDate"_s, u" Order By CheckNo"_s)},
        {.name = u"RptCheckOutDetail-adjusted"_s,
         .menuKey = u"RptCheckOutDetail"_s,
         .condition = TwoMonths(u"CheckDate"_s, u" Order By CheckNo"_s, true)},
        {.name = u"RptCheckOutDescribe"_s,
         .menuKey = u"RptCheckOutDescribe"_s,
         .condition = {QString(), u"2026-01-19"_s, u"2026-01-21"_s}},
        {.name = u"RptCheckOutDescribe-store"_s,
         .menuKey = u"RptCheckOutDescribe"_s,
         .condition = {u"Store='一号库'"_s, u"2026-01-19"_s, u"2026-01-21"_s}},
        {.name = u"RptDebit"_s, .menuKey = u"RptDebit"_s, .condition = TwoMonths(u"DebitDate"_s)},
        {.name = u"RptChequeDetail"_s,
         .menuKey = u"RptCheque"_s,
         .kind = Detail,
         .all = false,
         .key = u"鲜多多水果店"_s,
         .condition =
             TwoMonths(u"SaleDate"_s,
                       u" And Vendee='鲜多多水果店' And SaleType='1' And bolReturn='0' Order By SalNo"_s)},
        {.name = u"RptChequeDescribe"_s,
         .menuKey = u"RptCheque"_s,
         .kind = Describe,
         .condition = TwoMonths(u"SaleDate"_s)},
        {.name = u"RptChequeDescribeOfBuyer"_s,
         .menuKey = u"RptCheque"_s,
         .kind = Describe,
         .all = false,
         .key = u"桥头水果摊"_s,
         .condition = TwoMonths(u"SaleDate"_s, u" And Vendee='桥头水果摊'"_s)},
        {.name = u"RptCheckCheque"_s,
         .menuKey = u"RptCheckCheque"_s,
         .condition =
             TwoMonths(u"ReturnDate"_s, u" And SaleType='1' And bolReturn='1' Order By SaleDate,SaleTime"_s)},
        {.name = u"RptFeeDetail"_s,
         .menuKey = u"RptFee"_s,
         .kind = Detail,
         .condition = TwoMonths(u"FeeDate"_s)},
        {.name = u"RptFeeDescribe"_s,
         .menuKey = u"RptFee"_s,
         .kind = Describe,
         .condition = TwoMonths(u"FeeDate"_s)},
        {.name = u"RptFeeDescribe-type"_s,
         .menuKey = u"RptFee"_s,
         .kind = Describe,
         .all = false,
         .key = u"02"_s,
         .condition = TwoMonths(u"FeeDate"_s, u" And FeeID='02'"_s)},
        {.name = u"RptAmount"_s,
         .menuKey = u"RptAmount"_s,
         .condition = {QString(), u"2026-01-01"_s, u"2026-02-28"_s}},
    };
}

std::vector<ReportCase> Stock()
{
    return {
        {.name = u"RptDaySale"_s,
         .menuKey = u"RptDaySale"_s,
         .condition = {u"bolCheckOut='0'"_s, u"2026-01-23"_s, u"2026-01-23"_s}},
        {.name = u"RptDayCust"_s, .menuKey = u"RptDayCust"_s, .condition = TwoMonths(u"SaleDate"_s)},
        {.name = u"RptDayCustDetail"_s,
         .menuKey = u"RptDayCust"_s,
         .all = false,
         .key = u"A-001"_s,
         .condition =
             ThreeDays(Period(u"SaleDate"_s, u"2026-01-22"_s, u"2026-01-24"_s) + u" And PRDNo='A-001'"_s)},
        {.name = u"RptEStore"_s,
         .menuKey = u"RptEStore"_s,
         .condition = {Period(u"EStoreDate"_s, u"2026-01-01"_s, u"2026-03-31"_s), u"2026-01-01"_s,
                       u"2026-03-31"_s}},
        {.name = u"RptEStore-added"_s,
         .menuKey = u"RptEStore"_s,
         .all = false,
         .condition = TwoMonths(u"EStoreDate"_s, u" And EStoreType='0'"_s)},
        {.name = u"RptPackList"_s, .menuKey = u"RptPackList"_s, .condition = TwoMonths(u"PackDate"_s)},
        {.name = u"RptPackList-returned"_s,
         .menuKey = u"RptPackList"_s,
         .all = false,
         .condition = TwoMonths(u"PackDate"_s, u" And PackType='1'"_s)},
        {.name = u"RptForegift"_s, .menuKey = u"RptForegift"_s, .condition = TwoMonths(u"RForegiftDate"_s)},
    };
}

} // namespace

const std::vector<ReportCase>& GoldenReports()
{
    static const std::vector<ReportCase> reports = [] {
        std::vector<ReportCase> all = Sales();
        for (const auto& family : {Money(), Stock()})
            all.insert(all.end(), family.begin(), family.end());
        return all;
    }();
    return reports;
}

const ReportCase& GoldenReport(const QString& name)
{
    const auto found = std::find_if(GoldenReports().begin(), GoldenReports().end(),
                                    [&name](const ReportCase& report) { return report.name == name; });
    if (found == GoldenReports().end())
        throw std::out_of_range(name.toStdString());
    return *found;
}
