#include "tests/till/TillTest.h"

using namespace Qt::StringLiterals;

namespace {

class BadInput : public OpenTillTest {};

struct Figure {
    const char* name;
    QString field;
    QString message;
};

class BadFigure : public OpenTillTest, public ::testing::WithParamInterface<Figure> {};

const QString LongDigits = QString(300, u'9');

} // namespace

TEST_P(BadFigure, ShowsItsMessageIsEmptiedAndKeepsTheFocus)
{
    TypeTicket();
    GoTo(GetParam().field);
    TakeStatements();
    const QString total = Text(u"txtTotalAmount"_s);
    for (const QString& text :
         {u"a"_s, u"'"_s, u"\\"_s, u" "_s, u"-"_s, u"."_s, u"¥"_s, u"１２"_s, u"件"_s}) {
        boxes.Expect(GetParam().message);
        Paste(text);
        EXPECT_EQ(Text(GetParam().field), QString()) << text.toStdString();
        EXPECT_EQ(FocusName(), GetParam().field);
    }
    boxes.Expect(GetParam().message);
    Type(u"1"_s);
    Type(u"x"_s);
    EXPECT_EQ(Text(GetParam().field), QString());
    EXPECT_EQ(FocusName(), GetParam().field);
    EXPECT_EQ(Text(u"txtPRDNo"_s), u"A-001"_s);
    EXPECT_EQ(Text(u"txtPRDName"_s), u"苹果"_s);
    ExpectNothingWritten();
}

TEST_P(BadFigure, AHugeNumberIsCutToTheFieldAndRefusedAtTheSave)
{
    const QString field = GetParam().field;
    TypeTicket({.num = u"1"_s, .perForegift = u"0"_s});
    GoTo(field);
    Paste(LongDigits);
    EXPECT_EQ(Text(field), LongDigits.left(20));
    if (field == u"txtRPrice")
        return;
    boxes.Expect(u"溢出"_s);
    ClickSave();
    EXPECT_EQ(Text(field), LongDigits.left(20));
    EXPECT_EQ(Count(u"ErrInfo"_s, u"ErrDescription='溢出' AND ErrSource='保存收银信息'"_s), 1);
    ExpectNothingWritten();
}

TEST_P(BadFigure, ANumberNoDoubleHoldsIsNone)
{
    TypeTicket();
    GoTo(GetParam().field);
    boxes.Expect(GetParam().message);
    Paste(u"1e999"_s);
    EXPECT_EQ(Text(GetParam().field), QString());
}

INSTANTIATE_TEST_SUITE_P(Fields, BadFigure,
                         ::testing::Values(Figure{"Num", u"txtNum"_s, u"数量填写错误！"_s},
                                           Figure{"Suttle", u"txtSuttle"_s, u"净重填写错误！"_s},
                                           Figure{"Price", u"txtUPR"_s, u"价格填写错误！"_s},
                                           Figure{"PackingFee", u"txtPerPack"_s, u"包装费填写错误！"_s},
                                           Figure{"Deposit", u"txtPerForegift"_s, u"押包装填写错误！"_s},
                                           Figure{"Paid", u"txtRPrice"_s, u"实收填写错误！"_s}),
                         [](const auto& figure) { return figure.param.name; });

TEST_F(BadInput, ProductsBeyondADoubleAreAnOverflowOnTheKeystroke)
{
    TypeTicket();
    GoTo(u"txtUPR"_s);
    Paste(u"1e300"_s);
    GoTo(u"txtNum"_s);
    boxes.Expect(u"溢出"_s);
    Paste(u"1e300"_s);
    EXPECT_EQ(Text(u"txtNum"_s), u"1e300"_s);
    ExpectNothingWritten();
}

TEST_F(BadInput, AQuoteOrAFinalBackslashInTheLotNumberShowsTheServersWords)
{
    Press(Qt::Key_Return);
    for (const QString& text : {u"A'1"_s, u"A\\"_s}) {
        boxes.ExpectContaining(u"SQL syntax"_s);
        Enter(u"txtPRDNo"_s, text);
        EXPECT_EQ(Text(u"txtPRDNo"_s), text);
        EXPECT_EQ(Text(u"txtPRDName"_s), QString());
        EXPECT_EQ(Count(u"ErrInfo"_s), 0);
        Press(Qt::Key_Up);
    }
    Enter(u"txtPRDNo"_s, u"A-001"_s);
    EXPECT_EQ(Text(u"txtPRDName"_s), u"苹果"_s);
    ExpectNothingWritten();
}

