#include "tests/reports/conditions/ConditionCase.h"

#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/forms/FunctionWindows.h"
#include "core/gateway/DataGateway.h"
#include "masterdata/frmGetCustList.h"
#include "reports/ConditionFrames.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class SearchCond : public ConditionCase {
protected:
    QStringList Shown(const QString& combo)
    {
        const auto* box = Its<QComboBox>(combo);
        QStringList texts;
        for (int i = 0; i < box->count(); ++i)
            texts << box->itemText(i);
        return texts;
    }
    QComboBox* Combo(const QString& name) { return Its<QComboBox>(name); }

    void LetUserSeeOwnBillsOnly() { Db().Run(u"UPDATE User_List SET bolSearch='0' WHERE UserID='01'"_s); }
};

} // namespace

// Opening

TEST_F(SearchCond, ShowsTheFrameOfTheReportAlone)
{
    for (const ConditionFrame& frame : ConditionFrames()) {
        Ask(frame.report);
        QWidget* window = Windows().Find(u"frmSearchCond"_s)->Widget();
        EXPECT_EQ(window->windowTitle(), u"查询条件"_s);
        const auto frames = window->findChildren<QGroupBox*>();
        ASSERT_EQ(frames.size(), 1);
        EXPECT_EQ(frames[0]->objectName(), u"Frame_"_s + frame.report.mid(3));
        EXPECT_EQ(frames[0]->title(), frame.caption);
        for (const ConditionControl& control : frame.controls)
            EXPECT_TRUE(Its<QWidget>(control.name)->isVisible()) << control.name.toStdString();
        EXPECT_EQ(window->size(), window->sizeHint());
        Press(Qt::Key_Escape);
        EXPECT_FALSE(IsOpen());
    }
    EXPECT_EQ(Report(), nullptr);
}

TEST_F(SearchCond, ReadsWhatTheShownFrameOffersAndNothingElse)
{
    const QString users = u"SELECT UserID,UserName FROM User_List Order By UserID"_s;
    const QString right = u"SELECT bolSearch FROM User_List WHERE UserID='01'"_s;
    const QString types = u"SELECT TypeName FROM DFN_SaleType Order By TypeID"_s;
    const QString stores = u"SELECT Store FROM Store"_s;
    const QString sorts = u"SELECT SortName FROM PRD_Sort Order By SortID"_s;
    const QHash<QString, QStringList> expected{
        {u"RptSaleDetail"_s, {right, users, types}},
        {u"RptSaleDescribe"_s, {right, users, types}},
        {u"RptCheckOutDetail"_s, {stores}},
        {u"RptCheckOutDescribe"_s, {stores}},
        {u"RptPRDDescribe"_s, {sorts}},
        {u"RptUnCheckOut"_s, {stores}},
        {u"RptSales"_s, {u"SELECT SalesID,SalesName FROM Sales Order By SalesID"_s}},
        {u"RptDaySale"_s, {stores, sorts}},
        {u"RptDayCust"_s, {stores, sorts}},
        {u"RptStoreDetail"_s, {stores}},
        {u"RptStoreDescribe"_s, {stores}},
        {u"RptFee"_s, {u"SELECT FeeID,FeeName FROM Fee_Type Order By FeeID"_s}},
    };
    for (const ConditionFrame& frame : ConditionFrames()) {
        TakeStatements();
        Ask(frame.report);
        EXPECT_EQ(TakeStatements(), expected.value(frame.report)) << frame.report.toStdString();
        Press(Qt::Key_Escape);
    }
}

