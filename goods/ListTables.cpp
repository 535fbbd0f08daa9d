#include "goods/ListTables.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace {

using Kind = SheetColumn::Kind;

// Widths in twips, for the list's font: a Chinese character takes 225, a Latin one 125, and the cell's
// margins 180.
constexpr int LotNumber = 1230;
constexpr int Name = 1440;
constexpr int Date = 1440;
constexpr int Quantity = 1170;
constexpr int WideQuantity = 1440;
constexpr int Mark = 810;

} // namespace

const RecordTable* RecordTableOf(const QString& menuKey)
{
    static const QHash<QString, RecordTable> tables{
        {u"UserList"_s,
         {u"User_List"_s,
          u"UserID,UserName,UserPWD,UserIP,bolIP"_s,
          u" Order By UserID"_s,
          {{u"用户编号"_s, 1500},
           {u"用户姓名"_s, 2400},
           {u"用户密码"_s, 2400},
           {u"用户IP"_s, 2400},
           {u"IP管制"_s, 1200, Kind::Flag}}}},
        {u"Sales"_s,
         {u"Sales"_s,
          u"SalesID,SalesName"_s,
          u" Order By SalesID"_s,
          {{u"工号"_s, 1800}, {u"姓名"_s, 3000}}}},
        {u"PRDSort"_s,
         {u"PRD_Sort"_s,
          u"SortID,SortName"_s,
          u" Order By SortID"_s,
          {{u"编号"_s, 1800}, {u"名称"_s, 3000}}}},
        {u"FeeType"_s,
         {u"Fee_Type"_s, u"FeeID,FeeName"_s, u" Order By FeeID"_s, {{u"编号"_s, 1800}, {u"名称"_s, 3000}}}},
        {u"CustList"_s,
         {u"Cust_List"_s,
          u"CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,CreditMoney,bolControl"_s,
          u" Order By CustName"_s,
          {{u"客户名称"_s, 2700},
           {u"地址"_s, 4200},
           {u"联系人"_s, 1500},
           {u"电话"_s, 1950},
           {u"传真"_s, 1950},
           {u"手机"_s, 1950},
           {u"信用额度"_s, 1500, Kind::Number},
           {u"信用管制"_s, 1200, Kind::Flag}}}},
    };
    const auto found = tables.constFind(menuKey);
    return found == tables.cend() ? nullptr : &*found;
}

std::vector<SheetColumn> LotColumns(bool detailed)
{
    std::vector<SheetColumn> columns{
        {u"编号"_s, LotNumber}, {u"快捷编号"_s, Quantity}, {u"品名"_s, Name},
        {u"姓名"_s, Name},      {u"到货日期"_s, Date},
    };
    const std::vector<SheetColumn> figures =
        detailed ? std::vector<SheetColumn>{{u"首次到货"_s, Quantity, Kind::Number},
                                            {u"累计进货"_s, Quantity, Kind::Number},
                                            {u"总到货量"_s, Quantity, Kind::Number},
                                            {u"累计转出"_s, Quantity, Kind::Number},
                                            {u"累计损耗"_s, Quantity, Kind::Number},
                                            {u"实到货量"_s, Quantity, Kind::Number},
                                            {u"累计销售"_s, Quantity, Kind::Number},
                                            {u"库存"_s, Quantity, Kind::Number}}
                 : std::vector<SheetColumn>{{u"首次到货量"_s, WideQuantity, Kind::Number},
                                            {u"总到货量"_s, WideQuantity, Kind::Number},
                                            {u"库存"_s, WideQuantity, Kind::Number}};
    columns.insert(columns.end(), figures.begin(), figures.end());
    columns.insert(
        columns.end(),
        {{u"折算"_s, 900, Kind::Number}, {u"押包"_s, Mark, Kind::Flag}, {u"锁定"_s, Mark, Kind::Flag}});
    return columns;
}
