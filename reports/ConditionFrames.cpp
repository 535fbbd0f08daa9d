#include "reports/ConditionFrames.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

using Days = ConditionFrame::Days;
using Kind = ConditionControl::Kind;

// As long as the columns that are searched.
constexpr int LotNumber = 50;
constexpr int BillNumber = 30;
constexpr int PersonName = 60;

ConditionControl Text(const QString& name, const QString& caption, int maxLength)
{
    return {.kind = Kind::Text, .name = name, .caption = caption, .maxLength = maxLength};
}

ConditionControl LotNo(const QString& name)
{
    return Text(name, u"编号"_s, LotNumber);
}

ConditionControl Buyer(const QString& name)
{
    ConditionControl buyer = Text(name, u"客户姓名"_s, PersonName);
    buyer.picksBuyer = true;
    return buyer;
}

ConditionControl Combo(const QString& name, const QString& caption, Choices choices)
{
    return {.kind = Kind::Combo, .name = name, .caption = caption, .choices = choices};
}

ConditionControl Store(const QString& name)
{
    return Combo(name, u"仓位"_s, Choices::Stores);
}

ConditionControl Sort(const QString& name)
{
    return Combo(name, u"品种"_s, Choices::ProductSorts);
}

ConditionControl Check(const QString& name, const QString& caption)
{
    return {.kind = Kind::Check, .name = name, .caption = caption};
}

ConditionControl Radio(const QString& name, const QString& caption)
{
    return {.kind = Kind::Radio, .name = name, .caption = caption};
}

ConditionControl With(const QString& check, ConditionControl control)
{
    control.usableWith = check;
    return control;
}

ConditionControl Without(const QString& check, ConditionControl control)
{
    control.usableWithout = check;
    return control;
}

/// Stands in every clause of the report.
ConditionPiece Always(const QString& clause)
{
    return {.clause = clause};
}

/// A text or choice that is compared with a column and told in the caption.
ConditionPiece Equals(const QString& column, const QString& control, const QString& words)
{
    return {.control = control, .clause = u" And "_s + column + u"='%1'"_s, .words = words + u"%1"_s};
}

ConditionPiece Lot(const QString& control)
{
    return Equals(u"PRDNo"_s, control, u" 编号："_s);
}

ConditionPiece OfStore(const QString& control)
{
    return Equals(u"Store"_s, control, u" 仓位："_s);
}

/// A choice that is the report's key and told in the caption.
ConditionPiece Key(const QString& control, const QString& words)
{
    return {.control = control, .words = words + u"%1"_s, .key = u"%1"_s};
}

/// A choice that is compared, told, and the report's key.
ConditionPiece AsKey(ConditionPiece piece)
{
    piece.key = u"%1"_s;
    return piece;
}

/// A tick, with what it adds.
ConditionPiece Ticked(const QString& control, const QString& clause, const QString& words = {})
{
    return {.control = control, .clause = clause, .words = words};
}

ConditionPiece Copies(const QString& control, const QString& words = {})
{
    return {.control = control, .words = words, .readsCopies = true};
}

ConditionPiece OfKind(const QString& control, const QString& reportKind, const QString& clause = {})
{
    return {.control = control, .clause = clause, .reportKind = reportKind};
}

/// The one type of movement that the report shows; of several types it has no total.
ConditionPiece OneType(const QString& column, const QString& control)
{
    ConditionPiece piece = Equals(column, control, u" "_s);
    piece.isOneType = true;
    return piece;
}

