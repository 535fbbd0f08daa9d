#include "core/session/Session.h"
#include "masterdata/frmFeeType.h"
#include "masterdata/frmPRDSort.h"
#include "masterdata/frmSales.h"
#include "tests/masterdata/OpenList.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

/// One of the windows that share the pattern, with what differs between them.
struct CodeTable {
    QString form;
    QString caption;
    QString keyField;
    QString nameField;
    QString table;
    QString keyColumn;
    QString nameColumn;
    QString keyMissing;
    QString nameMissing;
    QString errorLabel;
};

void PrintTo(const CodeTable& table, std::ostream* out)
{
    *out << table.form.toStdString();
}

const QString Incomplete = u"请将内容填写完整！"_s;
const CodeTable Salesmen{u"frmSales"_s, u"业务员信息"_s,    u"txtSalesID"_s, u"txtSalesName"_s,
                         u"Sales"_s,    u"SalesID"_s,       u"SalesName"_s,  Incomplete,
                         Incomplete,    u"保存业务员信息"_s};
const CodeTable Sorts{
    u"frmPRDSort"_s, u"产品分类"_s, u"txtSortID"_s,    u"txtSortName"_s,  u"PRD_Sort"_s,
    u"SortID"_s,     u"SortName"_s, u"请填写编号！"_s, u"请填写名称！"_s, u"新增或修改商品信息"_s};
const CodeTable FeeTypes{u"frmFeeType"_s, u"费用类别"_s, u"txtFeeID"_s, u"txtFeeName"_s, u"Fee_Type"_s,
                         u"FeeID"_s,      u"FeeName"_s,  Incomplete,    Incomplete,      u"保存费用类别"_s};

class CodeTableTest : public WindowTest {
protected:
    virtual const CodeTable& Of() const = 0;

    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmSales"_s, [](QWidget* owner) { return new frmSales(owner); });
        Windows().Register(u"frmPRDSort"_s, [](QWidget* owner) { return new frmPRDSort(owner); });
        Windows().Register(u"frmFeeType"_s, [](QWidget* owner) { return new frmFeeType(owner); });
        Open(Of().form);
        TakeStatements();
    }

    void AddRow(const QString& key, const QString& name)
    {
        Db().Run(u"INSERT INTO %1 (%2,%3) VALUES ('%4','%5')"_s.arg(Of().table, Of().keyColumn,
                                                                    Of().nameColumn, key, name));
    }

    QString LookUpOf(const QString& key) const
    {
        return u"SELECT %1 FROM %2 WHERE %3='%4'"_s.arg(Of().nameColumn, Of().table, Of().keyColumn, key);
    }
    QString InsertOf(const QString& key, const QString& name) const
    {
        return u"INSERT INTO %1 (%2,%3) VALUES ('%4','%5')"_s.arg(Of().table, Of().keyColumn, Of().nameColumn,
                                                                  key, name);
    }
    QString UpdateOf(const QString& key, const QString& name) const
    {
        return u"UPDATE %1 SET %2='%3' WHERE %4='%5'"_s.arg(Of().table, Of().nameColumn, name, Of().keyColumn,
                                                            key);
    }

    QString NameOf(const QString& key) { return Value(LookUpOf(key)); }
    int Rows() { return Count(Of().table); }
    QString KeyText() { return TextOf(Of().form, Of().keyField); }
    QString NameText() { return TextOf(Of().form, Of().nameField); }

    void ExpectLogged(const QString& description)
    {
        EXPECT_EQ(Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource,ErrDate,ErrTime FROM ErrInfo"_s),
                  (std::vector<QStringList>{
                      {u"管理员"_s, description, Of().errorLabel, u"2026-03-09"_s, u"10:00:00"_s}}));
    }
};

class CodeTableWindow : public CodeTableTest, public ::testing::WithParamInterface<CodeTable> {
protected:
    const CodeTable& Of() const override { return GetParam(); }
};

INSTANTIATE_TEST_SUITE_P(EachWindow, CodeTableWindow, ::testing::Values(Salesmen, Sorts, FeeTypes),
                         [](const auto& table) { return table.param.form.toStdString(); });

} // namespace

