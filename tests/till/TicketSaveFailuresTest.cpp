#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/till/TillTest.h"

using namespace Qt::StringLiterals;

namespace {

const QString FirstNo = u"01260309001"_s;

/// What stands after one statement of a credit ticket of lot B-001 (10 pieces, deposit, stock control,
/// 结账) was refused. Before it: no ticket, 200 pieces, no crates out, no counter.
struct FailedStep {
    const char* name;
    int statement;
    Refusal how;
    QString shown; ///< part of the box
    bool isLogged; ///< a message with quotes breaks the insert of its own row
    int tickets;
    QString numSal;
    QString cratesOut;
    QString counter;
    bool isCounted; ///< the batch has counted the ticket
    bool isEmptied; ///< the fields are emptied already
};

class FailedSave : public TillTest, public ::testing::WithParamInterface<FailedStep> {};

const QString Drill = u"演练故障"_s;
const QString Missing = u"doesn't exist"_s;

FailedStep Check(const char* name, int statement)
{
    return {name,  statement, Refusal::MissingTable, Missing, false, 0, u"200"_s, u"0"_s, QString(),
            false, false};
}

} // namespace

TEST_P(FailedSave, LeavesWhatRanAndShowsWhy)
{
    const FailedStep& step = GetParam();
    Session::SaleStockControl = u"1"_s;
    OpenTill();
    TypeTicket({.vendee = u"鲜多多"_s, .prdNo = u"B-001"_s, .onCredit = true, .closesBatch = true});
    const QString total = Caption(u"FlblTPrice01"_s);
    FailStatement(step.statement, step.how);
    boxes.ExpectContaining(step.shown);
    Press(Qt::Key_Return);
    Gateway().SelectRows(u"Sys_Define"_s, u"CompName"_s, QString()); // a missing table is back by now

    EXPECT_EQ(Count(u"Sal_List"_s), step.tickets);
    EXPECT_EQ(NumSal(u"B-001"_s), step.numSal);
    EXPECT_EQ(NumSal(u"A-001"_s), u"100"_s);
    EXPECT_EQ(CratesOut(), step.cratesOut);
    EXPECT_EQ(TicketCounter(), step.counter);
    EXPECT_EQ(Count(u"Pack_List"_s), 0);
    const auto log = Db().Rows(u"SELECT ErrUserName,ErrDescription,ErrSource FROM ErrInfo"_s);
    if (step.isLogged)
        EXPECT_EQ(log, (std::vector<QStringList>{{u"管理员"_s, step.shown, u"保存收银信息"_s}}));
    else
        EXPECT_TRUE(log.empty());

    EXPECT_TRUE(TillIsOpen());
    EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309001"_s);
    EXPECT_EQ(Caption(u"lblTotal"_s), step.isCounted ? u"共1张，合计金额%1元。"_s.arg(total) : QString());
    EXPECT_EQ(Text(u"txtNum"_s), step.isEmptied ? QString() : u"10"_s);
    EXPECT_EQ(Text(u"txtVendee"_s), step.counter.isEmpty() ? u"鲜多多"_s : QString());
    EXPECT_EQ(Caption(u"FlblTPrice02"_s), step.isEmptied ? total : QString());
    EXPECT_EQ(Caption(u"FlblTPrice01"_s), step.isEmptied ? QString() : total);
    if (step.isEmptied || step.tickets == 0)
        return;
    // A second press meets the ticket that already stands.
    boxes.Expect(u"Duplicate entry '01260309001' for key 'PRIMARY'"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
    EXPECT_EQ(NumSal(u"B-001"_s), step.numSal);
}

INSTANTIATE_TEST_SUITE_P(Statements, FailedSave,
                         ::testing::Values(Check("DepositOfTheLot", 1), Check("LimitOfTheBuyer", 2),
                                           Check("DebtOfTheBuyer", 3), Check("Deadline", 4),
                                           Check("LotStillOpen", 5), Check("Delivered", 6), Check("Added", 7),
                                           Check("MovedOut", 8), Check("Lost", 9), Check("Sold", 10),
                                           FailedStep{"TheTicketItself", 11, Refusal::Signalled, Drill, true,
                                                      0, u"200"_s, u"0"_s, QString(), false, false},
                                           FailedStep{"ReadingTheTicketBack", 12, Refusal::MissingTable,
                                                      Missing, false, 1, u"200"_s, u"0"_s, QString(), false,
                                                      false},
                                           FailedStep{"PiecesOffTheLot", 13, Refusal::Signalled, Drill, true,
                                                      1, u"200"_s, u"0"_s, QString(), true, false},
                                           FailedStep{"CrateTypeOfTheLot", 14, Refusal::MissingTable, Missing,
                                                      false, 1, u"190"_s, u"0"_s, QString(), true, false},
                                           FailedStep{"CratesOut", 15, Refusal::Signalled, Drill, true, 1,
                                                      u"190"_s, u"0"_s, QString(), true, false},
                                           FailedStep{"ReadingTheCounter", 16, Refusal::MissingTable, Missing,
                                                      false, 1, u"190"_s, u"10"_s, QString(), true, true},
                                           FailedStep{"MovingTheCounter", 17, Refusal::Signalled, Drill, true,
                                                      1, u"190"_s, u"10"_s, QString(), true, true},
                                           FailedStep{"TheNextNumber", 18, Refusal::MissingTable, Missing,
                                                      false, 1, u"190"_s, u"10"_s, u"1"_s, true, true}),
                         [](const auto& step) { return step.param.name; });

namespace {

class TwoTills : public TillTest {
protected:
    void SetUp() override
    {
        TillTest::SetUp();
        OpenTill();
        m_other.OpenConnection(Session::DataIniPath);
        ASSERT_EQ(m_other.LastError(), QString());
    }

    /// The other till sells pieces of lot B-001: the statements that its save would send.
    void SellElsewhere(const QString& salNo, const QString& num)
    {
        m_other.InsertRow(u"Sal_List"_s, u"SalNo,ID,PRDNo,Num"_s,
                          u"'%1','20260309002','B-001',%2"_s.arg(salNo, num));
        m_other.UpdateRows(u"PRD_List"_s, u"Num_Sal=Num_Sal-"_s + num, u"ID='20260309002'"_s);
        m_other.UpdateRows(u"DFN_Pack"_s, u"Num_Pack=Num_Pack+"_s + num, u"PackNo='K1'"_s);
    }

    /// Does something elsewhere just before this till sends a statement that begins like this.
    void Before(const QString& statement, const std::function<void()>& elsewhere)
    {
        auto isDone = std::make_shared<bool>(false);
        Gateway().SetStatementObserver([statement, elsewhere, isDone](const QString& sent) {
            if (!*isDone && sent.startsWith(statement)) {
                *isDone = true;
                elsewhere();
            }
        });
    }

    DataGateway m_other;
};

} // namespace

TEST_F(TwoTills, BothSalesOfOneLotStandAndTheCountersAreRight)
{
    Before(u"UPDATE PRD_List"_s, [this] { SellElsewhere(u"02260309001"_s, u"30"_s); });
    Sell({.prdNo = u"B-001"_s});
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    EXPECT_EQ(NumSal(u"B-001"_s), u"160"_s);
    EXPECT_EQ(CratesOut(), u"40"_s);
    EXPECT_EQ(TicketCounter(), u"1"_s);
}

TEST_F(TwoTills, AStaleStockLimitIsOverrunByTheOtherSale)
{
    Session::SaleStockControl = u"1"_s;
    Before(u"INSERT INTO Sal_List"_s, [this] { SellElsewhere(u"02260309001"_s, u"195"_s); });
    Sell({.prdNo = u"B-001"_s});
    EXPECT_EQ(Count(u"Sal_List"_s), 2);
    EXPECT_EQ(NumSal(u"B-001"_s), u"-5"_s);
}

TEST_F(TwoTills, ASaleMadeElsewhereBeforeTheCheckCounts)
{
    Session::SaleStockControl = u"1"_s;
    SellElsewhere(u"02260309001"_s, u"195"_s);
    TypeTicket({.prdNo = u"B-001"_s});
    boxes.Expect(u"库存不足！仅允许销售5件。"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(Count(u"Sal_List"_s), 1);
}

TEST_F(TwoTills, ALotSettledBetweenCheckAndInsertGetsOneMoreTicket)
{
    Before(u"INSERT INTO Sal_List"_s,
           [this] { m_other.UpdateRows(u"PRD_List"_s, u"bolCheckOut='1'"_s, u"PRDNo='B-001'"_s); });
    Sell({.prdNo = u"B-001"_s});
    EXPECT_EQ(TicketRow(FirstNo, u"bolCheckOut"_s), QStringList{u"0"_s});
    EXPECT_EQ(NumSal(u"B-001"_s), u"190"_s);
}

TEST_F(TwoTills, TheSameUserTwiceIsRefusedByTheKeyAndKeepsTheTicketOnTheScreen)
{
    SellElsewhere(FirstNo, u"30"_s);
    TypeTicket({.vendee = u"鲜多多"_s, .prdNo = u"B-001"_s});
    for (int press = 0; press < 2; ++press) {
        boxes.Expect(u"Duplicate entry '01260309001' for key 'PRIMARY'"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(Count(u"Sal_List"_s), 1);
        EXPECT_EQ(TicketRow(FirstNo, u"Num"_s), QStringList{u"30"_s});
        EXPECT_EQ(NumSal(u"B-001"_s), u"170"_s);
        EXPECT_EQ(CratesOut(), u"30"_s);
        EXPECT_EQ(Count(u"Count_Bill"_s), 0);
        EXPECT_EQ(Count(u"ErrInfo"_s), 0);
        EXPECT_EQ(Text(u"txtVendee"_s), u"鲜多多"_s);
        EXPECT_EQ(Text(u"txtPRDNo"_s), u"B-001"_s);
        EXPECT_EQ(Text(u"txtNum"_s), u"10"_s);
        EXPECT_EQ(Text(u"txtSalNo"_s), u"NO.01260309001"_s);
        EXPECT_EQ(FocusName(), u"cmbCheckStatus"_s);
    }
}

TEST_F(TwoTills, ATicketThatVanishesIsNotCommitted)
{
    TypeTicket({.prdNo = u"B-001"_s});
    Before(u"SELECT PRDNo FROM Sal_List"_s,
           [this] { m_other.DeleteRows(u"Sal_List"_s, u"SalNo='"_s + FirstNo + u"'"_s); });
    boxes.Expect(u"数据无法提交，请检查数据！"_s);
    Press(Qt::Key_Return);
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
    EXPECT_EQ(CratesOut(), u"0"_s);
    EXPECT_EQ(TicketCounter(), QString());
    EXPECT_EQ(Caption(u"lblTotal"_s), QString());
    EXPECT_EQ(Text(u"txtNum"_s), u"10"_s);
    EXPECT_EQ(FocusName(), u"cmbCheckStatus"_s);
}

TEST_F(TwoTills, ALostLinkIsShownAndTheWindowStaysAsItIs)
{
    TypeTicket({.prdNo = u"B-001"_s});
    FailStatement(4, Refusal::LostLink);
    for (int press = 0; press < 2; ++press) {
        boxes.ExpectContaining(u"Server has gone away\r\n与数据库的连接断了"_s);
        Press(Qt::Key_Return);
        EXPECT_EQ(Count(u"Sal_List"_s), 0);
        EXPECT_EQ(Count(u"ErrInfo"_s), 0);
        EXPECT_EQ(Text(u"txtNum"_s), u"10"_s);
        EXPECT_TRUE(TillIsOpen());
    }
}
