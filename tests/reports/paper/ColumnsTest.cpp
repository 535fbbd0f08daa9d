#include "core/base/RunTimeError.h"
#include "core/session/Session.h"
#include "reports/frmSetCol.h"
#include "reports/frmSetField.h"
#include "tests/reports/paper/SheetProbe.h"
#include "tests/support/WindowTest.h"

#include <QCheckBox>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QTest>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString AllFields = u"ColID,ColName,ColWidth,ColOrder,ColStatus"_s;

/// The columns of the report on the screen, changed as a user does it.
class ReportColumnWindows : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmReport"_s, [](QWidget* owner) -> Form* { return new SheetProbe(owner); });
        Windows().Register(u"frmSetField"_s, [](QWidget* owner) -> Form* { return new frmSetField(owner); });
        Windows().Register(u"frmSetCol"_s, [](QWidget* owner) -> Form* { return new frmSetCol(owner); });
        Session::CurrentMenuKey = u"RptSaleDetail"_s;
        Open(u"frmReport"_s);
    }

    SheetProbe& Probe() { return dynamic_cast<SheetProbe&>(*Windows().Find(u"frmReport"_s)); }
    ListGrid& Columns() { return *Find<ListGrid>(u"frmSetField"_s, u"lvRptCol"_s); }

    /// Runs once a window stands that keeps what opened it waiting; asked from the event loop until it does.
    static void InModal(const QString& name, const std::function<void()>& action)
    {
        QTimer::singleShot(0, [name, action] {
            Form* form = Windows().Find(name);
            if (!form || !form->Widget()->isVisible()) {
                InModal(name, action);
                return;
            }
            form->Widget()->activateWindow();
            Settle();
            action();
        });
    }

    QString Column(const QString& report, const QString& id)
    {
        return Value(u"SELECT CONCAT_WS('|',ColName,ColWidth,ColOrder,ColStatus) FROM DFN_RptCol "
                     "WHERE RptName='%1' AND ColID='%2'"_s.arg(report, id));
    }
};

struct Choice {
    QString key;
    QString kind;
    bool all;
    QString conditionKey;
    QString definition;
};

TEST_F(ReportColumnWindows, EachReportShowsTheDefinitionThatStandsOnTheScreen)
{
    const QList<Choice> choices{
        {u"RptSaleDescribe"_s, QString(), true, u"01"_s, u"RptSaleDescribe"_s},
        {u"RptSaleDescribe"_s, QString(), false, QString(), u"RptSaleDescribe2"_s},
        {u"RptCheque"_s, u"Detail"_s, true, QString(), u"RptChequeDetail"_s},
        {u"RptCheque"_s, u"Describe"_s, true, QString(), u"RptChequeDescribe"_s},
        {u"RptCheque"_s, QString(), true, QString(), u"RptChequeDescribe"_s},
        {u"RptSales"_s, u"Detail"_s, false, u"11"_s, u"RptSalesDetail"_s},
        {u"RptSales"_s, u"Describe"_s, false, u"11"_s, u"RptSalesDescribe2"_s}, // also of one day
        {u"RptSales"_s, u"Describe"_s, true, QString(), u"RptSalesDescribe"_s},
        {u"RptStoreDescribe"_s, QString(), false, u"一号库"_s, u"RptStoreDescribe2"_s},
        {u"RptStoreDescribe"_s, QString(), true, QString(), u"RptStoreDescribe"_s},
        {u"RptFee"_s, u"Detail"_s, true, QString(), u"RptFeeDetail"_s},
        {u"RptFee"_s, u"Describe"_s, true, QString(), u"RptFeeDescribe"_s},
        {u"RptPRDDescribe"_s, QString(), false, u"梨"_s, u"RptPRDDescribe2"_s},
        {u"RptPRDDescribe"_s, QString(), true, QString(), u"RptPRDDescribe"_s},
        {u"RptDayCust"_s, QString(), false, u"K-1"_s, u"RptDayCust"_s}, // its detail cannot be changed
        {u"RptSaleDetail"_s, u"Detail"_s, false, u"x"_s, u"RptSaleDetail"_s},
    };
    for (const Choice& choice : choices) {
        Session::CurrentMenuKey = choice.key;
        Session::ReportKind = choice.kind;
        Session::ConditionAll = choice.all;
        Session::ConditionKey = choice.conditionKey;
        TakeStatements();
        Open(u"frmSetField"_s);
        EXPECT_EQ(Session::SetColName, choice.definition);
        EXPECT_EQ(TakeStatements(),
                  (QStringList{u"SELECT RptTitle FROM DFN_RptTitle WHERE RptName='%1'"_s.arg(choice.key),
                               u"SELECT %1 FROM DFN_RptCol WHERE RptName='%2' Order By ColID"_s.arg(
                                   AllFields, choice.definition)}));
        EXPECT_EQ(Columns().RowCount(), Count(u"DFN_RptCol"_s, u"RptName='%1'"_s.arg(choice.definition)));
        EXPECT_GT(Columns().RowCount(), 0) << choice.definition.toStdString();
        Press(Qt::Key_Escape);
        EXPECT_EQ(Windows().Find(u"frmSetField"_s), nullptr);
    }
}