TEST_F(SearchCond, NothingIsChosenBeforehandAndTheDaysAreToday)
{
    Ask(u"RptSaleDetail"_s);
    EXPECT_EQ(Shown(u"cmbReceiver_SaleDetail"_s), (QStringList{u"01-管理员"_s, u"02-小陈"_s}));
    EXPECT_EQ(Shown(u"cmbSaleType_SaleDetail"_s), (QStringList{u"现金"_s, u"赊销"_s}));
    EXPECT_EQ(Shown(u"cmbForegiftRTN"_s), (QStringList{u"未退箱"_s, u"已退箱"_s}));
    for (const QString& combo :
         {u"cmbReceiver_SaleDetail"_s, u"cmbSaleType_SaleDetail"_s, u"cmbForegiftRTN"_s})
        EXPECT_EQ(Combo(combo)->currentIndex(), -1);
    for (const QString& check : {u"chkUnCheckOut"_s, u"chkForegift"_s, u"chkEdit_SaleDetail"_s})
        EXPECT_FALSE(Its<QCheckBox>(check)->isChecked());
    Press(Qt::Key_Escape);

    Ask(u"RptSales"_s);
    EXPECT_EQ(Shown(u"cmbSalesList"_s), (QStringList{u"S1-小李"_s, u"S2-小王-东区"_s}));
    EXPECT_FALSE(Its<QRadioButton>(u"optDetail_Sales"_s)->isChecked());
    EXPECT_FALSE(Its<QRadioButton>(u"optDescribe_Sales"_s)->isChecked());
    Press(Qt::Key_Escape);

    Ask(u"RptFee"_s);
    EXPECT_EQ(Shown(u"cmbFeeType"_s), (QStringList{u"01运费"_s, u"02水电"_s}));
    Press(Qt::Key_Escape);
    Ask(u"RptEStore"_s);
    EXPECT_EQ(Shown(u"cmbEStoreType"_s), (QStringList{u"进货"_s, u"转出"_s, u"损耗"_s}));
    EXPECT_FALSE(Its<QCheckBox>(u"chkAll_EStore"_s)->isChecked());
    Press(Qt::Key_Escape);
    Ask(u"RptPackList"_s);
    EXPECT_EQ(Shown(u"cmbPackType"_s), (QStringList{u"进筐"_s, u"退筐"_s, u"损筐"_s, u"还筐"_s, u"借筐"_s}));
}

TEST_F(SearchCond, AListThatCannotBeReadOpensNoWindowAndFreesTheSlot)
{
    Session::CurrentMenuKey = u"RptDaySale"_s;
    FailStatement(2, Refusal::MissingTable);
    EXPECT_ANY_THROW(Windows().Show(u"frmSearchCond"_s, nullptr));
    EXPECT_FALSE(IsOpen());
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(SearchCond, WithoutAReportAsTheMenuKeyItDoesNotOpen)
{
    Session::CurrentMenuKey = u"PRDList"_s;
    EXPECT_EQ(Windows().Show(u"frmSearchCond"_s, nullptr), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

// Whose bills

TEST_F(SearchCond, WhoSeesHisOwnBillsOnlyHasHimselfAsTheCashierForGood)
{
    LetUserSeeOwnBillsOnly();
    for (const QString& report : {u"RptSaleDetail"_s, u"RptSaleDescribe"_s}) {
        const QString combo = u"cmbReceiver_"_s + report.mid(3);
        TakeStatements();
        Ask(report);
        EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT bolSearch FROM User_List WHERE UserID='01'"_s,
                                                 u"SELECT TypeName FROM DFN_SaleType Order By TypeID"_s}));
        EXPECT_EQ(Shown(combo), QStringList{u"01-管理员"_s});
        AnswerUpTo(combo, {});
        Press(Qt::Key_Delete);
        Press(Qt::Key_Down);
        EXPECT_EQ(Combo(combo)->currentText(), u"01-管理员"_s);
        Answer({});
        EXPECT_EQ(Session::ConditionCaption, u"2026-03-09 收银员：管理员"_s);
        Report()->close();
    }
    EXPECT_EQ(Session::ConditionKey, u"Receiver='01'"_s);
}

TEST_F(SearchCond, AChangeOfTheRightHoldsFromTheNextOpeningOn)
{
    Ask(u"RptSaleDetail"_s);
    LetUserSeeOwnBillsOnly();
    EXPECT_EQ(Combo(u"cmbReceiver_SaleDetail"_s)->count(), 2);
    Press(Qt::Key_Escape);
    Ask(u"RptSaleDetail"_s);
    EXPECT_EQ(Combo(u"cmbReceiver_SaleDetail"_s)->count(), 1);
}

// Stock and crate changes, which leave key and flag of the report before

