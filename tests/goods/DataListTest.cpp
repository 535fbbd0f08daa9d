#include "core/forms/FormWindow.h"
#include "core/forms/ListGrid.h"
#include "core/session/Session.h"
#include "tests/goods/GoodsTest.h"

#include <QAction>
#include <QApplication>
#include <QContextMenuEvent>
#include <QFontMetrics>
#include <QHeaderView>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

/// Stands for the edit windows of other folders: keeps the key it was given.
class KeyTaker : public FormWindow {
public:
    explicit KeyTaker(QWidget* owner) : FormWindow(owner, SlotUse::Takes) {}
    void SetKey(const QString& text) override { key = text; }
    QString key;
};

class DataList : public GoodsTest {
protected:
    void AddThreeLots()
    {
        AddLot(u"20260301001"_s, u"C-001"_s,
               u"PRDNo_S='2',CustName='王老板',CustInDate='2026-03-01',Num=100,Num_Sal=70,MPercent=12.5,"
               "bolPack='1',Store='一号库'"_s);
        AddLot(u"20260302001"_s, u"A-002"_s,
               u"PRDNo_S='3',CustName='李老板',CustInDate='2026-03-02',Num=50,Num_Sal=50,bolFixed='1',"
               "Store='二号库'"_s);
        AddLot(u"20260303001"_s, u"B-001"_s,
               u"PRDNo_S='1',CustName='张老板',CustInDate='2026-03-03',Num=10,Num_Sal=-2.5,Store='一号库'"_s);
        AddLot(u"20260201001"_s, u"A-001"_s, u"bolCheckOut='1'"_s);
        Db().Run(u"INSERT INTO EStore_List SET ID='20260301001',EStoreType='0',Num=20;"
                 "INSERT INTO EStore_List SET ID='20260301001',EStoreType='1',Num=5;"
                 "INSERT INTO EStore_List SET ID='20260301001',EStoreType='2',Num=5"_s);
        AddTicket(u"01260301001"_s, u"20260301001"_s, u"30"_s);
        AddTicket(u"01260303001"_s, u"20260303001"_s, u"12.5"_s);
    }
    QStringList Numbers()
    {
        QStringList numbers;
        for (const QStringList& row : ListRows())
            numbers << row[0];
        return numbers;
    }
    QStringList Headers()
    {
        QStringList headers;
        for (int i = 1; i < List()->Content().ColumnCount(); ++i)
            headers << List()->Content().Column(i).heading;
        return headers;
    }
    void OpenList()
    {
        Open(u"frmDataList"_s);
        FocusList();
    }
    void FocusList()
    {
        List()->setFocus();
        Settle();
    }
    QAction* Entry(const QString& name) { return Find<QAction>(u"frmDataList"_s, name); }
    QMenu* Popup() { return Find<QMenu>(u"frmDataList"_s, u"mnuPop"_s); }
    void Choose(const QString& entry)
    {
        Press(Qt::Key_F10, Qt::ShiftModifier);
        ASSERT_TRUE(Popup()->isVisible());
        Popup()->setActiveAction(Entry(entry));
        QTest::keyClick(Popup(), Qt::Key_Return);
        Settle();
        EXPECT_FALSE(Popup()->isVisible());
    }
};

} // namespace