TEST_F(BadInput, ALongOrFullWidthLotNumberAndALoneQuoteAreNotFound)
{
    Press(Qt::Key_Return);
    for (const QString& text : {LongDigits, u"１２"_s, u"Ａ-001"_s, u"'"_s}) {
        Paste(text);
        EXPECT_EQ(Text(u"txtPRDNo"_s), text.left(50));
        boxes.Expect(u"该编号不存在或已结算，请重新输入！"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(FocusName(), u"txtPRDNo"_s);
    }
}

TEST_F(BadInput, TheOwnersCodeTakesAnythingAndPassesNothingWrong)
{
    Press(Qt::Key_C, Qt::AltModifier);
    Db().Run(u"UPDATE Sys_Define SET bolVerify='1'"_s);
    OpenTill();
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"A-001"_s);
    for (const QString& text : {LongDigits, u"２５８０"_s}) {
        Paste(text);
        boxes.Expect(u"客户校验码错误!"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(Text(u"txtVerifyID"_s), text.left(50));
        EXPECT_EQ(FocusName(), u"txtVerifyID"_s);
    }
    for (const QString& text : {u"'"_s, u"\\"_s}) {
        Paste(text);
        boxes.ExpectContaining(u"SQL syntax"_s);
        Press(Qt::Key_Return);
        GoTo(u"txtVerifyID"_s);
    }
    Type(u"2580"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPRDName"_s);
}

TEST_F(BadInput, TheSalesmansNumberWithAQuoteShowsTheServersWordsAndHoldsTheFocus)
{
    TypeTicket();
    GoTo(u"txtSalesID"_s);
    for (const QString& text : {u"'"_s, u"\\"_s}) {
        boxes.ExpectContaining(u"SQL syntax"_s);
        Enter(u"txtSalesID"_s, text);
        EXPECT_EQ(FocusName(), u"txtSalesID"_s);
        EXPECT_EQ(Text(u"txtSalesID"_s), text);
        Press(Qt::Key_Delete);
        Press(Qt::Key_Backspace);
    }
    for (const QString& text : {LongDigits, u"１１"_s}) {
        Paste(text);
        EXPECT_EQ(Text(u"txtSalesID"_s), text.left(30));
        boxes.Expect(u"不存在的工号!"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(FocusName(), u"txtSalesID"_s);
    }
    ExpectNothingWritten();
}

TEST_F(BadInput, TheSlipNumberHoldsTenCharactersOfAnyKind)
{
    TypeTicket();
    GoTo(u"txtListNo"_s);
    Paste(u"单１２"_s + LongDigits);
    EXPECT_EQ(Text(u"txtListNo"_s), u"单１２9999999"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(TicketRow(u"01260309001"_s, u"ListNo"_s), QStringList{u"单１２9999999"_s});
}

TEST_F(BadInput, AQuoteInTheSlipNumberBreaksTheSaveAndLosesNothing)
{
    TypeTicket();
    for (const QString& text : {u"X'1"_s, u"X\\"_s}) {
        GoTo(u"txtListNo"_s);
        Paste(text);
        boxes.ExpectContaining(u"SQL syntax"_s);
        Press(Qt::Key_S, Qt::AltModifier);
        EXPECT_EQ(Text(u"txtListNo"_s), text);
        EXPECT_EQ(Text(u"txtNum"_s), u"10"_s);
        ExpectNothingWritten();
    }
    Paste(u"A\\B"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(TicketRow(u"01260309001"_s, u"ListNo"_s), QStringList{u"AB"_s});
}

TEST_F(BadInput, AQuoteInTheBuyersNameBreaksEveryStatementThatNamesHim)
{
    for (const bool onCredit : {true, false}) {
        Press(Qt::Key_C, Qt::AltModifier);
        OpenTill();
        TypeTicket({.vendee = u"O'Neil"_s, .onCredit = onCredit});
        boxes.ExpectContaining(u"SQL syntax"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(Text(u"txtVendee"_s), u"O'Neil"_s);
        ExpectNothingWritten();
    }
}
