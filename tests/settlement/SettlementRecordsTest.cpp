#include "core/base/RunTimeError.h"
#include "core/gateway/DataGateway.h"
#include "settlement/Settlement.h"
#include "settlement/SettlementFields.h"
#include "tests/settlement/SettlementWindow.h"

using namespace Qt::StringLiterals;

namespace {

const QString Thirty =
    u"ID,CheckNo,CheckDate,PRDNo,PRDName,Num,Suttle,Amount,ListNum,CustName,Store,LManagePrice,LPackPrice,"
    "LUnloadPrice,LExpendPrice,LSanitationPrice,LElectPrice,LRecoupPrice,LChillPrice,LFieldPrice,LOtherPrice,"
    "LTotalPrice,GTotalPrice,CheckUser,PayUser,Receiver,Per_LManage,Per_LElect,Per_LUnload,Per_LSani"_s;
const QString Values =
    u"'20260301001','01260309001','2026-03-09','A-001','红富士',40,120.5,1234.6,2,'王建国','一号库',61.7,12."
    u"3,"
    "7.5,250,3.4,18.5,1.1,2.2,-3.3,4.4,357.8,876.8,'李会计','赵出纳','02','5','1.50','30',''"_s;

Settlement Full()
{
    Settlement s;
    s.id = u"20260301001"_s;
    s.checkNo = u"01260309001"_s;
    s.checkDate = u"2026-03-09"_s;
    s.prdNo = u"A-001"_s;
    s.prdName = u"红富士"_s;
    s.num = 40;
    s.suttle = 120.5;
    s.amount = 1234.6;
    s.listNum = 2;
    s.custName = u"王建国"_s;
    s.store = u"一号库"_s;
    s.lManagePrice = 61.7;
    s.lPackPrice = 12.3;
    s.lUnloadPrice = 7.5;
    s.lExpendPrice = 250;
    s.lSanitationPrice = 3.4;
    s.lElectPrice = 18.5;
    s.lRecoupPrice = 1.1;
    s.lChillPrice = 2.2;
    s.lFieldPrice = -3.3;
    s.lOtherPrice = 4.4;
    s.lTotalPrice = 357.8;
    s.gTotalPrice = 876.8;
    s.checkUser = u"李会计"_s;
    s.payUser = u"赵出纳"_s;
    s.receiver = u"02"_s;
    s.perLManage = u"5"_s;
    s.perLElect = u"1.50"_s;
    s.perLUnload = u"30"_s;
    return s;
}

/// The settlement as a statement has it, to compare two.
QString AsStored(const Settlement& settlement)
{
    QString stored;
    const auto observer = [&stored](const QString& statement) {
        stored = statement.section(u" VALUES "_s, 1);
    };
    Gateway().SetStatementObserver(observer);
    Gateway().DeleteRows(u"CheckOut"_s, QString());
    InsertSettlement(settlement);
    Gateway().SetStatementObserver(nullptr);
    return stored;
}

class SettlementRecord : public SettlementWindow {};
class SettlementOnSheet : public EitherLayout {};

} // namespace

INSTANTIATE_TEST_SUITE_P(, SettlementOnSheet, BothLayouts, LayoutName);

TEST_F(SettlementRecord, IsStoredInThirtyColumnsWithTextsQuotedAndNumbersBare)
{
    InsertSettlement(Full());
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"INSERT INTO CheckOut ("_s + Thirty + u") VALUES ("_s + Values + u')'}));
    EXPECT_EQ(Count(u"CheckOut_B"_s), 0);
}

TEST_F(SettlementRecord, IsReadInTheOrderInWhichASheetIsFilledAndIsTheSameAgain)
{
    InsertSettlement(Full());
    TakeStatements();
    const std::optional<Settlement> read = ReadSettlement(u"01260309001"_s);
    ASSERT_TRUE(read);
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            u"SELECT PRDNo,CustName,Store,CheckDate,LManagePrice,LElectPrice,LPackPrice,LUnloadPrice,"
            "LExpendPrice,LSanitationPrice,LRecoupPrice,LChillPrice,LFieldPrice,LOtherPrice,LTotalPrice,"
            "GTotalPrice,CheckUser,PayUser,ListNum,ID,PRDName,Num,Suttle,Amount,Per_LManage,Per_LElect,"
            "Per_LUnload,Per_LSani FROM CheckOut WHERE CheckNo='01260309001'"_s}));
    Settlement same = *read;
    EXPECT_EQ(same.receiver, QString()) << "whoever saves it next";
    same.receiver = u"02"_s;
    EXPECT_EQ(AsStored(same), u'(' + Values + u')');
}

