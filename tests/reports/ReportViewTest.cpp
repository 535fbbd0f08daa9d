#include "reports/ReportView.h"
#include "tests/support/WindowTest.h"

namespace {
class ReportWindow : public WindowTest {};
} // namespace

TEST_F(ReportWindow, IsNobodyWhereTheProgramHasNone)
{
    EXPECT_EQ(OpenReport(), nullptr);
    EXPECT_EQ(LoadReport(), nullptr);
}
