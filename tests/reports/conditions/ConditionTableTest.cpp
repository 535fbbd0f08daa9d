#include "tests/reports/conditions/ConditionCase.h"

#include "reports/Conditions.h"

using namespace Qt::StringLiterals;

namespace {

/// Controls answered by keys, and what the report gets. ConditionAll was true and the key "vor" before.
struct Asked {
    const char* name;
    QString report;
    QHash<QString, QString> answers;
    QString clause;
    QString caption;
    QString key = {};
    QString kind = u"-"_s; ///< "-" as the report before left it
    bool readsCopies = false;
};

void PrintTo(const Asked& asked, std::ostream* out)
{
    *out << asked.name;
}

class ConditionTable : public ConditionCase, public ::testing::WithParamInterface<Asked> {};

const QString Today = u"2026-03-09"_s;
const QString Start = u"20260301"_s;
const QString Words = u"2026-03-01至2026-03-09"_s;

QString Days(const QString& column)
{
    return u"(%1>='2026-03-01' And %1<='2026-03-09')"_s.arg(column);
}

QString OneDay(const QString& column)
{
    return u"(%1>='2026-03-09' And %1<='2026-03-09')"_s.arg(column);
}

const std::vector<Asked> Reports{
    {"SaleDetailOfEverything",
     u"RptSaleDetail"_s,
     {{u"txtListNo"_s, u"L7"_s},
      {u"txtPRDNo_SaleDetail"_s, u"A-001"_s},
      {u"cmbReceiver_SaleDetail"_s, u"#1"_s},
      {u"cmbSaleType_SaleDetail"_s, u"#1"_s},
      {u"chkUnCheckOut"_s, u"x"_s},
      {u"chkForegift"_s, u"x"_s},
      {u"cmbForegiftRTN"_s, u"#1"_s},
      {u"chkEdit_SaleDetail"_s, u"x"_s},
      {u"dtpSDate_SaleDetail"_s, Start}},
     Days(u"SaleDate"_s) + u" And ListNo='L7' And Receiver='02' And PRDNo='A-001' And SaleType='1' And "
                           "bolCheckOut='0' And ForegiftAmount>0 And bForegiftRTN='1' Order By SalNo"_s,
     Words + u" 单号：L7 编号：A-001 收银员：小陈 赊销 未结算 有押箱"_s,
     {},
     u"-"_s,
     true},
    {"SaleDetailOfNothing", u"RptSaleDetail"_s, {}, OneDay(u"SaleDate"_s) + u" Order By SalNo"_s, Today},
    {"SaleDetailOfACashier",
     u"RptSaleDetail"_s,
     {{u"cmbReceiver_SaleDetail"_s, u"#0"_s}},
     OneDay(u"SaleDate"_s) + u" And Receiver='01' Order By SalNo"_s,
     Today + u" 收银员：管理员"_s},
    {"SaleDetailWithDeposit",
     u"RptSaleDetail"_s,
     {{u"txtPRDNo_SaleDetail"_s, u" A-001 "_s}, {u"chkForegift"_s, u"x"_s}},
     OneDay(u"SaleDate"_s) + u" And PRDNo=' A-001 ' And ForegiftAmount>0 Order By SalNo"_s,
     Today + u" 编号： A-001  有押箱"_s},
    {"SaleDetailWithDepositStillOut",
     u"RptSaleDetail"_s,
     {{u"chkForegift"_s, u"x"_s}, {u"cmbForegiftRTN"_s, u"#0"_s}},
     OneDay(u"SaleDate"_s) + u" And ForegiftAmount>0 And bForegiftRTN='0' Order By SalNo"_s,
     Today + u" 有押箱"_s},
    {"SaleDescribeOfACashierAndAType",
     u"RptSaleDescribe"_s,
     {{u"cmbReceiver_SaleDescribe"_s, u"#1"_s},
      {u"cmbSaleType_SaleDescribe"_s, u"#0"_s},
      {u"dtpSDate_SaleDescribe"_s, Start}},
     Days(u"SaleDate"_s) + u" And SaleType='0'"_s,
     Words + u" 收银员：小陈 现金"_s,
     u"Receiver='02' And SaleType='0'"_s},
    {"SaleDescribeOfACashier",
     u"RptSaleDescribe"_s,
     {{u"cmbReceiver_SaleDescribe"_s, u"#0"_s}},
     OneDay(u"SaleDate"_s),
     Today + u" 收银员：管理员"_s,
     u"Receiver='01'"_s},
    {"SaleDescribeOfAType",
     u"RptSaleDescribe"_s,
     {{u"cmbSaleType_SaleDescribe"_s, u"#1"_s}},
     OneDay(u"SaleDate"_s) + u" And SaleType='1'"_s,
     Today + u" 赊销"_s},
    {"CheckOutDetail",
     u"RptCheckOutDetail"_s,
     {{u"txtPRDNo_CheckOutDetail"_s, u"A-001"_s},
      {u"cmbStoreList_CheckOutDetail"_s, u"#1"_s},
      {u"chkEdit_CheckOutDetail"_s, u"x"_s},
      {u"dtpSDate_CheckOutDetail"_s, Start}},
     Days(u"CheckDate"_s) + u" And PRDNo='A-001' And Store='B仓' Order By CheckNo"_s,
     Words + u" 编号：A-001 仓位：B仓 调整单"_s,
     {},
     u"-"_s,
     true},
    {"CheckOutDetailOfNothing",
     u"RptCheckOutDetail"_s,
     {},
     OneDay(u"CheckDate"_s) + u" Order By CheckNo"_s,
     Today},
    {"CheckOutDescribeOfAStore",
     u"RptCheckOutDescribe"_s,
     {{u"cmbStoreList_CheckOutDescribe"_s, u"#0"_s}, {u"dtpSDate_CheckOutDescribe"_s, Start}},
     u"Store='A仓'"_s,
     Words + u" 仓位：A仓"_s},
    {"CheckOutDescribe", u"RptCheckOutDescribe"_s, {}, QString(), Today},
    {"PRDDescribeOfASort",
     u"RptPRDDescribe"_s,
     {{u"cmbPRDSort_PRDDescribe"_s, u"#1"_s}, {u"dtpSDate_PRDDescribe"_s, Start}},
     Days(u"SaleDate"_s),
     Words + u" 品种：苹果"_s,
     u"苹果"_s},
    {"PRDDescribe", u"RptPRDDescribe"_s, {}, OneDay(u"SaleDate"_s), Today},
    {"UnCheckOut", u"RptUnCheckOut"_s, {}, u"bolCheckOut='0'"_s, QString()},
    {"UnCheckOutOfAStore",
     u"RptUnCheckOut"_s,
     {{u"cmbStoreList_UnCheckOut"_s, u"#1"_s}},
     u"bolCheckOut='0' And Store='B仓'"_s,
     u" 仓位：B仓"_s},
    {"UnCheckOutOfALot",
     u"RptUnCheckOut"_s,
     {{u"txtPRDNo_UnCheckOut"_s, u"A-001"_s}},
     u"PRDNo='A-001' And bolCheckOut='0'"_s,
     u"编号：A-001"_s},
    {"UnCheckOutOfALotAndAStore",
     u"RptUnCheckOut"_s,
     {{u"txtPRDNo_UnCheckOut"_s, u"A-001"_s}, {u"cmbStoreList_UnCheckOut"_s, u"#0"_s}},
     u"PRDNo='A-001' And bolCheckOut='0' And Store='A仓'"_s,
     u"编号：A-001 仓位：A仓"_s},
    {"Debit",
     u"RptDebit"_s,
     {{u"txtPRDNo_Debit"_s, u"A-001"_s}, {u"chkUnCheckOut_Debit"_s, u"x"_s}, {u"dtpSDate_Debit"_s, Start}},
     Days(u"DebitDate"_s) + u" And PRDNo='A-001' And bolCheckOut='0'"_s,
     Words + u" 编号：A-001 未结算"_s},
    {"ChequeDetail",
     u"RptCheque"_s,
     {{u"optDetail_Cheque"_s, u"x"_s}, {u"txtCustName_Cheque"_s, u"老王"_s}, {u"dtpSDate_Cheque"_s, Start}},
     Days(u"SaleDate"_s) + u" And Vendee='老王' And SaleType='1' And bolReturn='0' Order By SalNo"_s,
     Words + u" 客户姓名：老王"_s,
     u"老王"_s,
     u"Detail"_s},
    {"ChequeDescribe",
     u"RptCheque"_s,
     {{u"optDescribe_Cheque"_s, u"x"_s}},
     OneDay(u"SaleDate"_s),
     Today,
     {},
     u"Describe"_s},
    {"ChequeDescribeOfABuyer",
     u"RptCheque"_s,
     {{u"optDescribe_Cheque"_s, u"x"_s}, {u"txtCustName_Cheque"_s, u"老王"_s}},
     OneDay(u"SaleDate"_s) + u" And Vendee='老王'"_s,
     Today + u" 客户姓名：老王"_s,
     u"老王"_s,
     u"Describe"_s},
    {"CheckCheque",
     u"RptCheckCheque"_s,
     {{u"dtpSDate_CheckCheque"_s, Start}},
     Days(u"ReturnDate"_s) + u" And SaleType='1' And bolReturn='1' Order By SaleDate,SaleTime"_s,
     Words},
    {"CheckChequeOfABuyer",
     u"RptCheckCheque"_s,
     {{u"txtCustName_CheckCheque"_s, u"老王"_s}},
     OneDay(u"ReturnDate"_s) +
         u" And SaleType='1' And bolReturn='1' And Vendee='老王' Order By SaleDate,SaleTime"_s,
     Today + u" 客户姓名：老王"_s},
    {"SalesDetail",
     u"RptSales"_s,
     {{u"optDetail_Sales"_s, u"x"_s}, {u"cmbSalesList"_s, u"#0"_s}, {u"dtpSDate_Sales"_s, Start}},
     Days(u"SaleDate"_s) + u" And SalesID='S1' Order By SaleDate,SaleTime"_s,
     Words + u" 业务员：小李"_s,
     u"S1-小李"_s,
     u"Detail"_s},
    {"SalesDescribeOfANameWithADash",
     u"RptSales"_s,
     {{u"optDescribe_Sales"_s, u"x"_s}, {u"cmbSalesList"_s, u"#1"_s}},
     OneDay(u"SaleDate"_s) + u" And SalesID='S2'"_s,
     Today + u" 业务员：小王"_s,
     u"S2-小王-东区"_s,
     u"Describe"_s},
    {"SalesDescribe",
     u"RptSales"_s,
     {{u"optDescribe_Sales"_s, u"x"_s}},
     OneDay(u"SaleDate"_s),
     Today,
     {},
     u"Describe"_s},
    {"DaySale",
     u"RptDaySale"_s,
     {{u"txtPRDNo_DaySale"_s, u"A-001"_s},
      {u"txtCustName_DaySale"_s, u"果农"_s},
      {u"cmbStoreList_DaySale"_s, u"#0"_s},
      {u"cmbPRDSort_DaySale"_s, u"#0"_s}},
     u"bolCheckOut='0' And PRDNo='A-001' And Store='A仓' And CustName='果农' And PRDName='蜜梨'"_s,
     Today + u" 编号：A-001 仓位：A仓 客户姓名：果农 品种：蜜梨"_s},
    {"DaySaleOfEverything", u"RptDaySale"_s, {}, u"bolCheckOut='0'"_s, Today},
    {"DayCust",
     u"RptDayCust"_s,
     {{u"txtPRDNo_DayCust"_s, u"A-001"_s},
      {u"txtCustName_DayCust"_s, u"果农"_s},
      {u"cmbStoreList_DayCust"_s, u"#0"_s},
      {u"cmbPRDSort_DayCust"_s, u"#0"_s},
      {u"dtpSDate_DayCust"_s, Start}},
     Days(u"SaleDate"_s) + u" And PRDNo='A-001' And Store='A仓' And CustName='果农' And PRDName='蜜梨'"_s,
     Words + u" 编号：A-001 仓位：A仓 客户姓名：果农 品种：蜜梨"_s,
     u"A-001"_s},
    {"DayCustOfAStore",
     u"RptDayCust"_s,
     {{u"cmbStoreList_DayCust"_s, u"#1"_s}},
     OneDay(u"SaleDate"_s) + u" And Store='B仓'"_s,
     Today + u" 仓位：B仓"_s},
    {"StoreDetail",
     u"RptStoreDetail"_s,
     {{u"cmbStoreList_StoreDetail"_s, u"#1"_s}, {u"dtpSDate_StoreDetail"_s, Start}},
     Days(u"SaleDate"_s) + u" And Store='B仓'"_s,
     Words + u" 仓位：B仓"_s},
    {"StoreDescribe",
     u"RptStoreDescribe"_s,
     {{u"cmbStoreList_StoreDescribe"_s, u"#1"_s}, {u"dtpSDate_StoreDescribe"_s, Start}},
     Days(u"SaleDate"_s),
     Words + u" 仓位：B仓"_s,
     u"B仓"_s},
    {"Amount", u"RptAmount"_s, {{u"dtpSDate_Amount"_s, Start}}, QString(), Words},
    {"FeeDetail", u"RptFee"_s, {}, OneDay(u"FeeDate"_s), Today + u" 明细"_s, {}, u"Detail"_s},
    {"FeeDetailOfAType",
     u"RptFee"_s,
     {{u"cmbFeeType"_s, u"#1"_s}, {u"dtpSDate_Fee"_s, Start}},
     Days(u"FeeDate"_s) + u" And FeeID='02'"_s,
     Words + u" 费用类型：水电 明细"_s,
     u"02"_s,
     u"Detail"_s},
    {"FeeDescribe",
     u"RptFee"_s,
     {{u"chkDescribe_Fee"_s, u"x"_s}},
     OneDay(u"FeeDate"_s),
     Today + u" 汇总"_s,
     {},
     u"Describe"_s},
    {"FeeDescribeOfAType",
     u"RptFee"_s,
     {{u"cmbFeeType"_s, u"#0"_s}, {u"chkDescribe_Fee"_s, u"x"_s}},
     OneDay(u"FeeDate"_s) + u" And FeeID='01'"_s,
     Today + u" 费用类型：运费 汇总"_s,
     u"01"_s,
     u"Describe"_s},
    {"Foregift", u"RptForegift"_s, {{u"dtpSDate_Foregift"_s, Start}}, Days(u"RForegiftDate"_s), Words},
};

} // namespace