TEST_F(SettlementRecord, OfAnUnknownNumberIsNone)
{
    InsertSettlement(Full());
    EXPECT_FALSE(ReadSettlement(u"01260309002"_s));
    TakeStatements();
    EXPECT_FALSE(ArchiveSettlement(u"01260309002"_s));
    EXPECT_EQ(TakeStatements().size(), 1);
    EXPECT_EQ(Count(u"CheckOut_B"_s), 0);
}

TEST_F(SettlementRecord, IsArchivedAsItStandsAndStays)
{
    InsertSettlement(Full());
    TakeStatements();
    EXPECT_TRUE(ArchiveSettlement(u"01260309001"_s));
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT "_s + Thirty + u" FROM CheckOut WHERE CheckNo='01260309001'"_s,
                           u"INSERT INTO CheckOut_B ("_s + Thirty + u") VALUES ("_s + Values + u')'}));
    EXPECT_TRUE(ArchiveSettlement(u"01260309001"_s));
    EXPECT_EQ(Count(u"CheckOut_B"_s), 2) << "one row for each time";
    EXPECT_EQ(Count(u"CheckOut"_s), 1);
    EXPECT_EQ(Db().Rows(u"SELECT * FROM CheckOut_B LIMIT 1"_s), Db().Rows(u"SELECT * FROM CheckOut"_s));
}

TEST_F(SettlementRecord, WithAFigureThatNoColumnHoldsIsNotSent)
{
    Settlement huge = Full();
    huge.lOtherPrice = -1e14;
    EXPECT_THROW(InsertSettlement(huge), OverflowError);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_P(SettlementOnSheet, IsReadFromTheBoxesOfTheSameNames)
{
    AddTicket(30, 0, 900);
    AddTicket(10, 120.5, 334.55);
    AddAdvance(250);
    OpenLayout();
    EnterLot();
    Enter(u"txtPer_LManage"_s, u"5 "_s);
    while (FocusName() != u"txtCheckUser" && !HasFailure())
        Press(Qt::Key_Return);
    Enter(u"txtCheckUser"_s, u" 李会计 "_s);

    Settlement read;
    read.store = u"别处"_s;
    ReadSettlementFields(Windows().Find(Layout())->Widget(), read);
    EXPECT_EQ(read.id, QString()) << "the window's, as the store is";
    EXPECT_EQ(read.store, u"别处"_s);
    EXPECT_EQ(read.checkNo, u"01260309001"_s);
    EXPECT_EQ(read.checkDate, u"2026-03-09"_s);
    EXPECT_EQ(read.prdNo, u"A-001"_s);
    EXPECT_EQ(read.amount, 1234.6);
    EXPECT_EQ(read.lManagePrice, 61.7);
    EXPECT_EQ(read.lExpendPrice, 250);
    EXPECT_EQ(read.gTotalPrice, 922.9);
    EXPECT_EQ(read.checkUser, u"李会计"_s);
    EXPECT_EQ(read.perLManage, u"5"_s);

    Box(u"txtNum"_s)->clear();
    EXPECT_THROW(ReadSettlementFields(Windows().Find(Layout())->Widget(), read), TypeMismatchError);
}

TEST_P(SettlementOnSheet, IsShownRatesLastSoThatARateWorksItsFeeOutAnew)
{
    OpenLayout();
    Settlement stored = Full();
    stored.lManagePrice = 33; // typed over what 5 per cent give
    ShowSettlementFields(Windows().Find(Layout())->Widget(), stored);
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309001"_s);
    EXPECT_EQ(Text(u"txtCheckDate"_s), u"2026年03月09日"_s);
    EXPECT_EQ(Text(u"txtPRDNo"_s), u"A-001"_s);
    EXPECT_EQ(Text(u"txtNum"_s), u"40"_s);
    EXPECT_EQ(Text(u"txtAmount"_s), u"1234.6"_s);
    EXPECT_EQ(Text(u"txtLFieldPrice"_s), u"-3.3"_s);
    EXPECT_EQ(Text(u"txtLExpendPrice"_s), u"250"_s);
    EXPECT_EQ(Text(u"txtLManagePrice"_s), u"61.7"_s);
    EXPECT_EQ(Text(u"txtLUnloadPrice"_s), u"3.6"_s) << "30 a tonne";
    EXPECT_EQ(Text(u"txtPayUser"_s), u"赵出纳"_s);
}

TEST_P(SettlementOnSheet, WithoutRatesShowsTheStoredTotalsAsPlainNumbers)
{
    OpenLayout();
    Settlement stored = Full();
    for (QString* rate : {&stored.perLManage, &stored.perLElect, &stored.perLUnload})
        rate->clear();
    stored.gTotalPrice = 877; // rounded when it was saved
    ShowSettlementFields(Windows().Find(Layout())->Widget(), stored);
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"357.8"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"877"_s);
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), QString());
}