TEST_F(SearchCond, StockChangesLookTheLotUpByItsNumberTheOpenOneFirst)
{
    Db().Run(
        u"INSERT INTO PRD_List (ID,PRDNo,PRDNo_S,bolCheckOut) VALUES "
        "('20260301001','A-001','001','1'),('20260305001','A-001','001','0'),('20260301002','A-002','','1')"_s);
    const auto clauseOf = [this](const QString& number) {
        Ask(u"RptEStore"_s);
        Answer({{u"txtPRDNo_EStore"_s, number}});
        const QString clause = Report()->condition.searchCond;
        EXPECT_EQ(Session::ConditionCaption, u"2026-03-09 编号："_s + number);
        Report()->close();
        return clause;
    };
    const QString days = u"(EStoreDate>='2026-03-09' And EStoreDate<='2026-03-09')"_s;
    const QString first = u"SELECT ID FROM PRD_List WHERE PRDNo='%1' And bolCheckOut='0'"_s;
    const QString second = u"SELECT ID FROM PRD_List WHERE PRDNo='%1'"_s;
    EXPECT_EQ(clauseOf(u"A-001"_s), days + u" And ID='20260305001'"_s);
    EXPECT_EQ(TakeStatements(), QStringList{first.arg(u"A-001"_s)});
    EXPECT_EQ(clauseOf(u"A-002"_s), days + u" And ID='20260301002'"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{first.arg(u"A-002"_s), second.arg(u"A-002"_s)}));
    EXPECT_EQ(clauseOf(u"001"_s), days + u" And ID=''"_s); // a shortcut is no number
}

TEST_F(SearchCond, StockAndCrateChangesLeaveTheKeyAndOnlyEverClearTheFlag)
{
    const QHash<QString, QString> types{{u"RptEStore"_s, u"cmbEStoreType"_s},
                                        {u"RptPackList"_s, u"cmbPackType"_s}};
    for (const QString& report : types.keys()) {
        for (const bool before : {true, false}) {
            Session::ConditionAll = before;
            Session::ConditionKey = u"vor"_s;
            Ask(report);
            Answer({});
            EXPECT_EQ(Session::ConditionAll, before);
            EXPECT_EQ(Session::ConditionKey, u"vor"_s);
            EXPECT_EQ(Session::ConditionCaption, u"2026-03-09"_s);
            Report()->close();

            Ask(report);
            Answer({{types[report], u"#2"_s}});
            EXPECT_FALSE(Session::ConditionAll);
            EXPECT_EQ(Session::ConditionKey, u"vor"_s);
            Report()->close();
        }
    }
}

TEST_F(SearchCond, TheTypeOfAChangeIsItsPlaceInTheList)
{
    Ask(u"RptPackList"_s);
    Answer({{u"txtPackNo"_s, u"P1"_s}, {u"cmbPackType"_s, u"#4"_s}, {u"dtpSDate_PackList"_s, u"20260301"_s}});
    EXPECT_EQ(Report()->condition.searchCond,
              u"(PackDate>='2026-03-01' And PackDate<='2026-03-09') And PackNo='P1' And PackType='4'"_s);
    EXPECT_EQ(Session::ConditionCaption, u"2026-03-01至2026-03-09 箱筐号：P1 借筐"_s);
    Report()->close();

    Ask(u"RptEStore"_s);
    Answer({{u"cmbEStoreType"_s, u"#2"_s}, {u"txtPRDNo_EStore"_s, u"A"_s}});
    EXPECT_EQ(Report()->condition.searchCond,
              u"(EStoreDate>='2026-03-09' And EStoreDate<='2026-03-09') And ID='' And EStoreType='2'"_s);
    EXPECT_EQ(Session::ConditionCaption, u"2026-03-09 编号：A 损耗"_s);
}

TEST_F(SearchCond, AllStockChangesMeansNoType)
{
    Session::ConditionAll = false;
    Ask(u"RptEStore"_s);
    AnswerUpTo(u"cmbEStoreType"_s, {{u"cmbEStoreType"_s, u"#1"_s}});
    Press(Qt::Key_Up); // to the entry above
    Press(Qt::Key_Up); // out of the list
    EXPECT_EQ(FocusName(), u"chkAll_EStore"_s);
    Press(Qt::Key_Space);
    EXPECT_FALSE(Combo(u"cmbEStoreType"_s)->isEnabled());
    EXPECT_EQ(Combo(u"cmbEStoreType"_s)->currentIndex(), -1);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPRDNo_EStore"_s); // passed over
    Answer({});
    EXPECT_EQ(Report()->condition.searchCond, u"(EStoreDate>='2026-03-09' And EStoreDate<='2026-03-09')"_s);
    EXPECT_FALSE(Session::ConditionAll);
}