std::vector<ConditionFrame> SaleFrames()
{
    return {
        {.report = u"RptSaleDetail"_s,
         .caption = u"收银情况明细"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {Text(u"txtListNo"_s, u"单号"_s, BillNumber), LotNo(u"txtPRDNo_SaleDetail"_s),
                      Combo(u"cmbReceiver_SaleDetail"_s, u"收银员"_s, Choices::Cashiers),
                      Combo(u"cmbSaleType_SaleDetail"_s, u"收款方式"_s, Choices::SaleTypes),
                      Check(u"chkUnCheckOut"_s, u"未结算"_s), Check(u"chkForegift"_s, u"有押箱"_s),
                      With(u"chkForegift"_s, Combo(u"cmbForegiftRTN"_s, u"退箱"_s, Choices::CrateReturns)),
                      Check(u"chkEdit_SaleDetail"_s, u"调整单"_s)},
         .pieces = {Equals(u"ListNo"_s, u"txtListNo"_s, u" 单号："_s),
                    // The clause has the cashier first, the caption the lot.
                    {.control = u"cmbReceiver_SaleDetail"_s, .clause = u" And Receiver='%1'"_s},
                    Lot(u"txtPRDNo_SaleDetail"_s),
                    {.control = u"cmbReceiver_SaleDetail"_s, .words = u" 收银员：%1"_s},
                    Equals(u"SaleType"_s, u"cmbSaleType_SaleDetail"_s, u" "_s),
                    Ticked(u"chkUnCheckOut"_s, u" And bolCheckOut='0'"_s, u" 未结算"_s),
                    Ticked(u"chkForegift"_s, u" And ForegiftAmount>0"_s, u" 有押箱"_s),
                    {.control = u"cmbForegiftRTN"_s,
                     .onlyWith = u"chkForegift"_s,
                     .clause = u" And bForegiftRTN='%1'"_s},
                    Copies(u"chkEdit_SaleDetail"_s),
                    Always(u" Order By SalNo"_s)}},
        {.report = u"RptSaleDescribe"_s,
         .caption = u"收银情况统计"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {Combo(u"cmbReceiver_SaleDescribe"_s, u"收银员"_s, Choices::Cashiers),
                      Combo(u"cmbSaleType_SaleDescribe"_s, u"收款方式"_s, Choices::SaleTypes)},
         .pieces = {{.control = u"cmbReceiver_SaleDescribe"_s,
                     .words = u" 收银员：%1"_s,
                     .key = u"Receiver='%1'"_s},
                    Equals(u"SaleType"_s, u"cmbSaleType_SaleDescribe"_s, u" "_s),
                    // By the day of one cashier the rows have the key alone as their condition.
                    {.control = u"cmbSaleType_SaleDescribe"_s,
                     .onlyWith = u"cmbReceiver_SaleDescribe"_s,
                     .key = u" And SaleType='%1'"_s}}},
        {.report = u"RptPRDDescribe"_s,
         .caption = u"产品销售统计"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {Sort(u"cmbPRDSort_PRDDescribe"_s)},
         .pieces = {Key(u"cmbPRDSort_PRDDescribe"_s, u" 品种："_s)}},
        {.report = u"RptSales"_s,
         .caption = u"销售业绩"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {Radio(u"optDetail_Sales"_s, u"明细信息"_s),
                      Radio(u"optDescribe_Sales"_s, u"汇总信息"_s),
                      Combo(u"cmbSalesList"_s, u"业务员"_s, Choices::Salesmen)},
         .pieces = {AsKey(Equals(u"SalesID"_s, u"cmbSalesList"_s, u" 业务员："_s)),
                    OfKind(u"optDetail_Sales"_s, u"Detail"_s, u" Order By SaleDate,SaleTime"_s),
                    OfKind(u"optDescribe_Sales"_s, u"Describe"_s)},
         .checks = {{{u"optDetail_Sales"_s, u"optDescribe_Sales"_s}, {}, u"请选择查询的类型!"_s},
                    {{u"cmbSalesList"_s}, u"optDetail_Sales"_s, u"明细查询必须指定业务员!"_s}}},
        {.report = u"RptStoreDetail"_s,
         .caption = u"仓位销售明细"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {Store(u"cmbStoreList_StoreDetail"_s)},
         .pieces = {OfStore(u"cmbStoreList_StoreDetail"_s)}},
        {.report = u"RptStoreDescribe"_s,
         .caption = u"仓位销售统计"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {Store(u"cmbStoreList_StoreDescribe"_s)},
         .pieces = {Key(u"cmbStoreList_StoreDescribe"_s, u" 仓位："_s)}},
    };
}

