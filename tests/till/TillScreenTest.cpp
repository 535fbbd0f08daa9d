#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/till/TillTest.h"

#include <QColor>
#include <QFontMetricsF>
#include <QPalette>
#include <QWidget>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString Unsaved = u"没有编号，这一单没有保存；\n单号NO.01260309002已用掉。"_s;

/// A picker that takes 鲜多多 as soon as it opens, or nobody.
class Picker : public QWidget, public Form {
public:
    Picker(QWidget* owner, bool takes) : QWidget(owner, Qt::Dialog), m_takes(takes) {}

    QWidget* Widget() override { return this; }
    void OnLoad() override
    {
        if (m_takes)
            Windows().Find(u"frmSale"_s)->TakeName(u"鲜多多"_s);
        Windows().Unloaded(this);
        deleteLater();
    }

private:
    bool m_takes;
};

class TillScreen : public OpenTillTest {
protected:
    QLabel* Display(const QString& name) { return Find<QLabel>(u"frmSale"_s, name); }
    QColor ColourOf(const QString& display)
    {
        return Display(display)->palette().color(QPalette::WindowText);
    }
    double PointsOf(const QString& display) { return Display(display)->font().pointSizeF(); }
    double RoomLeft(const QString& display)
    {
        const QLabel* label = Display(display);
        return label->width() - QFontMetricsF(label->font()).horizontalAdvance(label->text());
    }
    void SellAndPay(const QString& paid)
    {
        Sell({.num = u"2"_s, .upr = u"4"_s, .closesBatch = true});
        Enter(u"txtRPrice"_s, paid);
    }
    /// The lot of the last ticket is still in hand, its number is not.
    void SaveWithoutNumber()
    {
        Press(Qt::Key_Return);
        Box(u"txtUPR"_s)->setText(u"3"_s);
        Box(u"txtSalesID"_s)->setText(u"11"_s);
        ClickSave(); // the key would leave the empty number first, and be refused
    }
};

} // namespace

// The change of the batch before

TEST_F(TillScreen, ChangeIsLargeAndGreenUntilTheNextBatchClosesThenSmallAndDim)
{
    SellAndPay(u"10"_s);
    const QColor green = ColourOf(u"FlblGPrice"_s);
    const double large = PointsOf(u"FlblGPrice"_s);
    EXPECT_GT(green.green(), 200);
    EXPECT_GE(large, 24);

    Sell();
    EXPECT_EQ(ColourOf(u"FlblGPrice"_s), green) << "the batch is open";
    EXPECT_EQ(PointsOf(u"FlblGPrice"_s), large);

    Sell({.closesBatch = true});
    EXPECT_EQ(FocusName(), u"txtRPrice"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"¥2.0"_s) << "it stays";
    EXPECT_LT(ColourOf(u"FlblGPrice"_s).green(), 150);
    EXPECT_LE(PointsOf(u"FlblGPrice"_s), large / 2);

    Enter(u"txtRPrice"_s, u"100"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"¥35.0"_s);
    EXPECT_EQ(ColourOf(u"FlblGPrice"_s), green);
    EXPECT_EQ(PointsOf(u"FlblGPrice"_s), large);
}

TEST_F(TillScreen, AnEmptyPaymentLeavesNoOldChange)
{
    SellAndPay(u"10"_s);
    Sell({.closesBatch = true});
    Press(Qt::Key_Return);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), QString());
}

TEST_F(TillScreen, AShortPaymentHasAColourOfItsOwnUntilOneSuffices)
{
    SellAndPay(u"10"_s);
    const QColor green = ColourOf(u"FlblGPrice"_s);
    GoTo(u"txtRPrice"_s);
    Enter(u"txtRPrice"_s, u"5"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"-¥3.0"_s);
    EXPECT_NE(ColourOf(u"FlblGPrice"_s), green);
    EXPECT_GT(ColourOf(u"FlblGPrice"_s).red(), 200);
    GoTo(u"txtRPrice"_s);
    Enter(u"txtRPrice"_s, u"8"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"¥0.0"_s);
    EXPECT_EQ(ColourOf(u"FlblGPrice"_s), green);
}

// Keys