TEST_F(SearchCond, TheReturnOfCratesIsAskedOnlyWithADeposit)
{
    Ask(u"RptSaleDetail"_s);
    EXPECT_FALSE(Combo(u"cmbForegiftRTN"_s)->isEnabled());
    AnswerUpTo(u"cmbForegiftRTN"_s, {{u"chkForegift"_s, u"x"_s}, {u"cmbForegiftRTN"_s, u"#0"_s}});
    Press(Qt::Key_Up);
    Press(Qt::Key_Space);
    EXPECT_FALSE(Combo(u"cmbForegiftRTN"_s)->isEnabled());
    Answer({});
    EXPECT_EQ(Report()->condition.searchCond,
              u"(SaleDate>='2026-03-09' And SaleDate<='2026-03-09') Order By SalNo"_s);
}

TEST_F(SearchCond, DeleteTakesAChoiceBack)
{
    Ask(u"RptStoreDescribe"_s);
    AnswerUpTo(u"cmbStoreList_StoreDescribe"_s, {{u"cmbStoreList_StoreDescribe"_s, u"#1"_s}});
    Press(Qt::Key_Delete);
    Answer({});
    EXPECT_EQ(Session::ConditionKey, QString());
    EXPECT_TRUE(Session::ConditionAll);
    EXPECT_EQ(Session::ConditionCaption, u"2026-03-09"_s);
}

TEST_F(SearchCond, EscapeClosesTheOpenListOfAComboBoxFirst)
{
    Ask(u"RptStoreDetail"_s);
    Press(Qt::Key_Down, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget()->focusWidget(), Qt::Key_Escape);
    Settle();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(IsOpen());
    Press(Qt::Key_Escape);
    EXPECT_FALSE(IsOpen());
}

// Checks

TEST_F(SearchCond, AReportOfTwoKindsMustBeToldWhich)
{
    for (const QString& report : {u"RptCheque"_s, u"RptSales"_s}) {
        Ask(report);
        boxes.Expect(u"请选择查询的类型!"_s, u"系统提示"_s);
        Answer({});
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(FocusName(), u"optDetail_"_s + report.mid(3));
        EXPECT_EQ(Report(), nullptr);
        EXPECT_EQ(Session::ConditionCaption, QString());
        Press(Qt::Key_Escape);
    }
}

