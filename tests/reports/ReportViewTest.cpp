#include "reports/ReportView.h"
#include "tests/reports/ReportTest.h"

using namespace Qt::StringLiterals;

namespace {
class ReportWindow : public ReportTest {};
} // namespace

TEST_F(ReportWindow, IsFoundWhileItIsLoadedShownOrNot)
{
    EXPECT_EQ(OpenReport(), nullptr);
    ReportView* loaded = LoadReport();
    ASSERT_NE(loaded, nullptr);
    EXPECT_EQ(OpenReport(), loaded);
    EXPECT_EQ(LoadReport(), loaded);
    Windows().Find(u"frmReport"_s)->Widget()->close();
    EXPECT_EQ(OpenReport(), nullptr);
}
