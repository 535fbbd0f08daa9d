#include "core/forms/FormWindow.h"
#include "core/session/Session.h"
#include "masterdata/NameMatch.h"
#include "masterdata/frmGetCustList.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QTest>

using namespace Qt::StringLiterals;

TEST(FirstMatchTest, TakesTheFirstThatBeginsElseTheFirstThatContainsWithoutRegardToCase)
{
    const QStringList names{u"老王水果"_s, u"Abel"_s, u"Big able"_s, u"able"_s, u"王五"_s, u"王小二"_s};
    EXPECT_EQ(FirstMatch(names, u"王"_s), 4);
    EXPECT_EQ(FirstMatch(names, u"王小"_s), 5);
    EXPECT_EQ(FirstMatch(names, u"水果"_s), 0);
    EXPECT_EQ(FirstMatch(names, u"AB"_s), 1);
    EXPECT_EQ(FirstMatch(names, u"aBl"_s), 3);
    EXPECT_EQ(FirstMatch(names, u"LE"_s), 2);
    EXPECT_EQ(FirstMatch(names, u"王五 "_s), -1);
    EXPECT_EQ(FirstMatch(names, QString()), -1);
    EXPECT_EQ(FirstMatch({}, u"王"_s), -1);
}

namespace {

/// A window that asks for a buyer, with a field that takes no typing, as at the till.
class AskingWindow : public FormWindow {
public:
    explicit AskingWindow(QWidget* owner) : FormWindow(owner, SlotUse::Takes), m_vendee(new QLineEdit(this))
    {
        m_vendee->setObjectName(u"txtVendee"_s);
        m_vendee->setReadOnly(true);
        Chain().Field(m_vendee).OnKey(Qt::Key_F2, [this] { Windows().ShowModal(u"frmGetCustList"_s, this); });
    }

    void TakeName(const QString& name) override
    {
        ++names;
        m_vendee->setText(name);
    }

    int names = 0;

private:
    QLineEdit* m_vendee;
};

class BuyerPicker : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        Windows().Register(u"frmGetCustList"_s, [](QWidget* owner) { return new frmGetCustList(owner); });
        for (const QString& name : {u"frmSale"_s, u"frmCheckCheque"_s, u"frmSearchCond"_s})
            Windows().Register(name, [](QWidget* owner) { return new AskingWindow(owner); });
        Session::CurrentMenuKey = u"Sale"_s;
    }

    void AddBuyers(const QStringList& names)
    {
        for (const QString& name : names)
            Db().Run(u"INSERT INTO Cust_List (CustName) VALUES ('%1')"_s.arg(name));
    }

    /// Opens the asking window, presses F2 in its field, and takes the steps while the picker is open.
    void Pick(const std::function<void()>& steps, const QString& asking = u"frmSale"_s)
    {
        if (!Windows().Find(asking))
            Open(asking);
        TakeStatements();
        QMetaObject::invokeMethod(
            qApp,
            [this, &steps] {
                EXPECT_TRUE(QTest::qWaitForWindowActive(Windows().Find(u"frmGetCustList"_s)->Widget()));
                Settle();
                steps();
                if (Form* stillOpen = Windows().Find(u"frmGetCustList"_s)) {
                    ADD_FAILURE() << "the picker did not close";
                    stillOpen->Widget()->close();
                }
            },
            Qt::QueuedConnection);
        Press(Qt::Key_F2);
    }

    AskingWindow* Asking(const QString& name = u"frmSale"_s)
    {
        return static_cast<AskingWindow*>(Windows().Find(name));
    }
    QString Vendee(const QString& asking = u"frmSale"_s) { return TextOf(asking, u"txtVendee"_s); }

    QListWidget* List() { return Find<QListWidget>(u"frmGetCustList"_s, u"lstCustList"_s); }
    QString Typed() { return TextOf(u"frmGetCustList"_s, u"txtCustName"_s); }
    QString Selected()
    {
        const auto items = List()->selectedItems();
        return items.isEmpty() ? QString() : items[0]->text();
    }
    QPoint Middle(int row) { return List()->visualItemRect(List()->item(row)).center(); }
};

} // namespace