TEST_P(CodeTableWindow, ANewKeyIsInsertedAndTheFormStaysOpenForTheNext)
{
    Enter(Of().keyField, u"07"_s);
    Enter(Of().nameField, u" 张三 "_s);

    EXPECT_EQ(TakeStatements(), (QStringList{LookUpOf(u"0"_s), LookUpOf(u"07"_s),
                                             InsertOf(u"07"_s, u"张三"_s), LookUpOf(QString())}));
    EXPECT_EQ(NameOf(u"07"_s), u"张三"_s);
    EXPECT_EQ(Rows(), 1);
    EXPECT_EQ(FocusName(), Of().keyField);
    EXPECT_EQ(KeyText(), QString());
    EXPECT_EQ(NameText(), QString());
    EXPECT_NE(Windows().Find(Of().form), nullptr);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_P(CodeTableWindow, AKeyThatExistsShowsItsNameAndSavingUpdatesItAlone)
{
    AddRow(u"07"_s, u"张三"_s);
    AddRow(u"08"_s, u"李四"_s);
    Enter(Of().keyField, u"07"_s);
    EXPECT_EQ(NameText(), u"张三"_s);
    TakeStatements();
    Enter(Of().nameField, u"张小三"_s);

    EXPECT_EQ(TakeStatements(), (QStringList{UpdateOf(u"07"_s, u"张小三"_s), LookUpOf(QString())}));
    EXPECT_EQ(NameOf(u"07"_s), u"张小三"_s);
    EXPECT_EQ(NameOf(u"08"_s), u"李四"_s);
    EXPECT_EQ(Rows(), 2);
}

TEST_P(CodeTableWindow, TheKeyIsFoundWithoutRegardToCaseAndBlanksAround)
{
    AddRow(u"a7"_s, u"张三"_s);
    Type(u" A7 "_s);
    EXPECT_EQ(NameText(), u"张三"_s);
    Press(Qt::Key_Return);
    Enter(Of().nameField, u"李四"_s);
    EXPECT_EQ(NameOf(u"a7"_s), u"李四"_s);
    EXPECT_EQ(Rows(), 1);
}

TEST_P(CodeTableWindow, AKeyTypedOnPastAnExistingOneClearsTheNameAndInserts)
{
    AddRow(u"0"_s, u"张三"_s);
    Type(u"0"_s);
    EXPECT_EQ(NameText(), u"张三"_s);
    Type(u"7"_s);
    EXPECT_EQ(NameText(), QString());
    Press(Qt::Key_Return);
    Enter(Of().nameField, u"李四"_s);
    EXPECT_EQ(NameOf(u"0"_s), u"张三"_s);
    EXPECT_EQ(NameOf(u"07"_s), u"李四"_s);
}

TEST_P(CodeTableWindow, AnEmptiedKeyIsLookedUpTooAndClearsTheName)
{
    AddRow(u"7"_s, u"张三"_s);
    Type(u"7"_s);
    TakeStatements();
    Press(Qt::Key_Backspace);
    EXPECT_EQ(TakeStatements(), QStringList{LookUpOf(QString())});
    EXPECT_EQ(NameText(), QString());
}

TEST_P(CodeTableWindow, OpenedForEditingItShowsTheRow)
{
    AddRow(u"07"_s, u"张三"_s);
    Windows().Find(Of().form)->SetKey(u"07"_s);
    EXPECT_EQ(TakeStatements(), QStringList{LookUpOf(u"07"_s)});
    EXPECT_EQ(KeyText(), u"07"_s);
    EXPECT_EQ(NameText(), u"张三"_s);
}

TEST_P(CodeTableWindow, AnEmptyFieldIsRefusedWithTheFocusOnIt)
{
    boxes.Expect(Of().keyMissing);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), Of().keyField);

    Enter(Of().keyField, u"07"_s);
    boxes.Expect(Of().nameMissing);
    Enter(Of().nameField, u"  "_s); // blanks are no name
    EXPECT_EQ(FocusName(), Of().nameField);

    Type(u"张三"_s);
    Press(Qt::Key_Up);
    boxes.Expect(Of().keyMissing);
    Type(u"  "_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(FocusName(), Of().keyField);
    EXPECT_EQ(Rows(), 0);
}

TEST_P(CodeTableWindow, EnterAndDownGoOnAndUpGoesBack)
{
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), Of().nameField);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), Of().keyField);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), Of().nameField);
    Press(Qt::Key_Down); // Down saves nothing
    EXPECT_EQ(FocusName(), Of().nameField);
    EXPECT_EQ(Rows(), 0);
}