std::vector<ConditionFrame> MoneyFrames()
{
    return {
        {.report = u"RptCheckOutDetail"_s,
         .caption = u"结算情况明细"_s,
         .dateColumn = u"CheckDate"_s,
         .controls = {LotNo(u"txtPRDNo_CheckOutDetail"_s), Store(u"cmbStoreList_CheckOutDetail"_s),
                      Check(u"chkEdit_CheckOutDetail"_s, u"调整单"_s)},
         .pieces = {Lot(u"txtPRDNo_CheckOutDetail"_s), OfStore(u"cmbStoreList_CheckOutDetail"_s),
                    Copies(u"chkEdit_CheckOutDetail"_s, u" 调整单"_s), Always(u" Order By CheckNo"_s)}},
        {.report = u"RptCheckOutDescribe"_s,
         .caption = u"结算情况统计"_s,
         .dateColumn = {}, // the report goes through the days itself
         .controls = {Store(u"cmbStoreList_CheckOutDescribe"_s)},
         .pieces = {{.control = u"cmbStoreList_CheckOutDescribe"_s,
                     .clause = u"Store='%1'"_s,
                     .words = u" 仓位：%1"_s}}},
        {.report = u"RptUnCheckOut"_s,
         .caption = u"待结算明细"_s,
         .days = Days::None,
         .dateColumn = {},
         .controls = {LotNo(u"txtPRDNo_UnCheckOut"_s), Store(u"cmbStoreList_UnCheckOut"_s)},
         .pieces = {{.control = u"txtPRDNo_UnCheckOut"_s,
                     .clause = u"PRDNo='%1' And "_s,
                     .words = u"编号：%1"_s},
                    Always(u"bolCheckOut='0'"_s),
                    OfStore(u"cmbStoreList_UnCheckOut"_s)}},
        {.report = u"RptDebit"_s,
         .caption = u"客户预支款"_s,
         .dateColumn = u"DebitDate"_s,
         .controls = {LotNo(u"txtPRDNo_Debit"_s), Check(u"chkUnCheckOut_Debit"_s, u"未结算"_s)},
         .pieces = {Lot(u"txtPRDNo_Debit"_s),
                    Ticked(u"chkUnCheckOut_Debit"_s, u" And bolCheckOut='0'"_s, u" 未结算"_s)}},
        {.report = u"RptCheque"_s,
         .caption = u"应收款收款"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {Radio(u"optDetail_Cheque"_s, u"明细信息"_s),
                      Radio(u"optDescribe_Cheque"_s, u"汇总信息"_s), Buyer(u"txtCustName_Cheque"_s)},
         .pieces = {AsKey(Equals(u"Vendee"_s, u"txtCustName_Cheque"_s, u" 客户姓名："_s)),
                    OfKind(u"optDetail_Cheque"_s, u"Detail"_s,
                           u" And SaleType='1' And bolReturn='0' Order By SalNo"_s),
                    OfKind(u"optDescribe_Cheque"_s, u"Describe"_s)},
         .checks = {{{u"optDetail_Cheque"_s, u"optDescribe_Cheque"_s}, {}, u"请选择查询的类型!"_s},
                    {{u"txtCustName_Cheque"_s}, u"optDetail_Cheque"_s, u"明细查询必须指定客户姓名!"_s}}},
        {.report = u"RptCheckCheque"_s,
         .caption = u"应收款结算"_s,
         .dateColumn = u"ReturnDate"_s,
         .controls = {Buyer(u"txtCustName_CheckCheque"_s)},
         .pieces = {Always(u" And SaleType='1' And bolReturn='1'"_s),
                    Equals(u"Vendee"_s, u"txtCustName_CheckCheque"_s, u" 客户姓名："_s),
                    Always(u" Order By SaleDate,SaleTime"_s)}},
        {.report = u"RptFee"_s,
         .caption = u"费用查询"_s,
         .dateColumn = u"FeeDate"_s,
         .controls = {Combo(u"cmbFeeType"_s, u"费用类型"_s, Choices::FeeTypes),
                      Check(u"chkDescribe_Fee"_s, u"汇总"_s)},
         .pieces = {AsKey(Equals(u"FeeID"_s, u"cmbFeeType"_s, u" 费用类型："_s)),
                    {.control = u"chkDescribe_Fee"_s,
                     .whenEmpty = true,
                     .words = u" 明细"_s,
                     .reportKind = u"Detail"_s},
                    {.control = u"chkDescribe_Fee"_s, .words = u" 汇总"_s, .reportKind = u"Describe"_s}}},
        {.report = u"RptAmount"_s, .caption = u"收支统计"_s, .dateColumn = {}, .controls = {}, .pieces = {}},
    };
}