TEST_F(BuyerPicker, ListsTheBuyersInOrderWithTheFocusInTheField)
{
    AddBuyers({u"C"_s, u"A"_s, u"B"_s});
    Pick([this] {
        EXPECT_EQ(TakeStatements(), QStringList{u"SELECT CustName FROM Cust_List Order By CustName"_s});
        QStringList names;
        for (int row = 0; row < List()->count(); ++row)
            names << List()->item(row)->text();
        EXPECT_EQ(names, (QStringList{u"A"_s, u"B"_s, u"C"_s}));
        EXPECT_EQ(FocusName(), u"txtCustName"_s);
        EXPECT_EQ(Selected(), QString());
        QWidget* picker = Windows().Find(u"frmGetCustList"_s)->Widget();
        EXPECT_EQ(picker->windowTitle(), u"客户信息"_s);
        EXPECT_EQ(picker->windowModality(), Qt::ApplicationModal);
        EXPECT_EQ(picker->parentWidget(), Asking());
        Press(Qt::Key_Escape);
    });
}

TEST_F(BuyerPicker, WithoutBuyersTheListIsEmptyAndANameCanBeTypedAllTheSame)
{
    Pick([this] {
        EXPECT_EQ(List()->count(), 0);
        Press(Qt::Key_Down);
        EXPECT_EQ(FocusName(), u"lstCustList"_s);
        Press(Qt::Key_Up);
        EXPECT_EQ(FocusName(), u"txtCustName"_s);
        Enter(u"txtCustName"_s, u"生客"_s);
    });
    EXPECT_EQ(Vendee(), u"生客"_s);
}

TEST_F(BuyerPicker, WhileANameIsTypedTheFirstMatchIsShownAndTheTextStaysAsTyped)
{
    AddBuyers({u"Abel"_s, u"able"_s, u"老王"_s, u"王五"_s, u"王小二"_s});
    Pick([this] {
        Type(u"王"_s);
        EXPECT_EQ(Selected(), u"王五"_s);
        Type(u"小"_s);
        EXPECT_EQ(Selected(), u"王小二"_s);
        EXPECT_EQ(Typed(), u"王小"_s);
        Press(Qt::Key_A, Qt::ControlModifier);
        Type(u"ABL"_s);
        EXPECT_EQ(Selected(), u"able"_s);
        EXPECT_EQ(Typed(), u"ABL"_s);
        Type(u"x"_s);
        EXPECT_EQ(Selected(), QString());
        Press(Qt::Key_A, Qt::ControlModifier);
        Press(Qt::Key_Delete);
        EXPECT_EQ(Selected(), QString());
        Type(u"ABL"_s);
        EXPECT_EQ(TakeStatements().size(), 1); // the list at the opening; typing asks the server nothing
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Vendee(), u"ABL"_s); // what is typed, not what is shown
}

TEST_F(BuyerPicker, DownTakesTheMatchThatIsShownAndEnterInTheListSubmits)
{
    AddBuyers({u"李四"_s, u"王五"_s, u"王小二"_s});
    Pick([this] {
        Type(u"王"_s);
        Press(Qt::Key_Down);
        EXPECT_EQ(FocusName(), u"lstCustList"_s);
        EXPECT_EQ(Typed(), u"王五"_s);
        Press(Qt::Key_Down);
        EXPECT_EQ(Typed(), u"王小二"_s);
        Press(Qt::Key_Up);
        EXPECT_EQ(Typed(), u"王五"_s);
        Press(Qt::Key_Up);
        EXPECT_EQ(Typed(), u"李四"_s);
        Press(Qt::Key_Up);
        EXPECT_EQ(FocusName(), u"txtCustName"_s);
        EXPECT_EQ(Typed(), u"李四"_s);
        Press(Qt::Key_Down);
        Press(Qt::Key_End);
        EXPECT_EQ(Typed(), u"王小二"_s);
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Vendee(), u"王小二"_s);
    EXPECT_EQ(Asking()->names, 1);
}

TEST_F(BuyerPicker, DownWithoutAMatchTakesTheFirstBuyer)
{
    AddBuyers({u"李四"_s, u"王五"_s});
    Pick([this] {
        Press(Qt::Key_Down);
        EXPECT_EQ(Typed(), u"李四"_s);
        EXPECT_EQ(Selected(), u"李四"_s);
        Press(Qt::Key_Enter, Qt::KeypadModifier);
    });
    EXPECT_EQ(Vendee(), u"李四"_s);
}

TEST_F(BuyerPicker, TabIntoTheListTakesTheMatchButLeavesANameThatIsNotThere)
{
    AddBuyers({u"李四"_s, u"王五"_s});
    Pick([this] {
        Type(u"王"_s);
        Press(Qt::Key_Tab);
        EXPECT_EQ(FocusName(), u"lstCustList"_s);
        EXPECT_EQ(Typed(), u"王五"_s);
        Press(Qt::Key_Tab);
        EXPECT_EQ(FocusName(), u"txtCustName"_s);
        Type(u"生客"_s);
        Press(Qt::Key_Tab);
        EXPECT_EQ(FocusName(), u"lstCustList"_s);
        EXPECT_EQ(Typed(), u"生客"_s);
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Vendee(), u"生客"_s);
}

TEST_F(BuyerPicker, AClickCopiesTheEntryAndADoubleClickHandsItOver)
{
    AddBuyers({u"李四"_s, u"王五"_s, u"赵六"_s});
    Pick([this] {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Middle(2));
        Settle();
        EXPECT_EQ(Typed(), u"赵六"_s);
        Find(u"frmGetCustList"_s, u"txtCustName"_s)->setFocus();
        Press(Qt::Key_Backspace); // the match is shown again
        EXPECT_EQ(Typed(), u"赵"_s);
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Middle(2));
        Settle();
        EXPECT_EQ(Typed(), u"赵六"_s); // a click on the entry that is selected already copies too
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Middle(1));
        QTest::mouseDClick(List()->viewport(), Qt::LeftButton, {}, Middle(1));
        Settle();
    });
    EXPECT_EQ(Vendee(), u"王五"_s);
}

