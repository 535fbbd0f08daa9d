#include "core/session/Session.h"
#include "tests/settlement/SettlementWindow.h"

#include <QFrame>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

class SettlementLoad : public EitherLayout {
protected:
    QWidget* Window() { return Windows().Find(Layout())->Widget(); }
};

} // namespace

INSTANTIATE_TEST_SUITE_P(, SettlementLoad, BothLayouts, LayoutName);

TEST_P(SettlementLoad, SendsTheseStatementsInOrder)
{
    Open(QString::fromLatin1(GetParam()));
    QStringList expected{u"SELECT CompName FROM Sys_Define"_s, u"SELECT DepartName FROM Sys_Define"_s};
    if (!IsLayoutA())
        expected << u"SELECT PrintStyle FROM DFN_Paper WHERE PaperID='P05'"_s;
    expected << u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate='2026-03-09' And TID='03' And UID='01'"_s
             << u"SELECT LabelID,Caption FROM DFN_CheckOutLabel Order By LabelID"_s
             << u"SELECT PRDNo FROM CheckOut WHERE CheckNo='01260309001'"_s;
    EXPECT_EQ(TakeStatements(), expected);
}

TEST_P(SettlementLoad, HeadsTheSheetWithCompanyDepartmentDateAndNumber)
{
    Db().Run(u"UPDATE Sys_Define SET CompName='朝阳果品行',DepartName='水果一部'"_s);
    OpenLayout();
    EXPECT_EQ(Window()->windowTitle(), u"客户结算"_s);
    EXPECT_EQ(LabelText(u"lblCompName"_s), u"朝阳果品行结算清单"_s);
    EXPECT_EQ(LabelText(u"lblReportName"_s), u"水果一部"_s);
    EXPECT_EQ(Text(u"txtCheckDate"_s), u"2026年03月09日"_s);
    EXPECT_TRUE(Box(u"txtCheckDate"_s)->isReadOnly());
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309001"_s);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
}

TEST_P(SettlementLoad, TakesTheSlotAndFreesItOnClosing)
{
    OpenLayout();
    EXPECT_FALSE(Session::WindowSlotFree);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(Session::WindowSlotFree);
    EXPECT_EQ(Windows().Find(Layout()), nullptr);
}

TEST_P(SettlementLoad, TheNumberFollowsTheUsersOwnCounterOfTheDay)
{
    Db().Run(u"INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES ('03','01','2026-03-09',11),"
             "('03','01','2026-03-08',50),('03','02','2026-03-09',60),('01','01','2026-03-09',70)"_s);
    OpenLayout();
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309012"_s);
}

TEST_P(SettlementLoad, TheThousandthNumberStandsUnpadded)
{
    Db().Run(u"INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES ('03','01','2026-03-09',999)"_s);
    OpenLayout();
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.012603091000"_s);
}

TEST_P(SettlementLoad, ANumberAlreadyTakenIsToldAndTheCounterMovesForTheNextOpening)
{
    Db().Run(u"INSERT INTO CheckOut (CheckNo,PRDNo) VALUES ('01260309001','X-1')"_s);
    boxes.Expect(u"单号重复，请重新打开本菜单！"_s);
    Open(QString::fromLatin1(GetParam()));
    const QStringList sent = TakeStatements();
    EXPECT_EQ(
        sent.mid(sent.size() - 2),
        (QStringList{
            u"SELECT CurrNumber FROM Count_Bill WHERE UID='01' And TID='03' And CurrDate='2026-03-09'"_s,
            u"INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES ('03','01','2026-03-09',1)"_s}));

    OpenLayout(); // the same window: it stayed open, with the number that is taken
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309001"_s);
    Press(Qt::Key_C, Qt::AltModifier);
    OpenLayout();
    EXPECT_EQ(Text(u"txtCheckNo"_s), u"NO.01260309002"_s);
}

