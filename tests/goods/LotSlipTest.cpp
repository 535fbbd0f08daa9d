#include "goods/LotSlip.h"
#include "goods/frmTemp.h"
#include "tests/goods/GoodsTest.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

class LotSlipPrint : public GoodsTest {
protected:
    void SetStyle(const QString& style)
    {
        Db().Run(u"UPDATE DFN_Paper SET PrintStyle='%1' WHERE PaperID='P01'"_s.arg(style));
    }
    /// Books the usual lot with the slip in this style.
    void Book(const QString& style)
    {
        SetStyle(style);
        OpenRegistration();
        TypeNewLot();
        TakeStatements();
        Press(Qt::Key_Return);
    }
};

const QStringList TheSums{u"SELECT SUM(Num) FROM EStore_List WHERE ID='' And EStoreType='0'"_s,
                          u"SELECT SUM(Num) FROM EStore_List WHERE ID='' And EStoreType='1'"_s,
                          u"SELECT SUM(Num) FROM EStore_List WHERE ID='' And EStoreType='2'"_s};
const QStringList TheHeadings{u"SELECT CompName FROM Sys_Define"_s, u"SELECT DepartName FROM Sys_Define"_s};

} // namespace

TEST_F(LotSlipPrint, StyleOnePrintsOnStationery)
{
    Book(u"1"_s);
    EXPECT_EQ(printer.calls, QStringList{u"stationery"_s});
    EXPECT_EQ(TakeStatements().mid(10), TheSums + TheHeadings);
}

TEST_F(LotSlipPrint, StyleTwoPrintsWithTheFrame)
{
    Book(u"2"_s);
    EXPECT_EQ(printer.calls, QStringList{u"sheet"_s});
}

TEST_F(LotSlipPrint, StyleZeroAndTextsMakeNoSlipAndTheSaveIsUnaffected)
{
    Book(u"0"_s);
    EXPECT_EQ(printer.calls, QStringList());
    EXPECT_EQ(TakeStatements().size(), 10);
    EXPECT_EQ(Count(u"PRD_List"_s), 1);
}

TEST_F(LotSlipPrint, AnyOtherStyleAboveZeroMakesTheSlipAndPrintsNothing)
{
    Book(u"3"_s);
    EXPECT_EQ(TakeStatements().mid(10), TheSums + TheHeadings);
    EXPECT_EQ(printer.calls, QStringList());
    EXPECT_EQ(frmTemp::Loaded(), nullptr);
}

TEST_F(LotSlipPrint, TheStyleIsTheOneOfTheOpening)
{
    SetStyle(u"1"_s);
    OpenRegistration();
    SetStyle(u"0"_s);
    TypeNewLot();
    Press(Qt::Key_Return);
    EXPECT_EQ(printer.calls.size(), 1);
}

TEST_F(LotSlipPrint, SaysWhatTheLotIs)
{
    Book(u"1"_s);
    EXPECT_EQ(printer.slip, (QMap<QString, QString>{{u"txtCustDate"_s, u"2026年03月09日"_s},
                                                    {u"txtCustName"_s, u"王老板"_s},
                                                    {u"txtPRDNo"_s, u"A-005"_s},
                                                    {u"txtVerifyID"_s, u"77"_s},
                                                    {u"txtPRDName"_s, u"苹果"_s},
                                                    {u"txtNum"_s, u"100件"_s},
                                                    {u"txtMPercent"_s, u"12.5"_s},
                                                    {u"txtPArea"_s, u"洛川"_s},
                                                    {u"txtStore"_s, u"一号库"_s},
                                                    {u"txtDebitPrice"_s, u"¥500.0"_s},
                                                    {u"txtMemo"_s, u"早到"_s},
                                                    {u"txtUserID"_s, u"01"_s},
                                                    {u"lblCompName"_s, u"青禾果品商品登记单"_s},
                                                    {u"lblReportName"_s, u"十二号档"_s}}));
}

TEST_F(LotSlipPrint, ACorrectionShowsTheStockAfterItsChangesSalesNotTakenOff)
{
    AddLot(u"20260301001"_s, u"A-003"_s, u"Num=100,Num_Sal=70,Store='一号库',CustName='王老板'"_s);
    AddTicket(u"01260301001"_s, u"20260301001"_s, u"30"_s);
    Db().Run(u"INSERT INTO EStore_List SET ID='20260301001',EStoreType='0',Num=20;"
             "INSERT INTO EStore_List SET ID='20260301001',EStoreType='1',Num=5;"
             "INSERT INTO EStore_List SET ID='20260301001',EStoreType='2',Num=5;"
             "INSERT INTO EStore_List SET ID='20260302001',EStoreType='0',Num=999"_s);
    SetStyle(u"2"_s);
    OpenForCorrection(u"A-003"_s);
    Press(Qt::Key_S, Qt::AltModifier);
    EXPECT_EQ(printer.slip[u"txtNum"_s], u"110件"_s);
    EXPECT_EQ(printer.slip[u"txtCustDate"_s], u"2026年03月09日"_s);
}