TEST_P(ConditionTable, TypedKeysBecomeTheCondition)
{
    const Asked& asked = GetParam();
    Session::ConditionAll = !asked.key.isEmpty();
    Session::ConditionKey = u"vor"_s;
    Session::ReportKind = u"-"_s;
    Ask(asked.report);
    Answer(asked.answers);

    ASSERT_NE(Report(), nullptr);
    EXPECT_EQ(Report()->condition.searchCond, asked.clause);
    EXPECT_EQ(Session::ConditionCaption, asked.caption);
    EXPECT_EQ(Report()->caption, asked.caption); // before the report was built
    EXPECT_EQ(Session::ConditionKey, asked.key);
    EXPECT_EQ(Session::ConditionAll, asked.key.isEmpty());
    EXPECT_EQ(Session::ReportKind, asked.kind);
    EXPECT_EQ(Report()->condition.getEditStatus, asked.readsCopies);
    const bool hasPeriod = asked.caption.startsWith(Words);
    const bool hasDays = asked.caption.startsWith(Today) || hasPeriod;
    EXPECT_EQ(Report()->condition.startDate, hasPeriod ? u"2026-03-01"_s : hasDays ? Today : QString());
    EXPECT_EQ(Report()->condition.endDate, hasDays ? Today : QString());
    EXPECT_EQ(Report()->shown, 1);
    EXPECT_TRUE(Report()->usedColStatus);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeStatements(), QStringList());
}