TEST_F(ReportColumnWindows, IncomeAndExpenseHasNone)
{
    Session::CurrentMenuKey = u"RptAmount"_s;
    Open(u"frmSetField"_s);
    EXPECT_EQ(Columns().RowCount(), 0);
    EXPECT_EQ(TextOf(u"frmSetField"_s, u"txtRptTitle"_s), u"收支统计表"_s);
    Press(Qt::Key_Return); // nothing to open
    EXPECT_EQ(Windows().Find(u"frmSetCol"_s), nullptr);
}

TEST_F(ReportColumnWindows, TheListTellsEachColumnWithATick)
{
    Db().Run(u"UPDATE DFN_RptCol SET ColStatus='0' WHERE RptName='RptSaleDetail' AND ColID='02'"_s);
    Open(u"frmSetField"_s);
    EXPECT_EQ(Find<QWidget>(u"frmSetField"_s, u"lvRptCol"_s)->window()->windowTitle(), u"报表设置"_s);
    QStringList headings;
    for (int i = 1; i < Columns().Content().ColumnCount(); ++i)
        headings << Columns().Content().Column(i).heading;
    EXPECT_EQ(headings, (QStringList{u"字段编号"_s, u"字段名称"_s, u"字段长度"_s, u"排序"_s, u"显示否"_s}));
    const auto row = [this](int index) {
        QStringList texts;
        for (int i = 1; i <= 5; ++i)
            texts << Columns().SubItem(index, i);
        return texts;
    };
    EXPECT_EQ(row(0), (QStringList{u"01"_s, u"流水号"_s, u"1260"_s, u"1"_s, u"√"_s}));
    EXPECT_EQ(row(1), (QStringList{u"02"_s, u"编号"_s, u"900"_s, u"2"_s, QString()}));
    EXPECT_EQ(FocusName(), u"lvRptCol"_s);
    EXPECT_TRUE(Find(u"frmSetField"_s, u"txtRptTitle"_s)->isReadOnly());
}

