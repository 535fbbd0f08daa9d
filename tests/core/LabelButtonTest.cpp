#include "core/forms/LabelButton.h"
#include "core/forms/HoverBox.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QFrame>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

class LabelButtons : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterProbe(u"frmProbe"_s, [this](ProbeForm& form) {
            form.Chain().Field(form.Add(u"txtA"_s));
            for (const QString& name : {u"cmdSubmit"_s, u"cmdCancel"_s, u"cmdDelete"_s}) {
                auto* button = form.Add<LabelButton>(name);
                button->setText(name);
                form.OnPress(button, [this, name] { log << name; });
            }
        });
        Open(u"frmProbe"_s);
    }

    LabelButton* Button(const QString& name) { return Find<LabelButton>(u"frmProbe"_s, name); }
    QList<QFrame*> Lines()
    {
        return Windows().Find(u"frmProbe"_s)->Widget()->findChildren<QFrame*>(u"linHover"_s);
    }
    int VisibleLines()
    {
        int visible = 0;
        for (const QFrame* line : Lines())
            visible += line->isVisible() ? 1 : 0;
        return visible;
    }

    QStringList log;
};

} // namespace

TEST_F(LabelButtons, AClickPressesAndTakesNoFocus)
{
    Click(Button(u"cmdSubmit"_s));
    EXPECT_EQ(log, QStringList{u"cmdSubmit"_s});
    EXPECT_EQ(FocusName(), u"txtA"_s);
    EXPECT_EQ(Button(u"cmdSubmit"_s)->focusPolicy(), Qt::NoFocus);
    Press(Qt::Key_Tab);
    EXPECT_EQ(FocusName(), u"txtA"_s);
}

TEST_F(LabelButtons, ADoubleClickPressesOnce)
{
    LabelButton* button = Button(u"cmdSubmit"_s);
    Click(button);
    DoubleClick(button);
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(log, QStringList{u"cmdSubmit"_s});
}

TEST_F(LabelButtons, TheRightButtonAndAReleaseElsewhereDoNotPress)
{
    LabelButton* button = Button(u"cmdSubmit"_s);
    QTest::mouseClick(button, Qt::RightButton);
    QTest::mousePress(button, Qt::LeftButton);
    QTest::mouseRelease(button, Qt::LeftButton, Qt::NoModifier, QPoint(-20, -20));
    QTest::mouseRelease(button, Qt::LeftButton);
    EXPECT_EQ(log, QStringList());
}

TEST_F(LabelButtons, KeysPressFromAnywhereInTheWindow)
{
    Press(Qt::Key_S, Qt::AltModifier);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(log, (QStringList{u"cmdSubmit"_s, u"cmdCancel"_s}));
    EXPECT_EQ(Button(u"cmdSubmit"_s)->Key(), QKeySequence(u"Alt+S"_s));
    EXPECT_TRUE(Button(u"cmdDelete"_s)->Key().isEmpty());
    EXPECT_EQ(Button(u"cmdSubmit"_s)->text(), u"cmdSubmit"_s) << "the key is no part of the caption";
}

TEST_F(LabelButtons, ADisabledOrHiddenOneIsDeaf)
{
    Button(u"cmdSubmit"_s)->setEnabled(false);
    Button(u"cmdCancel"_s)->hide();
    Click(Button(u"cmdSubmit"_s));
    Press(Qt::Key_S, Qt::AltModifier);
    Press(Qt::Key_C, Qt::AltModifier);
    EXPECT_EQ(log, QStringList());
}

TEST_F(LabelButtons, FourLinesStandAroundTheOneUnderTheMouse)
{
    ASSERT_EQ(Lines().size(), 4);
    EXPECT_EQ(VisibleLines(), 0);
    for (const QString& name : {u"cmdSubmit"_s, u"cmdCancel"_s}) {
        LabelButton* button = Button(name);
        emit button->Hovered(true);
        EXPECT_EQ(VisibleLines(), 4);
        QRect around;
        for (const QFrame* line : Lines())
            around |= line->geometry();
        const QRect label(button->mapTo(button->window(), QPoint(0, 0)), button->size());
        // 70 twips are four pixels and two thirds.
        EXPECT_EQ(around, label.adjusted(-5, -5, 5, 5)) << name.toStdString();
    }
    emit Button(u"cmdCancel"_s)->Hovered(false);
    EXPECT_EQ(VisibleLines(), 0);
}

TEST_F(LabelButtons, LinesAreHiddenOnlyWhenTheFirstIsSeen)
{
    QWidget form;
    form.show();
    const HoverLines lines = MakeHoverLines(&form);
    lines[1]->show();
    HideHoverBox(lines);
    EXPECT_TRUE(lines[1]->isVisible());
    lines[0]->show();
    HideHoverBox(lines);
    EXPECT_FALSE(lines[0]->isVisible());
    EXPECT_FALSE(lines[1]->isVisible());
}
