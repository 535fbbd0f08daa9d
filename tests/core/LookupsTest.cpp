#include "core/common/Lookups.h"
#include "core/base/RunTimeError.h"
#include "core/common/ErrorLog.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

class Lookups : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        TakeStatements();
    }

    void OneStatement(const QString& statement) { EXPECT_EQ(TakeStatements(), QStringList{statement}); }
};

} // namespace

TEST_F(Lookups, SettingsAreReadFromTheirOneRow)
{
    Db().Run(u"UPDATE Sys_Define SET CompName='果行',DepartName='一部',PrintType='1',bolVerify='1',"
             "Deadline='18:00:00',Orientation=1"_s);
    EXPECT_EQ(GetCompName(), u"果行"_s);
    OneStatement(u"SELECT CompName FROM Sys_Define"_s);
    EXPECT_EQ(GetDepartName(), u"一部"_s);
    OneStatement(u"SELECT DepartName FROM Sys_Define"_s);
    EXPECT_TRUE(IsPrintOnSave());
    OneStatement(u"SELECT PrintType FROM Sys_Define"_s);
    EXPECT_TRUE(IsVerifyOn());
    OneStatement(u"SELECT bolVerify FROM Sys_Define"_s);
    EXPECT_EQ(GetDeadline(), u"18:00:00"_s);
    OneStatement(u"SELECT Deadline FROM Sys_Define"_s);
    EXPECT_EQ(GetOrientation(), 1);
    OneStatement(u"SELECT Orientation FROM Sys_Define"_s);
    Db().Run(u"UPDATE Sys_Define SET PrintType='2',bolVerify='x',Orientation=2"_s);
    EXPECT_FALSE(IsPrintOnSave());
    EXPECT_FALSE(IsVerifyOn());
    EXPECT_EQ(GetOrientation(), 2);
}

TEST_F(Lookups, WithoutTheSettingsRowTheDefaultsHold)
{
    Db().Run(u"DELETE FROM Sys_Define"_s);
    EXPECT_EQ(GetCompName(), QString());
    EXPECT_EQ(GetDepartName(), QString());
    EXPECT_FALSE(IsPrintOnSave());
    EXPECT_FALSE(IsVerifyOn());
    EXPECT_EQ(GetDeadline(), u"00:00:00"_s);
    EXPECT_EQ(GetOrientation(), 1);
}

TEST_F(Lookups, AnEmptyDeadlineIsNoCutOff)
{
    Db().Run(u"DELETE FROM Sys_Define; INSERT INTO Sys_Define () VALUES ()"_s);
    EXPECT_EQ(Value(u"SELECT Deadline FROM Sys_Define"_s), QString());
    EXPECT_EQ(GetDeadline(), u"00:00:00"_s);
    Db().Run(u"UPDATE Sys_Define SET Deadline='8:00'"_s);
    EXPECT_EQ(GetDeadline(), u"8:00"_s) << "it is compared as it stands, not corrected";
}

TEST_F(Lookups, AnOrientationBeyondSixteenBitsOverflows)
{
    Db().Run(u"UPDATE Sys_Define SET Orientation=40000"_s);
    EXPECT_THROW(GetOrientation(), OverflowError);
}

TEST_F(Lookups, AUserIsReadByAnyColumn)
{
    Db().Run(u"INSERT INTO User_List VALUES ('05','张三','pw','10.0.0.5','1','0','')"_s);
    EXPECT_EQ(GetUserField(u"UserID"_s, u"05"_s, u"UserName"_s), u"张三"_s);
    OneStatement(u"SELECT UserName FROM User_List WHERE UserID='05'"_s);
    EXPECT_EQ(GetUserField(u"UserName"_s, u"张三"_s, u"UserIP"_s), u"10.0.0.5"_s);
    EXPECT_EQ(GetUserField(u"UserID"_s, u"06"_s, u"UserName"_s), QString());
}

TEST_F(Lookups, AFlagThatIsOnInDoubtIsOffForZeroOnlyAndWithoutARow)
{
    Db().Run(
        u"INSERT INTO User_List (UserID,bolSearch,bolEdit) VALUES ('05','0','1'),('06','','0'),('07','1','')"_s);
    EXPECT_FALSE(UserSearchAll(u"05"_s));
    OneStatement(u"SELECT bolSearch FROM User_List WHERE UserID='05'"_s);
    EXPECT_TRUE(UserSearchAll(u"06"_s)) << "an empty flag is not 0";
    EXPECT_TRUE(UserSearchAll(u"07"_s));
    EXPECT_FALSE(UserSearchAll(u"08"_s));
    EXPECT_TRUE(UserMayEdit(u"05"_s));
    EXPECT_FALSE(UserMayEdit(u"06"_s));
    EXPECT_TRUE(UserMayEdit(u"07"_s));
    EXPECT_FALSE(UserMayEdit(u"08"_s));

    Db().Run(
        u"ALTER TABLE User_List MODIFY bolEdit VARCHAR(1) NULL; UPDATE User_List SET bolEdit=NULL WHERE UserID='06'"_s);
    EXPECT_TRUE(UserMayEdit(u"06"_s)) << "nor is NULL";
}

