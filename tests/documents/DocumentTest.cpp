#include "tests/documents/DocumentTest.h"

#include "app/StartProgram.h"
#include "core/session/Session.h"
#include "goods/LotSlip.h"
#include "goods/frmPrintEStore.h"
#include "goods/frmTemp.h"
#include "printing/PrintQueue.h"
#include "settlement/frmDebit.h"

#include <QDir>
#include <QHash>

using namespace Qt::StringLiterals;

namespace {

const QHash<QString, QString>& Papers()
{
    static const QHash<QString, QString> papers{
        {u"lot-slip"_s, u"P01"_s}, {u"stock-change"_s, u"P02"_s}, {u"ticket"_s, u"P03"_s},
        {u"advance"_s, u"P04"_s},  {u"settlement"_s, u"P05"_s},   {u"settlement-a"_s, u"P05"_s},
    };
    return papers;
}

const QHash<QString, QString>& OpenForms()
{
    static const QHash<QString, QString> forms{
        {u"ticket"_s, u"frmSale"_s},
        {u"advance"_s, u"frmDebit"_s},
        {u"settlement"_s, u"frmCheckOut"_s},
        {u"settlement-a"_s, u"frmCheckOutA"_s},
    };
    return forms;
}

LotSlip SlipOfTheMorning()
{
    return {.date = QDate(2026, 3, 9),
            .lotId = u"20260309001"_s,
            .custName = u"海南崖州果业合作社"_s,
            .prdNo = u"K-128"_s,
            .verifyId = u"25806"_s,
            .prdName = u"贵妃芒果（特级）"_s,
            .num = 12860,
            .unit = u"件"_s,
            .mPercent = u"12.75"_s,
            .pArea = u"海南省三亚市崖州区"_s,
            .store = u"一号冷库东区"_s,
            .debitPrice = 36500.5,
            .memo = u"第三车，外箱略潮，先卖；司机电话留在磅单背面"_s};
}

StockChangeSlip ChangeOfTheMorning()
{
    return {.date = QDate(2026, 3, 10),
            .custName = u"海南崖州果业合作社"_s,
            .prdNo = u"K-128"_s,
            .prdName = u"贵妃芒果（特级）"_s,
            .custInDate = u"2026-03-09"_s,
            .custInNum = 12860,
            .store = u"一号冷库东区"_s,
            .kind = u"损耗"_s,
            .num = 37.5,
            .stock = 12822.5,
            .memo = u"压坏，已当面点清"_s};
}

} // namespace

const QStringList& DocumentNames()
{
    static const QStringList names{u"lot-slip"_s, u"stock-change"_s, u"ticket"_s,
                                   u"advance"_s,  u"settlement"_s,   u"settlement-a"_s};
    return names;
}

void DocumentTest::SetUp()
{
    WindowTest::SetUp();
    RegisterWindows();
    Windows().Register(u"frmDebit"_s, [](QWidget* owner) { return new frmDebit(owner); });
    Session::PaperSizeCode = 9;
    QDir().mkpath(PdfFolder()); // known already: no box tells of it
    Db().Run(uR"(
        UPDATE Sys_Define SET CompName='青禾果品批发代销行', DepartName='江南果品市场南区十二号档';
        INSERT INTO Sales VALUES ('11','周建国');
        INSERT INTO PRD_List (ID,PRDNo,PRDNo_S,PRDName,Num,Num_Sal,PType,MPercent,Store,PArea,CustName,
                              CustInDate,VerifyID,bolPack,PerForegift,bolCheckOut) VALUES
          ('20260309001','K-128','8','贵妃芒果（特级）',12860,12860,'件',12.75,'一号冷库东区',
           '海南省三亚市崖州区','海南崖州果业合作社','2026-03-09','25806','0',0,'0');
    )"_s);
}

void DocumentTest::TearDown()
{
    frmTemp::Unload();
    frmPrintEStore::Unload();
    WindowTest::TearDown();
}

frmPrint& DocumentTest::Printer()
{
    return dynamic_cast<frmPrint&>(Documents());
}

void DocumentTest::Fill(const QString& document)
{
    if (document == u"lot-slip")
        FillLotSlip(SlipOfTheMorning());
    else if (document == u"stock-change")
        frmPrintEStore::Load().Fill(ChangeOfTheMorning());
    else if (document == u"ticket")
        FillTicket();
    else if (document == u"advance")
        FillAdvance();
    else
        FillSettlement(OpenForms().value(document));
}