TEST_F(DataList, ShowsTheOpenLotsNewestFirstInTheShortForm)
{
    AddThreeLots();
    OpenList();
    EXPECT_EQ(
        TakeStatements(),
        (QStringList{
            u"SELECT PRD_Order,bolShowEStore FROM Sys_Define"_s,
            u"SELECT PRDNo,PRDNo_S,PRDName,CustName,CustInDate,Num,Num_Sal,MPercent,bolPack,bolFixed,ID "
            "FROM PRD_List WHERE bolCheckOut='0' Order By ID Desc"_s,
            u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260303001' And EStoreType='0'"_s,
            u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260302001' And EStoreType='0'"_s,
            u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260301001' And EStoreType='0'"_s}));
    EXPECT_EQ(Headers(),
              (QStringList{u"编号"_s, u"快捷编号"_s, u"品名"_s, u"姓名"_s, u"到货日期"_s, u"首次到货量"_s,
                           u"总到货量"_s, u"库存"_s, u"折算"_s, u"押包"_s, u"锁定"_s}));
    EXPECT_EQ(ListRows(),
              (std::vector<QStringList>{{u"B-001"_s, u"1"_s, u"苹果"_s, u"张老板"_s, u"2026-03-03"_s, u"10"_s,
                                         u"10"_s, u"-2.5"_s, u"0"_s, QString(), QString()},
                                        {u"A-002"_s, u"3"_s, u"苹果"_s, u"李老板"_s, u"2026-03-02"_s, u"50"_s,
                                         u"50"_s, u"50"_s, u"0"_s, QString(), u"√"_s},
                                        {u"C-001"_s, u"2"_s, u"苹果"_s, u"王老板"_s, u"2026-03-01"_s,
                                         u"100"_s, u"120"_s, u"70"_s, u"12.5"_s, u"√"_s, QString()}}));
}

TEST_F(DataList, TheDetailedFormComputesTheStockFromTheMovements)
{
    AddThreeLots();
    Db().Run(u"UPDATE Sys_Define SET bolShowEStore='1', PRD_Order=' Order By PRDNo'"_s);
    OpenList();
    EXPECT_EQ(Headers(),
              (QStringList{u"编号"_s, u"快捷编号"_s, u"品名"_s, u"姓名"_s, u"到货日期"_s, u"首次到货"_s,
                           u"累计进货"_s, u"总到货量"_s, u"累计转出"_s, u"累计损耗"_s, u"实到货量"_s,
                           u"累计销售"_s, u"库存"_s, u"折算"_s, u"押包"_s, u"锁定"_s}));
    EXPECT_EQ(Numbers(), (QStringList{u"A-002"_s, u"B-001"_s, u"C-001"_s}));
    EXPECT_EQ(ListRows()[2].mid(5), (QStringList{u"100"_s, u"20"_s, u"120"_s, u"5"_s, u"5"_s, u"110"_s,
                                                 u"30"_s, u"80"_s, u"12.5"_s, u"√"_s, QString()}));
    EXPECT_EQ(ListRows()[1][12], u"-2.5"_s) << "negative after an oversale";
    EXPECT_EQ(TakeStatements().mid(2, 4),
              (QStringList{u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260302001' And EStoreType='0'"_s,
                           u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260302001' And EStoreType='1'"_s,
                           u"SELECT SUM(Num) FROM EStore_List WHERE ID='20260302001' And EStoreType='2'"_s,
                           u"SELECT SUM(Num) FROM Sal_List WHERE ID='20260302001'"_s}));
}

TEST_F(DataList, NoColumnClipsItsHeaderOrAUsualValue)
{
    AddThreeLots();
    for (const QString& detailed : {u"0"_s, u"1"_s}) {
        Db().Run(u"UPDATE Sys_Define SET bolShowEStore='%1'"_s.arg(detailed));
        OpenList();
        int total = 0;
        for (int i = 1; i < List()->Content().ColumnCount(); ++i) {
            const int width = List()->header()->sectionSize(i);
            total += width;
            EXPECT_LE(List()->header()->sectionSizeHint(i), width) << qPrintable(Headers()[i - 1]);
            for (int row = 0; row < List()->RowCount(); ++row) {
                EXPECT_LE(List()->fontMetrics().horizontalAdvance(List()->SubItem(row, i)) + 14, width)
                    << qPrintable(Headers()[i - 1]);
            }
        }
        EXPECT_LE(total, 1260);
        Windows().Find(u"frmDataList"_s)->Widget()->close();
        Settle();
    }
}

TEST_F(DataList, ARebuildStaysOnTheRowOfTheUserAndGivesItsKey)
{
    AddThreeLots();
    OpenList();
    Form* list = Windows().Find(u"frmDataList"_s);
    EXPECT_EQ(List()->SelectedKey(), u"B-001"_s) << "a list begins at its first row";
    Press(Qt::Key_Down);
    EXPECT_EQ(List()->SelectedKey(), u"A-002"_s);
    Db().Run(u"UPDATE Sys_Define SET PRD_Order=' Order By PRDNo'"_s);
    list->RefreshList();
    EXPECT_EQ(List()->SelectedKey(), u"A-002"_s) << "the row that was worked on, wherever it stands now";
    EXPECT_EQ(List()->SelectedRow(), 0);
    Db().Run(u"DELETE FROM PRD_List WHERE PRDNo='A-002'"_s);
    list->RefreshList();
    EXPECT_EQ(List()->SelectedKey(), u"B-001"_s) << "its row is gone";
    Db().Run(u"DELETE FROM PRD_List"_s);
    list->RefreshList();
    EXPECT_EQ(List()->SelectedRow(), -1);
}

TEST_F(DataList, WithoutARowOfSettingsTheListOpensNewestFirstInTheShortForm)
{
    AddThreeLots();
    Db().Run(u"DELETE FROM Sys_Define"_s);
    OpenList();
    EXPECT_EQ(Numbers(), (QStringList{u"B-001"_s, u"A-002"_s, u"C-001"_s}));
    EXPECT_EQ(Headers().size(), 11);
    Press(Qt::Key_F10, Qt::ShiftModifier);
    ASSERT_TRUE(Popup()->isVisible());
    EXPECT_TRUE(Entry(u"mnuOrderByDate"_s)->isChecked());
    EXPECT_FALSE(Entry(u"mnuShowEStore"_s)->isChecked());
    Popup()->close();
}

TEST_F(DataList, DoubleClickAndEnterOpenTheLotForCorrection)
{
    AddThreeLots();
    OpenList();
    const QRect second = List()->RowRect(1);
    QTest::mouseClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, second.center());
    Settle();
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-002"_s);
    EXPECT_EQ(Field(u"txtCustName"_s), u"李老板"_s);
    EXPECT_EQ(Field(u"txtPID"_s), u"A"_s);
    Windows().Find(u"frmPRDList"_s)->Widget()->close();
    Settle();
    EXPECT_TRUE(Session::WindowSlotFree) << "the list stays open, yet the slot is free";

    Windows().Find(u"frmDataList"_s)->Widget()->activateWindow();
    FocusList();
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"C-001"_s);
}

TEST_F(DataList, AFailedLookupShowsTheErrorAndTheEditWindowForANewLot)
{
    AddThreeLots();
    OpenList();
    FailStatement(2, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Press(Qt::Key_Return);
    Mend();
    ASSERT_NE(Windows().Find(u"frmPRDList"_s), nullptr);
    EXPECT_TRUE(Windows().Find(u"frmPRDList"_s)->Widget()->isVisible());
    EXPECT_EQ(Field(u"txtCustName"_s), QString());
    EXPECT_FALSE(Find(u"frmPRDList"_s, u"txtPID"_s)->isReadOnly());
}

TEST_F(DataList, AnEmptyNumberOpensNothing)
{
    AddLot(u"20260301001"_s, QString());
    OpenList();
    Press(Qt::Key_Return);
    EXPECT_EQ(Windows().Find(u"frmPRDList"_s), nullptr);
}

TEST_F(DataList, WithoutOpenLotsADoubleClickDoesNothing)
{
    OpenList();
    EXPECT_EQ(List()->RowCount(), 0);
    QTest::mouseDClick(List()->viewport(), Qt::LeftButton, Qt::NoModifier, QPoint(30, 10));
    Press(Qt::Key_Return);
    EXPECT_EQ(Windows().Find(u"frmPRDList"_s), nullptr);
}

TEST_F(DataList, TheRightButtonShowsWhatIsInForce)
{
    AddThreeLots();
    Db().Run(u"UPDATE Sys_Define SET PRD_Order=' Order By PRDNo_S', bolShowEStore='1'"_s);
    OpenList();
    // Another workstation changes the setting: the menu reads it when it comes up.
    Db().Run(u"UPDATE Sys_Define SET PRD_Order=' Order By PRDNo'"_s);
    TakeStatements();
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(40, 20),
                            List()->viewport()->mapToGlobal(QPoint(40, 20)));
    QApplication::sendEvent(List()->viewport(), &click);
    Settle();
    EXPECT_TRUE(Popup()->isVisible());
    EXPECT_EQ(Popup()->title(), u"排序"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT PRD_Order,bolShowEStore FROM Sys_Define"_s}));
    EXPECT_TRUE(Entry(u"mnuOrderByPRDNo"_s)->isChecked());
    EXPECT_FALSE(Entry(u"mnuOrderByPRDNo_S"_s)->isChecked());
    EXPECT_FALSE(Entry(u"mnuOrderByDate"_s)->isChecked());
    EXPECT_TRUE(Entry(u"mnuShowEStore"_s)->isChecked());
    EXPECT_EQ(Entry(u"mnuOrderByPRDNo"_s)->text(), u"按编号排序"_s);
    EXPECT_EQ(Entry(u"mnuOrderByPRDNo_S"_s)->text(), u"按快捷编号排序"_s);
    EXPECT_EQ(Entry(u"mnuOrderByDate"_s)->text(), u"按到货日期排序"_s);
    EXPECT_EQ(Entry(u"mnuShowEStore"_s)->text(), u"显示详细库存"_s);
    Popup()->close();
}

TEST_F(DataList, TheMenuKeyShowsThePopupOnce)
{
    OpenList();
    TakeStatements();
    Press(Qt::Key_Menu);
    EXPECT_TRUE(Popup()->isVisible());
    QContextMenuEvent follower(QContextMenuEvent::Keyboard, QPoint(0, 0), List()->mapToGlobal(QPoint(0, 0)));
    QApplication::sendEvent(List(), &follower);
    EXPECT_EQ(TakeStatements().size(), 1);
    Popup()->close();
}

TEST_F(DataList, TheOrderIsSetForTheWholeSiteAndTheListRebuilt)
{
    AddThreeLots();
    OpenList();
    TakeStatements();
    Choose(u"mnuOrderByPRDNo"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"A-002"_s, u"B-001"_s, u"C-001"_s}));
    EXPECT_EQ(TakeStatements()[1], u"UPDATE Sys_Define SET PRD_Order=' Order By PRDNo'"_s);
    EXPECT_EQ(Value(u"SELECT CONCAT('[',PRD_Order,']') FROM Sys_Define"_s), u"[ Order By PRDNo]"_s);

    Choose(u"mnuOrderByPRDNo_S"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"B-001"_s, u"C-001"_s, u"A-002"_s}));
    EXPECT_EQ(TakeStatements()[1], u"UPDATE Sys_Define SET PRD_Order=' Order By PRDNo_S'"_s);

    Choose(u"mnuOrderByDate"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"B-001"_s, u"A-002"_s, u"C-001"_s}));
    EXPECT_EQ(TakeStatements()[1], u"UPDATE Sys_Define SET PRD_Order=' Order By ID Desc'"_s);
}