TEST_F(SearchCond, DetailsMustBeToldWhose)
{
    const std::vector<std::pair<QString, QString>> cases{{u"RptCheque"_s, u"明细查询必须指定客户姓名!"_s},
                                                         {u"RptSales"_s, u"明细查询必须指定业务员!"_s}};
    for (const auto& [report, message] : cases) {
        Ask(report);
        boxes.Expect(message, u"系统提示"_s);
        Answer({{u"optDetail_"_s + report.mid(3), u"x"_s}});
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(FocusName(), report == u"RptCheque" ? u"txtCustName_Cheque"_s : u"cmbSalesList"_s);
        EXPECT_EQ(Report(), nullptr);
        EXPECT_EQ(Session::ReportKind, QString());
        Press(Qt::Key_Escape);
    }
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(SearchCond, AKindOnceChosenIsChangedByTheArrows)
{
    Ask(u"RptSales"_s);
    EXPECT_EQ(FocusName(), u"optDetail_Sales"_s);
    Press(Qt::Key_Space);
    EXPECT_TRUE(Its<QRadioButton>(u"optDetail_Sales"_s)->isChecked());
    Press(Qt::Key_Right);
    EXPECT_EQ(FocusName(), u"optDescribe_Sales"_s);
    EXPECT_TRUE(Its<QRadioButton>(u"optDescribe_Sales"_s)->isChecked());
    Answer({});
    EXPECT_EQ(Session::ReportKind, u"Describe"_s);
}

TEST_F(SearchCond, DaysTheWrongWayRoundAreTakenAsTheyAre)
{
    Ask(u"RptForegift"_s);
    Answer({{u"dtpSDate_Foregift"_s, u"20260310"_s}, {u"dtpEDate_Foregift"_s, u"2026-3-1"_s}});
    EXPECT_EQ(Report()->condition.searchCond,
              u"(RForegiftDate>='2026-03-10' And RForegiftDate<='2026-03-01')"_s);
    EXPECT_EQ(Session::ConditionCaption, u"2026-03-10至2026-03-01"_s);
}

TEST_F(SearchCond, ADayStillBeingTypedCountsWithTheKeyOfTheButton)
{
    Ask(u"RptForegift"_s);
    Type(u"2026-2-1"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    ASSERT_NE(Report(), nullptr);
    EXPECT_EQ(Report()->condition.startDate, u"2026-02-01"_s);
    EXPECT_FALSE(IsOpen());
}

// The report

TEST_F(SearchCond, SelectShowsTheReportInTheFrameAndSwitchesItsButtonsOn)
{
    Ask(u"RptAmount"_s);
    ReportProbe::onShow = [this] {
        EXPECT_EQ(Frame()->held, QStringList());
        EXPECT_TRUE(IsOpen());
    };
    Answer({});
    EXPECT_EQ(Frame()->held, QStringList{u"frmReport"_s});
    EXPECT_EQ(Frame()->enabled,
              (QStringList{u"mnuPreview"_s, u"mnuPrint"_s, u"mnuSearch"_s, u"mnuExport"_s}));
    EXPECT_TRUE(Report()->isVisible());
    EXPECT_FALSE(IsOpen());
}

TEST_F(SearchCond, AskedAgainTheOpenReportShowsTheNewResult)
{
    Ask(u"RptStoreDetail"_s);
    Answer({});
    ReportProbe* report = Report();
    Open(u"frmSearchCond"_s);
    Answer({{u"cmbStoreList_StoreDetail"_s, u"#0"_s}});
    EXPECT_EQ(Report(), report);
    EXPECT_EQ(report->shown, 2);
    EXPECT_EQ(report->caption, u"2026-03-09 仓位：A仓"_s);
    EXPECT_FALSE(IsOpen());
    EXPECT_FALSE(Session::WindowSlotFree);
}

TEST_F(SearchCond, AReportThatFailsIsToldOnceLoggedAndNotLeftBehind)
{
    Ask(u"RptCheckCheque"_s);
    ReportProbe::onShow = [] {
        Gateway().SelectRows(u"Sal_List"_s, u"SalNo"_s, Report()->condition.searchCond);
    };
    boxes.ExpectContaining(u"SQL syntax"_s);
    Answer({{u"txtCustName_CheckCheque"_s, u"O'Neil"_s}});
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Report(), nullptr);
    EXPECT_EQ(Frame()->held, QStringList());
    EXPECT_EQ(Frame()->enabled, QStringList());
    EXPECT_FALSE(Session::WindowSlotFree);

    // The window goes on: back to the name, another one, the report.
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    Enter(u"txtCustName_CheckCheque"_s, u"ONeil"_s);
    Answer({});
    ASSERT_NE(Report(), nullptr);
    EXPECT_EQ(Report()->caption, u"2026-03-09 客户姓名：ONeil"_s);
    EXPECT_FALSE(IsOpen());
}

TEST_F(SearchCond, AFailureIsARowOfTheErrorLog)
{
    Ask(u"RptForegift"_s);
    ReportProbe::onShow = [] { throw RunTimeError(u"下标越界"_s); };
    boxes.Expect(u"下标越界"_s);
    Answer({});
    EXPECT_EQ(Value(u"SELECT CONCAT(ErrUserName,'|',ErrDescription,'|',ErrSource) FROM ErrInfo"_s),
              u"管理员|下标越界|查询内容"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 1);
}

TEST_F(SearchCond, AFailureOverAnOpenReportLeavesTheReportOpen)
{
    Ask(u"RptForegift"_s);
    Answer({});
    const ReportProbe* report = Report();
    Open(u"frmSearchCond"_s);
    ReportProbe::onShow = [] { throw RunTimeError(u"下标越界"_s); };
    boxes.Expect(u"下标越界"_s);
    Answer({});
    EXPECT_EQ(Report(), report);
    EXPECT_TRUE(IsOpen());
    EXPECT_FALSE(Session::WindowSlotFree);
}

TEST_F(SearchCond, ALotThatCannotBeLookedUpLeavesTheLastReportsConditionAlone)
{
    Session::ConditionCaption = u"vor"_s;
    Ask(u"RptEStore"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Answer({{u"txtPRDNo_EStore"_s, u"A'1"_s}});
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(Report(), nullptr);
    EXPECT_EQ(Session::ConditionCaption, u"vor"_s);
}

TEST_F(SearchCond, SelectPressedWhileTheReportIsBuiltDoesNothing)
{
    Ask(u"RptForegift"_s);
    ReportProbe::onShow = [this] {
        auto* window = Windows().Find(u"frmSearchCond"_s)->Widget();
        const NestedLoop asTheProgressWindow;
        QTest::keyClick(Its<QWidget>(u"dtpEDate_Foregift"_s), Qt::Key_Return);
        QTest::keyClick(window, Qt::Key_S, Qt::AltModifier);
        window->close();
        EXPECT_TRUE(IsOpen());
    };
    Answer({});
    EXPECT_EQ(Report()->shown, 1);
    EXPECT_FALSE(IsOpen());
}

TEST_F(SearchCond, EnterHeldDownInTheLastFieldAsksForNothing)
{
    Ask(u"RptForegift"_s);
    Press(Qt::Key_Return);
    ASSERT_EQ(FocusName(), u"dtpEDate_Foregift"_s);
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QApplication::sendEvent(QApplication::focusWidget(), &held);
    Settle();
    EXPECT_EQ(Report(), nullptr);
    Press(Qt::Key_Return);
    EXPECT_EQ(Report()->shown, 1);
}

// The slot

TEST_F(SearchCond, TakesTheSlotAndCancelFreesIt)
{
    for (const bool byKey : {true, false}) {
        Session::WindowSlotFree = true;
        Ask(u"RptCheckOutDetail"_s);
        EXPECT_FALSE(Session::WindowSlotFree);
        byKey ? Press(Qt::Key_Escape) : Press(Qt::Key_C, Qt::AltModifier);
        EXPECT_FALSE(IsOpen());
        EXPECT_TRUE(Session::WindowSlotFree);
    }
}

TEST_F(SearchCond, TheReportKeepsTheSlotUntilItIsClosed)
{
    Ask(u"RptForegift"_s);
    Answer({});
    EXPECT_FALSE(Session::WindowSlotFree);
    Open(u"frmSearchCond"_s);
    Press(Qt::Key_Escape);
    EXPECT_FALSE(Session::WindowSlotFree); // the report is still open
    Report()->close();
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(SearchCond, AnotherReportChosenWhileItIsOpenGetsItsOwnFrame)
{
    Ask(u"RptForegift"_s);
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    Session::CurrentMenuKey = u"RptDebit"_s;
    ShowFunctionWindow(u"frmSearchCond"_s);
    WaitFor([this] { return FocusName() == u"txtPRDNo_Debit"; });
    Answer({});
    EXPECT_EQ(Report()->condition.searchCond, u"(DebitDate>='2026-03-09' And DebitDate<='2026-03-09')"_s);
}

// The buyer

namespace {

class BuyerOfAReport : public SearchCond, public ::testing::WithParamInterface<QString> {
protected:
    void SetUp() override
    {
        SearchCond::SetUp();
        Windows().Register(u"frmGetCustList"_s, [](QWidget* owner) { return new frmGetCustList(owner); });
        Db().Run(u"INSERT INTO Cust_List (CustName) VALUES ('老王')"_s);
        Ask(GetParam());
        AnswerUpTo(Field(), {});
    }
    QString Field() { return u"txtCustName_"_s + GetParam().mid(3); }
    /// Presses keys in the picker once it stands.
    void InPicker(const std::function<void()>& steps)
    {
        QMetaObject::invokeMethod(
            qApp,
            [steps] {
                EXPECT_TRUE(QTest::qWaitForWindowActive(Windows().Find(u"frmGetCustList"_s)->Widget()));
                Settle();
                steps();
            },
            Qt::QueuedConnection);
    }
};

} // namespace

TEST_P(BuyerOfAReport, IsPickedByKeyOrDoubleClick)
{
    InPicker([] { Enter(u"txtCustName"_s, u"老王"_s); });
    Press(Qt::Key_F2);
    EXPECT_EQ(TextOf(u"frmSearchCond"_s, Field()), u"老王"_s);
    EXPECT_EQ(FocusName(), Field());

    InPicker([] { Enter(u"txtCustName"_s, u"生客"_s); });
    DoubleClick(Its(Field()));
    EXPECT_EQ(TextOf(u"frmSearchCond"_s, Field()), u"生客"_s);

    InPicker([] { Press(Qt::Key_Escape); });
    Press(Qt::Key_F2);
    EXPECT_EQ(TextOf(u"frmSearchCond"_s, Field()), u"生客"_s);
    EXPECT_TRUE(IsOpen());
}

INSTANTIATE_TEST_SUITE_P(Reports, BuyerOfAReport, ::testing::Values(u"RptCheque"_s, u"RptCheckCheque"_s),
                         [](const auto& test) { return test.param.toStdString(); });
