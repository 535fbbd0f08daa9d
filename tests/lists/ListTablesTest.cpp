#include "lists/ListTables.h"
#include "core/forms/MenuTable.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

class ListTables : public WindowTest {};

} // namespace

TEST_F(ListTables, EveryMenuEntryThatOpensAListHasOne)
{
    int lists = 0;
    for (const TopMenu& top : MenuBar()) {
        for (const MenuEntry& entry : top.entries) {
            EXPECT_EQ(ListOf(entry.key) != nullptr, entry.window == u"frmDataList")
                << entry.key.toStdString();
            lists += entry.window == u"frmDataList" ? 1 : 0;
        }
    }
    EXPECT_EQ(lists, 7);
    EXPECT_EQ(ListOf(QString()), nullptr);
}

TEST_F(ListTables, DeletingACrateTypeLeavesItsClosedLedgerRows)
{
    Db().Run(u"INSERT INTO DFN_Pack (PackNo,PackName) VALUES ('05','塑料筐'),('06','木箱');"
             "INSERT INTO Pack_List (PackNo,bolCheck) VALUES ('05','0'),('05','1'),('06','0')"_s);
    const ListTable* list = ListOf(u"PackSort"_s);
    EXPECT_EQ(list->deleteQuestion, u"所有箱筐变更记录也将被一同删除，确定要删除吗？"_s);
    TakeStatements();
    DeleteRecord(*list, u"05"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"DELETE FROM Pack_List WHERE PackNo='05' And bolCheck='0'"_s,
                                             u"DELETE FROM DFN_Pack WHERE PackNo='05'"_s}));
    EXPECT_EQ(Count(u"DFN_Pack"_s), 1);
    EXPECT_EQ(Count(u"Pack_List"_s, u"PackNo='05' AND bolCheck='1'"_s), 1);
    EXPECT_EQ(Count(u"Pack_List"_s), 2);
}

TEST_F(ListTables, AKeyGoesIntoTheStatementsAsItIs)
{
    DeleteRecord(*ListOf(u"Sales"_s), u"%1 %2"_s);
    EXPECT_EQ(TakeStatements(), QStringList{u"DELETE FROM Sales WHERE SalesID='%1 %2'"_s});
}