INSTANTIATE_TEST_SUITE_P(Reports, ConditionTable, ::testing::ValuesIn(Reports),
                         [](const auto& test) { return std::string(test.param.name); });

TEST(ConditionFrameTable, HasEveryReportOfTheMenuOnceAndNamesNoControlThatTheFrameHasNot)
{
    EXPECT_EQ(ConditionFrames().size(), 19U);
    for (const ConditionFrame& frame : ConditionFrames()) {
        EXPECT_EQ(ConditionFrameOf(frame.report), &frame);
        QStringList names{QString()};
        for (const ConditionControl& control : frame.controls)
            names << control.name;
        QStringList named;
        for (const ConditionPiece& piece : frame.pieces)
            named << piece.control << piece.onlyWith;
        for (const ConditionCheck& check : frame.checks)
            named << check.oneOf << check.onlyWith;
        for (const QString& name : std::as_const(named))
            EXPECT_TRUE(names.contains(name)) << name.toStdString();
    }
    EXPECT_EQ(ConditionFrameOf(u"PRDList"_s), nullptr);
    EXPECT_EQ(ConditionFrameOf(QString()), nullptr);
}

TEST(SearchDate, OneDayStandsAloneAndTheWrongWayRoundAsTyped)
{
    EXPECT_EQ(GetSearchDate(u"2026-03-09"_s, u"2026-03-09"_s), u"2026-03-09"_s);
    EXPECT_EQ(GetSearchDate(u"2026-03-01"_s, u"2026-03-09"_s), u"2026-03-01至2026-03-09"_s);
    EXPECT_EQ(GetSearchDate(u"2026-03-09"_s, u"2026-03-01"_s), u"2026-03-09至2026-03-01"_s);
}