TEST_P(SettlementLoad, FeeCaptionsComeFromTheTableAndTheAdvancesLineKeepsItsOwn)
{
    Db().Run(u"UPDATE DFN_CheckOutLabel SET Caption='过磅费' WHERE LabelID='L7'"_s);
    OpenLayout();
    QStringList captions;
    for (int i = 0; i < 10; ++i) {
        captions << LabelText(u"lblFee_%1"_s.arg(i));
        // A caption such as "<b>" is text, not markup.
        EXPECT_EQ(Find<QLabel>(Layout(), u"lblFee_%1"_s.arg(i))->textFormat(), Qt::PlainText);
    }
    EXPECT_EQ(captions, (QStringList{u"管理费"_s, u"服务费"_s, u"包装使用费"_s, u"装卸费"_s, u"预支款"_s,
                                     u"卫生费"_s, u"代扣税"_s, u"过磅费"_s, u"邮电费"_s, u"其  他"_s}));
}

TEST_P(SettlementLoad, LabelsThatNoLineHasAreIgnored)
{
    Db().Run(
        u"DELETE FROM DFN_CheckOutLabel; INSERT INTO DFN_CheckOutLabel VALUES ('L10','a'),('LX','b'),('L','c')"_s);
    OpenLayout();
    EXPECT_EQ(LabelText(u"lblFee_0"_s), u"管理费"_s);
    EXPECT_EQ(LabelText(u"lblFee_9"_s), u"其  他"_s);
}

TEST_P(SettlementLoad, ALoadThatFailsLeavesNoWindowAndTheSlotFree)
{
    FailStatement(1, Refusal::MissingTable);
    EXPECT_ANY_THROW(Windows().Show(QString::fromLatin1(GetParam()), nullptr));
    Settle();
    EXPECT_EQ(Windows().Find(QString::fromLatin1(GetParam())), nullptr);
    EXPECT_TRUE(Session::WindowSlotFree);
}

// The window is the printed sheet as well.

TEST_P(SettlementLoad, EverythingThatPrintsLiesOnTheSheet)
{
    constexpr int Right = 11300 / 15; // twips of A5 landscape less its margins, in pixels
    constexpr int Bottom = 8000 / 15;
    Db().Run(u"UPDATE Sys_Define SET CompName='某某市朝阳区农副产品批发市场果品经营有限公司'"_s);
    OpenLayout();
    const QString ruling = IsLayoutA() ? u"Tline_"_s : u"TLine_"_s;
    int rulings = 0;
    for (const QWidget* control : Window()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const QString name = control->objectName();
        if (name.startsWith(u"cmd") || name.startsWith(u"Sline_") || name.startsWith(u"linHover") ||
            name.startsWith(u"qt_"))
            continue;
        EXPECT_TRUE(name.startsWith(u"lbl") || name.startsWith(u"txt") || name.startsWith(ruling))
            << name.toStdString();
        rulings += name.startsWith(ruling) ? 1 : 0;
        EXPECT_GE(control->x(), 0) << name.toStdString();
        EXPECT_GE(control->y(), 0) << name.toStdString();
        EXPECT_LE(control->x() + control->width(), Right + 1) << name.toStdString();
        EXPECT_LE(control->y() + control->height(), Bottom) << name.toStdString();
    }
    EXPECT_GE(rulings, 15);
    EXPECT_LE(Window()->width(), 1366);
    EXPECT_LE(Window()->height(), 700);
}

TEST_P(SettlementLoad, NoTextIsCutOffAndNoTwoTextsCollide)
{
    Db().Run(u"UPDATE Sys_Define SET CompName='朝阳果品行',DepartName='水果一部'"_s);
    AddTicket(1000, 0, 1234567.8);
    OpenLayout();
    EnterLot();
    WalkToNames();
    QList<const QWidget*> placed;
    for (const QWidget* control : Window()->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        const auto* label = qobject_cast<const QLabel*>(control);
        const auto* box = qobject_cast<const QLineEdit*>(control);
        const QString name = control->objectName();
        if (label && name.startsWith(u"lbl")) {
            EXPECT_LE(label->fontMetrics().horizontalAdvance(label->text()), label->width())
                << name.toStdString();
            EXPECT_LE(label->fontMetrics().height(), label->height() + 1) << name.toStdString();
            placed << control;
        } else if (box) {
            constexpr int Edges = 11;
            EXPECT_LE(box->fontMetrics().horizontalAdvance(box->text()), box->width() - Edges)
                << name.toStdString();
            placed << control;
        }
    }
    for (const QWidget* one : placed) {
        for (const QWidget* other : placed)
            EXPECT_TRUE(one == other || !one->geometry().intersects(other->geometry()))
                << one->objectName().toStdString() << " over " << other->objectName().toStdString();
    }
}