TEST_F(BuyerPicker, AnEntryThatBeginsLikeOneBeforeItStaysTheOneChosen)
{
    AddBuyers({u"Chen"_s, u"old chen"_s, u"chen1"_s});
    Pick([this] {
        QTest::mouseClick(List()->viewport(), Qt::LeftButton, {}, Middle(2));
        Settle();
        EXPECT_EQ(Typed(), u"old chen"_s);
        EXPECT_EQ(Selected(), u"old chen"_s);
        EXPECT_EQ(List()->currentRow(), 2);
        Press(Qt::Key_S, Qt::AltModifier);
    });
    EXPECT_EQ(Vendee(), u"old chen"_s);
}

TEST_F(BuyerPicker, FreeTextIsHandedOverUntrimmedAndWhateverItHolds)
{
    for (const QString& text : {u" 生客 "_s, u"O'Neil"_s, u"A\\"_s, u"１２"_s, u" "_s, QString(60, u'9')}) {
        Pick([&text] { Enter(u"txtCustName"_s, text); });
        EXPECT_EQ(Vendee(), text);
        EXPECT_EQ(TakeStatements(), QStringList{u"SELECT CustName FROM Cust_List Order By CustName"_s});
    }
    Pick([] { Enter(u"txtCustName"_s, QString(80, u'9')); });
    EXPECT_EQ(Vendee(), QString(60, u'9')); // as much as a ticket holds
}

TEST_F(BuyerPicker, SubmittedWithoutANameItOnlyCloses)
{
    AddBuyers({u"李四"_s});
    Pick([] { Press(Qt::Key_Return); });
    Pick([] { Press(Qt::Key_S, Qt::AltModifier); });
    EXPECT_EQ(Asking()->names, 0);
    EXPECT_EQ(Vendee(), QString());
}

TEST_F(BuyerPicker, EscapeAndCancelHandNothingOver)
{
    AddBuyers({u"李四"_s});
    Pick([] {
        Press(Qt::Key_Down);
        Press(Qt::Key_Escape);
    });
    Pick([] {
        Type(u"李四"_s);
        Press(Qt::Key_Escape);
    });
    Pick([] {
        Type(u"李四"_s);
        Press(Qt::Key_C, Qt::AltModifier);
    });
    EXPECT_EQ(Asking()->names, 0);
}

TEST_F(BuyerPicker, ClosingGivesTheKeyboardBackToTheFieldThatAsked)
{
    AddBuyers({u"李四"_s});
    Pick([] { Press(Qt::Key_Escape); });
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    Pick([] { Enter(u"txtCustName"_s, u"李四"_s); });
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    EXPECT_EQ(Windows().Find(u"frmGetCustList"_s), nullptr);
}

