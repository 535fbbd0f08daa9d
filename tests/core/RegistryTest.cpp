#include "core/base/RunTimeError.h"
#include "core/common/Handlers.h"
#include "core/forms/Fields.h"
#include "core/forms/RecordForms.h"
#include "core/session/Session.h"
#include "tests/core/ProbeForm.h"
#include "tests/support/WindowTest.h"

#include <QApplication>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace {

class Registry : public WindowTest {
protected:
    void TearDown() override
    {
        Windows().SetAllUnloadedHandler(nullptr);
        WindowTest::TearDown();
    }

    static ProbeForm* Probe(const QString& name) { return dynamic_cast<ProbeForm*>(Windows().Find(name)); }

    /// Counts how often the process would end.
    void CountEnds()
    {
        Windows().SetAllUnloadedHandler([this] { ++m_ends; });
    }

    int m_ends = 0;
};

} // namespace

TEST_F(Registry, AWindowClosedWhileItsOwnHandlerWaitsForABoxLivesUntilTheHandlerEnds)
{
    QPointer<QLineEdit> box;
    RegisterProbe(u"frmProbe"_s, [&box](ProbeForm& form) {
        box = form.Add(u"txtA"_s);
        form.Chain().Field(box).OnEnter([&box] {
            ShowInfo(u"问"_s);
            ASSERT_FALSE(box.isNull());
            FocusAndSelect(box);
        });
    });
    Open(u"frmProbe"_s);
    boxes.Expect(u"问"_s);
    boxes.WhileOpen([] {
        RunHandler([] { Windows().Find(u"frmProbe"_s)->Widget()->close(); });
        Settle();
    });
    Press(Qt::Key_Return);

    EXPECT_EQ(Windows().Find(u"frmProbe"_s), nullptr);
    Settle();
    EXPECT_TRUE(box.isNull());
}

TEST_F(Registry, AModalWindowThatClosesInsideAHandlerReturnsToItsCaller)
{
    RegisterProbe(u"frmPicker"_s, [](ProbeForm& form) {
        auto* name = form.Add(u"txtName"_s);
        form.Chain().Field(name).OnEnter([&form] { form.close(); });
    });
    QString seen;
    RegisterProbe(u"frmProbe"_s, [&seen](ProbeForm& form) {
        auto* box = form.Add(u"txtA"_s);
        form.Chain().Field(box).OnEnter([&seen, &form] {
            QMetaObject::invokeMethod(
                &form,
                [] {
                    WaitFor([] { return FocusName() == u"txtName"; });
                    Press(Qt::Key_Return);
                },
                Qt::QueuedConnection);
            Windows().ShowModal(u"frmPicker"_s, &form);
            seen = Windows().Find(u"frmPicker"_s) ? u"open"_s : u"closed"_s;
        });
    });
    Open(u"frmProbe"_s);
    Press(Qt::Key_Return);

    EXPECT_EQ(seen, u"closed"_s);
    EXPECT_EQ(FocusName(), u"txtA"_s);
}

TEST_F(Registry, AnOwnedWindowThatGoesWithItsOwnerIsForgotten)
{
    CountEnds();
    RegisterProbe(u"frmOwner"_s, nullptr);
    RegisterProbe(u"frmOwned"_s, nullptr);
    QWidget* owner = Open(u"frmOwner"_s);
    Windows().Show(u"frmOwned"_s, owner);
    Settle();

    owner->close();
    Settle();
    EXPECT_EQ(Windows().Find(u"frmOwned"_s), nullptr);
    EXPECT_EQ(m_ends, 1);
}
