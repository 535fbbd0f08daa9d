#include "lists/ListTables.h"

#include "core/common/Formats.h"
#include "core/forms/FunctionWindows.h"
#include "core/gateway/DataGateway.h"
#include "goods/LotList.h"
#include "goods/LotSlip.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Kind = SheetColumn::Kind;

/// Lists of a code and its name. Widths in twips.
std::vector<SheetColumn> CodeColumns(const QString& code, const QString& name)
{
    return {{code, 1800}, {name, 3000}};
}

const std::vector<ListTable>& Lists()
{
    static const std::vector<ListTable> lists{
        {.menuKey = u"UserList"_s,
         .editWindow = u"frmUserList"_s,
         .table = u"User_List"_s,
         .fields = u"UserID,UserName,UserPWD,UserIP,bolIP"_s,
         .order = u" Order By UserID"_s,
         .columns = {{u"用户编号"_s, 1500},
                     {u"用户姓名"_s, 2400},
                     {u"用户密码"_s, 2400},
                     {u"用户IP"_s, 2400},
                     {u"IP管制"_s, 1200, Kind::Flag}},
         .deletions = {{u"User_List"_s, u"UserID='%1'"_s},
                       {u"User_Menu"_s, u"UserID='%1'"_s},
                       {u"Count_Bill"_s, u"UID='%1'"_s}}},
        {.menuKey = u"Sales"_s,
         .editWindow = u"frmSales"_s,
         .table = u"Sales"_s,
         .fields = u"SalesID,SalesName"_s,
         .order = u" Order By SalesID"_s,
         .columns = CodeColumns(u"工号"_s, u"姓名"_s),
         .deletions = {{u"Sales"_s, u"SalesID='%1'"_s}}},
        {.menuKey = u"PRDSort"_s,
         .editWindow = u"frmPRDSort"_s,
         .table = u"PRD_Sort"_s,
         .fields = u"SortID,SortName"_s,
         .order = u" Order By SortID"_s,
         .columns = CodeColumns(u"编号"_s, u"名称"_s),
         .deletions = {{u"PRD_Sort"_s, u"SortID='%1'"_s}}},
        {.menuKey = u"FeeType"_s,
         .editWindow = u"frmFeeType"_s,
         .table = u"Fee_Type"_s,
         .fields = u"FeeID,FeeName"_s,
         .order = u" Order By FeeID"_s,
         .columns = CodeColumns(u"编号"_s, u"名称"_s),
         .deletions = {{u"Fee_Type"_s, u"FeeID='%1'"_s}}},
        {.menuKey = u"CustList"_s,
         .editWindow = u"frmCustList"_s,
         .table = u"Cust_List"_s,
         .fields = u"CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,CreditMoney,bolControl"_s,
         .order = u" Order By CustName"_s,
         .columns = {{u"客户名称"_s, 2700},
                     {u"地址"_s, 4200},
                     {u"联系人"_s, 1500},
                     {u"电话"_s, 1950},
                     {u"传真"_s, 1950},
                     {u"手机"_s, 1950},
                     {u"信用额度"_s, 1500, Kind::Number},
                     {u"信用管制"_s, 1200, Kind::Flag}},
         .deletions = {{u"Cust_List"_s, u"CustName='%1'"_s}}},
        {.menuKey = u"PackSort"_s,
         .editWindow = u"frmPackSort"_s,
         .deletions = {{u"Pack_List"_s, u"PackNo='%1' And bolCheck='0'"_s},
                       {u"DFN_Pack"_s, u"PackNo='%1'"_s}},
         .deleteQuestion = u"所有箱筐变更记录也将被一同删除，确定要删除吗？"_s},
        {.menuKey = u"PRDList"_s,
         .editWindow = u"frmPRDList"_s,
         .read = ReadLots,
         .searchWindow = u"frmSearchPRD"_s,
         .print = ReprintLotSlip,
         .hasLotMenu = true},
    };
    return lists;
}

} // namespace

const ListTable* ListOf(const QString& menuKey)
{
    const auto found = std::find_if(Lists().begin(), Lists().end(),
                                    [&menuKey](const ListTable& list) { return list.menuKey == menuKey; });
    return found == Lists().end() ? nullptr : &*found;
}

ListContents ReadList(const ListTable& list, const QString& filter)
{
    if (list.read)
        return list.read(filter);
    ListContents contents{.columns = list.columns};
    if (list.columns.empty())
        return contents;
    for (RecordSet rows = Gateway().SelectRows(list.table, list.fields, list.order); !rows.Eof();
         rows.MoveNext()) {
        QStringList texts;
        for (const SheetColumn& column : list.columns) {
            const QString text = rows.Text(static_cast<int>(texts.size()));
            texts << (column.kind == Kind::Flag ? CheckMark(text) : text);
        }
        contents.rows.push_back({texts});
    }
    return contents;
}

void DeleteRecord(const ListTable& list, const QString& key)
{
    for (const Deletion& deletion : list.deletions)
        Gateway().DeleteRows(deletion.table, deletion.where.arg(key));
}

void NewRecord(const QString& menuKey)
{
    if (const ListTable* list = ListOf(menuKey))
        ShowFunctionWindow(list->editWindow);
}

void OpenSearch(const QString& menuKey)
{
    const ListTable* list = ListOf(menuKey);
    ShowFunctionWindow(list && !list->searchWindow.isEmpty() ? list->searchWindow : u"frmSearchCond"_s);
}
