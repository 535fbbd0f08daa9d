#include "core/common/Bills.h"
#include "core/base/Clock.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "tests/support/WindowTest.h"

using namespace Qt::StringLiterals;

namespace {

class Bills : public WindowTest {};

} // namespace

TEST_F(Bills, ANumberIsUserDayAndSerialOfThreeDigitsAtLeast)
{
    Session::CurrentUserID = u"05"_s;
    SetClock(u"2006-03-09 10:00:00"_s);
    const struct {
        QString serial;
        QString number;
    } cases[] = {{u"12"_s, u"NO.05060309012"_s},
                 {u"7"_s, u"NO.05060309007"_s},
                 {u"123"_s, u"NO.05060309123"_s},
                 {u"1000"_s, u"NO.050603091000"_s},
                 {u"12345"_s, u"NO.0506030912345"_s}};
    for (const auto& c : cases) {
        EXPECT_EQ(BuildBillNo(c.serial), c.number);
        EXPECT_EQ(StoredBillNo(c.number), c.number.mid(3));
    }
    EXPECT_EQ(StoredBillNo(u"NO.05060309012"_s), u"05060309012"_s);
    EXPECT_EQ(StoredBillNo(QString()), QString());
}

TEST_F(Bills, ALotSerialHasThreeDigitsAndNoneFromAThousandOn)
{
    EXPECT_EQ(ThreeDigits(0), u"000"_s);
    EXPECT_EQ(ThreeDigits(7), u"007"_s);
    EXPECT_EQ(ThreeDigits(10), u"010"_s);
    EXPECT_EQ(ThreeDigits(99), u"099"_s);
    EXPECT_EQ(ThreeDigits(100), u"100"_s);
    EXPECT_EQ(ThreeDigits(999), u"999"_s);
    EXPECT_EQ(ThreeDigits(1000), QString());
    EXPECT_EQ(ThreeDigits(32767), QString());
}

TEST_F(Bills, ReadingTheNextNumberReservesNothing)
{
    TakeStatements();
    EXPECT_EQ(NextBillNo(BillSeries::Tickets), u"NO.01260309001"_s);
    EXPECT_EQ(NextBillNo(BillSeries::Tickets), u"NO.01260309001"_s);
    EXPECT_EQ(TakeStatements()[0],
              u"SELECT CurrNumber FROM Count_Bill WHERE CurrDate='2026-03-09' And TID='01' And UID='01'"_s);
    EXPECT_EQ(Count(u"Count_Bill"_s), 0);

    Db().Run(u"INSERT INTO Count_Bill VALUES ('01','01','2026-03-09',11),('01','02','2026-03-09',50),"
             "('01','01','2026-03-08',60),('03','01','2026-03-09',998),('FL','01','2026-03-09',999)"_s);
    EXPECT_EQ(NextBillNo(BillSeries::Tickets), u"NO.01260309012"_s);
    EXPECT_EQ(NextBillNo(BillSeries::Settlements), u"NO.01260309999"_s);
    EXPECT_EQ(NextBillNo(BillSeries::Expenses), u"NO.012603091000"_s);
}

TEST_F(Bills, ACounterStartsAtOneAndThenMovesInsideOneStatement)
{
    TakeStatements();
    BumpBillCounter(u"01"_s, u"03"_s, u"2026-03-09"_s);
    const QString where = u" WHERE UID='01' And TID='03' And CurrDate='2026-03-09'"_s;
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT CurrNumber FROM Count_Bill"_s + where,
                                             u"INSERT INTO Count_Bill (TID,UID,CurrDate,CurrNumber) VALUES "
                                             "('03','01','2026-03-09',1)"_s}));
    BumpBillCounter(u"01"_s, u"03"_s, u"2026-03-09"_s);
    EXPECT_EQ(TakeStatements(), (QStringList{u"SELECT CurrNumber FROM Count_Bill"_s + where,
                                             u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1"_s + where}));
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"2"_s);
    BumpBillCounter(u"02"_s, u"03"_s, u"2026-03-09"_s);
    BumpBillCounter(u"01"_s, u"03"_s, u"2026-03-10"_s);
    EXPECT_EQ(Count(u"Count_Bill"_s), 3);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill WHERE UID='01' And CurrDate='2026-03-09'"_s), u"2"_s);
}

TEST_F(Bills, ABumpOfAnotherTillBetweenReadAndWriteIsNotLost)
{
    BumpBillCounter(u"01"_s, u"01"_s, u"2026-03-09"_s);
    Gateway().SetStatementObserver([this](const QString& statement) {
        if (statement.startsWith(u"UPDATE"_s))
            Db().Run(u"UPDATE Count_Bill SET CurrNumber=CurrNumber+1"_s);
    });
    BumpBillCounter(u"01"_s, u"01"_s, u"2026-03-09"_s);
    EXPECT_EQ(Value(u"SELECT CurrNumber FROM Count_Bill"_s), u"3"_s);
}
