#include "core/forms/DateField.h"

#include "core/forms/Fields.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QCalendarWidget>

using namespace Qt::StringLiterals;

namespace {

/// A window with the fields txtA, dtpDay and txtB in its chain.
class DateFieldCase : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterProbe(u"frmProbe"_s, [](ProbeForm& form) {
            form.Chain().Field(form.Add(u"txtA"_s));
            form.Chain().Date(form.Add<DateField>(u"dtpDay"_s));
            form.Chain().Field(form.Add(u"txtB"_s));
        });
        Open(u"frmProbe"_s);
        Press(Qt::Key_Return);
        ASSERT_EQ(FocusName(), u"dtpDay"_s);
    }

    DateField* Field() { return Find<DateField>(u"frmProbe"_s, u"dtpDay"_s); }
    QString Shown() { return Field()->text(); }
};

} // namespace

TEST_F(DateFieldCase, BeginsAtTodayAndIsPartOfTheChainOfKeys)
{
    EXPECT_EQ(Shown(), u"2026-03-09"_s);
    Press(Qt::Key_Down);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"dtpDay"_s);
    Press(Qt::Key_Up);
    EXPECT_EQ(FocusName(), u"txtA"_s);
    Press(Qt::Key_Return);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    EXPECT_EQ(Shown(), u"2026-03-09"_s); // the arrows moved between the fields and changed no day
}

TEST_F(DateFieldCase, ADayIsTypedInOneGo)
{
    Type(u"20251231"_s);
    EXPECT_EQ(Shown(), u"2025-12-31"_s);
    EXPECT_EQ(Field()->Day(), u"2025-12-31"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(FocusName(), u"txtB"_s);
    Press(Qt::Key_Up);
    Type(u"2024-2-5"_s); // entered again, typing begins at the year again
    Press(Qt::Key_Return);
    EXPECT_EQ(Field()->Day(), u"2024-02-05"_s);
}

TEST_F(DateFieldCase, ADayThatIsStillBeingTypedIsReadAsShown)
{
    Type(u"2025-2-3"_s);
    EXPECT_EQ(Field()->Day(), u"2025-02-03"_s);
}

TEST_F(DateFieldCase, ADayThatDoesNotExistNeverComesOut)
{
    Type(u"2026-02-31"_s);
    Press(Qt::Key_Return);
    EXPECT_TRUE(QDate::fromString(Field()->Day(), u"yyyy-MM-dd"_s).isValid());
    EXPECT_EQ(Field()->Day(), Shown());
    const QString before = Shown();
    Press(Qt::Key_Up);
    Type(u"abc今天"_s);
    EXPECT_EQ(Field()->Day(), before);
}

TEST_F(DateFieldCase, PageKeysGoByTheDayAndWithControlByTheMonth)
{
    Press(Qt::Key_PageUp);
    EXPECT_EQ(Shown(), u"2026-03-08"_s);
    Press(Qt::Key_PageDown);
    Press(Qt::Key_PageDown);
    EXPECT_EQ(Shown(), u"2026-03-10"_s);
    Press(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(Shown(), u"2026-02-10"_s);
    Press(Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(Shown(), u"2026-03-10"_s);
    EXPECT_EQ(FocusName(), u"dtpDay"_s);
}

TEST_F(DateFieldCase, TheCalendarSpeaksChinese)
{
    const QCalendarWidget* calendar = Field()->calendarWidget();
    EXPECT_EQ(calendar->locale().language(), QLocale::Chinese);
    EXPECT_EQ(calendar->firstDayOfWeek(), Qt::Monday);
}
