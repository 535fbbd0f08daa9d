#include "core/gateway/DataGateway.h"
#include "tests/support/MenuCatalogue.h"
#include "tests/support/WindowTest.h"

#include <map>

using namespace Qt::StringLiterals;

namespace {

class Schema : public WindowTest {
protected:
    /// The server's answer to a second row of the same key.
    QString InsertTwice(const QString& table, const QString& columns, const QString& values)
    {
        const QString statement = u"INSERT INTO %1 (%2) VALUES (%3)"_s.arg(table, columns, values);
        EXPECT_EQ(Db().Try(statement), QString()) << table.toStdString();
        return Db().Try(statement);
    }
};

} // namespace

TEST_F(Schema, ATableTakesASecondRowOfOneKeyOnlyWhereNoWindowFindsRowsByIt)
{
    struct Row {
        QString table;
        QString columns;
        QString values;
    };
    const Row unique[] = {
        {u"User_List"_s, u"UserID"_s, u"'x'"_s},
        {u"Menu_List"_s, u"MenuName"_s, u"'x'"_s},
        {u"DFN_Paper"_s, u"PaperID"_s, u"'x'"_s},
        {u"DFN_Round"_s, u"CountID"_s, u"'x'"_s},
        {u"DFN_CheckFee"_s, u"FeeID"_s, u"'x'"_s},
        {u"DFN_CheckOutLabel"_s, u"LabelID"_s, u"'x'"_s},
        {u"DFN_RptTitle"_s, u"RptName"_s, u"'x'"_s},
        {u"DFN_RptCol"_s, u"RptName,ColID"_s, u"'x','01'"_s},
        {u"Count_Bill"_s, u"TID,UID,CurrDate"_s, u"'01','x','2026-03-09'"_s},
        {u"Store"_s, u"Store"_s, u"'x'"_s},
        {u"Sales"_s, u"SalesID"_s, u"'x'"_s},
        {u"PRD_Sort"_s, u"SortID"_s, u"'x'"_s},
        {u"Fee_Type"_s, u"FeeID"_s, u"'x'"_s},
        {u"Cust_List"_s, u"CustName"_s, u"'x'"_s},
        {u"PRD_List"_s, u"ID"_s, u"'x'"_s},
        {u"Sal_List"_s, u"SalNo"_s, u"'x'"_s},
        {u"DFN_Pack"_s, u"PackNo"_s, u"'x'"_s},
        {u"CheckOut"_s, u"CheckNo"_s, u"'x'"_s},
    };
    for (const auto& c : unique)
        EXPECT_TRUE(InsertTwice(c.table, c.columns, c.values).contains(u"Duplicate entry"_s))
            << c.table.toStdString();

    const Row repeated[] = {
        {u"User_Status"_s, u"UserID"_s, u"'x'"_s},
        {u"User_Menu"_s, u"UserID,MenuName"_s, u"'x','y'"_s},
        {u"EStore_List"_s, u"EStoreDate,ITM"_s, u"'2026-03-09',1"_s},
        {u"Sal_List_B"_s, u"SalNo"_s, u"'x'"_s},
        {u"CheckOut_B"_s, u"CheckNo"_s, u"'x'"_s},
        {u"DFN_Pack_B"_s, u"PackNo"_s, u"'x'"_s},
        {u"CustDebit"_s, u"ID,DebitDate"_s, u"'x','2026-03-09'"_s},
        {u"Foregift_RTN"_s, u"SalNo"_s, u"'x'"_s},
        {u"Pack_List"_s, u"PackDate,ITM"_s, u"'2026-03-09',1"_s},
        {u"Fee_List"_s, u"FeeNo,ITM"_s, u"'x',1"_s},
        {u"ErrInfo"_s, u"ErrDate"_s, u"'2026-03-09'"_s},
    };
    for (const auto& c : repeated)
        EXPECT_EQ(InsertTwice(c.table, c.columns, c.values), QString()) << c.table.toStdString();
}

