#include "core/forms/Fields.h"
#include "core/session/Session.h"
#include "settlement/frmCheckOut.h"
#include "settlement/frmCheckOutA.h"
#include "settlement/frmSetFeeLabel.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

/// The renaming of a fee over the two settlement layouts.
class FeeLabel : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmCheckOut"_s, [](QWidget* owner) { return new frmCheckOut(owner); });
        Windows().Register(u"frmCheckOutA"_s, [](QWidget* owner) { return new frmCheckOutA(owner); });
        Windows().Register(u"frmSetFeeLabel"_s, [](QWidget* owner) { return new frmSetFeeLabel(owner); });
        Db().Run(u"INSERT INTO PRD_List (ID,PRDNo,PRDName,CustName,Num) VALUES "
                 "('20260301001','A-001','红富士','王建国',100)"_s);
    }

    /// Opens a layout and enters a lot: without one the cursor does not leave its number.
    void OpenSettlement(const QString& layout)
    {
        Open(layout);
        Enter(u"txtPRDNo"_s, u"A-001"_s);
    }

    /// Opens a layout and, by F2 in a field, the renaming; `work` is done in it.
    void Rename(const QString& layout, const QString& field, const std::function<void()>& work)
    {
        if (!Windows().Find(layout))
            OpenSettlement(layout);
        FocusAndSelect(Find(layout, field));
        Settle();
        InModal([] { Press(Qt::Key_F2); }, work);
    }

    /// `open` opens the renaming and comes back when it closes; `work` is done in between.
    void InModal(const std::function<void()>& open, const std::function<void()>& work)
    {
        bool wasOpen = false;
        QMetaObject::invokeMethod(
            qApp,
            [&] {
                WaitFor([] { return FocusName() == u"txtCaption"; });
                wasOpen = true;
                TakeStatements();
                work();
                if (Form* form = Windows().Find(u"frmSetFeeLabel"_s))
                    form->Widget()->close();
            },
            Qt::QueuedConnection);
        open();
        EXPECT_TRUE(wasOpen);
        Settle();
    }

    QString CaptionOf(const QString& layout, int fee)
    {
        return Find<QLabel>(layout, u"lblFee_%1"_s.arg(fee))->text();
    }
    QString Column(const QString& report, const QString& id)
    {
        return Value(u"SELECT ColName FROM DFN_RptCol WHERE RptName='%1' And ColID='%2'"_s.arg(report, id));
    }
    /// All names a renaming may touch, to see what did not change.
    QString AllNames()
    {
        return Value(u"SELECT GROUP_CONCAT(Caption ORDER BY LabelID) FROM DFN_CheckOutLabel"_s) + u'/' +
               Value(u"SELECT GROUP_CONCAT(ColName ORDER BY RptName,ColID) FROM DFN_RptCol"_s);
    }
    static QStringList StatementsOf(const QString& key, const QString& detail, const QString& describe,
                                    const QString& name)
    {
        return {
            u"UPDATE DFN_CheckOutLabel SET Caption='%1' WHERE LabelID='%2'"_s.arg(name, key),
            u"UPDATE DFN_RptCol SET ColName='%1' WHERE RptName='RptCheckOutDetail' And ColID='%2'"_s.arg(
                name, detail),
            u"UPDATE DFN_RptCol SET ColName='%1' WHERE RptName='RptCheckOutDescribe' And ColID='%2'"_s.arg(
                name, describe)};
    }
};

struct Fee {
    int index;
    QString rate; ///< "" without one
    QString amount;
    QString caption;
    QString detailColumn;
    QString describeColumn;
};

const std::vector<Fee> Fees{
    {0, u"txtPer_LManage"_s, u"txtLManagePrice"_s, u"管理费"_s, u"06"_s, u"03"_s},
    {1, u"txtPer_LElect"_s, u"txtLElectPrice"_s, u"服务费"_s, u"07"_s, u"04"_s},
    {2, QString(), u"txtLPackPrice"_s, u"包装使用费"_s, u"08"_s, u"05"_s},
    {3, u"txtPer_LUnload"_s, u"txtLUnloadPrice"_s, u"装卸费"_s, u"09"_s, u"06"_s},
    {4, QString(), u"txtLExpendPrice"_s, u"预支款"_s, u"10"_s, u"07"_s},
    {5, u"txtPer_LSani"_s, u"txtLSanitationPrice"_s, u"卫生费"_s, u"11"_s, u"08"_s},
    {6, QString(), u"txtLRecoupPrice"_s, u"代扣税"_s, u"12"_s, u"09"_s},
    {7, QString(), u"txtLChillPrice"_s, u"冷藏费"_s, u"13"_s, u"10"_s},
    {8, QString(), u"txtLFieldPrice"_s, u"邮电费"_s, u"14"_s, u"11"_s},
    {9, QString(), u"txtLOtherPrice"_s, u"其  他"_s, u"15"_s, u"12"_s},
};

} // namespace

