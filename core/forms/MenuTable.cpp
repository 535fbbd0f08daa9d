#include "core/forms/MenuTable.h"

using namespace Qt::StringLiterals;

const std::vector<TopMenu>& MenuBar()
{
    static const std::vector<TopMenu> bar{
        {u"M01"_s,
         u"基础资料"_s,
         {{u"menuUserList"_s, u"用户信息"_s, u"UserList"_s, u"frmDataList"_s},
          {u"menuUserMenu"_s, u"用户权限"_s, u"UserMenu"_s, u"frmUserMenu"_s},
          {u"menuStore"_s, u"仓位信息"_s, u"Store"_s, u"frmStore"_s},
          {u"menuSales"_s, u"业务员信息"_s, u"Sales"_s, u"frmDataList"_s},
          {u"menuPRDSort"_s, u"产品分类"_s, u"PRDSort"_s, u"frmDataList"_s},
          {u"menuCustList"_s, u"客户信息"_s, u"CustList"_s, u"frmDataList"_s},
          {u"menuChangePWD"_s, u"修改密码"_s, u"ChangePWD"_s, u"frmChangePWD"_s}}},
        {u"M02"_s,
         u"货源箱筐"_s,
         {{u"menuPRDList"_s, u"货源登记"_s, u"PRDList"_s, u"frmDataList"_s, {u"mnuPrint"_s, u"mnuSearch"_s}},
          {u"menuEStore"_s, u"库存变更"_s, u"EStore"_s, u"frmEStore"_s},
          {u"menuRptEStore"_s, u"库存变更明细表"_s, u"RptEStore"_s, u"frmSearchCond"_s},
          {u"menuRptCustSale"_s, u"销售统计"_s, QString(), QString()},
          {u"menuPackSort"_s, u"箱筐分类"_s, u"PackSort"_s, u"frmDataList"_s},
          {u"menuPackList"_s, u"箱筐变更"_s, u"PackList"_s, u"frmPackList"_s},
          {u"menuRptPackList"_s, u"箱筐变更明细表"_s, u"RptPackList"_s, u"frmSearchCond"_s}}},
        {u"M03"_s,
         u"销售收银"_s,
         {{u"menuSale"_s, u"收银开票"_s, u"Sale"_s, u"frmSale"_s, {}, u"frmSale"_s},
          {u"menuRptSaleDetail"_s, u"收银查帐"_s, u"RptSaleDetail"_s, u"frmSearchCond"_s, {}, u"frmSale"_s},
          {u"menuESale"_s, u"收银调整"_s, u"ESale"_s, u"frmListNO"_s, {}, u"frmSale"_s},
          {u"menuForegift"_s, u"销售退箱"_s, u"Foregift"_s, u"frmForegift"_s},
          {u"menuRptForegift"_s, u"退箱明细表"_s, u"RptForegift"_s, u"frmSearchCond"_s, {u"mnuDelete"_s}}}},
        {u"menuDeal"_s,
         u"销售结算"_s,
         {{u"menuCheckOut"_s, u"客户结算"_s, u"CheckOut"_s, u"frmCheckOut"_s},
          {u"menuRptCheckOutDetail"_s, u"结算查帐"_s, u"RptCheckOutDetail"_s, u"frmSearchCond"_s},
          {u"menuECheckOut"_s, u"结算调整"_s, u"ECheckOut"_s, u"frmListNO"_s},
          {u"menuDelCheckOut"_s, u"结算退回"_s, u"DelCheckOut"_s, u"frmDelCheckOut"_s},
          {u"menuDebit"_s, u"客户预支"_s, u"Debit"_s, u"frmDebit"_s},
          {u"menuCheckCheque"_s,
           u"应收款结算"_s,
           u"CheckCheque"_s,
           u"frmCheckCheque"_s,
           {},
           u"frmCheckCheque"_s}}},
        {u"menuFeeManage"_s,
         u"费用管理"_s,
         {{u"menuFeeType"_s, u"费用类别"_s, u"FeeType"_s, u"frmDataList"_s},
          {u"menuFee"_s, u"费用登记"_s, u"Fee"_s, u"frmFee"_s},
          {u"menuEditFee"_s, u"费用调整"_s, u"EditFee"_s, u"frmListNO"_s},
          {u"menuRptFee"_s, u"费用查询"_s, u"RptFee"_s, u"frmSearchCond"_s}}},
        {u"menuSelect"_s,
         u"查询分析"_s,
         {{u"menuRptPRDDescribe"_s, u"产品销售统计表"_s, u"RptPRDDescribe"_s, u"frmSearchCond"_s},
          {u"menuRptSaleDescribe"_s, u"收银情况统计表"_s, u"RptSaleDescribe"_s, u"frmSearchCond"_s},
          {u"menuRptCheckOutDescribe"_s, u"结算情况统计表"_s, u"RptCheckOutDescribe"_s, u"frmSearchCond"_s},
          {u"menuRptUnCheckOut"_s, u"待结算明细表"_s, u"RptUnCheckOut"_s, u"frmSearchCond"_s},
          {u"menuRptDebit"_s, u"客户预支明细表"_s, u"RptDebit"_s, u"frmSearchCond"_s},
          {u"menuRptCheque"_s, u"应收款收款表"_s, u"RptCheque"_s, u"frmSearchCond"_s, {}, u"frmSearchCond"_s},
          {u"menuRptCheckCheque"_s,
           u"应收款结算表"_s,
           u"RptCheckCheque"_s,
           u"frmSearchCond"_s,
           {},
           u"frmSearchCond"_s},
          {u"menuRptSales"_s, u"销售业绩表"_s, u"RptSales"_s, u"frmSearchCond"_s},
          {u"menuRptDaySale"_s, u"库存盘点日报表"_s, u"RptDaySale"_s, u"frmSearchCond"_s},
          {u"menuRptDayCust"_s, u"销售盘点表"_s, u"RptDayCust"_s, u"frmSearchCond"_s},
          {u"menuRptStoreDetail"_s, u"仓位销售明细表"_s, u"RptStoreDetail"_s, u"frmSearchCond"_s},
          {u"menuRptStoreDescribe"_s, u"仓位销售统计表"_s, u"RptStoreDescribe"_s, u"frmSearchCond"_s},
          {u"menuRptAmount"_s, u"收支统计表"_s, u"RptAmount"_s, u"frmSearchCond"_s}}},
        {u"SysSetup"_s,
         u"设置维护"_s,
         {{u"menuBasePara"_s, u"基本设置"_s, QString(), u"frmParameter"_s},
          {u"menuDataClear"_s, u"数据清空"_s, u"DataClear"_s, u"frmDataClear"_s}}},
        {u"menuSysHelp"_s,
         u"系统帮助"_s,
         {{u"menuHelp"_s, u"帮助"_s, QString(), QString()},
          {u"menuAbout"_s, u"关于产品"_s, u"About"_s, u"frmAbout"_s}}},
    };
    return bar;
}

const MenuEntry* MenuEntryOf(const QString& key)
{
    if (key.isEmpty())
        return nullptr;
    for (const TopMenu& top : MenuBar()) {
        for (const MenuEntry& entry : top.entries) {
            if (entry.key == key)
                return &entry;
        }
    }
    return nullptr;
}
