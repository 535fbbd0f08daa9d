#include "core/base/RunTimeError.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/ListGrid.h"
#include "core/forms/ProgressWindow.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/reports/GoldenReports.h"

#include <QAction>
#include <QApplication>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

class ReportForm : public ReportTest {
protected:
    QWidget* Window() { return Windows().Find(u"frmReport"_s)->Widget(); }
    void OpenMain()
    {
        Open(u"frmMain"_s);
        TakeStatements();
    }
    bool IsOn(const QString& button) { return Find<QAction>(u"frmMain"_s, button)->isEnabled(); }
    void ChooseRow(int row)
    {
        List()->setFocus();
        List()->SelectRow(row);
        Press(Qt::Key_Return);
    }
    void ClickHeading(int column)
    {
        QHeaderView* header = List()->header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          {header->sectionViewportPosition(column) + 8, header->height() / 2});
    }
};

/// A window that loads bills and closes again.
struct Bill : FormWindow {
    explicit Bill(QWidget* owner) : FormWindow(owner, SlotUse::Takes) {}
    void LoadBill(const QString& number) override
    {
        if (isBroken)
            throw OverflowError();
        loaded << number;
        inAdjustment = Session::EditMode;
        QTimer::singleShot(0, this, [this] { close(); });
    }
    static inline QStringList loaded;
    static inline bool inAdjustment = false;
    static inline bool isBroken = false;
};

} // namespace

TEST_F(ReportForm, ReadsTitleHeadingsAndVariantThenTheRows)
{
    Ask(GoldenReport(u"RptSalesDescribe2"_s));
    TakeStatements();
    OpenReport()->ShowData(true);
    const QStringList statements = TakeStatements();
    const QString columns =
        u"SELECT ColName,ColWidth,ColAlign,ColStatus,ColOrder,TempStatus,TempOrder FROM DFN_RptCol WHERE "_s;
    EXPECT_EQ(
        statements.mid(0, 5),
        (QStringList{
            u"SELECT RptTitle FROM DFN_RptTitle WHERE RptName='RptSales'"_s,
            columns + u"RptName='RptSales'  And ColStatus='1' Order By ColOrder ASC"_s,
            columns + u"RptName='RptSalesDescribe2'  And ColStatus='1' Order By ColOrder ASC"_s,
            u"SELECT ColID,ColOrder FROM DFN_RptCol WHERE RptName='RptSalesDescribe2'  And ColStatus='1' Order By ColOrder ASC"_s,
            u"SELECT SUM(Num),SUM(Suttle),SUM(Amount),SUM(PackAmount),SUM(ForegiftAmount),SUM(TotalAmount),COUNT(*) FROM Sal_List WHERE SaleDate='2026-01-22' And SalesID='12'"_s}));
    EXPECT_EQ(statements.size(), 7) << "one statement a day";
}

TEST_F(ReportForm, TheAlternateLayoutReadsItsOwnFlagAndOrder)
{
    Db().Run(u"UPDATE DFN_RptCol SET TempStatus='0' WHERE RptName='RptFeeDetail' AND ColID<>'05';"
             "UPDATE DFN_RptCol SET TempOrder=1 WHERE RptName='RptFeeDetail' AND ColID='05'"_s);
    Ask(GoldenReport(u"RptFeeDetail"_s));
    OpenReport()->ShowData(false);
    EXPECT_EQ(Headings(), QStringList{u"金额"_s});
    EXPECT_EQ(Column(1), (QStringList{u"3,000.0"_s, u"862.4"_s, u"50.0"_s, u"-50.0"_s, u"12.0"_s, QString(),
                                      u"3,874.4"_s}))
        << "a total takes the place of the word for it";
}

TEST_F(ReportForm, ShowsCompanyTitleAndConditionCentredInItsWidth)
{
    ReportCase asked = GoldenReport(u"RptSaleDetail"_s);
    Show(asked);
    EXPECT_EQ(OpenReport()->Caption(ReportView::Line::Company), u"青禾果品代销行"_s);
    EXPECT_EQ(OpenReport()->Caption(ReportView::Line::Title), u"收银情况明细表"_s);
    EXPECT_EQ(OpenReport()->Caption(ReportView::Line::Condition), asked.caption);
    for (const QSize size : {QSize(1000, 500), QSize(1203, 640)}) {
        Window()->resize(size);
        Settle();
        for (const QString& name : {u"lblCompName"_s, u"lblReportName"_s, u"lblSearchStr"_s}) {
            const QRect label = Find<QLabel>(u"frmReport"_s, name)->geometry();
            EXPECT_NEAR(label.left(), size.width() - 1 - label.right(), 1) << name.toStdString();
        }
        EXPECT_EQ(List()->geometry().topLeft(), QPoint(8, 96));
        EXPECT_EQ(List()->width(), size.width() - 16);
    }
    EXPECT_EQ(FocusName(), u"lvReport"_s);
}

