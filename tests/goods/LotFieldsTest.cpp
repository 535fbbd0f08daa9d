#include "core/forms/Fields.h"
#include "tests/goods/GoodsTest.h"

#include <QApplication>
#include <QClipboard>

using namespace Qt::StringLiterals;

namespace {

class LotFields : public GoodsTest {
protected:
    void SetUp() override
    {
        GoodsTest::SetUp();
        OpenRegistration();
        Enter(u"txtPID"_s, u"A"_s);
        TakeStatements();
    }
    void Go(const QString& control)
    {
        FocusAndSelect(Find<QWidget>(u"frmPRDList"_s, control));
        Settle();
    }
    void Paste(const QString& text)
    {
        QApplication::clipboard()->setText(text);
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_V, Qt::ControlModifier);
    }
    void PutRequired()
    {
        Put(u"txtNum"_s, u"100"_s);
        Put(u"txtStore"_s, u"一号库"_s);
        Put(u"txtCustName"_s, u"王老板"_s);
    }
    void Save() { Press(Qt::Key_S, Qt::AltModifier); }
};

struct NumericField {
    const char* control;
    const char16_t* message;
    bool becomesZero;
};

class LotNumericField : public LotFields, public ::testing::WithParamInterface<NumericField> {
protected:
    QString Control() const { return QString::fromLatin1(GetParam().control); }
    QString Message() const { return QString::fromUtf16(GetParam().message); }
};

} // namespace