TEST_F(DataList, TheDetailSwitchFlipsBothWays)
{
    AddThreeLots();
    OpenList();
    TakeStatements();
    Choose(u"mnuShowEStore"_s);
    EXPECT_EQ(TakeStatements()[1], u"UPDATE Sys_Define SET bolShowEStore='1'"_s);
    EXPECT_EQ(Headers().size(), 16);
    Choose(u"mnuShowEStore"_s);
    EXPECT_EQ(Value(u"SELECT bolShowEStore FROM Sys_Define"_s), u"0"_s);
    EXPECT_EQ(Headers().size(), 11);
}

TEST_F(DataList, AFailedSwitchShowsTheErrorWithoutALogRow)
{
    AddThreeLots();
    OpenList();
    FailStatement(2, Refusal::Signalled);
    boxes.Expect(u"演练故障"_s);
    Choose(u"mnuOrderByPRDNo"_s);
    EXPECT_EQ(Numbers(), (QStringList{u"B-001"_s, u"A-002"_s, u"C-001"_s}));
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(DataList, DraggedColumnsKeepTheirWidthThroughARebuild)
{
    AddThreeLots();
    OpenList();
    List()->header()->resizeSection(3, 222);
    Windows().Find(u"frmDataList"_s)->RefreshList();
    EXPECT_EQ(List()->header()->sectionSize(3), 222);
}

TEST_F(DataList, TakesTheSlotAndFreesItOnClosing)
{
    OpenList();
    EXPECT_FALSE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(u"frmDataList"_s)->Widget()->windowTitle(), u"数据列表"_s);
    Windows().Find(u"frmDataList"_s)->Widget()->close();
    Settle();
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(u"frmDataList"_s), nullptr);
}