TEST_P(CodeTableWindow, ASaveRebuildsTheOpenListOnce)
{
    const OpenList* list = OpenList::Open();
    Enter(Of().keyField, u"07"_s);
    TakeStatements();
    Enter(Of().nameField, u"张三"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{InsertOf(u"07"_s, u"张三"_s), LookUpOf(QString()),
                                             u"SELECT PRD_Order FROM Sys_Define"_s}));
    EXPECT_EQ(list->refreshes, 1);
}

TEST_P(CodeTableWindow, AFailedInsertIsShownAndLoggedAndTheTypedTextsStay)
{
    Enter(Of().keyField, u"07"_s);
    Type(u"张三"_s);
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Press(Qt::Key_Return);

    EXPECT_EQ(Rows(), 0);
    ExpectLogged(u"演练故障"_s);
    EXPECT_EQ(KeyText(), u"07"_s);
    EXPECT_EQ(NameText(), u"张三"_s);

    Press(Qt::Key_Return); // nothing is lost: the next press saves it
    EXPECT_EQ(NameOf(u"07"_s), u"张三"_s);
}

TEST_P(CodeTableWindow, AFailedUpdateLeavesTheOldName)
{
    AddRow(u"07"_s, u"张三"_s);
    Enter(Of().keyField, u"07"_s);
    Type(u"李四"_s);
    FailStatement(1, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Press(Qt::Key_Return);

    EXPECT_EQ(NameOf(u"07"_s), u"张三"_s);
    ExpectLogged(u"演练故障"_s);
    EXPECT_EQ(NameText(), u"李四"_s);
}

TEST_P(CodeTableWindow, AFailureBehindTheInsertLeavesTheRowStanding)
{
    OpenList::Open();
    Enter(Of().keyField, u"07"_s);
    Type(u"张三"_s);
    FailStatement(2, Refusal::MissingTable); // the look-up of the key that is being cleared
    boxes.ExpectContaining(u"doesn't exist"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(NameOf(u"07"_s), u"张三"_s);
    EXPECT_EQ(KeyText(), QString());
    EXPECT_EQ(NameText(), QString());
    EXPECT_EQ(Count(u"ErrInfo"_s), 0); // the server's words carry quotes

    Find(Of().form, Of().keyField)->setFocus();
    Enter(Of().keyField, u"08"_s);
    Type(u"李四"_s);
    FailStatement(3, Refusal::MissingTable); // the rebuild of the list
    boxes.ExpectContaining(u"doesn't exist"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(NameOf(u"08"_s), u"李四"_s);
    EXPECT_EQ(KeyText(), QString());
    EXPECT_EQ(NameText(), QString());
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_P(CodeTableWindow, ALostConnectionSavesNothingAndLosesNothingTyped)
{
    Enter(Of().keyField, u"07"_s);
    Type(u"张三"_s);
    FailStatement(1, Refusal::LostLink);
    boxes.ExpectContaining(u"erver"_s); // "Server has gone away", "Lost connection to server"
    Press(Qt::Key_Return);
    EXPECT_EQ(Rows(), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(KeyText(), u"07"_s);
    EXPECT_EQ(NameText(), u"张三"_s);
}

TEST_P(CodeTableWindow, AfterAFailedLookUpTheSaveInsertsInsteadOfUpdatingNothing)
{
    AddRow(u"0"_s, u"张三"_s);
    Type(u"0"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Type(u"7"_s);
    EXPECT_EQ(NameText(), QString()) << "the name of the key before";
    Press(Qt::Key_Return);
    Enter(Of().nameField, u"李四"_s);
    EXPECT_EQ(NameOf(u"07"_s), u"李四"_s);
    EXPECT_EQ(NameOf(u"0"_s), u"张三"_s);
}

TEST_P(CodeTableWindow, AKeyTakenByAnotherDeskMeanwhileIsRefusedByTheServer)
{
    Enter(Of().keyField, u"07"_s);
    AddRow(u"07"_s, u"别人"_s);
    boxes.ExpectContaining(u"Duplicate entry '07'"_s);
    Enter(Of().nameField, u"张三"_s);
    EXPECT_EQ(NameOf(u"07"_s), u"别人"_s);
    EXPECT_EQ(Rows(), 1);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_P(CodeTableWindow, AQuoteInTheKeyShowsTheServersWordsAndTheWindowGoesOn)
{
    boxes.ExpectContaining(u"SQL syntax"_s);
    Type(u"'"_s);
    EXPECT_EQ(KeyText(), u"'"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);

    Press(Qt::Key_Backspace);
    Enter(Of().keyField, u"07"_s);
    Enter(Of().nameField, u"张三"_s);
    EXPECT_EQ(NameOf(u"07"_s), u"张三"_s);
}

TEST_P(CodeTableWindow, AQuoteInTheNameBreaksTheSaveAndStaysOnTheScreen)
{
    Enter(Of().keyField, u"07"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Enter(Of().nameField, u"O'Neil"_s);
    EXPECT_EQ(Rows(), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(NameText(), u"O'Neil"_s);
}

TEST_P(CodeTableWindow, ABackslashInTheNameIsEatenAndATrailingOneBreaksTheSave)
{
    Enter(Of().keyField, u"07"_s);
    Enter(Of().nameField, u"A\\B"_s);
    EXPECT_EQ(NameOf(u"07"_s), u"AB"_s);

    Enter(Of().keyField, u"08"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Enter(Of().nameField, u"A\\"_s);
    EXPECT_EQ(Rows(), 1);
}

TEST_P(CodeTableWindow, NoMoreIsTakenThanTheColumnsHold)
{
    auto* key = Find(Of().form, Of().keyField);
    key->setFocus();
    Type(QString(40, u'8'));
    EXPECT_EQ(KeyText(), QString(30, u'8'));
    Press(Qt::Key_Return);
    Enter(Of().nameField, QString(80, u'张'));
    EXPECT_EQ(NameOf(QString(30, u'8')), QString(60, u'张'));
}

TEST_P(CodeTableWindow, FullWidthDigitsAreAKeyOfTheirOwn)
{
    AddRow(u"12"_s, u"张三"_s);
    Type(u"１２"_s);
    EXPECT_EQ(NameText(), QString());
    Press(Qt::Key_Return);
    Enter(Of().nameField, u"李四"_s);
    EXPECT_EQ(NameOf(u"１２"_s), u"李四"_s);
    EXPECT_EQ(NameOf(u"12"_s), u"张三"_s);
}

TEST_P(CodeTableWindow, TakesTheSlotAndFreesItOnClosing)
{
    EXPECT_EQ(Windows().Find(Of().form)->Widget()->windowTitle(), Of().caption);
    EXPECT_FALSE(Session::WindowSlotFree);
    Type(u"07"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(Of().form), nullptr);
    EXPECT_EQ(Rows(), 0);
}

namespace {

class ProductSortWindow : public CodeTableTest {
protected:
    const CodeTable& Of() const override { return Sorts; }
};

} // namespace

TEST_F(ProductSortWindow, ANewSortStartsItsRunningNumberAtZeroAndARenameKeepsIt)
{
    Enter(u"txtSortID"_s, u"A"_s);
    Enter(u"txtSortName"_s, u"苹果"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM PRD_Sort WHERE SortID='A'"_s), u"0"_s);

    Db().Run(u"UPDATE PRD_Sort SET CurrNumber=17 WHERE SortID='A'"_s);
    Enter(u"txtSortID"_s, u"A"_s);
    Enter(u"txtSortName"_s, u"红富士"_s);
    EXPECT_EQ(Db().Rows(u"SELECT SortID,SortName,CurrNumber FROM PRD_Sort"_s),
              (std::vector<QStringList>{{u"A"_s, u"红富士"_s, u"17"_s}}));
}

TEST_F(ProductSortWindow, ARenameLeavesTheLotsOfTheSortAsTheyAre)
{
    Db().Run(u"INSERT INTO PRD_Sort (SortID,SortName) VALUES ('A','苹果');"
             "INSERT INTO PRD_List (ID,PID,PRDNo,PRDName) VALUES ('20260309001','A','A-001','苹果')"_s);
    Enter(u"txtSortID"_s, u"A"_s);
    Enter(u"txtSortName"_s, u"红富士"_s);
    EXPECT_EQ(Value(u"SELECT PRDName FROM PRD_List"_s), u"苹果"_s);
}