TEST_P(LotNumericField, RefusesWhatIsNoNumberEmptiesTheFieldAndKeepsTheFocus)
{
    Go(Control());
    for (const QString& text : {u"x"_s, u"１"_s, u"'"_s, u"\\"_s, u"-"_s, u"."_s, u" "_s}) {
        boxes.Expect(Message());
        Type(text);
        EXPECT_EQ(Field(Control()), QString()) << text.toStdString();
        EXPECT_EQ(FocusName(), Control());
    }
    Type(u"12"_s);
    boxes.Expect(Message());
    Type(u"q"_s);
    EXPECT_EQ(Field(Control()), QString());
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_P(LotNumericField, TakesANumberAsItIsTyped)
{
    Go(Control());
    Type(u"12.50"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Field(Control()), u"12.50"_s);
}

TEST_P(LotNumericField, LeftEmptyBecomesZeroOrStaysEmpty)
{
    Go(Control());
    Press(Qt::Key_Return);
    EXPECT_EQ(Field(Control()), GetParam().becomesZero ? u"0"_s : QString());
}

TEST_P(LotNumericField, ANumberNoColumnHoldsIsAnOverflowAndNothingIsWritten)
{
    PutRequired();
    Go(Control());
    Paste(u"99999999999999999999"_s);
    boxes.Expect(u"溢出"_s);
    Save();
    EXPECT_EQ(Count(u"PRD_List"_s), 0);
    EXPECT_EQ(Count(u"Count_Bill"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Field(Control()), u"99999999999999999999"_s);
    EXPECT_EQ(Field(u"txtCustName"_s), u"王老板"_s);
}

TEST_P(LotNumericField, APastedTextThatIsLongerThanTheFieldIsRefusedWhole)
{
    Go(Control());
    boxes.Expect(Message());
    Paste(u"十"_s.repeated(300));
    EXPECT_EQ(Field(Control()), QString());
}

INSTANTIATE_TEST_SUITE_P(Each, LotNumericField,
                         ::testing::Values(NumericField{"txtNum", u"数量填写有误！", false},
                                           NumericField{"txtMPercent", u"数量填写有误！", true},
                                           NumericField{"txtPerForegift", u"填写错误！", true},
                                           NumericField{"txtDebitPrice", u"金额填写有误！", true}),
                         [](const auto& which) { return which.param.control; });

TEST_F(LotFields, AStoreThatDoesNotExistIsEmptiedAndKeepsTheFocus)
{
    Go(u"txtStore"_s);
    boxes.Expect(u"仓位不存在，请重新输入仓位！"_s);
    Enter(u"txtStore"_s, u"三号库"_s);
    EXPECT_EQ(FocusName(), u"txtStore"_s);
    EXPECT_EQ(Field(u"txtStore"_s), QString());
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT Store FROM Store WHERE Store='三号库'"_s}));
    Enter(u"txtStore"_s, u"二号库"_s);
    EXPECT_EQ(FocusName(), u"txtPArea"_s);
}

TEST_F(LotFields, AnEmptyStoreIsLeftWithoutALookup)
{
    Go(u"txtStore"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtPArea"_s);
    EXPECT_EQ(TakeStatements(), QStringList());
}

TEST_F(LotFields, AQuoteInTheStoreShowsTheServersWordsOnce)
{
    Go(u"txtStore"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Enter(u"txtStore"_s, u"'"_s);
    EXPECT_EQ(Field(u"txtStore"_s), u"'"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
}

TEST_F(LotFields, TheKeyThatSavesLooksTheStoreUpFirst)
{
    PutRequired();
    Go(u"txtStore"_s);
    Type(u"三号库"_s);
    boxes.Expect(u"仓位不存在，请重新输入仓位！"_s);
    Save();
    EXPECT_EQ(Count(u"PRD_List"_s), 0);
    EXPECT_EQ(FocusName(), u"txtStore"_s);
}

TEST_F(LotFields, LockedFieldsTakeNoTyping)
{
    for (const QString& control : {u"txtCustID"_s, u"txtPRDName"_s, u"txtCustInDate"_s}) {
        Go(control);
        const QString before = Field(control);
        Type(u"9"_s);
        EXPECT_EQ(Field(control), before) << control.toStdString();
    }
}

namespace {

const QStringList& TextFields()
{
    static const QStringList fields{u"txtStore"_s,    u"txtPArea"_s,   u"txtCustName"_s, u"txtCardNO"_s,
                                    u"txtVerifyID"_s, u"txtAddress"_s, u"txtTel"_s,      u"txtFax"_s,
                                    u"txtMobile"_s,   u"txtMemo"_s,    u"txtPRDNo_S"_s,  u"txtPackNo"_s};
    return fields;
}

class LotTextField : public LotFields, public ::testing::WithParamInterface<int> {
protected:
    QString Control() const { return TextFields()[GetParam()]; }
};

QString ColumnOf(const QString& control)
{
    return control.mid(3);
}

} // namespace

TEST_P(LotTextField, AQuoteBreaksTheSaveWithTheServersWordsAndKeepsTheTexts)
{
    PutRequired();
    Put(Control(), u"甲'乙"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Save();
    EXPECT_EQ(Count(u"PRD_List"_s), 0);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    EXPECT_EQ(Field(Control()), u"甲'乙"_s);
    EXPECT_EQ(Field(u"txtNum"_s), u"100"_s);
}

INSTANTIATE_TEST_SUITE_P(Each, LotTextField, ::testing::Range(0, 12),
                         [](const auto& which) { return TextFields()[which.param].toStdString(); });

TEST_F(LotFields, ABackslashInATextIsEatenByTheServer)
{
    Db().Run(u"INSERT INTO Store VALUES ('甲乙')"_s); // as the server reads it
    PutRequired();
    for (const QString& control : TextFields())
        Put(control, u"甲\\乙"_s);
    Save();
    for (const QString& control : TextFields())
        EXPECT_EQ(Value(u"SELECT %1 FROM PRD_List"_s.arg(ColumnOf(control))), u"甲乙"_s)
            << qPrintable(control);
}

TEST_F(LotFields, ALongTextEndsAtTheColumnsWidthOnTheScreenAlready)
{
    PutRequired();
    QStringList kept;
    for (const QString& control : TextFields()) {
        Find(u"frmPRDList"_s, control)->clear();
        Find(u"frmPRDList"_s, control)->insert(u"果"_s.repeated(300));
        kept << Field(control);
        EXPECT_LT(kept.last().size(), 300);
    }
    Save();
    for (int i = 0; i < kept.size(); ++i) {
        EXPECT_EQ(Value(u"SELECT %1 FROM PRD_List"_s.arg(ColumnOf(TextFields()[i]))), kept[i])
            << qPrintable(TextFields()[i]);
    }
}

TEST_F(LotFields, FullWidthDigitsInATextAreStoredAsTheyAre)
{
    Db().Run(u"INSERT INTO Store VALUES ('１２')"_s);
    PutRequired();
    for (const QString& control : TextFields())
        Put(control, u"１２"_s);
    Save();
    for (const QString& control : TextFields())
        EXPECT_EQ(Value(u"SELECT %1 FROM PRD_List"_s.arg(ColumnOf(control))), u"１２"_s)
            << qPrintable(control);
}

TEST_F(LotFields, ATrailingBackslashSwallowsTheClosingQuote)
{
    PutRequired();
    Put(u"txtMemo"_s, u"甲\\"_s);
    boxes.ExpectContaining(u"SQL syntax"_s);
    Save();
    EXPECT_EQ(Count(u"PRD_List"_s), 0);
    EXPECT_EQ(Field(u"txtMemo"_s), u"甲\\"_s);
}