TEST_F(Lookups, AnAddressIsRequiredForTheFlagOneOnly)
{
    Db().Run(u"INSERT INTO User_List (UserID,bolIP) VALUES ('05','1'),('06','0'),('07','')"_s);
    EXPECT_TRUE(UserMustMatchAddress(u"05"_s));
    OneStatement(u"SELECT bolIP FROM User_List WHERE UserID='05'"_s);
    EXPECT_FALSE(UserMustMatchAddress(u"06"_s));
    EXPECT_FALSE(UserMustMatchAddress(u"07"_s));
    EXPECT_FALSE(UserMustMatchAddress(u"08"_s));
}

TEST_F(Lookups, AMenuRightIsARow)
{
    Db().Run(u"INSERT INTO User_Menu VALUES ('05','menuSale')"_s);
    EXPECT_TRUE(HasMenuRight(u"05"_s, u"menuSale"_s));
    OneStatement(u"SELECT MenuName FROM User_Menu WHERE UserID='05' And MenuName='menuSale'"_s);
    EXPECT_FALSE(HasMenuRight(u"05"_s, u"menuESale"_s));
    EXPECT_FALSE(HasMenuRight(u"06"_s, u"menuSale"_s));
}

TEST_F(Lookups, ReportTitleAndFontAreReadAsTheyStand)
{
    EXPECT_EQ(GetReportTitle(u"RptSaleDetail"_s), u"收银情况明细表"_s);
    OneStatement(u"SELECT RptTitle FROM DFN_RptTitle WHERE RptName='RptSaleDetail'"_s);
    EXPECT_EQ(GetReportTitle(u"RptNone"_s), QString());
    EXPECT_EQ(GetReportFont(u"FontSize"_s), QVariant(9.0));
    TakeStatements();
    Db().Run(u"DELETE FROM DRptFont"_s);
    EXPECT_EQ(GetReportFont(u"FontSize"_s).toString(), QString());
    OneStatement(u"SELECT FontSize FROM DRptFont"_s);
}

TEST_F(Lookups, ALotIsAskedByIdForItsDepositAndByNumberWhileItIsOpen)
{
    Db().Run(u"INSERT INTO PRD_List (ID,PRDNo,bolPack,VerifyID,bolFixed,bolCheckOut) VALUES "
             "('1','A-001','0','77','1','1'),('2','A-001','1','88','0','0'),('3','B-001','','99','1','0')"_s);
    EXPECT_FALSE(LotHasDeposit(u"1"_s));
    OneStatement(u"SELECT bolPack FROM PRD_List WHERE ID='1'"_s);
    EXPECT_TRUE(LotHasDeposit(u"2"_s));
    EXPECT_TRUE(LotHasDeposit(u"3"_s));
    EXPECT_FALSE(LotHasDeposit(u"4"_s));

    TakeStatements();
    EXPECT_TRUE(LotVerifyMatches(u"A-001"_s, u"88"_s));
    OneStatement(u"SELECT PRDNo FROM PRD_List WHERE PRDNo='A-001' And VerifyID='88' And bolCheckOut='0'"_s);
    EXPECT_FALSE(LotVerifyMatches(u"A-001"_s, u"77"_s)) << "the code of a settled lot of the same number";

    TakeStatements();
    EXPECT_FALSE(LotIsFixed(u"A-001"_s)) << "the settled lot of this number was locked";
    OneStatement(u"SELECT bolFixed FROM PRD_List WHERE PRDNo='A-001' And bolCheckOut='0'"_s);
    EXPECT_TRUE(LotIsFixed(u"B-001"_s));
    EXPECT_FALSE(LotIsFixed(u"C-001"_s));

    TakeStatements();
    EXPECT_TRUE(LotMatches(u"A-001"_s, u"2"_s));
    OneStatement(u"SELECT PRDNo FROM PRD_List WHERE PRDNo='A-001' And ID='2'"_s);
    EXPECT_FALSE(LotMatches(u"A-001"_s, u"3"_s));
    EXPECT_FALSE(LotMatches(u"C-001"_s, u"2"_s));
}

TEST_F(Lookups, CodeTablesAreLookedUpByTheirKey)
{
    Db().Run(u"INSERT INTO Store VALUES ('一仓'); INSERT INTO Sales VALUES ('07','张三')"_s);
    EXPECT_TRUE(StoreExists(u"一仓"_s));
    OneStatement(u"SELECT Store FROM Store WHERE Store='一仓'"_s);
    EXPECT_FALSE(StoreExists(u"二仓"_s));
    EXPECT_FALSE(StoreExists(QString()));

    TakeStatements();
    EXPECT_TRUE(SalesExists(u"07"_s));
    OneStatement(u"SELECT SalesID FROM Sales WHERE SalesID='07'"_s);
    EXPECT_FALSE(SalesExists(u"08"_s));
    TakeStatements();
    EXPECT_EQ(GetSalesName(u"07"_s), u"张三"_s);
    OneStatement(u"SELECT SalesName FROM Sales WHERE SalesID='07'"_s);
    EXPECT_EQ(GetSalesName(u"08"_s), QString());
}

