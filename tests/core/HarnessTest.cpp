#include "core/gateway/DataGateway.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

/// What the tests stand on must itself be true.
class Harness : public WindowTest {
protected:
    static QString Insert(const QString& key)
    {
        try {
            Gateway().InsertRow(u"Sales"_s, u"SalesID"_s, u"'%1'"_s.arg(key));
            return QString();
        } catch (const RunTimeError& error) {
            return error.Description();
        }
    }
};

} // namespace

TEST_F(Harness, TheNthStatementFailsAndThatOneOnly)
{
    FailStatement(2, Refusal::Signalled);
    EXPECT_EQ(Insert(u"1"_s), QString());
    EXPECT_EQ(Insert(u"2"_s), u"演练故障"_s);
    EXPECT_EQ(Insert(u"3"_s), QString());
    EXPECT_EQ(Count(u"Sales"_s), 2);
}

TEST_F(Harness, ATableThatWasAwayIsBackWhenTheTestLooks)
{
    FailStatement(1, Refusal::MissingTable);
    EXPECT_TRUE(Insert(u"1"_s).contains(u'\''));
    EXPECT_EQ(Count(u"Sales"_s), 0);
    EXPECT_EQ(Insert(u"1"_s), QString());
}

TEST_F(Harness, ALostLinkStaysLost)
{
    FailStatement(1, Refusal::LostLink);
    EXPECT_NE(Insert(u"1"_s), QString());
    EXPECT_NE(Insert(u"2"_s), QString());
    EXPECT_EQ(Count(u"Sales"_s), 0);
}
