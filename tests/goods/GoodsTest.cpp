#include "tests/goods/GoodsTest.h"

#include "core/forms/ListGrid.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "goods/frmDataList.h"
#include "goods/frmPRDList.h"
#include "goods/frmSearchPRD.h"
#include "goods/frmTemp.h"

#include <QLabel>

using namespace Qt::StringLiterals;

void PrintRecorder::Print(Document document, PrintMode mode, const QWidget& form)
{
    EXPECT_EQ(document, Document::PRDList);
    calls << (mode == PrintMode::Stationery ? u"stationery"_s : u"sheet"_s);
    const auto boxes = form.findChildren<QLineEdit*>();
    for (const QLineEdit* box : boxes)
        slip[box->objectName()] = box->text();
    for (const QString& heading : {u"lblCompName"_s, u"lblReportName"_s})
        slip[heading] = form.findChild<QLabel*>(heading)->text();
}

void GoodsTest::SetUp()
{
    WindowTest::SetUp();
    Windows().Register(u"frmDataList"_s, [](QWidget* owner) { return new frmDataList(owner); });
    Windows().Register(u"frmPRDList"_s, [](QWidget* owner) { return new frmPRDList(owner); });
    Windows().Register(u"frmSearchPRD"_s, [](QWidget* owner) { return new frmSearchPRD(owner); });
    Db().Run(u"INSERT INTO Store VALUES ('一号库'),('二号库');"
             "INSERT INTO PRD_Sort VALUES ('A','苹果',4),('B','雪梨',998),('C','蜜橘',0);"
             "UPDATE Sys_Define SET CompName='青禾果品', DepartName='十二号档'"_s);
    Session::CurrentMenuKey = u"PRDList"_s;
    SetDocumentPrinter(&printer);
}

void GoodsTest::TearDown()
{
    WindowTest::TearDown();
    SetDocumentPrinter(nullptr);
    EXPECT_EQ(frmTemp::Loaded(), nullptr) << "the slip was left loaded";
}

void GoodsTest::AddLot(const QString& id, const QString& prdNo, const QString& more)
{
    Db().Run(u"INSERT INTO PRD_List SET ID='%1',PID='%2',CustID='%3',PRDNo='%4',PRDName='苹果'%5"_s.arg(
        id, prdNo.section(u'-', 0, 0), prdNo.section(u'-', 1), prdNo,
        more.isEmpty() ? QString() : u',' + more));
}

void GoodsTest::AddTicket(const QString& salNo, const QString& lotId, const QString& num)
{
    Db().Run(
        u"INSERT INTO Sal_List SET SalNo='%1',ID='%2',Num=%3,CustName='王老板'"_s.arg(salNo, lotId, num));
}

void GoodsTest::OpenRegistration()
{
    Open(u"frmPRDList"_s);
    TakeStatements();
}

void GoodsTest::OpenForCorrection(const QString& prdNo)
{
    Windows().Load(u"frmPRDList"_s, nullptr)->SetKey(prdNo);
    OpenRegistration();
}

void GoodsTest::Mend()
{
    Gateway().SelectRows(u"Sales"_s, u"SalesID"_s, QString());
}

void GoodsTest::Pass(const QStringList& controls)
{
    for (const QString& control : controls) {
        ASSERT_EQ(FocusName(), control);
        Press(Qt::Key_Return);
    }
}

void GoodsTest::TypeNewLot()
{
    Enter(u"txtPID"_s, u"A"_s);
    Pass({u"txtCustID"_s, u"txtPRDName"_s});
    Enter(u"txtNum"_s, u"100"_s);
    Pass({u"cmbPType"_s});
    Enter(u"txtMPercent"_s, u"12.5"_s);
    Pass({u"txtCustInDate"_s});
    Enter(u"txtStore"_s, u"一号库"_s);
    Enter(u"txtPArea"_s, u"洛川"_s);
    EXPECT_EQ(FocusName(), u"cmbPack"_s);
    Press(Qt::Key_Down);
    Pass({u"cmbPack"_s});
    Enter(u"txtPerForegift"_s, u"8"_s);
    Enter(u"txtCustName"_s, u"王老板"_s);
    Enter(u"txtCardNO"_s, u"4501"_s);
    Enter(u"txtVerifyID"_s, u"77"_s);
    Enter(u"txtAddress"_s, u"东关"_s);
    Enter(u"txtDebitPrice"_s, u"500"_s);
    Enter(u"txtTel"_s, u"1"_s);
    Enter(u"txtFax"_s, u"2"_s);
    Enter(u"txtMobile"_s, u"3"_s);
    Enter(u"txtMemo"_s, u"早到"_s);
    Enter(u"txtPRDNo_S"_s, u"9"_s);
    EXPECT_EQ(FocusName(), u"txtPackNo"_s);
    Type(u"K1"_s);
}

void GoodsTest::Put(const QString& control, const QString& text)
{
    Find(u"frmPRDList"_s, control)->setText(text);
    Settle();
}

ListGrid* GoodsTest::List()
{
    return Find<ListGrid>(u"frmDataList"_s, u"lvDataList"_s);
}

std::vector<QStringList> GoodsTest::ListRows()
{
    std::vector<QStringList> rows;
    for (int row = 0; row < List()->RowCount(); ++row) {
        QStringList texts;
        for (int i = 1; i < List()->Content().ColumnCount(); ++i)
            texts << List()->SubItem(row, i);
        rows.push_back(texts);
    }
    return rows;
}
