#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QListWidget>
#include <QPushButton>
#include <QTreeWidget>

using namespace Qt::StringLiterals;

namespace {

/// A field, a list of three rows and a field, in this order; a command button beside them.
class ListAndButtonKeys : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterProbe(u"frmProbe"_s, [this](ProbeForm& form) {
            auto* before = form.Add(u"txtBefore"_s);
            m_list = form.Add<QListWidget>(u"lstRows"_s);
            m_list->addItems({u"1"_s, u"2"_s, u"3"_s});
            auto* after = form.Add(u"txtAfter"_s);
            auto* submit = form.Add<QPushButton>(u"cmdSubmit"_s);
            auto* plain = form.Add<QPushButton>(u"cmdOther"_s);
            form.Chain().Field(before);
            form.Chain().List(m_list);
            form.Chain().Field(after);
            form.OnPress(submit, [this, before] { m_saved = before->text(); });
            form.OnPress(
                plain, [this] { m_saved = u"other"_s; }, QKeySequence(u"Alt+O"_s));
        });
        Open(u"frmProbe"_s);
    }

    QListWidget* m_list = nullptr;
    QString m_saved;
};

} // namespace

TEST_F(ListAndButtonKeys, UpAndDownChooseInTheListAndUpLeavesItFromTheFirstRow)
{
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"lstRows"_s);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down);
    Press(Qt::Key_Down); // the last row: Down does not leave
    EXPECT_EQ(FocusName(), u"lstRows"_s);
    EXPECT_EQ(m_list->currentRow(), 2);
    Press(Qt::Key_Up);
    Press(Qt::Key_Up);
    EXPECT_EQ(m_list->currentRow(), 0);
    EXPECT_EQ(FocusName(), u"lstRows"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtBefore"_s);
}

TEST_F(ListAndButtonKeys, InATreeUpReachesTheRootAndLeavesOnlyFromThere)
{
    QTreeWidget* tree = nullptr;
    RegisterProbe(u"frmTree"_s, [&tree](ProbeForm& form) {
        auto* before = form.Add(u"txtAbove"_s);
        tree = form.Add<QTreeWidget>(u"tvRows"_s);
        auto* root = new QTreeWidgetItem(tree, {u"root"_s});
        tree->setCurrentItem(new QTreeWidgetItem(root, {u"first child"_s}));
        root->setExpanded(true);
        form.Chain().Field(before);
        form.Chain().List(tree);
    });
    Open(u"frmTree"_s);
    Press(Qt::Key_Return);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"tvRows"_s);
    EXPECT_EQ(tree->currentItem(), tree->topLevelItem(0));
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtAbove"_s);
}

TEST_F(ListAndButtonKeys, EnterMovesOnFromTheListAndUpComesBackToIt)
{
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtAfter"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"lstRows"_s);
}

TEST_F(ListAndButtonKeys, ACommandButtonIsPressedAtOnceByItsKey)
{
    Type(u"a"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    Type(u"b"_s); // typed behind the key: not part of what was saved
    EXPECT_EQ(m_saved, u"a"_s);
    Press(Qt::Key_O, Qt::AltModifier);
    EXPECT_EQ(m_saved, u"other"_s);
    EXPECT_EQ(Find<QPushButton>(u"frmProbe"_s, u"cmdSubmit"_s)->text(), QString());
    EXPECT_EQ(Find<QPushButton>(u"frmProbe"_s, u"cmdOther"_s)->toolTip(), u"Alt+O"_s);
}