std::vector<ConditionFrame> StockFrames()
{
    return {
        {.report = u"RptDaySale"_s,
         .caption = u"库存盘点日报"_s,
         .days = Days::One,
         .dateColumn = {}, // the report has the day itself
         .controls = {LotNo(u"txtPRDNo_DaySale"_s), Text(u"txtCustName_DaySale"_s, u"客户姓名"_s, PersonName),
                      Store(u"cmbStoreList_DaySale"_s), Sort(u"cmbPRDSort_DaySale"_s)},
         .pieces = {Always(u"bolCheckOut='0'"_s), Lot(u"txtPRDNo_DaySale"_s),
                    OfStore(u"cmbStoreList_DaySale"_s),
                    Equals(u"CustName"_s, u"txtCustName_DaySale"_s, u" 客户姓名："_s),
                    Equals(u"PRDName"_s, u"cmbPRDSort_DaySale"_s, u" 品种："_s)}},
        {.report = u"RptDayCust"_s,
         .caption = u"销售盘点"_s,
         .dateColumn = u"SaleDate"_s,
         .controls = {LotNo(u"txtPRDNo_DayCust"_s), Text(u"txtCustName_DayCust"_s, u"客户姓名"_s, PersonName),
                      Store(u"cmbStoreList_DayCust"_s), Sort(u"cmbPRDSort_DayCust"_s)},
         .pieces = {AsKey(Lot(u"txtPRDNo_DayCust"_s)), OfStore(u"cmbStoreList_DayCust"_s),
                    Equals(u"CustName"_s, u"txtCustName_DayCust"_s, u" 客户姓名："_s),
                    Equals(u"PRDName"_s, u"cmbPRDSort_DayCust"_s, u" 品种："_s)}},
        {.report = u"RptEStore"_s,
         .caption = u"库存变更明细"_s,
         .dateColumn = u"EStoreDate"_s,
         .controls = {Check(u"chkAll_EStore"_s, u"全部"_s),
                      Without(u"chkAll_EStore"_s,
                              Combo(u"cmbEStoreType"_s, u"变更类型"_s, Choices::StockChanges)),
                      LotNo(u"txtPRDNo_EStore"_s)},
         .pieces = {{.control = u"txtPRDNo_EStore"_s,
                     .clause = u" And ID='%1'"_s,
                     .words = u" 编号：%1"_s,
                     .looksUpLot = true},
                    OneType(u"EStoreType"_s, u"cmbEStoreType"_s)},
         .setsKey = false},
        {.report = u"RptPackList"_s,
         .caption = u"箱筐变更明细"_s,
         .dateColumn = u"PackDate"_s,
         .controls = {Text(u"txtPackNo"_s, u"箱筐号"_s, BillNumber),
                      Combo(u"cmbPackType"_s, u"变更类型"_s, Choices::CrateMoves)},
         .pieces = {Equals(u"PackNo"_s, u"txtPackNo"_s, u" 箱筐号："_s),
                    OneType(u"PackType"_s, u"cmbPackType"_s)},
         .setsKey = false},
        {.report = u"RptForegift"_s,
         .caption = u"退箱明细"_s,
         .dateColumn = u"RForegiftDate"_s,
         .controls = {},
         .pieces = {}},
    };
}

std::vector<ConditionFrame> AllFrames()
{
    std::vector<ConditionFrame> all = SaleFrames();
    for (const auto& family : {MoneyFrames(), StockFrames()})
        all.insert(all.end(), family.begin(), family.end());
    return all;
}

} // namespace

QString ConditionFrame::Name() const
{
    return u"Frame_"_s + Suffix();
}

QString ConditionFrame::StartName() const
{
    switch (days) {
    case Days::None:
        return {};
    case Days::One:
        return u"dtpDate_"_s + Suffix();
    case Days::FromTo:
        return u"dtpSDate_"_s + Suffix();
    }
    return {};
}

QString ConditionFrame::EndName() const
{
    return days == Days::FromTo ? u"dtpEDate_"_s + Suffix() : QString();
}

const std::vector<ConditionFrame>& ConditionFrames()
{
    static const std::vector<ConditionFrame> frames = AllFrames();
    return frames;
}

const ConditionFrame* ConditionFrameOf(const QString& report)
{
    const auto& frames = ConditionFrames();
    const auto found = std::find_if(frames.begin(), frames.end(),
                                    [&report](const auto& frame) { return frame.report == report; });
    return found == frames.end() ? nullptr : &*found;
}
