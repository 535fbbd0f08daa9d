#include "tests/settlement/SettlementWindow.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

const QString NumberRefused = u"数字填写错误！"_s;

class SettlementFees : public EitherLayout {};

} // namespace

INSTANTIATE_TEST_SUITE_P(, SettlementFees, BothLayouts, LayoutName);

TEST_P(SettlementFees, APercentageIsTakenFromTheShownAmountAndRoundedToOneDecimal)
{
    AddTicket(40, 0, 1003.25); // shown as 1,003.3
    OpenLayout();
    EnterLot();
    Enter(u"txtPer_LManage"_s, u"5"_s);
    EXPECT_EQ(Text(u"txtLManagePrice"_s), u"50.2"_s); // 50.165
    Press(Qt::Key_Return);
    Type(u"2.5"_s);
    EXPECT_EQ(Text(u"txtLElectPrice"_s), u"25.1"_s); // 25.0825
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥75.3"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥928.0"_s);
}

TEST_P(SettlementFees, UnloadingByWeightIsPerTonneOfTheShownKilograms)
{
    AddTicket(100, 2500, 9000);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtPer_LUnload"_s, u"30"_s);
    EXPECT_EQ(Text(u"txtLUnloadPrice"_s), u"75.0"_s);
    EXPECT_EQ(Text(u"txtLSanitationPrice"_s), QString());
}

TEST_P(SettlementFees, UnloadingByCountIsPerPiece)
{
    Db().Run(u"UPDATE DFN_CheckFee SET CountID='1' WHERE FeeID='F01'"_s);
    AddTicket(100, 2500, 9000);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtPer_LUnload"_s, u"30"_s);
    EXPECT_EQ(Text(u"txtLUnloadPrice"_s), u"3,000.0"_s);
    // Sanitation has a setting of its own.
    TypeInto(u"txtPer_LSani"_s, u"2"_s);
    EXPECT_EQ(Text(u"txtLSanitationPrice"_s), u"5.0"_s);
}

TEST_P(SettlementFees, AnyCountSettingButZeroIsByPieceAndNoRowIsByWeight)
{
    AddTicket(100, 2500, 9000);
    Db().Run(
        u"UPDATE DFN_CheckFee SET CountID='7' WHERE FeeID='F02'; DELETE FROM DFN_CheckFee WHERE FeeID='F01'"_s);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtPer_LSani"_s, u"2"_s);
    EXPECT_EQ(Text(u"txtLSanitationPrice"_s), u"200.0"_s);
    TypeInto(u"txtPer_LUnload"_s, u"2"_s);
    EXPECT_EQ(Text(u"txtLUnloadPrice"_s), u"5.0"_s);
}

TEST_P(SettlementFees, AClearedRateLeavesTheAmountAsItWas)
{
    AddTicket(100, 2500, 1000);
    OpenLayout();
    EnterLot();
    for (const QString& rate : RateFields) {
        TypeInto(rate, u"5"_s);
        GoTo(rate);
        TakeStatements();
        Press(Qt::Key_Delete);
        EXPECT_EQ(TakeStatements(), QStringList());
    }
    EXPECT_EQ(Text(u"txtLManagePrice"_s), u"50.0"_s);
    EXPECT_EQ(Text(u"txtLElectPrice"_s), u"50.0"_s);
    EXPECT_EQ(Text(u"txtLUnloadPrice"_s), u"12.5"_s);
    EXPECT_EQ(Text(u"txtLSanitationPrice"_s), u"12.5"_s);
}

TEST_P(SettlementFees, ARateChargesOnEachChangeByTwoChangesOfItsFee)
{
    AddTicket(100, 2500, 1000);
    OpenLayout();
    EnterLot();
    const QString round = u"SELECT bolRound FROM DFN_Round WHERE CountID='C02'"_s;
    const QString count = u"SELECT CountID FROM DFN_CheckFee WHERE FeeID='F01'"_s;
    TakeStatements();
    Type(u"5"_s); // 50, then 50.0
    EXPECT_EQ(TakeStatements(), (QStringList{round, round}));
    TypeInto(u"txtPer_LUnload"_s, u"30"_s); // 7.5, which is shown alike; then 75 and 75.0
    EXPECT_EQ(TakeStatements(), (QStringList{count, round, count, round, round}));
}

TEST_P(SettlementFees, ARateBeforeAnyLotCalculatesNothing)
{
    OpenLayout();
    // Written by the program: the keys do not get past the empty number.
    Box(u"txtPer_LManage"_s)->setText(u"5"_s);
    Box(u"txtPer_LUnload"_s)->setText(u"30"_s);
    EXPECT_EQ(Text(u"txtLManagePrice"_s), QString());
    EXPECT_EQ(Text(u"txtLUnloadPrice"_s), QString());
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), QString());
}

