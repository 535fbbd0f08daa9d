// What holds for every window of the program alike.

#include "app/StartProgram.h"
#include "core/base/Numbers.h"
#include "core/forms/Fields.h"
#include "core/forms/KeyChain.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

class EveryWindow : public WindowTest, public ::testing::WithParamInterface<const char*> {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        RegisterWindows();
    }
    static QString Name() { return QString::fromLatin1(GetParam()); }
};

/// The number that a text goes into a statement as.
QString NumberIn(const QLineEdit* box)
{
    return NumberText(TextToDouble(box->text()));
}

} // namespace

TEST_P(EveryWindow, ANumberAsLongAsItsFieldIsTheSameAfterTheFieldIsLeft)
{
    auto* chain = Open(Name())->findChild<KeyChain*>();
    ASSERT_NE(chain, nullptr);
    ASSERT_FALSE(chain->NumericFields().isEmpty());
    const KeyChain::Suspension noLookups(*chain);
    for (QLineEdit* box : chain->NumericFields()) {
        if (box->isReadOnly())
            continue;
        for (const QString& digits : {u"1234567890123456"_s, u"98765432109876543210"_s, u"123456789.87"_s}) {
            FocusAndSelect(box);
            Type(digits);
            ASSERT_EQ(box->text(), digits) << box->objectName().toStdString();
            const QString before = NumberIn(box);
            chain->LeaveThen([] {});
            if (digits.contains(u'.')) // shown, and stored, with the field's own decimals
                EXPECT_TRUE(NumberIn(box).startsWith(u"12345678")) << box->text().toStdString();
            else
                EXPECT_EQ(NumberIn(box), before)
                    << box->objectName().toStdString() << " " << box->text().toStdString();
            FocusAndSelect(box);
            Press(Qt::Key_Backspace);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(WithNumbers, EveryWindow,
                         ::testing::Values("frmSale", "frmPRDList", "frmCheckOut", "frmCheckOutA",
                                           "frmCustList"),
                         [](const auto& window) { return std::string(window.param); });

namespace {
class EveryWindowSize : public EveryWindow {};
} // namespace

TEST_P(EveryWindowSize, FitsASmallScreen)
{
    if (Name() == u"frmParameter")
        boxes.Expect(u"该打印机无有效的打印纸张大小！"_s, u"软件提示"_s);
    const QWidget* window = Open(Name());
    EXPECT_LE(window->width(), 1024) << Name().toStdString();
    EXPECT_LE(window->height(), 768 - 60) << Name().toStdString() << ": frame and task bar need room";
}

INSTANTIATE_TEST_SUITE_P(Windows, EveryWindowSize,
                         ::testing::Values("frmSale", "frmPRDList", "frmSearchPRD", "frmCheckOut",
                                           "frmCheckOutA", "frmCustList", "frmSales", "frmPRDSort",
                                           "frmFeeType", "frmStore", "frmGetCustList", "frmUserList",
                                           "frmUserMenu", "frmChangePWD", "frmParameter", "frmSetFeeLabel",
                                           "frmAbout", "frmLogon", "frmMultiLogon", "frmDBC"),
                         [](const auto& window) { return std::string(window.param); });