void DocumentTest::FillTicket()
{
    Open(u"frmSale"_s);
    Windows().Find(u"frmSale"_s)->TakeName(u"鲜多多连锁超市（城北店）"_s);
    Press(Qt::Key_Return);
    Enter(u"txtPRDNo"_s, u"K-128"_s);
    Enter(u"txtPRDName"_s, QString());
    Enter(u"txtNum"_s, u"1250"_s);
    Enter(u"txtSuttle"_s, u"15937.5"_s);
    Enter(u"txtUPR"_s, u"4.85"_s);
    Enter(u"txtPerPack"_s, u"1.5"_s);
    Enter(u"txtPerForegift"_s, u"2"_s);
    Enter(u"txtListNo"_s, u"0038215"_s);
    Enter(u"txtSalesID"_s, u"11"_s);
}

void DocumentTest::FillAdvance()
{
    Open(u"frmDebit"_s);
    const QList<std::pair<QString, QString>> texts{
        {u"txtPRDNo"_s, u"K-128"_s},
        {u"txtCustName"_s, u"海南崖州果业合作社"_s},
        {u"txtPRDName"_s, u"贵妃芒果（特级）"_s},
        {u"txtNum"_s, u"12860"_s},
        {u"txtStore"_s, u"一号冷库东区"_s},
        {u"txtCustInDate"_s, u"2026-03-09"_s},
        {u"txtAmount"_s, u"77,296.88"_s},
        {u"txtDebitAmount"_s, u"20000.0"_s},
        {u"txtTDebitAmount"_s, u"56,500.50"_s},
        {u"txtMemo"_s, u"现金，货主本人到场，凭身份证领取"_s},
    };
    for (const auto& [name, text] : texts)
        Find(u"frmDebit"_s, name)->setText(text);
}

void DocumentTest::FillSettlement(const QString& form)
{
    Db().Run(uR"(
        INSERT INTO Sal_List (SalNo,ID,PRDNo,Num,Suttle,Amount) VALUES
          ('01260309001','20260309001','K-128',1250,15937.5,77296.88),
          ('01260309002','20260309001','K-128',380,4845,23013.75);
        INSERT INTO CustDebit (ID,PRDNo,DebitAmount) VALUES ('20260309001','K-128',20000);
    )"_s);
    Open(form);
    Enter(u"txtPRDNo"_s, u"K-128"_s);
    Enter(u"txtPer_LManage"_s, u"5"_s);
    while (FocusName() != u"txtLOtherPrice" && !HasFailure())
        Press(Qt::Key_Return);
    Enter(u"txtLOtherPrice"_s, u"120"_s);
    Enter(u"txtCheckUser"_s, u"管理员"_s);
    Type(u"会计"_s);
}

void DocumentTest::Call(const QString& document, PrintMode mode)
{
    static const QHash<QString, Document> documents{
        {u"lot-slip"_s, Document::PRDList},    {u"stock-change"_s, Document::EStore},
        {u"ticket"_s, Document::SaleList},     {u"advance"_s, Document::Debit},
        {u"settlement"_s, Document::CheckOut}, {u"settlement-a"_s, Document::CheckOutA}};
    Printer().Record(&m_log);
    Documents().Print(documents.value(document), mode, *FormOf(document));
    frmTemp::Unload();
    frmPrintEStore::Unload();
}

void DocumentTest::Print(const QString& document, PrintMode mode)
{
    Call(document, mode);
    EXPECT_EQ(Count(u"ErrInfo"_s), 0) << Value(u"SELECT MAX(ErrDescription) FROM ErrInfo"_s).toStdString();
}

void DocumentTest::PrintFailing(const QString& document)
{
    Call(document, PrintMode::Sheet);
}

QWidget* DocumentTest::FormOf(const QString& document)
{
    if (document == u"lot-slip")
        return frmTemp::Loaded();
    if (document == u"stock-change")
        return frmPrintEStore::Loaded();
    Form* form = Windows().Find(OpenForms().value(document));
    return form ? form->Widget() : nullptr;
}

void DocumentTest::SetOffsets(const QString& document, const QString& left, const QString& top)
{
    Db().Run(u"UPDATE DFN_Paper SET LeftArea=%1,TopArea=%2 WHERE PaperID='%3'"_s.arg(
        left, top, Papers().value(document)));
}

QStringList DocumentTest::TakeDrawing()
{
    return m_log.TakeLines();
}

QStringList DocumentTest::PdfFiles() const
{
    const QDir folder(PdfFolder());
    QStringList files = folder.entryList({u"*.pdf"_s}, QDir::Files, QDir::Name);
    for (QString& file : files)
        file = folder.filePath(file);
    return files;
}
