#include "tests/till/TillTest.h"

#include "core/forms/LabelButton.h"

#include "printing/Documents.h"
#include "till/frmSale.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QRegularExpression>
#include <QTest>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

/// A number column's text without the zeros that fill its six decimals; any other text as it is.
QString Plain(const QString& value)
{
    static const QRegularExpression filled(u"^(-?\\d+)(?:\\.0{6}|(\\.\\d*[1-9])0*)$"_s);
    const auto match = value.contains(u'.') ? filled.match(value) : QRegularExpressionMatch();
    return match.hasMatch() ? match.captured(1) + match.captured(2) : value;
}

} // namespace

void TillTest::SetUp()
{
    WindowTest::SetUp();
    Windows().Register(u"frmSale"_s, [](QWidget* owner) { return new frmSale(owner); });
    Db().Run(uR"(
        UPDATE Sys_Define SET CompName='青禾果品代销行', DepartName='南区十二号档';
        INSERT INTO Sales VALUES ('11','周建国'),('12','李秀兰');
        INSERT INTO Cust_List (CustName,CreditMoney,bolControl) VALUES ('鲜多多',1000,'1'),('阿芳',0,'0');
        INSERT INTO DFN_Pack (PackNo,PackName,PackStyle,Num_BGN) VALUES ('K1','大胶筐','1',300);
        INSERT INTO PRD_List (ID,PRDNo,PRDNo_S,PRDName,Num,Num_Sal,Store,PArea,CustName,VerifyID,bolPack,
                              PerForegift,PackNo,bolCheckOut) VALUES
          ('20260309001','A-001','1','苹果',100,100,'一号库','山东栖霞','刘守田','2580','0',0,'','0'),
          ('20260309002','B-001','','蜜橘',200,200,'二号库','湖北宜昌','向德明','6611','1',5,'K1','0'),
          ('20260301001','C-001','3','雪梨',50,0,'一号库','河北泊头','孙玉梅','','0',0,'','1');
    )"_s);
}

void TillTest::TearDown()
{
    SetDocumentPrinter(nullptr);
    WindowTest::TearDown();
}

Form& TillTest::Till()
{
    Form* till = Windows().Find(u"frmSale"_s);
    if (!till)
        throw std::logic_error("the till is not open");
    return *till;
}

void TillTest::OpenTill()
{
    Open(u"frmSale"_s);
    TakeStatements();
}

void TillTest::TypeTicket(const Sale& sale)
{
    ASSERT_EQ(FocusName(), u"txtVendee"_s);
    if (!sale.vendee.isEmpty())
        Till().TakeName(sale.vendee);
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, sale.prdNo);
    Enter(u"txtPRDName"_s, QString());
    Enter(u"txtNum"_s, sale.num);
    Enter(u"txtSuttle"_s, sale.suttle);
    Enter(u"txtUPR"_s, sale.upr);
    Enter(u"txtPerPack"_s, sale.perPack);
    Enter(u"txtPerForegift"_s, sale.perForegift);
    Enter(u"txtListNo"_s, sale.listNo);
    Enter(u"txtSalesID"_s, sale.salesId);
    ASSERT_EQ(FocusName(), u"cmbSaleType"_s);
    if (sale.onCredit)
        Press(Qt::Key_Down);
    Press(Qt::Key_Return);
    ASSERT_EQ(FocusName(), u"cmbCheckStatus"_s);
    if (sale.closesBatch)
        Press(Qt::Key_Down);
}

void TillTest::Sell(const Sale& sale)
{
    TypeTicket(sale);
    Press(Qt::Key_Return);
}

void TillTest::ClickSave()
{
    Click(Find<LabelButton>(u"frmSale"_s, u"cmdSubmit"_s));
}

void TillTest::GoTo(const QString& control)
{
    Click(Find<QWidget>(u"frmSale"_s, control));
    if (auto* box = qobject_cast<QLineEdit*>(Find<QWidget>(u"frmSale"_s, control)))
        box->selectAll();
    EXPECT_EQ(FocusName(), control);
}

void TillTest::Paste(const QString& text)
{
    QGuiApplication::clipboard()->setText(text);
    Press(Qt::Key_A, Qt::ControlModifier);
    Press(Qt::Key_V, Qt::ControlModifier);
}

QStringList TillTest::TicketRow(const QString& salNo, const QString& columns)
{
    const auto rows = Db().Rows(u"SELECT %1 FROM Sal_List WHERE SalNo='%2'"_s.arg(columns, salNo));
    QStringList values;
    for (const QString& value : rows.size() == 1 ? rows[0] : QStringList())
        values << Plain(value);
    return values;
}

QString TillTest::NumSal(const QString& prdNo)
{
    return Plain(Value(u"SELECT Num_Sal FROM PRD_List WHERE PRDNo='%1'"_s.arg(prdNo)));
}

QString TillTest::CratesOut()
{
    return Plain(Value(u"SELECT Num_PACK FROM DFN_Pack WHERE PackNo='K1'"_s));
}

QString TillTest::TicketCounter()
{
    return Value(u"SELECT IFNULL(MAX(CurrNumber),'') FROM Count_Bill "
                 "WHERE TID='01' AND UID='01' AND CurrDate='2026-03-09'"_s);
}

void OpenTillTest::SetUp()
{
    TillTest::SetUp();
    OpenTill();
}

void OpenTillTest::ExpectNothingWritten()
{
    EXPECT_TRUE(TillIsOpen());
    EXPECT_EQ(Count(u"Sal_List"_s), 0);
    EXPECT_EQ(Count(u"Count_Bill"_s), 0);
    EXPECT_EQ(Count(u"Pack_List"_s), 0);
    EXPECT_EQ(NumSal(u"A-001"_s), u"100"_s);
    EXPECT_EQ(NumSal(u"B-001"_s), u"200"_s);
    EXPECT_EQ(CratesOut(), u"0"_s);
}