TEST_F(Schema, ThereAreTheTablesOfTheSystemAndNoOther)
{
    QStringList tables;
    for (const QStringList& row : Db().Rows(u"SHOW TABLES"_s))
        tables << row[0];
    tables.sort();
    QStringList expected{u"User_List"_s,    u"User_Menu"_s,    u"Menu_List"_s,         u"User_Status"_s,
                         u"ErrInfo"_s,      u"Sys_Define"_s,   u"DFN_Paper"_s,         u"DFN_Round"_s,
                         u"DFN_CheckFee"_s, u"DFN_SaleType"_s, u"DFN_CheckOutLabel"_s, u"DFN_RptTitle"_s,
                         u"DFN_RptCol"_s,   u"DRptFont"_s,     u"Count_Bill"_s,        u"Store"_s,
                         u"Sales"_s,        u"PRD_Sort"_s,     u"Fee_Type"_s,          u"Cust_List"_s,
                         u"PRD_List"_s,     u"EStore_List"_s,  u"Sal_List"_s,          u"Sal_List_B"_s,
                         u"Foregift_RTN"_s, u"DFN_Pack"_s,     u"DFN_Pack_B"_s,        u"Pack_List"_s,
                         u"CheckOut"_s,     u"CheckOut_B"_s,   u"CustDebit"_s,         u"Fee_List"_s};
    expected.sort();
    EXPECT_EQ(tables, expected);
}

TEST_F(Schema, NoColumnIsEverNullAndEachHasADefault)
{
    EXPECT_EQ(
        Value(
            u"SELECT GROUP_CONCAT(CONCAT(TABLE_NAME,'.',COLUMN_NAME)) FROM information_schema.COLUMNS WHERE "
            "TABLE_SCHEMA=DATABASE() AND (IS_NULLABLE='YES' OR COLUMN_DEFAULT IS NULL)"_s),
        u"<NULL>"_s);
}

TEST_F(Schema, AllTextComparesWithoutCaseAndTrailingBlanks)
{
    EXPECT_EQ(
        Value(
            u"SELECT GROUP_CONCAT(CONCAT(TABLE_NAME,'.',COLUMN_NAME)) FROM information_schema.COLUMNS WHERE "
            "TABLE_SCHEMA=DATABASE() AND COLLATION_NAME IS NOT NULL AND COLLATION_NAME<>'utf8mb4_general_ci'"_s),
        u"<NULL>"_s);
    EXPECT_EQ(
        Value(
            u"SELECT DEFAULT_COLLATION_NAME FROM information_schema.SCHEMATA WHERE SCHEMA_NAME=DATABASE()"_s),
        u"utf8mb4_general_ci"_s);
}

