#include "reports/ReportView.h"
#include "tests/support/WindowTest.h"

namespace {
class ReportWindow : public WindowTest {};
} // namespace

TEST_F(ReportWindow, IsNobodyUntilItIsLoaded)
{
    EXPECT_EQ(OpenReport(), nullptr);
}
