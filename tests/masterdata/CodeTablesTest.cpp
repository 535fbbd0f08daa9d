#include "core/session/Session.h"
#include "masterdata/frmSales.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

class SalesmanWindow : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmSales"_s, [](QWidget* owner) { return new frmSales(owner); });
        Open(u"frmSales"_s);
        TakeStatements();
    }
};

} // namespace

TEST_F(SalesmanWindow, ANewKeyIsInsertedAndTheFormStaysOpenForTheNext)
{
    Enter(u"txtSalesID"_s, u"07"_s);
    Enter(u"txtSalesName"_s, u"张三"_s);

    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT SalesName FROM Sales WHERE SalesID='0'"_s,
                                             u"SELECT SalesName FROM Sales WHERE SalesID='07'"_s,
                                             u"INSERT INTO Sales (SalesID,SalesName) VALUES ('07','张三')"_s,
                                             u"SELECT SalesName FROM Sales WHERE SalesID=''"_s}));
    EXPECT_EQ(Value(u"SELECT SalesName FROM Sales WHERE SalesID='07'"_s), u"张三"_s);
    EXPECT_EQ(FocusName(), u"txtSalesID"_s);
    EXPECT_EQ(TextOf(u"frmSales"_s, u"txtSalesID"_s), QString());
    EXPECT_EQ(TextOf(u"frmSales"_s, u"txtSalesName"_s), QString());
}

TEST_F(SalesmanWindow, AKeyThatExistsShowsItsNameAndIsUpdated)
{
    Db().Run(u"INSERT INTO Sales VALUES ('07','张三'),('08','李四')"_s);
    Enter(u"txtSalesID"_s, u"07"_s);
    EXPECT_EQ(TextOf(u"frmSales"_s, u"txtSalesName"_s), u"张三"_s);
    Enter(u"txtSalesName"_s, u"张小三"_s);

    EXPECT_EQ(Value(u"SELECT SalesName FROM Sales WHERE SalesID='07'"_s), u"张小三"_s);
    EXPECT_EQ(Value(u"SELECT SalesName FROM Sales WHERE SalesID='08'"_s), u"李四"_s);
    EXPECT_EQ(Count(u"Sales"_s), 2);
}

TEST_F(SalesmanWindow, EitherFieldEmptyIsRefusedWithTheFocusOnIt)
{
    boxes.Expect(u"请将内容填写完整！"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtSalesID"_s);

    Enter(u"txtSalesID"_s, u"07"_s);
    boxes.Expect(u"请将内容填写完整！"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtSalesName"_s);
    EXPECT_EQ(Count(u"Sales"_s), 0);
}

TEST_F(SalesmanWindow, AFailedInsertIsShownAndLoggedAndTheTypedTextsStay)
{
    Enter(u"txtSalesID"_s, u"07"_s);
    Type(u"张三"_s);
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Press(Qt::Key_Return);

    EXPECT_EQ(Count(u"Sales"_s), 0);
    EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
              (std::vector<QStringList>{
                  {u"管理员"_s, u"演练故障"_s, u"保存业务员信息"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
    EXPECT_EQ(TextOf(u"frmSales"_s, u"txtSalesID"_s), u"07"_s);
    EXPECT_EQ(TextOf(u"frmSales"_s, u"txtSalesName"_s), u"张三"_s);
}

TEST_F(SalesmanWindow, AQuoteInTheKeyShowsTheServersWordsAndTheWindowGoesOn)
{
    boxes.ExpectContaining(u"SQL syntax"_s);
    Type(u"'"_s);
    EXPECT_EQ(TextOf(u"frmSales"_s, u"txtSalesID"_s), u"'"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(SalesmanWindow, TakesTheSlotAndFreesItOnClosing)
{
    EXPECT_FALSE(Session::WindowSlotFree);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(u"frmSales"_s), nullptr);
}