TEST_P(SettlementFees, AFeeTypedIsFormattedOnLeavingAndTheNetFollowsTheFormat)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtLPackPrice"_s, u"100.25"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥899.8"_s); // 899.75
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"(捌佰玖拾玖元柒角伍分)"_s);
    TakeStatements();
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtLPackPrice"_s), u"100.3"_s);
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥100.3"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥899.7"_s);
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"(捌佰玖拾玖元柒角)"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT bolRound FROM DFN_Round WHERE CountID='C02'"_s}));
}

TEST_P(SettlementFees, WithRoundingOnTheNetIsWholeYuanAndTheTotalIsNot)
{
    Db().Run(u"UPDATE DFN_Round SET bolRound='1' WHERE CountID='C02'"_s);
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtLPackPrice"_s, u"100.25"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥100.3"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥900.0"_s);
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"(玖佰元)"_s);
}

TEST_P(SettlementFees, RoundingTakesTheHalfUpEvenWhereTheBinarySumIsBelowIt)
{
    Db().Run(u"UPDATE DFN_Round SET bolRound='x' WHERE CountID='C02'"_s); // anything but 0 is on
    AddTicket(1, 0, 8.2);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtLPackPrice"_s, u"0.7"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥8.0"_s);
}

TEST_P(SettlementFees, ANetRoundedToZeroIsShownAsZeroWithoutWords)
{
    Db().Run(u"UPDATE DFN_Round SET bolRound='1' WHERE CountID='C02'"_s);
    AddTicket(1, 0, 0.4);
    OpenLayout();
    EnterLot();
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥0.0"_s);
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"()"_s);
}

TEST_P(SettlementFees, WithoutASwitchRowNothingIsRounded)
{
    Db().Run(u"DELETE FROM DFN_Round"_s);
    AddTicket(1, 0, 8.6);
    OpenLayout();
    EnterLot();
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥8.6"_s);
}

TEST_P(SettlementFees, ANetOfExactlyZeroIsBlankAndTheWordsStay)
{
    AddTicket(1, 0, 0.8);
    OpenLayout();
    EnterLot();
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"(捌角)"_s);
    TypeInto(u"txtLPackPrice"_s, u"0.7"_s);
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"(壹角)"_s);
    TypeInto(u"txtLOtherPrice"_s, u"0.1"_s);
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥0.8"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), QString());
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"(壹角)"_s);
}

TEST_P(SettlementFees, ANegativeNetIsBlankAndTheWordsStay)
{
    AddTicket(1, 0, 100);
    OpenLayout();
    EnterLot();
    TypeInto(u"txtLOtherPrice"_s, u"250"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), QString());
    EXPECT_EQ(LabelText(u"lblPriceUCase"_s), u"(柒拾伍元)"_s); // of the moment when 25 stood there
}

TEST_P(SettlementFees, EachOfTheTenLinesCountsOnceWithItsSign)
{
    AddTicket(1, 0, 10000);
    AddAdvance(8);
    OpenLayout();
    EnterLot();
    double amount = 1;
    for (const QString& fee : FeeFields) {
        if (fee != u"txtLExpendPrice")
            TypeInto(fee, QString::number(amount));
        amount *= 2;
    }
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥1,023.0"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥8,977.0"_s);

    GoTo(u"txtLOtherPrice"_s);
    Press(Qt::Key_Home);
    Type(u"-"_s); // -512
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"-¥1.0"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥10,001.0"_s);
}

TEST_P(SettlementFees, ALaterLotDoesNotRerunARateAndTheFeeCanBeTypedOver)
{
    AddTicket(1, 0, 1000);
    OpenLayout();
    EnterLot();
    Enter(u"txtPer_LManage"_s, u"5"_s);
    Enter(u"txtLManagePrice"_s, u"33"_s);
    EXPECT_EQ(Text(u"txtLManagePrice"_s), u"33.0"_s);
    EXPECT_EQ(Text(u"txtPer_LManage"_s), u"5"_s);
    AddTicket(1, 0, 1000);
    EnterLot();
    EXPECT_EQ(Text(u"txtAmount"_s), u"2,000.0"_s);
    EXPECT_EQ(Text(u"txtPer_LManage"_s), IsLayoutA() ? QString() : u"5"_s);
    EXPECT_EQ(Text(u"txtLManagePrice"_s), IsLayoutA() ? QString() : u"33.0"_s);
}

TEST_P(SettlementFees, AFeeWhoseRoundingCannotBeReadLeavesNoNetOfTheFeesBefore)
{
    AddTicket(1, 0, 1000);
    OpenLayout();
    FillForSaving();
    GoTo(u"txtLPackPrice"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Type(u"7"_s);
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥7.0"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), QString());
    boxes.Expect(u"实得金额为负数，不能进行结算。"_s);
    Click(Find<QLabel>(Layout(), u"cmdSubmit"_s));
    EXPECT_EQ(Count(u"CheckOut"_s), 0);
    Press(Qt::Key_Return); // shown as 7.0: worked out again
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥993.0"_s);
}

// Keys

TEST_P(SettlementFees, EnterAndDownWalkTheChainAndUpWalksItBack)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    Press(Qt::Key_Up);
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Down}) {
        for (qsizetype i = 0; i < KeyOrder.size(); ++i) {
            EXPECT_EQ(FocusName(), KeyOrder[i]);
            EXPECT_EQ(Box(KeyOrder[i])->selectedText(), Text(KeyOrder[i]));
            if (i + 1 < KeyOrder.size())
                Press(key);
        }
        for (auto i = KeyOrder.size(); i-- > 0;) {
            EXPECT_EQ(FocusName(), KeyOrder[i]);
            Press(Qt::Key_Up);
        }
        EXPECT_EQ(FocusName(), u"txtPRDNo"_s); // there Up does nothing
    }
    EXPECT_EQ(Count(u"CheckOut"_s), 0);
}