TEST_F(BuyerPicker, TheMenuKeyDecidesWhichWindowReceivesTheName)
{
    const QList<std::pair<QString, QString>> receivers{
        {u"Sale"_s, u"frmSale"_s},
        {u"ESale"_s, u"frmSale"_s},
        {u"RptSaleDetail"_s, u"frmSale"_s},
        {u"CheckCheque"_s, u"frmCheckCheque"_s},
        {u"RptCheque"_s, u"frmSearchCond"_s},
        {u"RptCheckCheque"_s, u"frmSearchCond"_s},
    };
    for (const QString& name : {u"frmSale"_s, u"frmCheckCheque"_s, u"frmSearchCond"_s})
        Windows().Load(name, nullptr);
    for (const auto& [key, receiver] : receivers) {
        Session::CurrentMenuKey = key;
        for (const QString& name : {u"frmSale"_s, u"frmCheckCheque"_s, u"frmSearchCond"_s})
            Asking(name)->names = 0;
        Open(receiver);
        Pick([&key = key] { Enter(u"txtCustName"_s, key); }, receiver);
        for (const QString& name : {u"frmSale"_s, u"frmCheckCheque"_s, u"frmSearchCond"_s})
            EXPECT_EQ(Asking(name)->names, name == receiver ? 1 : 0) << key.toStdString();
        EXPECT_EQ(Vendee(receiver), key);
    }
}

TEST_F(BuyerPicker, UnderAnotherMenuKeyNothingIsHandedOver)
{
    for (const QString& key : {QString(), u"CustList"_s, u"sale"_s}) {
        Session::CurrentMenuKey = key;
        Pick([] { Enter(u"txtCustName"_s, u"李四"_s); });
        EXPECT_EQ(Asking()->names, 0);
    }
}

TEST_F(BuyerPicker, WithTheReceivingWindowNotOpenItJustCloses)
{
    Session::CurrentMenuKey = u"CheckCheque"_s;
    Pick([] { Enter(u"txtCustName"_s, u"李四"_s); });
    EXPECT_EQ(Asking()->names, 0);
    EXPECT_EQ(Windows().Find(u"frmCheckCheque"_s), nullptr);
}

TEST_F(BuyerPicker, LeavesTheSlotAsItIs)
{
    Pick([] {
        EXPECT_FALSE(Session::WindowSlotFree); // taken by the till below
        Press(Qt::Key_Escape);
    });
    EXPECT_FALSE(Session::WindowSlotFree);

    Session::WindowSlotFree = true;
    Pick([] {
        EXPECT_TRUE(Session::WindowSlotFree);
        Press(Qt::Key_Escape);
    });
    EXPECT_TRUE(Session::WindowSlotFree);
}

TEST_F(BuyerPicker, AListThatCannotBeReadIsToldAndTheAskingWindowGoesOn)
{
    Open(u"frmSale"_s);
    FailStatement(1, Refusal::MissingTable);
    boxes.ExpectContaining(u"doesn't exist"_s);
    Press(Qt::Key_F2);
    EXPECT_EQ(Windows().Find(u"frmGetCustList"_s), nullptr);
    EXPECT_EQ(FocusName(), u"txtVendee"_s);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0);
    Pick([] { Enter(u"txtCustName"_s, u"李四"_s); });
    EXPECT_EQ(Vendee(), u"李四"_s);
}

TEST_F(BuyerPicker, ThousandsOfBuyersAreListedAndTheLastIsFound)
{
    Db().Run(u"INSERT INTO Cust_List (CustName) SELECT CONCAT('客户',LPAD(seq,5,'0')) FROM seq_1_to_5000"_s);
    Pick([this] {
        EXPECT_EQ(List()->count(), 5000);
        Type(u"客户05000"_s);
        EXPECT_EQ(Selected(), u"客户05000"_s);
        EXPECT_TRUE(List()->viewport()->rect().contains(Middle(4999))); // scrolled into sight
        Press(Qt::Key_Down);
        Press(Qt::Key_Return);
    });
    EXPECT_EQ(Vendee(), u"客户05000"_s);
}