TEST_F(Lookups, AnEmptySalesmanExistsWithoutAQuestionToTheServer)
{
    EXPECT_TRUE(SalesExists(QString()));
    EXPECT_EQ(GetSalesName(QString()), QString());
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(Lookups, PaperIsReadPerDocument)
{
    Db().Run(u"UPDATE DFN_Paper SET LeftArea=1.25,TopArea=-0.5,PrintStyle='2' WHERE PaperID='P03'"_s);
    EXPECT_EQ(GetPaperLeft(u"P03"_s), 1.25);
    OneStatement(u"SELECT LeftArea FROM DFN_Paper WHERE PaperID='P03'"_s);
    EXPECT_EQ(GetPaperTop(u"P03"_s), -0.5);
    OneStatement(u"SELECT TopArea FROM DFN_Paper WHERE PaperID='P03'"_s);
    EXPECT_EQ(GetPrintStyle(u"P03"_s), u"2"_s);
    OneStatement(u"SELECT PrintStyle FROM DFN_Paper WHERE PaperID='P03'"_s);
    EXPECT_EQ(GetPaperLeft(u"P09"_s), 0);
    EXPECT_EQ(GetPaperTop(u"P09"_s), 0);
    EXPECT_EQ(GetPrintStyle(u"P09"_s), u"0"_s);
}

TEST_F(Lookups, RoundingIsOffForZeroAndWithoutARow)
{
    EXPECT_FALSE(IsRoundOn(u"C01"_s));
    OneStatement(u"SELECT bolRound FROM DFN_Round WHERE CountID='C01'"_s);
    Db().Run(
        u"UPDATE DFN_Round SET bolRound='1' WHERE CountID='C01'; UPDATE DFN_Round SET bolRound='' WHERE CountID='C02'"_s);
    EXPECT_TRUE(IsRoundOn(u"C01"_s));
    EXPECT_TRUE(IsRoundOn(u"C02"_s));
    EXPECT_FALSE(IsRoundOn(u"C03"_s));
}

TEST_F(Lookups, AFeeIsChargedByWeightWithoutARow)
{
    EXPECT_EQ(GetFeeCountID(u"F01"_s), u"0"_s);
    OneStatement(u"SELECT CountID FROM DFN_CheckFee WHERE FeeID='F01'"_s);
    Db().Run(u"UPDATE DFN_CheckFee SET CountID='1' WHERE FeeID='F02'"_s);
    EXPECT_EQ(GetFeeCountID(u"F02"_s), u"1"_s);
    EXPECT_EQ(GetFeeCountID(u"F03"_s), u"0"_s);
}

TEST_F(Lookups, ASumOverNothingIsZero)
{
    EXPECT_EQ(SumField(u"EStore_List"_s, u"Num"_s, u"ID='x'"_s), 0);
    OneStatement(u"SELECT SUM(Num) FROM EStore_List WHERE ID='x'"_s);
    Db().Run(u"INSERT INTO EStore_List (ID,Num) VALUES ('x',0.1),('x',0.2),('y',-5.125)"_s);
    EXPECT_EQ(SumField(u"EStore_List"_s, u"Num"_s, u"ID='x'"_s), 0.3);
    EXPECT_EQ(SumField(u"EStore_List"_s, u"Num"_s, QString()), -4.825);
    EXPECT_EQ(SumField(u"EStore_List"_s, u"ITM"_s, u"ID='x'"_s), 0);
}

TEST_F(Lookups, AFailureGoesToTheCaller)
{
    EXPECT_THROW(GetUserField(u"UserName"_s, u"'"_s, u"UserID"_s), DatabaseError);
    EXPECT_THROW(SumField(u"Sal_List"_s, u"NoSuchColumn"_s, QString()), DatabaseError);
    EXPECT_THROW(StoreExists(u"a'b"_s), DatabaseError);
}

TEST_F(Lookups, AnErrorIsLoggedWithDateAndTimeOfNow)
{
    LogError(u"管理员"_s, u"溢出"_s, u"保存收银信息"_s);
    OneStatement(u"INSERT INTO ErrInfo (ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime) VALUES "
                 "('管理员','溢出','保存收银信息','2026-03-09','10:00:00')"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 1);
}

TEST_F(Lookups, ADescriptionWithAQuoteIsNotLoggedAndNobodyIsTold)
{
    LogError(u"管理员"_s, u"Unknown column 'x' in 'field list'"_s, u"保存收银信息"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    LogError(u"管理员"_s, u"check the manual for the right syntax to use near '' at line 1"_s,
             u"保存收银信息"_s);
    EXPECT_EQ(Value(u"SELECT ErrDescription FROM ErrInfo"_s),
              u"check the manual for the right syntax to use near ' at line 1"_s)
        << "a doubled quote is legal and stored as one";
}

TEST_F(Lookups, AnErrorAfterALostConnectionIsNotLogged)
{
    FailStatement(1, Refusal::LostLink);
    LogError(u"管理员"_s, u"溢出"_s, u"保存收银信息"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    Gateway().CloseConnection();
    LogError(u"管理员"_s, u"溢出"_s, u"保存收银信息"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}