TEST_F(TillScreen, F2PicksTheBuyerFromEveryFieldAndComesBackToIt)
{
    Windows().Register(u"frmGetCustList"_s, [](QWidget* owner) { return new Picker(owner, true); });
    TypeTicket();
    TakeStatements();
    for (const QString& field :
         {u"txtVendee"_s, u"txtPRDNo"_s, u"txtPRDName"_s, u"txtNum"_s, u"txtSuttle"_s, u"txtUPR"_s,
          u"txtPerPack"_s, u"txtPerForegift"_s, u"txtListNo"_s, u"txtSalesID"_s, u"txtRPrice"_s}) {
        GoTo(field);
        Till().TakeName(u"阿芳"_s);
        Press(Qt::Key_F2);
        EXPECT_EQ(Text(u"txtVendee"_s), u"鲜多多"_s) << field.toStdString();
        EXPECT_EQ(FocusName(), field);
    }
    GoTo(u"txtSalesID"_s);
    for (const QString& list : {u"cmbSaleType"_s, u"cmbCheckStatus"_s}) {
        Press(Qt::Key_Return);
        Till().TakeName(u"阿芳"_s);
        Press(Qt::Key_F2);
        EXPECT_EQ(Text(u"txtVendee"_s), u"鲜多多"_s) << list.toStdString();
        EXPECT_EQ(FocusName(), list);
        EXPECT_EQ(List(list)->currentIndex(), 0);
    }
    EXPECT_EQ(Text(u"txtNum"_s), u"10"_s);
    ExpectNothingWritten();
}

TEST_F(TillScreen, APickerThatIsGivenUpLeavesTheBuyer)
{
    Windows().Register(u"frmGetCustList"_s, [](QWidget* owner) { return new Picker(owner, false); });
    Till().TakeName(u"阿芳"_s);
    GoTo(u"txtUPR"_s);
    Press(Qt::Key_F2);
    EXPECT_EQ(Text(u"txtVendee"_s), u"阿芳"_s);
    EXPECT_EQ(FocusName(), u"txtUPR"_s);
}

TEST_F(TillScreen, AKeyBringsTheCursorToThePaymentAndStandsBesideItsCaption)
{
    EXPECT_EQ(Caption(u"FlblPaidKey"_s), u"Alt+R"_s);
    EXPECT_EQ(Caption(u"FlblPaidCaption"_s), u"实收"_s);
    SellAndPay(u"10"_s);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    Press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtRPrice"_s);
    EXPECT_EQ(Box(u"txtRPrice"_s)->selectedText(), u"10"_s);
    Enter(u"txtRPrice"_s, u"20"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"¥12.0"_s);
}

TEST_F(TillScreen, TheKeyReachesThePaymentFromANumberThatIsStillEmpty)
{
    SellAndPay(u"10"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    Press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtRPrice"_s);
}

TEST_F(TillScreen, TheKeyToThePaymentLeavesAFieldAsAClickDoes)
{
    Press(Qt::Key_Return);
    Type(u"Z-9"_s);
    boxes.Expect(u"该编号不存在或已结算，请重新输入！"_s);
    Press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
}

// A ticket without a number

TEST_F(TillScreen, FiguresWithoutANumberAreSaidNotToBeSaved)
{
    Sell();
    EXPECT_EQ(Caption(u"FlblNotice"_s), QString());
    SaveWithoutNumber();
    EXPECT_EQ(Caption(u"FlblNotice"_s), Unsaved);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(TicketCounter(), u"2"_s);
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309003"_s);
    EXPECT_EQ(Text(u"txtUPR"_s), QString());
}

TEST_F(TillScreen, TheNoticeStandsUntilSomethingIsTypedAgain)
{
    Sell();
    SaveWithoutNumber();
    Press(Qt::Key_Return); // moving on is not yet typing
    EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    EXPECT_EQ(Caption(u"FlblNotice"_s), Unsaved);
    Type(u"A"_s);
    EXPECT_EQ(Caption(u"FlblNotice"_s), QString());
}

TEST_F(TillScreen, TheNoticeGoesWithTheNextTicket)
{
    Sell();
    SaveWithoutNumber();
    for (const auto& [box, text] : {std::pair{u"txtPRDNo"_s, u"A-001"_s}, std::pair{u"txtUPR"_s, u"2"_s},
                                    std::pair{u"txtSalesID"_s, u"11"_s}})
        Box(box)->setText(text);
    EXPECT_EQ(Caption(u"FlblNotice"_s), Unsaved) << "what the program writes is not typing";
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    EXPECT_EQ(Caption(u"FlblNotice"_s), QString());
}

TEST_F(TillScreen, ARefusedTicketIsNotSaidToHaveUsedUpANumber)
{
    Sell();
    Press(Qt::Key_Return);
    Box(u"txtUPR"_s)->setText(u"3"_s);
    boxes.Expect(u"工号不能为空！"_s);
    ClickSave();
    EXPECT_EQ(Caption(u"FlblNotice"_s), QString());
}

// Whole figures

TEST_F(TillScreen, ALargeTotalShrinksBeforeItsFrontIsCut)
{
    TypeTicket();
    const double large = PointsOf(u"FlblTPrice01"_s);
    GoTo(u"txtSuttle"_s);
    Type(u"99999999"_s);
    GoTo(u"txtUPR"_s);
    Type(u"9999"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥999,899,990,001.0"_s);
    EXPECT_GE(RoomLeft(u"FlblTPrice01"_s), 0);
    EXPECT_GE(RoomLeft(u"FlblUCaseTPrice01"_s), 0);
    EXPECT_LT(PointsOf(u"FlblTPrice01"_s), large);
    GoTo(u"txtUPR"_s);
    Type(u"1"_s);
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), u"¥99,999,999.0"_s);
    EXPECT_EQ(PointsOf(u"FlblTPrice01"_s), large);
}