TEST_F(ReportColumnWindows, AColumnIsChangedByKeysAndStoredAtOnce)
{
    const QString untouched = Column(u"RptSaleDetail"_s, u"03"_s);
    const QString title = Value(u"SELECT RptTitle FROM DFN_RptTitle WHERE RptName='RptSaleDetail'"_s);
    Open(u"frmSetField"_s);
    Press(Qt::Key_Down);
    TakeStatements();
    InModal(u"frmSetCol"_s, [this] {
        EXPECT_EQ(TakeStatements(),
                  (QStringList{u"SELECT ColName,ColWidth,ColOrder,ColStatus FROM DFN_RptCol "
                               "WHERE RptName='RptSaleDetail' And ColID='02'"_s}));
        EXPECT_EQ(Windows().Find(u"frmSetCol"_s)->Widget()->windowTitle(), u"详细设置"_s);
        EXPECT_EQ(TextOf(u"frmSetCol"_s, u"txtColID"_s), u"02"_s);
        EXPECT_TRUE(Find(u"frmSetCol"_s, u"txtColID"_s)->isReadOnly());
        EXPECT_TRUE(Find<QCheckBox>(u"frmSetCol"_s, u"chkColStatus"_s)->isChecked());
        Enter(u"txtColName"_s, u" 批号 "_s);
        Enter(u"txtColWidth"_s, u" 宽 "_s); // no number: stored as it stands
        Enter(u"txtColOrder"_s, u" 0"_s);
        EXPECT_EQ(FocusName(), u"chkColStatus"_s);
        Press(Qt::Key_Space);
        Press(Qt::Key_Return); // the last one saves
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(Windows().Find(u"frmSetCol"_s), nullptr);
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"UPDATE DFN_RptCol SET ColName='批号',ColWidth='宽',ColOrder='0',ColStatus='0' "
                           "WHERE RptName='RptSaleDetail' And ColID='02'"_s,
                           u"SELECT %1 FROM DFN_RptCol WHERE RptName='RptSaleDetail' Order By ColID"_s.arg(
                               AllFields)}));
    EXPECT_EQ(Column(u"RptSaleDetail"_s, u"02"_s), u"批号|宽|0|0"_s);
    EXPECT_EQ(Column(u"RptSaleDetail"_s, u"03"_s), untouched);
    EXPECT_EQ(Columns().SubItem(1, 2), u"批号"_s);
    EXPECT_EQ(Columns().SelectedRow(), 1);
    EXPECT_TRUE(Probe().shown.isEmpty()); // the report still stands as it was

    Press(Qt::Key_C, Qt::AltModifier); // 关闭 leaves it so
    EXPECT_EQ(Windows().Find(u"frmSetField"_s), nullptr);
    EXPECT_TRUE(Probe().shown.isEmpty());
    EXPECT_EQ(Value(u"SELECT RptTitle FROM DFN_RptTitle WHERE RptName='RptSaleDetail'"_s), title);
}

