#include "core/common/Credit.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

class Credit : public WindowTest {
protected:
    /// A credit ticket of the buyer that is not collected yet.
    void Owe(const QString& buyer, const QString& amount)
    {
        Db().Run(
            u"INSERT INTO Sal_List (SalNo,Vendee,SaleType,bolReturn,TotalAmount) VALUES ('%1','%2',1,'0',%3)"_s
                .arg(++m_tickets)
                .arg(buyer, amount));
    }
    void Limit(const QString& buyer, const QString& money, const QString& control = u"1"_s)
    {
        Db().Run(u"INSERT INTO Cust_List (CustName,CreditMoney,bolControl) VALUES ('%1',%2,'%3')"_s.arg(
            buyer, money, control));
    }

private:
    int m_tickets = 0;
};

} // namespace

TEST_F(Credit, CreditUpToTheLimitItselfPasses)
{
    Limit(u"王五"_s, u"1000"_s);
    Owe(u"王五"_s, u"600.5"_s);
    TakeStatements();
    EXPECT_TRUE(CheckCreditLimit(u"王五"_s, 399.5, 0));
    EXPECT_EQ(TakeStatements(),
              (QStringList{u"SELECT CreditMoney FROM Cust_List WHERE CustName='王五' And bolControl='1'"_s,
                           u"SELECT SUM(TotalAmount) FROM Sal_List WHERE Vendee='王五' And SaleType='1' And "
                           "bolReturn='0'"_s}));
    EXPECT_EQ(Session::CreditLeft, 0) << "a passed test leaves the figure alone";

    EXPECT_FALSE(CheckCreditLimit(u"王五"_s, 399.6, 0));
    EXPECT_EQ(Session::CreditLeft, 399.5);
}

TEST_F(Credit, TheFormerAmountOfAnAdjustedTicketDoesNotCountTwice)
{
    Limit(u"王五"_s, u"1000"_s);
    Owe(u"王五"_s, u"900"_s);
    EXPECT_TRUE(CheckCreditLimit(u"王五"_s, 400, 300));
    EXPECT_FALSE(CheckCreditLimit(u"王五"_s, 401, 300));
    EXPECT_EQ(Session::CreditLeft, 400);
}

TEST_F(Credit, NoiseOfSumsRefusesNobody)
{
    Limit(u"王五"_s, u"50.3"_s);
    Owe(u"王五"_s, u"50.2"_s);
    EXPECT_TRUE(CheckCreditLimit(u"王五"_s, 0.1, 0));
    EXPECT_FALSE(CheckCreditLimit(u"王五"_s, 0.2, 0));
    EXPECT_EQ(Session::CreditLeft, 0.1);

    Limit(u"赵六"_s, u"1000"_s);
    Owe(u"赵六"_s, u"900.1"_s);
    EXPECT_FALSE(CheckCreditLimit(u"赵六"_s, 100, 0));
    EXPECT_EQ(Session::CreditLeft, 99.9);

    // 300.3 is less than 100.1 + 200.2 as the machine adds them.
    Limit(u"钱七"_s, u"300.3"_s);
    Owe(u"钱七"_s, u"100.1"_s);
    EXPECT_TRUE(CheckCreditLimit(u"钱七"_s, 200.2, 0));
}

TEST_F(Credit, OnlyUncollectedCreditTicketsOfTheBuyerCount)
{
    Limit(u"王五"_s, u"100"_s);
    Limit(u"赵六"_s, u"100"_s);
    Owe(u"赵六"_s, u"100"_s);
    Db().Run(u"INSERT INTO Sal_List (SalNo,Vendee,SaleType,bolReturn,TotalAmount) VALUES "
             "('c','王五',0,'0',500),('r','王五',1,'1',500)"_s);
    EXPECT_TRUE(CheckCreditLimit(u"王五"_s, 100, 0));
    EXPECT_FALSE(CheckCreditLimit(u"赵六"_s, 0.1, 0));
    EXPECT_EQ(Session::CreditLeft, 0);
}

TEST_F(Credit, ABuyerWithoutRowOrFlagHasNoLimit)
{
    Limit(u"王五"_s, u"0"_s, u"0"_s);
    Owe(u"王五"_s, u"5000"_s);
    EXPECT_TRUE(CheckCreditLimit(u"王五"_s, 1e9, 0));
    EXPECT_TRUE(CheckCreditLimit(u"不在册"_s, 1e9, 0));
    EXPECT_EQ(Session::CreditLeft, 0);
}

TEST_F(Credit, ALimitOfNothingRefusesAnyDebtButNotACorrectionDownwards)
{
    Limit(u"王五"_s, u"0"_s);
    EXPECT_FALSE(CheckCreditLimit(u"王五"_s, 0.1, 0));
    EXPECT_TRUE(CheckCreditLimit(u"王五"_s, 0, 0));
    EXPECT_TRUE(CheckCreditLimit(u"王五"_s, -5, 0));
    Owe(u"王五"_s, u"50"_s);
    EXPECT_FALSE(CheckCreditLimit(u"王五"_s, 0.1, 0));
    EXPECT_EQ(Session::CreditLeft, -50);
}

TEST_F(Credit, ABuyersNameWithAQuoteBreaksTheStatementInTheServersWords)
{
    try {
        CheckCreditLimit(u"O'Neil"_s, 1, 0);
        ADD_FAILURE() << "no exception";
    } catch (const DatabaseError& error) {
        EXPECT_TRUE(error.Description().contains(u"SQL syntax"_s)) << error.what();
    }
}
