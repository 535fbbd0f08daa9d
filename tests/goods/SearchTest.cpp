#include "core/forms/Fields.h"
#include "core/forms/ListGrid.h"
#include "core/session/Session.h"
#include "tests/goods/GoodsTest.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace {

class GoodsSearch : public GoodsTest {
protected:
    void SetUp() override
    {
        GoodsTest::SetUp();
        AddLot(u"20260301001"_s, u"A-001"_s, u"CustName='王老板',Store='一号库'"_s);
        AddLot(u"20260302001"_s, u"A-002"_s, u"CustName='李老板',Store='二号库'"_s);
        AddLot(u"20260303001"_s, u"B-001"_s, u"CustName='王老板',Store='二号库'"_s);
        Db().Run(u"UPDATE PRD_List SET PRDName='雪梨' WHERE PID='B'"_s);
        Open(u"frmDataList"_s);
        OpenSearch();
    }
    void OpenSearch()
    {
        Open(u"frmSearchPRD"_s);
        TakeStatements();
    }
    QStringList Numbers()
    {
        QStringList numbers;
        for (const QStringList& row : ListRows())
            numbers << row[0];
        return numbers;
    }
    QComboBox* Combo(const QString& name) { return Find<QComboBox>(u"frmSearchPRD"_s, name); }
    /// The where text of the goods statement that was sent last.
    QString Where()
    {
        const QStringList sent = TakeStatements();
        for (const QString& statement : sent) {
            if (statement.contains(u"FROM PRD_List"_s))
                return statement.section(u" WHERE "_s, 1);
        }
        return QString();
    }
};

} // namespace

TEST_F(GoodsSearch, OpensWithItsChoicesAndNothingChosen)
{
    Windows().Find(u"frmSearchPRD"_s)->Widget()->close();
    Settle();
    Open(u"frmSearchPRD"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT Store FROM Store"_s,
                                             u"SELECT SortName FROM PRD_Sort Order By SortID"_s}));
    EXPECT_EQ(Windows().Find(u"frmSearchPRD"_s)->Widget()->windowTitle(), u"货源查询"_s);
    EXPECT_EQ(Combo(u"cmbStoreList"_s)->count(), 2);
    EXPECT_EQ(Combo(u"cmbStoreList"_s)->currentIndex(), -1);
    EXPECT_EQ(Combo(u"cmbPRDSort"_s)->itemText(0), u"苹果"_s);
    EXPECT_EQ(Combo(u"cmbPRDSort"_s)->itemText(2), u"蜜橘"_s);
    EXPECT_EQ(Combo(u"cmbPRDSort"_s)->currentIndex(), -1);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
}

TEST_F(GoodsSearch, AllFourConditionsStandInTheirOrderAndTheWindowCloses)
{
    Enter(u"txtPRDNo"_s, u"B-001"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    Enter(u"txtCustName"_s, u"王老板"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"cmbPRDSort"_s);
    Press(Qt::Key_Return);

    EXPECT_EQ(Where(), u"bolCheckOut='0' And PRDNo='B-001' And Store='二号库' And CustName='王老板' "
                       "And PRDName='雪梨' Order By ID Desc"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"B-001"_s}));
    EXPECT_EQ(Windows().Find(u"frmSearchPRD"_s), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree) << "although the list is open";
}

TEST_F(GoodsSearch, MatchesAreExact)
{
    Enter(u"txtPRDNo"_s, u"A"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Numbers(), QStringList());
}

TEST_F(GoodsSearch, AnEmptyFormIsTheWayBackToTheWholeList)
{
    Type(u"A-001"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Numbers(), (QStringList{u"A-001"_s}));
    OpenSearch();
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Where(), u"bolCheckOut='0' Order By ID Desc"_s);
    EXPECT_EQ(Numbers().size(), 3);
}

TEST_F(GoodsSearch, DeleteTakesAChoiceBack)
{
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    EXPECT_EQ(Combo(u"cmbStoreList"_s)->currentText(), u"一号库"_s);
    Press(Qt::Key_Delete);
    EXPECT_EQ(Combo(u"cmbStoreList"_s)->currentIndex(), -1);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Numbers().size(), 3);
}

TEST_F(GoodsSearch, AFilterOutlivesASaveButNotTheReopening)
{
    Combo(u"cmbStoreList"_s)->setCurrentIndex(1);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Numbers(), (QStringList{u"B-001"_s, u"A-002"_s}));

    OpenRegistration();
    Enter(u"txtPID"_s, u"A"_s);
    Put(u"txtNum"_s, u"1"_s);
    Put(u"txtStore"_s, u"二号库"_s);
    Put(u"txtCustName"_s, u"张老板"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Numbers(), (QStringList{u"A-005"_s, u"B-001"_s, u"A-002"_s}));

    Windows().Find(u"frmDataList"_s)->Widget()->close();
    Settle();
    Open(u"frmDataList"_s);
    EXPECT_EQ(Numbers().size(), 4);
}

TEST_F(GoodsSearch, AQuoteBreaksTheStatementAndTheWindowStays)
{
    Type(u"A'"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_NE(Windows().Find(u"frmSearchPRD"_s), nullptr);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0) << "the message's own quotes break the row";
    EXPECT_EQ(TextOf(u"frmSearchPRD"_s, u"txtPRDNo"_s), u"A'"_s);

    Press(Qt::Key_Backspace);
    Type(u"-001"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Numbers(), (QStringList{u"A-001"_s}));
}

TEST_F(GoodsSearch, AnErrorWithoutQuotesIsLoggedUnderItsSource)
{
    Db().Run(
        u"CREATE FUNCTION Broken() RETURNS INT BEGIN SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT='演练故障'; "
        "RETURN 1; END;"
        "RENAME TABLE Sys_Define TO Sys_Real;"
        "CREATE VIEW Sys_Define AS SELECT Broken() AS PRD_Order,'0' AS bolShowEStore"_s);
    boxes.Expect(u"演练故障"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
              (std::vector<QStringList>{
                  {u"管理员"_s, u"演练故障"_s, u"查询内容"_s, u"2026-03-09"_s, u"10:00:00"_s}}));
    EXPECT_NE(Windows().Find(u"frmSearchPRD"_s), nullptr);
}

TEST_F(GoodsSearch, ALostConnectionIsShownAndTakesNoRow)
{
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(u"erver"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_NE(Windows().Find(u"frmSearchPRD"_s), nullptr);
}

TEST_F(GoodsSearch, OddTextsAreHarmless)
{
    for (const QString& text : {u"\\\\"_s, u"１２"_s, u"99999999999999999999"_s, u"果"_s.repeated(300)}) {
        for (const QString& field : {u"txtPRDNo"_s, u"txtCustName"_s}) {
            FocusAndSelect(Find(u"frmSearchPRD"_s, field));
            Type(text);
        }
        Press(Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(Numbers(), QStringList());
        OpenSearch();
    }
}

TEST_F(GoodsSearch, WithoutTheListItJustCloses)
{
    Windows().Find(u"frmDataList"_s)->Widget()->close();
    Settle();
    OpenSearch();
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(TakeStatements(), QStringList());
    EXPECT_EQ(Windows().Find(u"frmSearchPRD"_s), nullptr);
    EXPECT_EQ(Windows().Find(u"frmDataList"_s), nullptr);
}