TEST_F(ReportColumnWindows, AVariantIsChangedAloneAndTwoColumnsMayHaveOnePlace)
{
    Session::CurrentMenuKey = u"RptStoreDescribe"_s;
    Session::ConditionKey = u"一号库"_s;
    const QString other = Column(u"RptStoreDescribe"_s, u"02"_s);
    Open(u"frmSetField"_s);
    InModal(u"frmSetCol"_s, [] {
        Enter(u"txtColName"_s, u"日子"_s);
        Press(Qt::Key_Return);
        Enter(u"txtColOrder"_s, u"2"_s);
        Press(Qt::Key_S, Qt::AltModifier);
    });
    const QPoint place = Columns().RowRect(0).center();
    QTest::mouseClick(Columns().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseDClick(Columns().viewport(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(Column(u"RptStoreDescribe2"_s, u"01"_s).section(u'|', 0, 0), u"日子"_s);
    EXPECT_EQ(Count(u"DFN_RptCol"_s, u"RptName='RptStoreDescribe2' AND ColOrder=2"_s), 2);
    EXPECT_EQ(Column(u"RptStoreDescribe"_s, u"02"_s), other);
    EXPECT_EQ(Count(u"DFN_RptCol"_s, u"RptName='RptStoreDescribe' AND ColName='日子'"_s), 0);
}

TEST_F(ReportColumnWindows, SubmitBuildsTheReportAnewAndCloses)
{
    Open(u"frmSetField"_s);
    Probe().onShowData = [] { // a modal window would keep the keys from the progress
        EXPECT_FALSE(Windows().Find(u"frmSetField"_s)->Widget()->isVisible());
    };
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Probe().shown, QList<bool>{true});
    EXPECT_EQ(Windows().Find(u"frmSetField"_s), nullptr);
}

TEST_F(ReportColumnWindows, AReportThatCannotBeBuiltLeavesTheColumnsOpen)
{
    Open(u"frmSetField"_s);
    Probe().onShowData = [] { throw RunTimeError(u"类型不匹配"_s); };
    boxes.Expect(u"类型不匹配"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    boxes.Verify();
    ASSERT_NE(Windows().Find(u"frmSetField"_s), nullptr);
    EXPECT_TRUE(Windows().Find(u"frmSetField"_s)->Widget()->isVisible());
}

TEST_F(ReportColumnWindows, SubmitWithoutAReportCloses)
{
    Open(u"frmSetField"_s);
    Probe().close();
    Settle();
    Windows().Find(u"frmSetField"_s)->Widget()->activateWindow();
    Settle();
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Windows().Find(u"frmSetField"_s), nullptr);
}

TEST_F(ReportColumnWindows, ARefusedStoreIsToldAndTheColumnStaysOpen)
{
    Open(u"frmSetField"_s);
    const QString before = Column(u"RptSaleDetail"_s, u"01"_s);
    InModal(u"frmSetCol"_s, [this] {
        Enter(u"txtColName"_s, u"别的"_s);
        FailStatement(1, Refusal::Signalled);
        boxes.Expect(u"演练故障"_s);
        Press(Qt::Key_S, Qt::AltModifier);
        boxes.Verify();
        ASSERT_NE(Windows().Find(u"frmSetCol"_s), nullptr);
        EXPECT_EQ(TextOf(u"frmSetCol"_s, u"txtColName"_s), u"别的"_s);
        Press(Qt::Key_Escape);
    });
    Press(Qt::Key_Return);
    EXPECT_EQ(Windows().Find(u"frmSetCol"_s), nullptr);
    EXPECT_EQ(Column(u"RptSaleDetail"_s, u"01"_s), before);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(ReportColumnWindows, AColumnThatCannotBeReadDoesNotOpen)
{
    Open(u"frmSetField"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Press(Qt::Key_Return);
    boxes.Verify();
    EXPECT_EQ(Windows().Find(u"frmSetCol"_s), nullptr);
    Db();
}

TEST_F(ReportColumnWindows, TheListOfTheReportHasTheWayToThem)
{
    Probe().List()->SetColumns({{u"品名"_s, 1500, SheetColumn::Kind::Text}});
    Probe().List()->AddRow({u"梨"_s});
    Probe().List()->SelectRow(0);
    auto* popup = Probe().List()->findChild<QMenu*>(u"mnuPop"_s);
    ASSERT_NE(popup, nullptr);
    QStringList entries;
    for (const QAction* entry : popup->actions())
        entries << entry->text();
    EXPECT_EQ(entries, QStringList{u"报表设置"_s});

    QWidget* rows = Probe().List()->viewport();
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(5, 5), rows->mapToGlobal(QPoint(5, 5)));
    QCoreApplication::sendEvent(rows, &click);
    EXPECT_TRUE(popup->isVisible());
    popup->close();
    for (const auto& [key, modifier] :
         {std::pair{Qt::Key_Menu, Qt::NoModifier}, {Qt::Key_F10, Qt::ShiftModifier}}) {
        Press(key, modifier);
        EXPECT_TRUE(popup->isVisible());
        popup->close();
    }
    Press(Qt::Key_Menu);
    InModal(u"frmSetField"_s, [] { Press(Qt::Key_Escape); });
    popup->setActiveAction(popup->actions().constFirst());
    QTest::keyClick(popup, Qt::Key_Return);
    Settle();
    EXPECT_EQ(Windows().Find(u"frmSetField"_s), nullptr);
    EXPECT_EQ(Session::SetColName, u"RptSaleDetail"_s); // it was there
    EXPECT_EQ(FocusName(), u"lvReport"_s);
}

} // namespace