TEST_F(LotSlipPrint, StockChangesWithoutALotCountForANewLot)
{
    Db().Run(u"INSERT INTO EStore_List SET ID='',EStoreType='0',Num=7"_s);
    Book(u"1"_s);
    EXPECT_EQ(printer.slip[u"txtNum"_s], u"107件"_s);
}

TEST_F(LotSlipPrint, TheReprintReadsTheOpenLotAndItsChanges)
{
    AddLot(u"20260201001"_s, u"A-003"_s, u"Num=5,CustName='旧货主',bolCheckOut='1'"_s);
    AddLot(u"20260301001"_s, u"A-003"_s,
           u"Num=100.5,PType='件',MPercent=12.5,Store='一号库',PArea='洛川',CustName='王老板',VerifyID='77',"
           "DebitPrice=1500,Memo='早到',CustInDate='2026-03-01',Receiver='02'"_s);
    Db().Run(u"INSERT INTO EStore_List SET ID='20260301001',EStoreType='0',Num=20"_s);
    SetStyle(u"2"_s);
    ReprintLotSlip(u"A-003"_s);

    EXPECT_EQ(printer.calls, QStringList{u"sheet"_s});
    EXPECT_EQ(printer.slip[u"txtCustName"_s], u"王老板"_s);
    EXPECT_EQ(printer.slip[u"txtPRDNo"_s], u"A-003"_s);
    EXPECT_EQ(printer.slip[u"txtNum"_s], u"120.5件"_s);
    EXPECT_EQ(printer.slip[u"txtMPercent"_s], u"12.5"_s);
    EXPECT_EQ(printer.slip[u"txtDebitPrice"_s], u"¥1,500.0"_s);
    EXPECT_EQ(printer.slip[u"txtCustDate"_s], u"2026年03月09日"_s);
    EXPECT_EQ(printer.slip[u"txtUserID"_s], u"01"_s);
    EXPECT_EQ(printer.slip[u"txtMemo"_s], u"早到"_s);
}

TEST_F(LotSlipPrint, TheReprintIsSilentWithoutAnOpenLotOrWithSlipsOff)
{
    AddLot(u"20260301001"_s, u"A-003"_s, u"bolCheckOut='1'"_s);
    SetStyle(u"1"_s);
    ReprintLotSlip(u"A-003"_s);
    SetStyle(u"0"_s);
    TakeStatements();
    ReprintLotSlip(u"A-003"_s);
    EXPECT_EQ(TakeStatements().size(), 1);
    EXPECT_EQ(printer.calls, QStringList());
}

TEST_F(LotSlipPrint, TheFormHasItsCaptionsAndCentredHeadings)
{
    frmTemp& form = frmTemp::Load();
    EXPECT_EQ(form.windowTitle(), u"打印过渡"_s);
    const QStringList captions{u"姓名"_s,
                               u"编号"_s,
                               u"校验码"_s,
                               u"品名"_s,
                               u"数量"_s,
                               u"毛  重"_s,
                               u"产地"_s,
                               u"仓位"_s,
                               u"备注"_s,
                               u"客户签字"_s,
                               u"预支款"_s,
                               u"经办"_s,
                               u"注意保存,凭此单结算"_s};
    for (int i = 0; i < captions.size(); ++i) {
        const auto* label = form.findChild<QLabel*>(u"lbl%1"_s.arg(i + 1, 2, 10, QChar(u'0')));
        ASSERT_NE(label, nullptr) << i;
        EXPECT_EQ(label->text(), captions[i]);
        EXPECT_LE(label->sizeHint().width(), label->width()) << captions[i].toStdString();
    }
    for (const QString& name : {u"lblCompName"_s, u"lblReportName"_s}) {
        const QRect heading = form.findChild<QLabel*>(name)->geometry();
        EXPECT_EQ(heading.left(), (form.width() - heading.width()) / 2);
    }
    EXPECT_FALSE(form.isVisible());
    frmTemp::Unload();
}