TEST_F(ReportForm, TakesTheFontSizeOfReports)
{
    Db().Run(u"UPDATE DRptFont SET FontSize=13.5"_s);
    Show(GoldenReport(u"RptDebit"_s));
    EXPECT_DOUBLE_EQ(List()->font().pointSizeF(), 13.5);
}

TEST_F(ReportForm, HoldsTheSlotAndClosesByEscAndByAltC)
{
    for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_C}) {
        Session::WindowSlotFree = true;
        Show(GoldenReport(u"RptDebit"_s));
        EXPECT_FALSE(Session::WindowSlotFree);
        Press(key, key == Qt::Key_C ? Qt::AltModifier : Qt::NoModifier);
        EXPECT_EQ(OpenReport(), nullptr);
        EXPECT_TRUE(Session::WindowSlotFree);
    }
}

TEST_F(ReportForm, InTheMainWindowEscClosesItWithItsFrame)
{
    OpenMain();
    Build(GoldenReport(u"RptSaleDetail"_s));
    auto* form = Windows().Find(u"frmReport"_s);
    ShowInFrame(form);
    Settle();
    EXPECT_EQ(FocusName(), u"lvReport"_s);
    EXPECT_EQ(Window()->window()->objectName(), u"frmMain"_s);
    EXPECT_EQ(Find<QLabel>(u"frmReport"_s, u"lblKeys"_s)->text(), u"Enter 打开单据　Esc 关闭"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(List()->SelectedRow(), 0);
    Press(Qt::Key_Escape);
    EXPECT_EQ(OpenReport(), nullptr);
    Settle();
    EXPECT_EQ(Windows().Find(u"frmMain"_s)->Widget()->findChildren<QWidget*>(u"frmReport"_s).size(), 0);
    EXPECT_NE(Windows().Find(u"frmMain"_s), nullptr);
}

TEST_F(ReportForm, SwitchesOnTheFourButtonsOfAReport)
{
    OpenMain();
    Windows()
        .Find(u"frmMain"_s)
        ->EnableToolbar({u"mnuNew"_s, u"mnuPreview"_s, u"mnuPrint"_s, u"mnuEdit"_s, u"mnuSearch"_s,
                         u"mnuDelete"_s, u"mnuExport"_s},
                        false);
    Build(GoldenReport(u"RptDebit"_s));
    for (const QString& button : {u"mnuPreview"_s, u"mnuPrint"_s, u"mnuSearch"_s, u"mnuExport"_s})
        EXPECT_TRUE(IsOn(button)) << button.toStdString();
    for (const QString& button : {u"mnuNew"_s, u"mnuEdit"_s, u"mnuDelete"_s})
        EXPECT_FALSE(IsOn(button)) << button.toStdString();
}

TEST_F(ReportForm, OfTheStatementAloneTheHeadingsAreHidden)
{
    Show(GoldenReport(u"RptAmount"_s));
    EXPECT_TRUE(List()->isHeaderHidden());
    EXPECT_EQ(List()->RowCount(), 19);
    Show(GoldenReport(u"RptDebit"_s));
    EXPECT_FALSE(List()->isHeaderHidden());
}

TEST_F(ReportForm, EnterOnATicketAsksForItAndSaysThatItsWindowIsStillMissing)
{
    OpenMain();
    Show(GoldenReport(u"RptSaleDetail"_s));
    Session::EditMode = true;
    TakeStatements();
    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    ChooseRow(1);
    EXPECT_EQ(TakeStatements().value(0),
              u"SELECT SalNo FROM Sal_List WHERE SalNo='01260122001' And bolCheckOut='0'"_s);
    EXPECT_FALSE(Session::EditMode);
    EXPECT_EQ(Windows().Find(u"frmSale"_s), nullptr);
}

TEST_F(ReportForm, ASettledTicketIsNotOpenedNorIsATotal)
{
    OpenMain();
    Show(GoldenReport(u"RptSaleDetail"_s));
    const QString missing = u"没找到相应的单号或该单已结算！"_s;
    boxes.Expect(missing);
    ChooseRow(0);
    boxes.Expect(missing);
    ChooseRow(List()->RowCount() - 1);
    TakeStatements();
    ChooseRow(List()->RowCount() - 2);
    EXPECT_EQ(TakeStatements(), QStringList()) << "a spacer";
}

TEST_F(ReportForm, OnlyItsWriterOpensATicketWithoutTheRightToAllOfThem)
{
    Session::CurrentUserID = u"02"_s;
    Db().Run(u"INSERT INTO User_Menu (UserID,MenuName) VALUES ('02','menuESale')"_s);
    OpenMain();
    Show(GoldenReport(u"RptSaleDetail"_s));
    boxes.Expect(u"你无权限可修改此单！"_s);
    ChooseRow(1);
    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    ChooseRow(5);
}

TEST_F(ReportForm, WithoutItsMenuEntryNoDocumentOpensAndNothingIsSaid)
{
    Db().Run(u"DELETE FROM User_Menu WHERE MenuName IN ('menuESale','menuECheckOut','menuFee')"_s);
    OpenMain();
    for (const QString& report : {u"RptSaleDetail"_s, u"RptCheckOutDetail"_s, u"RptFeeDetail"_s}) {
        Show(GoldenReport(report));
        Session::EditMode = true;
        TakeStatements();
        ChooseRow(1);
        EXPECT_EQ(TakeStatements(), QStringList()) << report.toStdString();
        EXPECT_FALSE(Session::EditMode);
    }
}

TEST_F(ReportForm, ExpensesOpenByTheSecondColumnSettlementsByTheFirst)
{
    OpenMain();
    Show(GoldenReport(u"RptFeeDetail"_s));
    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    TakeStatements();
    ChooseRow(0);
    EXPECT_EQ(TakeStatements().value(0), u"SELECT FeeNo FROM Fee_List WHERE FeeNo='01260131001'"_s);
    ChooseRow(List()->RowCount() - 1); // its second column is empty

    Show(GoldenReport(u"RptFeeDescribe"_s));
    boxes.Expect(u"没找到相应的单号！"_s);
    ChooseRow(0);

    Show(GoldenReport(u"RptCheckOutDetail"_s));
    boxes.Expect(u"此功能在本版本中尚未提供。"_s);
    TakeStatements();
    ChooseRow(0);
    EXPECT_EQ(TakeStatements().value(0), u"SELECT CheckNo FROM CheckOut WHERE CheckNo='01260120001'"_s);
    boxes.Expect(u"没找到相应的单号！"_s);
    ChooseRow(List()->RowCount() - 1);
}

TEST_F(ReportForm, ADocumentOpensForAdjustmentWithItsNumberInHand)
{
    Windows().Register(
        u"frmSale"_s, [](QWidget* owner) -> Form* { return new Bill(owner); }, true);
    OpenMain();
    Show(GoldenReport(u"RptSaleDetail"_s));
    ChooseRow(1);
    EXPECT_EQ(Bill::loaded, QStringList{u"01260122001"_s});
    EXPECT_TRUE(Bill::inAdjustment);
    EXPECT_TRUE(Session::EditMode);
    EXPECT_EQ(Windows().Find(u"frmSale"_s), nullptr);
    EXPECT_NE(OpenReport(), nullptr);
    Show(GoldenReport(u"RptDebit"_s));
    ChooseRow(0);
    EXPECT_FALSE(Session::EditMode) << "also by a report that opens nothing";

    Show(GoldenReport(u"RptSaleDetail"_s));
    Bill::isBroken = true;
    boxes.Expect(u"溢出"_s);
    ChooseRow(1);
    Bill::isBroken = false;
    EXPECT_EQ(Windows().Find(u"frmSale"_s), nullptr) << "nobody sees it";
}

TEST_F(ReportForm, SortsTheSalesBySortByAHeadingAndByKeysInTurns)
{
    Db().Run(
        u"INSERT INTO Sal_List (SalNo,PRDName,SaleDate,Num,Amount) VALUES ('1','香蕉','2026-02-01',5,900)"_s);
    Show(GoldenReport(u"RptPRDDescribe"_s));
    const QStringList sorts{u"苹果"_s, u"雪梨"_s, u"香蕉"_s, QString(), u"总计"_s};
    ASSERT_EQ(Column(1), sorts);
    ClickHeading(1);
    EXPECT_EQ(Column(1), sorts) << "the sorts themselves";
    ClickHeading(4);
    const QStringList byAmount{u"香蕉"_s, u"雪梨"_s, u"苹果"_s, QString(), u"总计"_s};
    EXPECT_EQ(Column(1), byAmount);
    EXPECT_EQ(Column(4), (QStringList{u"900.0"_s, u"2,774.7"_s, u"12,900.5"_s, QString(), u"16,575.2"_s}));
    ClickHeading(4);
    EXPECT_EQ(Column(1), sorts);
    Build(GoldenReport(u"RptPRDDescribe"_s));
    Press(Qt::Key_4, Qt::ControlModifier);
    EXPECT_EQ(Column(1), byAmount) << "the turns go on over a new report";
}

TEST_F(ReportForm, SortsNothingElseNorTooFewRows)
{
    Show(GoldenReport(u"RptStoreDescribe"_s));
    const QStringList stores = Column(1);
    ClickHeading(3);
    EXPECT_EQ(Column(1), stores);
    Db().Run(u"DELETE FROM PRD_Sort WHERE SortID<>'A'"_s);
    Show(GoldenReport(u"RptPRDDescribe"_s));
    EXPECT_EQ(List()->RowCount(), 3);
    ClickHeading(2);
    Db().Run(u"INSERT INTO PRD_Sort (SortID,SortName) VALUES ('B','雪梨')"_s);
    Build(GoldenReport(u"RptPRDDescribe"_s));
    ClickHeading(2);
    EXPECT_EQ(Column(1).value(0), u"雪梨"_s) << "a click that did nothing was no turn";
}

TEST_F(ReportForm, TheDaysOfOneSortAreSortedToo)
{
    Show(GoldenReport(u"RptPRDDescribe2"_s));
    ClickHeading(2);
    EXPECT_EQ(Column(1),
              (QStringList{u"2026-01-22"_s, u"2026-01-24"_s, u"2026-01-23"_s, QString(), u"总计"_s}))
        << "equal ones keep their order";
}

TEST_F(ReportForm, DeletesTheDepositReturnThatIsSelected)
{
    Show(GoldenReport(u"RptForegift"_s));
    Form* report = Windows().Find(u"frmReport"_s);
    report->ToolbarDelete();
    EXPECT_EQ(Count(u"Foregift_RTN"_s), 2) << "none was selected yet";
    Press(Qt::Key_Down);
    TakeStatements();
    report->ToolbarDelete();
    EXPECT_EQ(TakeStatements().value(0), u"DELETE FROM Foregift_RTN WHERE SalNo='02260123001'"_s);
    EXPECT_EQ(Column(1), (QStringList{u"02260205001"_s, QString(), u"总计"_s}));
    report->ToolbarDelete();
    EXPECT_EQ(Count(u"Foregift_RTN"_s), 1) << "the next one was not selected";
    List()->SelectRow(2);
    report->ToolbarDelete();
    EXPECT_EQ(Count(u"Foregift_RTN"_s), 1);
}

TEST_F(ReportForm, DeletesNothingWhileItShowsAnotherReport)
{
    Show(GoldenReport(u"RptSaleDetail"_s));
    List()->SelectRow(4);
    ASSERT_EQ(List()->SelectedKey(), u"02260123001"_s);
    Session::CurrentMenuKey = u"RptForegift"_s;
    Windows().Find(u"frmReport"_s)->ToolbarDelete();
    Session::CurrentMenuKey = u"RptSaleDetail"_s;
    Windows().Find(u"frmReport"_s)->ToolbarDelete();
    EXPECT_EQ(Count(u"Foregift_RTN"_s), 2);
}

TEST_F(ReportForm, TheToolbarOpensConditionsAndExport)
{
    Show(GoldenReport(u"RptDebit"_s));
    struct Probe : FormWindow {
        explicit Probe(QWidget* owner) : FormWindow(owner, SlotUse::Untouched) {}
    };
    for (const QString& name : {u"frmSearchCond"_s, u"frmExport"_s})
        Windows().Register(name, [](QWidget* owner) -> Form* { return new Probe(owner); });
    Windows().Find(u"frmReport"_s)->ToolbarSearch();
    EXPECT_NE(Windows().Find(u"frmSearchCond"_s), nullptr);
    Windows().Find(u"frmReport"_s)->ToolbarExport();
    EXPECT_NE(Windows().Find(u"frmExport"_s), nullptr);
}

TEST_F(ReportForm, ALongReportShowsItsProgressAndIsDisabledMeanwhile)
{
    ReportCase slow = GoldenReport(u"RptSalesDescribe"_s);
    slow.condition.searchCond += u" And SLEEP(0.12)=0"_s;
    Show(GoldenReport(u"RptSalesDescribe"_s));
    Ask(slow);
    bool wasShown = false;
    Gateway().SetStatementObserver([&](const QString&) {
        if (Form* progress = Windows().Find(u"frmProgress"_s)) {
            wasShown = true;
            EXPECT_FALSE(Window()->isEnabled());
            EXPECT_EQ(progress->Widget()->findChild<QProgressBar*>()->maximum(), 3);
        }
    });
    OpenReport()->ShowData(true);
    Gateway().SetStatementObserver(nullptr);
    EXPECT_TRUE(wasShown);
    EXPECT_TRUE(OpenReport()->IsWhole());
    EXPECT_EQ(Windows().Find(u"frmProgress"_s), nullptr);
    EXPECT_TRUE(Window()->isEnabled());
    EXPECT_EQ(LastRow().value(8), u"6.0"_s);
    Settle();
    EXPECT_EQ(FocusName(), u"lvReport"_s);
}

TEST_F(ReportForm, EscStopsAReportInTheMiddleOfOneLongStatement)
{
    ReportCase slow = GoldenReport(u"RptSaleDetail"_s);
    slow.caption = u"一月"_s;
    Ask(slow);
    Db().Run(u"LOCK TABLES Sal_List WRITE"_s); // the one statement of its rows waits
    QTimer asUser;
    QObject::connect(&asUser, &QTimer::timeout, &asUser, [] {
        if (Form* progress = Windows().Find(u"frmProgress"_s))
            QTest::keyClick(progress->Widget(), Qt::Key_Escape);
    });
    asUser.start(20);
    OpenReport()->ShowData(true);
    asUser.stop();
    Db().Run(u"UNLOCK TABLES"_s);
    EXPECT_FALSE(OpenReport()->IsWhole());
    EXPECT_EQ(OpenReport()->Caption(ReportView::Line::Condition), u"一月（已停止，不是全部）"_s);
    EXPECT_EQ(List()->RowCount(), 0);
    EXPECT_EQ(Windows().Find(u"frmProgress"_s), nullptr);
    EXPECT_TRUE(Window()->isEnabled());

    OpenReport()->ShowData(true);
    EXPECT_TRUE(OpenReport()->IsWhole()) << "the connection stands";
    EXPECT_GT(List()->RowCount(), 0);
}

TEST_F(ReportForm, EscStopsALongReportWhichShowsWhatItHasAndSaysSo)
{
    ReportCase slow = GoldenReport(u"RptSalesDescribe"_s);
    slow.caption = u"一月"_s;
    slow.condition.searchCond += u" And SLEEP(0.12)=0"_s;
    Ask(slow);
    Gateway().SetStatementObserver([](const QString&) {
        if (Form* progress = Windows().Find(u"frmProgress"_s))
            QTest::keyClick(progress->Widget(), Qt::Key_Escape);
    });
    OpenReport()->ShowData(true);
    Gateway().SetStatementObserver(nullptr);
    EXPECT_FALSE(OpenReport()->IsWhole());
    EXPECT_EQ(Column(1), (QStringList{u"11"_s, u"12"_s})) << "without a total that would not be one";
    EXPECT_EQ(OpenReport()->Caption(ReportView::Line::Condition), u"一月（已停止，不是全部）"_s);
    EXPECT_EQ(Windows().Find(u"frmProgress"_s), nullptr);
    Build(GoldenReport(u"RptSalesDescribe"_s));
    EXPECT_TRUE(OpenReport()->IsWhole());
}

TEST_F(ReportForm, AReportThatBreaksOffIsNotWholeAndSaysSo)
{
    Show(GoldenReport(u"RptSalesDescribe"_s));
    ReportCase asked = GoldenReport(u"RptSalesDescribe"_s);
    asked.caption = u"一月"_s;
    Ask(asked);
    for (const Refusal how : {Refusal::MissingTable, Refusal::LostLink}) {
        FailStatement(6, how);
        EXPECT_THROW(OpenReport()->ShowData(true), DatabaseError);
        EXPECT_FALSE(OpenReport()->IsWhole());
        EXPECT_EQ(OpenReport()->Caption(ReportView::Line::Condition), u"一月（已中断，不是全部）"_s);
        EXPECT_TRUE(Window()->isEnabled());
    }
    Press(Qt::Key_Escape);
    EXPECT_EQ(OpenReport(), nullptr);
}