TEST_F(TillScreen, LastBatchAndChangeOfAnySizeAreWhole)
{
    TypeTicket({.suttle = u"99999999"_s, .upr = u"9999"_s, .closesBatch = true});
    Press(Qt::Key_Return);
    Enter(u"txtRPrice"_s, u"1"_s);
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), u"¥999,899,990,001.0"_s);
    EXPECT_EQ(Caption(u"FlblGPrice"_s), u"-¥999,899,990,000.0"_s);
    for (const QString& display : {u"FlblTPrice02"_s, u"FlblUCaseTPrice02"_s, u"FlblGPrice"_s})
        EXPECT_GE(RoomLeft(display), 0) << display.toStdString();
}

// A lookup that fails

TEST_F(TillScreen, AFailedLookupLeavesNoLotInHand)
{
    Sell();
    Press(Qt::Key_Return);
    Type(u"B-001"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtPRDNo"_s), u"B-001"_s);
    Box(u"txtUPR"_s)->setText(u"3"_s);
    Box(u"txtSalesID"_s)->setText(u"11"_s);
    boxes.Expect(u"该编号已被结算，不能进行收银处理，请确认。"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(Count(u"Sal_List"_s), 1) << "not a ticket of B-001 off the lot before";
    EXPECT_EQ(NumSal(u"A-001"_s), u"90"_s);
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
}

// Totals that could not be worked out

TEST_F(TillScreen, TotalsThatFailedOnTheLastKeystrokeAreWorkedOutBeforeTheSave)
{
    TypeTicket({.num = u"10"_s, .upr = u"3"_s});
    GoTo(u"txtPerPack"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Type(u"2"_s);
    EXPECT_EQ(Text(u"txtTotalAmount"_s), u"¥30.0"_s) << "still without the fee";
    ClickSave();
    EXPECT_EQ(TicketRow(u"01260309001"_s, u"Amount,PackAmount,TotalAmount"_s),
              (QStringList{u"30"_s, u"20"_s, u"50"_s}));
}

TEST_F(TillScreen, TotalsThatFailAgainAtTheSaveStopIt)
{
    TypeTicket();
    GoTo(u"txtPerPack"_s);
    Db().Run(u"RENAME TABLE DFN_Round TO Away"_s);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Type(u"2"_s);
    boxes.ExpectContaining(u"doesn't exist"_s);
    ClickSave();
    EXPECT_EQ(Text(u"txtPerPack"_s), u"2"_s);
    ExpectNothingWritten();
    Db().Run(u"RENAME TABLE Away TO DFN_Round"_s);
    ClickSave();
    EXPECT_EQ(TicketRow(u"01260309001"_s, u"PackAmount,TotalAmount"_s), (QStringList{u"20"_s, u"52.5"_s}));
}

namespace {

class NarrowFields : public TillTest {
protected:
    /// The till with the check code on, in front of a lot whose texts are long.
    void SetUp() override
    {
        TillTest::SetUp();
        Db().Run(uR"(
            UPDATE Sys_Define SET bolVerify='1';
            UPDATE PRD_List SET PRDNo='AB12-001',PRDName='红富士一级果大箱',CustName='内蒙古自治区果品合作社',
              PArea='新疆阿克苏红旗坡农场',VerifyID='258036' WHERE ID='20260309002';
            INSERT INTO Sales VALUES ('10234','欧阳建国华');
        )"_s);
        OpenTill();
    }

    static bool IsWhole(const QWidget* control, const QString& text, double room)
    {
        return QFontMetricsF(control->font()).horizontalAdvance(text) <= room;
    }
    /// A box takes up to ten pixels beside its text: frame, padding, cursor.
    bool IsWholeInBox(const QString& name) { return IsWhole(Box(name), Text(name), Box(name)->width() - 10); }
};

} // namespace

TEST_F(NarrowFields, NumberCodeSalesmanAndNamesOfFullLengthAreWhole)
{
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"AB12-001"_s);
    Enter(u"txtVerifyID"_s, u"258036"_s);
    Enter(u"txtPRDName"_s, QString());
    GoTo(u"txtSalesID"_s);
    Type(u"10234"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtSalesName"_s), u"欧阳建国华"_s);
    for (const QString& box :
         {u"txtPRDNo"_s, u"txtVerifyID"_s, u"txtPRDName"_s, u"txtSalesID"_s, u"txtSalesName"_s})
        EXPECT_TRUE(IsWholeInBox(box)) << box.toStdString();
    for (const QString& name : {u"lblCustName"_s, u"lblPArea"_s}) {
        const auto* label = Find<QLabel>(u"frmSale"_s, name);
        EXPECT_TRUE(IsWhole(label, label->text(), label->width())) << name.toStdString();
    }
}

TEST_F(NarrowFields, UsualNumbersAndCodesNeedNoNarrowing)
{
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"A-001"_s);
    Enter(u"txtVerifyID"_s, u"2580"_s);
    for (const QString& box : {u"txtPRDNo"_s, u"txtVerifyID"_s, u"txtPRDName"_s}) {
        EXPECT_TRUE(IsWholeInBox(box)) << box.toStdString();
        EXPECT_EQ(Box(box)->font().stretch() % QFont::Unstretched, 0) << box.toStdString();
    }
    EXPECT_TRUE(IsWhole(Box(u"txtVerifyID"_s), Box(u"txtVerifyID"_s)->placeholderText(),
                        Box(u"txtVerifyID"_s)->width() - 8));
}

TEST_F(NarrowFields, ANarrowedTextKeepsItsSizeWhichPaperTakesFromIt)
{
    const double points = Box(u"txtPRDNo"_s)->font().pointSizeF();
    Press(Qt::Key_Return);
    Type(u"AB12-001"_s);
    EXPECT_LT(Box(u"txtPRDNo"_s)->font().stretch(), QFont::Unstretched);
    EXPECT_EQ(Box(u"txtPRDNo"_s)->font().pointSizeF(), points);
    Press(Qt::Key_A, Qt::ControlModifier);
    Type(u"A-001"_s);
    EXPECT_EQ(Box(u"txtPRDNo"_s)->font().stretch(), QFont::Unstretched);
}

TEST_F(NarrowFields, FiguresOfNineDigitsAreWhole)
{
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"A-001"_s);
    Enter(u"txtVerifyID"_s, u"2580"_s);
    Enter(u"txtPRDName"_s, QString());
    for (const auto& [box, figure] :
         {std::pair{u"txtNum"_s, u"123456789.5"_s}, std::pair{u"txtSuttle"_s, u"123456789.5"_s},
          std::pair{u"txtUPR"_s, u"1234567.55"_s}, std::pair{u"txtPerPack"_s, u"123456.5"_s},
          std::pair{u"txtPerForegift"_s, u"123456.5"_s}}) {
        GoTo(box);
        Type(figure);
    }
    GoTo(u"txtListNo"_s);
    for (const QString& box :
         {u"txtNum"_s, u"txtSuttle"_s, u"txtUPR"_s, u"txtAmount"_s, u"txtPerPack"_s, u"txtPackAmount"_s,
          u"txtPerForegift"_s, u"txtForegiftAmount"_s, u"txtTotalAmount"_s})
        EXPECT_TRUE(IsWholeInBox(box)) << box.toStdString() << " " << Text(box).toStdString();
}