TEST_F(Schema, ColumnsThatInsertsLeaveOutHaveTheirDefaults)
{
    Db().Run(u"INSERT INTO PRD_List (ID) VALUES ('1'); INSERT INTO Sal_List (SalNo) VALUES ('1');"
             "INSERT INTO Sal_List_B (SalNo) VALUES ('1'); INSERT INTO CustDebit (ID) VALUES ('1');"
             "INSERT INTO Pack_List (ITM) VALUES (1); INSERT INTO PRD_Sort (SortID) VALUES ('1');"
             "INSERT INTO DFN_Pack (PackNo) VALUES ('1'); INSERT INTO Count_Bill (TID,CurrDate,CurrNumber) "
             "VALUES ('C01','2026-03-09',1)"_s);
    const struct {
        QString select;
        QStringList values;
    } cases[] = {
        {u"bolCheckOut,CheckNo,EReceiver,EDate,ETime,CardNO,bolFixed FROM PRD_List"_s,
         {u"0"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u"0"_s}},
        {u"bolCheckOut,bForegiftRTN,bolReturn,CheckNo,CheckDate,ReturnDate,EReceiver,EDate,ETime,ITM FROM Sal_List"_s,
         {u"0"_s, u"0"_s, u"0"_s, u""_s, u""_s, u""_s, u""_s, u""_s, u""_s, u"0"_s}},
        {u"bolCheckOut,bForegiftRTN,bolReturn,CheckNo,CheckDate,ReturnDate FROM Sal_List_B"_s,
         {u"0"_s, u"0"_s, u"0"_s, u""_s, u""_s, u""_s}},
        {u"DebitAmount+0,DebitPrice+0,Memo,bolCheckOut,CheckNo,CheckDate FROM CustDebit"_s,
         {u"0.000000"_s, u"0.000000"_s, u""_s, u"0"_s, u""_s, u""_s}},
        {u"bolCheck,CheckDate FROM Pack_List"_s, {u"0"_s, u""_s}},
        {u"CurrNumber FROM PRD_Sort"_s, {u"0"_s}},
        {u"Num_PUR,Num_Pack,Num_Back,Num_LST,Num_RTN,Num_Loan FROM DFN_Pack"_s,
         QStringList(6, u"0.000000"_s)},
        {u"UID FROM Count_Bill"_s, {u""_s}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Db().Rows(u"SELECT "_s + c.select), std::vector<QStringList>{c.values})
            << c.select.toStdString();
}

TEST_F(Schema, HistoryTablesHaveTheColumnsOfTheirOriginals)
{
    const auto columns = [this](const QString& table) {
        QStringList names;
        for (const QStringList& row : Db().Rows(u"SHOW COLUMNS FROM "_s + table))
            names << row[0] + u' ' + row[1];
        return names;
    };
    EXPECT_EQ(columns(u"Sal_List_B"_s), columns(u"Sal_List"_s));
    EXPECT_EQ(columns(u"CheckOut_B"_s), columns(u"CheckOut"_s));
    QStringList pack = columns(u"DFN_Pack"_s);
    pack << u"CheckDate varchar(10)"_s << u"CheckITM int(11)"_s;
    EXPECT_EQ(columns(u"DFN_Pack_B"_s), pack);
    for (const QString& name : {u"EReceiver"_s, u"EDate"_s, u"ETime"_s})
        EXPECT_EQ(columns(u"Sal_List"_s).filter(name).size(), 1);
}

TEST_F(Schema, SettlementsAreInsertedInTheOrderOfTheirColumns)
{
    QStringList names;
    for (const QStringList& row : Db().Rows(u"SHOW COLUMNS FROM CheckOut"_s))
        names << row[0];
    EXPECT_EQ(
        names.join(u','),
        u"ID,CheckNo,CheckDate,PRDNo,PRDName,Num,Suttle,Amount,ListNum,CustName,Store,LManagePrice,"
        u"LPackPrice,"
        "LUnloadPrice,LExpendPrice,LSanitationPrice,LElectPrice,LRecoupPrice,LChillPrice,LFieldPrice,"
        "LOtherPrice,"
        "LTotalPrice,GTotalPrice,CheckUser,PayUser,Receiver,Per_LManage,Per_LElect,Per_LUnload,Per_LSani"_s);
}

TEST_F(Schema, NumbersAreExactAndNotRoundedOnStorage)
{
    Db().Run(u"INSERT INTO PRD_List (ID,Num,Num_Sal) VALUES ('1',10.125,0.3)"_s);
    for (int i = 0; i < 3; ++i)
        Gateway().UpdateRows(u"PRD_List"_s, u"Num_Sal=Num_Sal-0.1"_s, u"ID='1'"_s);
    const RecordSet lot = Gateway().SelectRows(u"PRD_List"_s, u"Num,Num_Sal"_s, u"Num_Sal=0"_s);
    ASSERT_FALSE(lot.Eof()) << "three tenths off 0.3 leave exactly nothing";
    EXPECT_EQ(lot.Text(0), u"10.125"_s);
}

TEST_F(Schema, TextsThatLookLikeNumbersStayTexts)
{
    const std::map<QString, QString> types{
        {u"CheckOut.Per_LManage"_s, u"varchar"_s},
        {u"CheckOut_B.Per_LSani"_s, u"varchar"_s},
        {u"CheckOut.CheckDate"_s, u"varchar"_s},
        {u"Sal_List.SaleTime"_s, u"varchar"_s},
        {u"EStore_List.EStoreType"_s, u"varchar"_s},
        {u"Pack_List.PackType"_s, u"varchar"_s},
        {u"DFN_RptCol.ColWidth"_s, u"varchar"_s},
        {u"DFN_RptCol.ColOrder"_s, u"int"_s},
        {u"DFN_RptCol.TempOrder"_s, u"int"_s},
        {u"Sal_List.SaleType"_s, u"int"_s},
        {u"Sal_List.ITM"_s, u"int"_s},
        {u"Sys_Define.Orientation"_s, u"int"_s},
        {u"Sal_List.Num"_s, u"decimal"_s},
        {u"Cust_List.CreditMoney"_s, u"decimal"_s},
    };
    for (const auto& [column, type] : types)
        EXPECT_EQ(Value(u"SELECT DATA_TYPE FROM information_schema.COLUMNS WHERE TABLE_SCHEMA=DATABASE() AND "
                        "CONCAT(TABLE_NAME,'.',COLUMN_NAME)='%1'"_s.arg(column)),
                  type)
            << column.toStdString();
    Db().Run(u"INSERT INTO CheckOut (CheckNo,Per_LManage) VALUES ('1','')"_s);
    EXPECT_EQ(Value(u"SELECT Per_LManage FROM CheckOut"_s), QString()) << "a rate not used is empty, not 0";
}

TEST_F(Schema, ALotNumberIsUsedAgainOverTheYearsAndTheOpenLotIsFound)
{
    Db().Run(
        u"INSERT INTO PRD_List (ID,PRDNo,bolCheckOut) VALUES ('1','A-001','1'),('2','A-001','1'),('3','A-001','0')"_s);
    EXPECT_EQ(Count(u"PRD_List"_s, u"PRDNo='A-001'"_s), 3);
    const RecordSet open =
        Gateway().SelectRows(u"PRD_List"_s, u"ID"_s, u"PRDNo='A-001' And bolCheckOut='0'"_s);
    EXPECT_EQ(open.RecordCount(), 1);
    EXPECT_EQ(open.Text(0), u"3"_s);
}

TEST_F(Schema, CalendarDayAndBusinessDayOfATicketAreTwoColumns)
{
    Db().Run(u"INSERT INTO Sal_List (SalNo,SaleDate,FSaleDate) VALUES ('1','2026-03-09','2026-03-10')"_s);
    EXPECT_EQ(Count(u"Sal_List"_s, u"SaleDate='2026-03-09' And FSaleDate='2026-03-10'"_s), 1);
    EXPECT_EQ(Count(u"Sal_List"_s, u"SaleDate=FSaleDate"_s), 0);
}

TEST_F(Schema, ANewDatabaseHoldsTheRowsTheSystemNeeds)
{
    const auto entries = static_cast<int>(MenuCatalogue().size());
    const std::map<QString, int> rows{
        {u"Sys_Define"_s, 1},      {u"DFN_Paper"_s, 6},    {u"DFN_Round"_s, 2},
        {u"DFN_CheckFee"_s, 2},    {u"DFN_SaleType"_s, 2}, {u"DFN_CheckOutLabel"_s, 9},
        {u"DFN_RptTitle"_s, 19},   {u"DFN_RptCol"_s, 258}, {u"DRptFont"_s, 1},
        {u"Menu_List"_s, entries}, {u"User_List"_s, 1},    {u"User_Menu"_s, entries},
        {u"Count_Bill"_s, 0},      {u"Store"_s, 0},        {u"Sales"_s, 0},
        {u"PRD_Sort"_s, 0},        {u"Fee_Type"_s, 0},     {u"Cust_List"_s, 0},
        {u"DFN_Pack"_s, 0},        {u"Sal_List"_s, 0},     {u"ErrInfo"_s, 0}};
    for (const auto& [table, count] : rows)
        EXPECT_EQ(Count(table), count) << table.toStdString();

    EXPECT_EQ(Db().Rows(u"SELECT CompName,DepartName,PrintType,Orientation,bolVerify,Deadline,Control_Sale,"
                        "CheckOutStyle,PRD_Order,bolShowEStore FROM Sys_Define"_s),
              (std::vector<QStringList>{{u""_s, u""_s, u"0"_s, u"2"_s, u"0"_s, u"00:00:00"_s, u"0"_s, u"0"_s,
                                         u" Order By ID Desc"_s, u"0"_s}}));
    EXPECT_EQ(Db().Rows(u"SELECT TypeID,TypeName FROM DFN_SaleType ORDER BY TypeID"_s),
              (std::vector<QStringList>{{u"0"_s, u"现金"_s}, {u"1"_s, u"赊销"_s}}));
    EXPECT_EQ(
        Value(
            u"SELECT GROUP_CONCAT(CONCAT(PaperID,PrintStyle,LeftArea+0,TopArea+0) ORDER BY PaperID) FROM DFN_Paper"_s),
        u"P0100.0000000.000000,P0200.0000000.000000,P0300.0000000.000000,P0400.0000000.000000,"
        "P0500.0000000.000000,P0620.0000000.000000"_s);
    EXPECT_EQ(
        Value(u"SELECT GROUP_CONCAT(CONCAT(LabelID,Caption) ORDER BY LabelID) FROM DFN_CheckOutLabel"_s),
        u"L0管理费,L1服务费,L2包装使用费,L3装卸费,L5卫生费,L6代扣税,L7冷藏费,L8邮电费,L9其  他"_s);
    EXPECT_EQ(Value(u"SELECT GROUP_CONCAT(CONCAT(CountID,bolRound) ORDER BY CountID) FROM DFN_Round"_s),
              u"C010,C020"_s);
    EXPECT_EQ(Value(u"SELECT GROUP_CONCAT(CONCAT(FeeID,CountID) ORDER BY FeeID) FROM DFN_CheckFee"_s),
              u"F010,F020"_s);
    EXPECT_EQ(Count(u"Menu_List"_s, u"MenuName IN ('menuHelp','menuAbout')"_s), 0);
    QStringList catalogue;
    for (const QStringList& row : Db().Rows(u"SELECT MenuName,MenuText FROM Menu_List ORDER BY MenuID"_s))
        catalogue << row.join(u' ');
    EXPECT_EQ(catalogue, MenuCatalogue());
    EXPECT_EQ(Count(u"(SELECT DISTINCT MenuText FROM Menu_List) captions"_s), entries);
    EXPECT_EQ(Count(u"User_Menu"_s, u"UserID='01' And MenuName IN (SELECT MenuName FROM Menu_List)"_s),
              entries);
}

TEST_F(Schema, ReportColumnsAllShowInTheOrderOfTheirFigures)
{
    EXPECT_EQ(Count(u"DFN_RptCol"_s,
                    u"ColStatus<>'1' OR TempStatus<>'1' OR ColOrder<>ColID+0 OR TempOrder<>ColOrder"_s),
              0);
    EXPECT_EQ(Count(u"DFN_RptCol"_s, u"ColWidth MOD 15<>0 OR ColAlign NOT IN ('0','1','2')"_s), 0);
    EXPECT_EQ(Value(u"SELECT COUNT(DISTINCT RptName) FROM DFN_RptCol"_s), u"26"_s);
    EXPECT_EQ(Value(u"SELECT MAX(w) FROM (SELECT SUM(ColWidth) w FROM DFN_RptCol GROUP BY RptName) t"_s),
              u"15930"_s);
}

TEST_F(Schema, FeeLabelsNameTheColumnsOfTheSettlementReports)
{
    for (const auto& [report, offset] :
         std::map<QString, int>{{u"RptCheckOutDetail"_s, 6}, {u"RptCheckOutDescribe"_s, 3}}) {
        EXPECT_EQ(Value(u"SELECT COUNT(*) FROM DFN_CheckOutLabel l JOIN DFN_RptCol c ON c.RptName='%1' AND "
                        "c.ColID=LPAD(SUBSTR(l.LabelID,2)+%2,2,'0') AND c.ColName=l.Caption"_s.arg(report)
                            .arg(offset)),
                  u"9"_s)
            << report.toStdString();
    }
}
