#include "printing/PrintQueue.h"
#include "tests/support/WindowTest.h"

#include <QPrinter>

namespace {

using PrintQueue = WindowTest;

TEST_F(PrintQueue, APaperCodeChoosesTheSheet)
{
    PrintJob job(QStringLiteral("结算清单"), 11, true);
    EXPECT_EQ(job.Paper().pageLayout().pageSize().id(), QPageSize::A5);
    EXPECT_EQ(job.Paper().pageLayout().orientation(), QPageLayout::Landscape);
}

} // namespace