TEST_F(FeeLabel, EachFeeIsRenamedByF2InItsFieldsOnBothLayoutsWithItsReportColumns)
{
    for (const QString& layout : {u"frmCheckOut"_s, u"frmCheckOutA"_s}) {
        const QString prefix = layout == u"frmCheckOut" ? u"甲"_s : u"乙"_s;
        for (const Fee& fee : Fees) {
            for (const QString& field : {fee.rate, fee.amount}) {
                if (field.isEmpty())
                    continue;
                SCOPED_TRACE((layout + u' ' + field).toStdString());
                const QString name = prefix + field;
                Rename(layout, field, [&] {
                    EXPECT_EQ(Session::FeeLabelKey, u"L%1"_s.arg(fee.index));
                    Type(name);
                    Press(Qt::Key_Return);
                });
                EXPECT_EQ(TakeStatements(),
                          StatementsOf(u"L%1"_s.arg(fee.index), fee.detailColumn, fee.describeColumn, name));
                EXPECT_EQ(Column(u"RptCheckOutDetail"_s, fee.detailColumn), name);
                EXPECT_EQ(Column(u"RptCheckOutDescribe"_s, fee.describeColumn), name);
                EXPECT_EQ(FocusName(), field) << "the cursor is back where it was";
                // The layout that is not refreshed shows the name when it opens again.
                if (layout == u"frmCheckOut")
                    EXPECT_EQ(CaptionOf(layout, fee.index), name);
                else
                    EXPECT_NE(CaptionOf(layout, fee.index), name);
            }
        }
        Windows().Find(layout)->Widget()->close();
        Settle();
        Open(layout);
        for (const Fee& fee : Fees)
            EXPECT_EQ(CaptionOf(layout, fee.index), fee.index == 4 ? u"预支款"_s : prefix + fee.amount);
        Windows().Find(layout)->Widget()->close();
        Settle();
    }
}

TEST_F(FeeLabel, TheCaptionsFollowTheLabelsAndNotTheFields)
{
    for (const Fee& fee : Fees) {
        Rename(u"frmCheckOut"_s, fee.amount, [this, &fee] {
            EXPECT_EQ(TextOf(u"frmSetFeeLabel"_s, u"txtCaption"_s), fee.caption);
            EXPECT_EQ(Column(u"RptCheckOutDetail"_s, fee.detailColumn), fee.caption) << "as the seed has it";
            EXPECT_EQ(Column(u"RptCheckOutDescribe"_s, fee.describeColumn), fee.caption);
        });
    }
}

TEST_F(FeeLabel, ADoubleClickOnTheCaptionOpensItWithTheNameSelected)
{
    for (const QString& layout : {u"frmCheckOut"_s, u"frmCheckOutA"_s}) {
        Open(layout);
        InModal([&] { DoubleClick(Find<QLabel>(layout, u"lblFee_5"_s)); },
                [this] {
                    EXPECT_EQ(Session::FeeLabelKey, u"L5"_s);
                    QWidget* window = Windows().Find(u"frmSetFeeLabel"_s)->Widget();
                    EXPECT_EQ(window->windowTitle(), u"收费名称修改"_s);
                    EXPECT_TRUE(window->isModal());
                    EXPECT_EQ(Find<QLabel>(u"frmSetFeeLabel"_s, u"cmdSubmit"_s)->text(), u"确定"_s);
                    EXPECT_EQ(Find<QLabel>(u"frmSetFeeLabel"_s, u"cmdCancel"_s)->text(), u"关闭"_s);
                    EXPECT_EQ(Find(u"frmSetFeeLabel"_s, u"txtCaption"_s)->selectedText(), u"卫生费"_s);
                });
        Windows().Find(layout)->Widget()->close();
        Settle();
    }
}

TEST_F(FeeLabel, LabelFourHasNoRowAndRenamesItsColumnsAndTheCaptionUntilTheNextOpening)
{
    Rename(u"frmCheckOut"_s, u"txtLExpendPrice"_s, [] {
        Type(u"先付"_s);
        Press(Qt::Key_S, Qt::AltModifier);
    });
    EXPECT_EQ(TakeStatements(), StatementsOf(u"L4"_s, u"10"_s, u"07"_s, u"先付"_s));
    EXPECT_EQ(Count(u"DFN_CheckOutLabel"_s), 9);
    EXPECT_EQ(Column(u"RptCheckOutDetail"_s, u"10"_s), u"先付"_s);
    EXPECT_EQ(Column(u"RptCheckOutDescribe"_s, u"07"_s), u"先付"_s);
    EXPECT_EQ(CaptionOf(u"frmCheckOut"_s, 4), u"先付"_s);
    Windows().Find(u"frmCheckOut"_s)->Widget()->close();
    Settle();
    Open(u"frmCheckOut"_s);
    EXPECT_EQ(CaptionOf(u"frmCheckOut"_s, 4), u"预支款"_s);
}