TEST_P(SettlementFees, DownInTheLastFieldStaysThereAndSavesNothing)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    FillForSaving();
    Press(Qt::Key_Return);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtPayUser"_s);
    EXPECT_EQ(Count(u"CheckOut"_s), 0);
}

TEST_P(SettlementFees, AFeeLeftBlankBecomesZeroAndTheAdvancesAreReformattedOnLeaving)
{
    AddTicket(40, 0, 1000);
    AddAdvance(500);
    OpenLayout();
    EnterLot();
    EXPECT_EQ(Text(u"txtLExpendPrice"_s), u"500"_s);
    EXPECT_TRUE(Box(u"txtLExpendPrice"_s)->isReadOnly());
    WalkToNames();
    for (const QString& fee : FeeFields)
        EXPECT_EQ(Text(fee), fee == u"txtLExpendPrice" ? u"500.0"_s : u"0.0"_s) << fee.toStdString();
    for (const QString& rate : RateFields)
        EXPECT_EQ(Text(rate), QString()) << rate.toStdString();
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥500.0"_s);
}

TEST_P(SettlementFees, ABoxOverTheWindowIsNotLeavingTheField)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    GoTo(u"txtLPackPrice"_s);
    boxes.Expect(NumberRefused);
    boxes.WhileOpen([this] { EXPECT_EQ(Text(u"txtLPackPrice"_s), u"x"_s); });
    Type(u"x"_s);
    EXPECT_EQ(Text(u"txtLPackPrice"_s), QString());
    EXPECT_EQ(FocusName(), u"txtLPackPrice"_s);
}

// What is typed wrongly

TEST_P(SettlementFees, WhatIsNoNumberIsRefusedEmptiedAndKeepsTheFocusInEveryNumericField)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    for (const QString& field : FeeFields + RateFields) {
        if (field == u"txtLExpendPrice")
            continue;
        for (const QString& text : {u"x"_s, u" "_s, u"'"_s, u"\\"_s, u"１"_s, u"-"_s, u"."_s, u"¥"_s}) {
            GoTo(field);
            TakeStatements();
            boxes.Expect(NumberRefused);
            Type(text);
            EXPECT_EQ(Text(field), QString()) << field.toStdString() << text.toStdString();
            EXPECT_EQ(FocusName(), field);
            EXPECT_EQ(TakeStatements(), QStringList());
        }
    }
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥1,000.0"_s);
}

TEST_P(SettlementFees, APastedTextIsTestedAsAWholeAndAmountsAreReadWithSignAndGrouping)
{
    AddTicket(40, 0, 10000);
    OpenLayout();
    EnterLot();
    boxes.Expect(NumberRefused);
    PasteInto(u"txtLPackPrice"_s, u"1,000元"_s);
    EXPECT_EQ(Text(u"txtLPackPrice"_s), QString());
    EXPECT_EQ(FocusName(), u"txtLPackPrice"_s);
    PasteInto(u"txtLPackPrice"_s, u"¥1,000.5"_s);
    EXPECT_EQ(Text(u"txtLTotalPrice"_s), u"¥1,000.5"_s);
    PasteInto(u"txtLPackPrice"_s, u"-20"_s);
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), u"¥10,020.0"_s);
}

TEST_P(SettlementFees, AFeeTakesTwentyCharactersAndIsNotCutByItsGroupingAndAHugeRateThatOverflowsSaysSo)
{
    AddTicket(40, 0, 1000);
    OpenLayout();
    EnterLot();
    for (const QString& fee : FeeFields) {
        if (fee == u"txtLExpendPrice")
            continue;
        GoTo(fee);
        Type(QString(40, u'9'));
        EXPECT_EQ(Text(fee), QString(20, u'9')) << fee.toStdString();
        Press(Qt::Key_Return);
        // Fifteen digits are trusted, so twenty nines are a one with twenty noughts.
        EXPECT_EQ(Text(fee), u"100,000,000,000,000,000,000.0"_s) << fee.toStdString();
    }
    EXPECT_EQ(Text(u"txtGTotalPrice"_s), QString());

    boxes.Expect(u"溢出"_s);
    PasteInto(u"txtPer_LManage"_s, u"1e307"_s); // 1e310 by the amount
    EXPECT_EQ(Text(u"txtLManagePrice"_s), u"100,000,000,000,000,000,000.0"_s) << "as it was";
}