TEST_F(DataList, WorksAsASubwindowOfAWorkArea)
{
    AddThreeLots();
    QMdiArea area;
    area.resize(1300, 500);
    area.show();
    area.activateWindow();
    QWidget* list = Windows().Load(u"frmDataList"_s, &area)->Widget();
    QMdiSubWindow* frame = area.addSubWindow(list);
    frame->showMaximized();
    list->show();
    list->setFocus();
    Settle();
    EXPECT_EQ(FocusName(), u"lvDataList"_s);
    EXPECT_GE(List()->width(), area.width() - 40) << "the list fills its window";
    Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    EXPECT_EQ(Field(u"txtPRDNo"_s), u"A-002"_s);
    Windows().Find(u"frmPRDList"_s)->Widget()->close();
    frame->close();
    Settle();
    EXPECT_EQ(Windows().Find(u"frmDataList"_s), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(DataList, AnErrorOnLoadingLeavesItUnloaded)
{
    FailStatement(1, Refusal::MissingTable);
    EXPECT_ANY_THROW(Windows().Show(u"frmDataList"_s, nullptr));
    Mend();
    EXPECT_EQ(Windows().Find(u"frmDataList"_s), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(DataList, FiveHundredLotsStandInTheList)
{
    Db().Run(u"INSERT INTO PRD_List (ID,PRDNo,PRDName,CustName,Num,Num_Sal) "
             "SELECT CONCAT('L',seq),CONCAT('A-',seq),'苹果','王老板',seq,seq FROM seq_1_to_500"_s);
    OpenList();
    EXPECT_EQ(List()->RowCount(), 500);
    EXPECT_EQ(TakeStatements().size(), 502);
    EXPECT_EQ(List()->SelectedKey(), List()->SubItem(0, 1));
}

namespace {

struct CodeList {
    const char* key;
    QString rows; ///< what the table holds
    QString statement;
    QStringList headers;
    std::vector<QStringList> expected;
    const char* window;
    QString rowKey; ///< of the first row
};

void PrintTo(const CodeList& list, std::ostream* out)
{
    *out << list.key;
}

class CodeDataList : public DataList, public ::testing::WithParamInterface<CodeList> {};

} // namespace

TEST_P(CodeDataList, IsOneStatementWithItsColumnsAndOpensItsEditWindow)
{
    const CodeList& list = GetParam();
    Db().Run(list.rows);
    const QString window = QString::fromLatin1(list.window);
    Windows().Register(window, [](QWidget* owner) { return new KeyTaker(owner); });
    Session::CurrentMenuKey = QString::fromLatin1(list.key);
    OpenList();

    EXPECT_EQ(TakeStatements(), (QStringList{list.statement}));
    EXPECT_EQ(Headers(), list.headers);
    EXPECT_EQ(ListRows(), list.expected);
    for (int i = 1; i < List()->Content().ColumnCount(); ++i)
        EXPECT_LE(List()->header()->sectionSizeHint(i), List()->header()->sectionSize(i));

    Press(Qt::Key_F10, Qt::ShiftModifier);
    EXPECT_FALSE(Popup()->isVisible()) << "the menu belongs to the goods alone";
    EXPECT_EQ(TakeStatements(), QStringList());

    FocusList();
    Press(Qt::Key_Return);
    ASSERT_NE(Windows().Find(window), nullptr);
    EXPECT_EQ(static_cast<KeyTaker*>(Windows().Find(window))->key, list.rowKey);
}

INSTANTIATE_TEST_SUITE_P(
    Each, CodeDataList,
    ::testing::Values(
        CodeList{"UserList",
                 u"INSERT INTO User_List VALUES ('02','收银员','2','192.168.0.7','1','0','0')"_s,
                 u"SELECT UserID,UserName,UserPWD,UserIP,bolIP FROM User_List Order By UserID"_s,
                 {u"用户编号"_s, u"用户姓名"_s, u"用户密码"_s, u"用户IP"_s, u"IP管制"_s},
                 {{u"01"_s, u"管理员"_s, u"1"_s, QString(), QString()},
                  {u"02"_s, u"收银员"_s, u"2"_s, u"192.168.0.7"_s, u"√"_s}},
                 "frmUserList",
                 u"01"_s},
        CodeList{"Sales",
                 u"INSERT INTO Sales VALUES ('12','李秀兰'),('11','周建国')"_s,
                 u"SELECT SalesID,SalesName FROM Sales Order By SalesID"_s,
                 {u"工号"_s, u"姓名"_s},
                 {{u"11"_s, u"周建国"_s}, {u"12"_s, u"李秀兰"_s}},
                 "frmSales",
                 u"11"_s},
        CodeList{"PRDSort",
                 u"UPDATE PRD_Sort SET CurrNumber=7"_s,
                 u"SELECT SortID,SortName FROM PRD_Sort Order By SortID"_s,
                 {u"编号"_s, u"名称"_s},
                 {{u"A"_s, u"苹果"_s}, {u"B"_s, u"雪梨"_s}, {u"C"_s, u"蜜橘"_s}},
                 "frmPRDSort",
                 u"A"_s},
        CodeList{"FeeType",
                 u"INSERT INTO Fee_Type VALUES ('01','市场租金')"_s,
                 u"SELECT FeeID,FeeName FROM Fee_Type Order By FeeID"_s,
                 {u"编号"_s, u"名称"_s},
                 {{u"01"_s, u"市场租金"_s}},
                 "frmFeeType",
                 u"01"_s},
        CodeList{"CustList",
                 u"INSERT INTO Cust_List VALUES ('鲜多多','文昌路','郑','1','2','3',8000.5,'1'),"
                 "('阿芳','北门','芳','','','',0,'0')"_s,
                 u"SELECT CustName,CustAddress,CustCharge,CustTel,CustFax,CustMobile,CreditMoney,bolControl "
                 "FROM Cust_List Order By CustName"_s,
                 {u"客户名称"_s, u"地址"_s, u"联系人"_s, u"电话"_s, u"传真"_s, u"手机"_s, u"信用额度"_s,
                  u"信用管制"_s},
                 {{u"阿芳"_s, u"北门"_s, u"芳"_s, QString(), QString(), QString(), u"0"_s, QString()},
                  {u"鲜多多"_s, u"文昌路"_s, u"郑"_s, u"1"_s, u"2"_s, u"3"_s, u"8000.5"_s, u"√"_s}},
                 "frmCustList",
                 u"阿芳"_s}),
    [](const auto& which) { return which.param.key; });

TEST_F(DataList, ARebuildFollowsTheMenuKeyOfTheMoment)
{
    AddThreeLots();
    OpenList();
    Session::CurrentMenuKey = u"PRDSort"_s;
    Windows().Find(u"frmDataList"_s)->RefreshList();
    EXPECT_EQ(Headers(), (QStringList{u"编号"_s, u"名称"_s}));
    Session::CurrentMenuKey = u"PackSort"_s;
    TakeStatements();
    Windows().Find(u"frmDataList"_s)->RefreshList();
    EXPECT_EQ(Headers(), QStringList());
    EXPECT_EQ(List()->RowCount(), 0);
    EXPECT_EQ(TakeStatements(), QStringList());
    Session::CurrentMenuKey = u"PRDList"_s;
    Windows().Find(u"frmDataList"_s)->RefreshList();
    EXPECT_EQ(Numbers().size(), 3);
}