TEST_F(FeeLabel, AnEmptyNameDoesNothingAndTheWindowStays)
{
    const QString before = AllNames();
    Rename(u"frmCheckOut"_s, u"txtLChillPrice"_s, [this] {
        Press(Qt::Key_Delete);
        Press(Qt::Key_Return);
        Press(Qt::Key_S, Qt::AltModifier);
        EXPECT_NE(Windows().Find(u"frmSetFeeLabel"_s), nullptr);
        EXPECT_EQ(TakeStatements(), QStringList());
        Press(Qt::Key_C, Qt::AltModifier);
        EXPECT_EQ(Windows().Find(u"frmSetFeeLabel"_s), nullptr);
    });
    EXPECT_EQ(AllNames(), before);
    EXPECT_EQ(CaptionOf(u"frmCheckOut"_s, 7), u"冷藏费"_s);
}

TEST_F(FeeLabel, TheSettlementKeepsItsPlaceAsTheOpenFunctionAndItsFigures)
{
    OpenSettlement(u"frmCheckOut"_s);
    Find(u"frmCheckOut"_s, u"txtLChillPrice"_s)->setText(u"12.5"_s);
    Rename(u"frmCheckOut"_s, u"txtLChillPrice"_s, [] { Press(Qt::Key_Return); });
    EXPECT_FALSE(Session::WindowSlotFree);
    EXPECT_EQ(TextOf(u"frmCheckOut"_s, u"txtLChillPrice"_s), u"12.5"_s);
    EXPECT_EQ(FocusName(), u"txtLChillPrice"_s);
}

TEST_F(FeeLabel, ARefusedStatementIsShownAndWhatRanBeforeStands)
{
    for (int n = 1; n <= 3; ++n) {
        SCOPED_TRACE(n);
        const QString name = u"新%1"_s.arg(n);
        Rename(u"frmCheckOut"_s, u"txtLChillPrice"_s, [this, n, &name] {
            Type(name);
            FailStatement(n, Refusal::Signalled);
            boxes.Expect(u"演练故障"_s);
            Press(Qt::Key_Return);
            EXPECT_EQ(TakeStatements(), StatementsOf(u"L7"_s, u"13"_s, u"10"_s, name).mid(0, n));
            EXPECT_EQ(Count(u"DFN_CheckOutLabel"_s, u"Caption='%1'"_s.arg(name)), n > 1 ? 1 : 0);
            EXPECT_EQ(Column(u"RptCheckOutDetail"_s, u"13"_s) == name, n > 2);
            EXPECT_NE(Column(u"RptCheckOutDescribe"_s, u"10"_s), name);
            EXPECT_NE(CaptionOf(u"frmCheckOut"_s, 7), name);
            EXPECT_EQ(TextOf(u"frmSetFeeLabel"_s, u"txtCaption"_s), name) << "and can be saved again";
        });
    }
    EXPECT_EQ(Count(u"ErrInfo"_s), 0) << "the renaming keeps no error row";
}

TEST_F(FeeLabel, BadNamesAreRefusedByTheServerOrTakenAsTheyAre)
{
    const QString before = AllNames();
    Rename(u"frmCheckOut"_s, u"txtLChillPrice"_s, [this] {
        for (const QString& bad : {u"o'k"_s, u"费\\"_s}) {
            Find(u"frmSetFeeLabel"_s, u"txtCaption"_s)->selectAll();
            Type(bad);
            boxes.ExpectContaining(u"SQL syntax"_s);
            Press(Qt::Key_Return);
            EXPECT_EQ(TextOf(u"frmSetFeeLabel"_s, u"txtCaption"_s), bad);
        }
    });
    EXPECT_EQ(AllNames(), before);

    Rename(u"frmCheckOut"_s, u"txtLChillPrice"_s, [this] {
        Find(u"frmSetFeeLabel"_s, u"txtCaption"_s)->selectAll();
        Type(QString(70, u'冷'));
        EXPECT_EQ(TextOf(u"frmSetFeeLabel"_s, u"txtCaption"_s).size(), 60) << "as wide as the columns";
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Value(u"SELECT Caption FROM DFN_CheckOutLabel WHERE LabelID='L7'"_s), QString(60, u'冷'));
    EXPECT_EQ(Count(u"DFN_RptCol"_s, u"ColName='%1'"_s.arg(QString(60, u'冷'))), 2);

    Rename(u"frmCheckOut"_s, u"txtLChillPrice"_s, [] {
        Type(u" <b>１２</b> "_s);
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Value(u"SELECT Caption FROM DFN_CheckOutLabel WHERE LabelID='L7'"_s), u" <b>１２</b> "_s);
    EXPECT_EQ(CaptionOf(u"frmCheckOut"_s, 7), u" <b>１２</b> "_s);
}

TEST_F(FeeLabel, AKeyWithoutANumberIsToldAfterTheLabel)
{
    Session::FeeLabelKey = u"L"_s;
    Open(u"frmSetFeeLabel"_s);
    Type(u"x"_s);
    boxes.Expect(u"类型不匹配"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(TakeStatements().size(), 1);
    EXPECT_NE(Windows().Find(u"frmSetFeeLabel"_s), nullptr);
}
