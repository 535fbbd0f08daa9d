#include "goods/frmPRDList.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/ColumnNames.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/LabelButton.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "goods/LotSlip.h"
#include "ui_frmPRDList.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int NumberLength = 20; // characters of a numeric field
constexpr int LastCustID = 999;

/// What an open lot is shown from.
const ColumnNames LotColumns(
    u"PID,CustID,PRDName,Num,MPercent,CustInDate,Store,PArea,bolPack,CustName,CardNo,VerifyID,Address,"
    "DebitPrice,Tel,Fax,Mobile,Memo,bolFixed,PerForegift,PRDNo_S,PackNo,ID"_s);

QString Trimmed(const QLineEdit* box)
{
    return box->text().trimmed();
}

/// A text for every number column, "" read as 0.
QString Number(const QLineEdit* box)
{
    return SqlNumber(TextToDouble(box->text()));
}

} // namespace

struct frmPRDList::Entry {
    QString pid, custId, prdNo, prdName, pType, store, pArea, packNo, prdNoS;
    QString num, mPercent, perForegift, debitPrice;
    QString custName, cardNo, verifyId, address, tel, fax, mobile, memo;
    QString bolPack, bolFixed;
};

frmPRDList::frmPRDList(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmPRDList>())
{
    ui->setupUi(this);
    ChainGoods();
    ChainOwner();
    OnPress(ui->cmdSubmit, [this] { SaveLot(); });
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmPRDList::~frmPRDList() = default;

void frmPRDList::ChainGoods()
{
    Chain().Field(ui->txtPID).AtMost(30).OnLeave([this] { AssignLotNumber(); });
    Chain().Field(ui->txtCustID);
    Chain().Field(ui->txtPRDNo).OnChange([this] { LoadLotByNumber(ui->txtPRDNo->text()); });
    Chain().Field(ui->txtPRDName);
    Chain().Field(ui->txtNum).AtMost(NumberLength).Numeric(u"数量填写有误！"_s);
    Chain().Combo(ui->cmbPType);
    Chain().Field(ui->txtMPercent).AtMost(NumberLength).Numeric(u"数量填写有误！"_s).ZeroWhenLeftEmpty();
    Chain().Field(ui->txtCustInDate);
    Chain().Field(ui->txtStore).AtMost(60).OnLeave([this] { CheckStore(); });
    Chain().Field(ui->txtPArea).AtMost(60);
    Chain().Combo(ui->cmbPack);
    Chain().Field(ui->txtPerForegift).AtMost(NumberLength).Numeric(u"填写错误！"_s).ZeroWhenLeftEmpty();
}

void frmPRDList::ChainOwner()
{
    Chain().Field(ui->txtCustName).AtMost(60).UpTo(ui->cmbPack);
    Chain().Field(ui->txtCardNO).AtMost(50);
    Chain().Field(ui->txtVerifyID).AtMost(50);
    Chain().Field(ui->txtAddress).AtMost(255);
    Chain().Field(ui->txtDebitPrice).AtMost(NumberLength).Numeric(u"金额填写有误！"_s).ZeroWhenLeftEmpty();
    Chain().Field(ui->txtTel).AtMost(50);
    Chain().Field(ui->txtFax).AtMost(50);
    Chain().Field(ui->txtMobile).AtMost(50);
    Chain().Field(ui->txtMemo).AtMost(255);
    Chain().Field(ui->txtPRDNo_S).AtMost(50);
    Chain().Field(ui->txtPackNo).AtMost(30).OnEnter([this] { SaveLot(); });
    Chain().Check(ui->chkFixed);
}

void frmPRDList::OnLoad()
{
    ui->txtCustInDate->setText(FormatDate(Clock::Now().date()));
    m_printStyle = GetPrintStyle(u"P01"_s);
}

void frmPRDList::SetKey(const QString& key)
{
    WriteText(ui->txtPRDNo, key);
}

void frmPRDList::AssignLotNumber()
{
    if (!m_isNewLot)
        return;
    const QString pid = Trimmed(ui->txtPID);
    if (pid.isEmpty()) {
        Chain().ReturnTo(ui->txtPID);
        return;
    }
    try {
        ProposeLotNumber(pid);
    } catch (...) {
        ForgetLot();
        Chain().ReturnTo(ui->txtPID);
        throw;
    }
}

void frmPRDList::ProposeLotNumber(const QString& pid)
{
    const QString sortWhere = u"SortID="_s + Quoted(pid);
    const RecordSet sort = Gateway().SelectRows(u"PRD_Sort"_s, u"SortName,CurrNumber"_s, sortWhere);
    if (sort.Eof()) {
        ShowInfo(u"不存在的商品编号！"_s);
        WriteText(ui->txtPID, QString());
        Chain().ReturnTo(ui->txtPID);
        return;
    }
    ui->txtPRDName->setText(sort.Text(0));
    std::int16_t n = ToInt16(NullToZero(sort.Fields(1).Value) + 1);
    for (;;) {
        const QString custId = ThreeDigits(n);
        const QString prdNo = pid + u'-' + custId;
        ui->txtCustID->setText(custId);
        WriteText(ui->txtPRDNo, prdNo);
        if (!LotIsFixed(prdNo))
            return;
        // A locked lot keeps its number for as long as it is open: the sort moves on past it.
        n = ToInt16(n + 1.0);
        Gateway().UpdateRows(u"PRD_Sort"_s, u"CurrNumber=CurrNumber+1"_s, sortWhere);
    }
}

void frmPRDList::LoadLotByNumber(const QString& number)
{
    m_lotId.clear();
    m_isNewLot = true;
    if (number.isEmpty())
        return;
    try {
        const RecordSet lot = Gateway().SelectRows(u"PRD_List"_s, LotColumns.Text(),
                                                   u"PRDNo="_s + Quoted(number) + u" And bolCheckOut='0'"_s);
        if (lot.Eof())
            return;
        m_isNewLot = false;
        ShowLot(lot);
    } catch (...) {
        ForgetLot();
        throw;
    }
    // It stays locked until the window is closed, after the save too.
    Lock(ui->txtPID);
}

void frmPRDList::ForgetLot()
{
    for (QLineEdit* box : {ui->txtPID, ui->txtCustID, ui->txtPRDName, ui->txtPRDNo})
        WriteText(box, QString());
}

void frmPRDList::ShowLot(const RecordSet& lot)
{
    const auto text = [&lot](const QString& column) { return lot.Text(LotColumns.At(column)); };
    WriteText(ui->txtPID, text(u"PID"_s));
    WriteText(ui->txtCustID, text(u"CustID"_s));
    WriteText(ui->txtPRDName, text(u"PRDName"_s));
    WriteText(ui->txtNum, text(u"Num"_s));
    WriteText(ui->txtMPercent, text(u"MPercent"_s));
    WriteText(ui->txtCustInDate, text(u"CustInDate"_s));
    WriteText(ui->txtStore, text(u"Store"_s));
    WriteText(ui->txtPArea, text(u"PArea"_s));
    ui->cmbPack->setCurrentIndex(text(u"bolPack"_s).toInt());
    WriteText(ui->txtCustName, text(u"CustName"_s));
    WriteText(ui->txtCardNO, text(u"CardNo"_s));
    WriteText(ui->txtVerifyID, text(u"VerifyID"_s));
    WriteText(ui->txtAddress, text(u"Address"_s));
    WriteText(ui->txtDebitPrice, text(u"DebitPrice"_s));
    WriteText(ui->txtTel, text(u"Tel"_s));
    WriteText(ui->txtFax, text(u"Fax"_s));
    WriteText(ui->txtMobile, text(u"Mobile"_s));
    WriteText(ui->txtMemo, text(u"Memo"_s));
    ui->chkFixed->setChecked(text(u"bolFixed"_s) == u"1");
    WriteText(ui->txtPerForegift, text(u"PerForegift"_s));
    WriteText(ui->txtPRDNo_S, text(u"PRDNo_S"_s));
    WriteText(ui->txtPackNo, text(u"PackNo"_s));
    m_lotId = text(u"ID"_s);
    ui->cmbPType->setCurrentIndex(0);
}

void frmPRDList::CheckStore()
{
    const QString store = Trimmed(ui->txtStore);
    if (store.isEmpty() || StoreExists(store))
        return;
    ShowInfo(u"仓位不存在，请重新输入仓位！"_s);
    WriteText(ui->txtStore, QString());
    Chain().ReturnTo(ui->txtStore);
}

void frmPRDList::SaveLot()
{
    GuardedUnlogged([this] {
        if (!FieldsAreComplete())
            return;
        const Entry entry = ReadEntry();
        const QDateTime now = Clock::Now();
        if (!m_isNewLot)
            CorrectLot(entry, now);
        else if (!BookNewLot(entry, now))
            return;
        PrintSlip(entry, now);
        RefreshOpenList();
        ClearForNext(now);
    });
}

bool frmPRDList::FieldsAreComplete()
{
    if (Trimmed(ui->txtPID).isEmpty())
        return Refuse(ui->txtPID, u"请填写编号！"_s);
    const QString shortcut = Trimmed(ui->txtPRDNo_S);
    if (!shortcut.isEmpty() &&
        !Gateway()
             .SelectRows(u"PRD_List"_s, u"PRDNo"_s,
                         u"PRDNo_S="_s + Quoted(shortcut) + u" And bolCheckOut='0' And PRDNo<>"_s +
                             Quoted(Trimmed(ui->txtPRDNo)))
             .Eof())
        return Refuse(ui->txtPRDNo_S, u"相同快捷编号已存在！"_s);
    if (Trimmed(ui->txtNum).isEmpty())
        return Refuse(ui->txtNum, u"请填写数量！"_s);
    if (Trimmed(ui->txtStore).isEmpty())
        return Refuse(ui->txtStore, u"请填写仓位！"_s);
    if (Trimmed(ui->txtCustName).isEmpty())
        return Refuse(ui->txtCustName, u"请填写姓名！"_s);
    if (Trimmed(ui->txtDebitPrice).isEmpty())
        WriteText(ui->txtDebitPrice, u"0"_s);
    return true;
}

frmPRDList::Entry frmPRDList::ReadEntry() const
{
    return {
        .pid = Trimmed(ui->txtPID),
        .custId = Trimmed(ui->txtCustID),
        .prdNo = Trimmed(ui->txtPRDNo),
        .prdName = Trimmed(ui->txtPRDName),
        .pType = ui->cmbPType->currentText(),
        .store = Trimmed(ui->txtStore),
        .pArea = Trimmed(ui->txtPArea),
        .packNo = Trimmed(ui->txtPackNo),
        .prdNoS = Trimmed(ui->txtPRDNo_S),
        .num = Number(ui->txtNum),
        .mPercent = Number(ui->txtMPercent),
        .perForegift = Number(ui->txtPerForegift),
        .debitPrice = Number(ui->txtDebitPrice),
        .custName = Trimmed(ui->txtCustName),
        .cardNo = Trimmed(ui->txtCardNO),
        .verifyId = Trimmed(ui->txtVerifyID),
        .address = Trimmed(ui->txtAddress),
        .tel = Trimmed(ui->txtTel),
        .fax = Trimmed(ui->txtFax),
        .mobile = Trimmed(ui->txtMobile),
        .memo = Trimmed(ui->txtMemo),
        .bolPack = QString::number(ui->cmbPack->currentIndex()),
        .bolFixed = ui->chkFixed->isChecked() ? u"1"_s : u"0"_s,
    };
}

void frmPRDList::CorrectLot(const Entry& entry, const QDateTime& now)
{
    const QStringList assignments{
        u"EReceiver="_s + Quoted(Session::CurrentUserID),
        u"EDate="_s + Quoted(FormatDate(now.date())),
        u"ETime="_s + Quoted(FormatTime(now.time())),
        // Read from left to right: the stock moves by the difference before the quantity is overwritten.
        u"Num_Sal=Num_Sal-Num+"_s + entry.num,
        u"Num="_s + entry.num,
        u"MPercent="_s + entry.mPercent,
        u"Store="_s + Quoted(entry.store),
        u"PArea="_s + Quoted(entry.pArea),
        u"bolPack="_s + Quoted(entry.bolPack),
        u"PerForegift="_s + entry.perForegift,
        u"CustName="_s + Quoted(entry.custName),
        u"CardNO="_s + Quoted(entry.cardNo),
        u"VerifyID="_s + Quoted(entry.verifyId),
        u"Address="_s + Quoted(entry.address),
        u"Tel="_s + Quoted(entry.tel),
        u"Fax="_s + Quoted(entry.fax),
        u"Mobile="_s + Quoted(entry.mobile),
        u"Memo="_s + Quoted(entry.memo),
        u"PRDNo_S="_s + Quoted(entry.prdNoS),
        u"PackNo="_s + Quoted(entry.packNo),
        u"bolFixed="_s + Quoted(entry.bolFixed),
    };
    const QString lotWhere = u"ID="_s + Quoted(m_lotId);
    const QString owner = u"CustName="_s + Quoted(entry.custName);
    Gateway().UpdateRows(u"PRD_List"_s, assignments.join(u','), lotWhere);
    Gateway().UpdateRows(u"CustDebit"_s, owner, lotWhere);
    Gateway().UpdateRows(u"Sal_List"_s, owner, lotWhere);
    Gateway().UpdateRows(u"Sal_List_B"_s, owner, lotWhere);
}

QString frmPRDList::TakeLotId(const QDateTime& now)
{
    const QString today = FormatDate(now.date());
    const QString series = Quoted(BillSeries::Lots);
    const QString counterWhere = u"TID="_s + series + u" And CurrDate="_s + Quoted(today);
    const RecordSet counter = Gateway().SelectRows(u"Count_Bill"_s, u"CurrNumber"_s,
                                                   u"CurrDate="_s + Quoted(today) + u" And TID="_s + series);
    std::int16_t k = 1;
    if (counter.Eof())
        Gateway().InsertRow(u"Count_Bill"_s, u"TID,CurrDate,CurrNumber"_s,
                            series + u',' + Quoted(today) + u",0"_s);
    else
        k = ToInt16(NullToZero(counter.Fields(0).Value) + 1);
    for (;;) {
        QString id = now.date().toString(u"yyyyMMdd"_s) + ThreeDigits(k);
        if (Gateway().SelectRows(u"PRD_List"_s, u"CustID"_s, u"ID="_s + Quoted(id)).Eof())
            return id;
        k = ToInt16(k + 1.0);
        Gateway().UpdateRows(u"Count_Bill"_s, u"CurrNumber=CurrNumber+1"_s, counterWhere);
    }
}

bool frmPRDList::BookNewLot(const Entry& entry, const QDateTime& now)
{
    const QString today = FormatDate(now.date());
    const QString id = TakeLotId(now);
    if (!Gateway()
             .SelectRows(u"PRD_List"_s, u"PRDNo"_s,
                         u"PRDNo="_s + Quoted(entry.prdNo) + u" And bolCheckOut='0'"_s)
             .Eof()) {
        ShowInfo(u"相同编号的上一次客户未做结算，请先做结算！"_s);
        return false;
    }
    InsertLot(entry, id, now);
    if (Gateway().SelectRows(u"PRD_List"_s, u"PRDNo"_s, u"ID="_s + Quoted(id)).Eof()) {
        ShowInfo(u"数据有错，不能成功提交，请检查数据！"_s);
        return false;
    }
    Gateway().UpdateRows(u"Count_Bill"_s, u"CurrNumber=CurrNumber+1"_s,
                         u"TID="_s + Quoted(BillSeries::Lots) + u" And CurrDate="_s + Quoted(today));
    if (entry.debitPrice != u"0") {
        const QStringList advance{
            Quoted(id),          Quoted(entry.prdNo), Quoted(entry.custName), Quoted(entry.prdName),
            Quoted(entry.store), entry.debitPrice,    Quoted(today),          Quoted(Session::CurrentUserID)};
        Gateway().InsertRow(u"CustDebit"_s,
                            u"ID,PRDNo,CustName,PRDName,Store,DebitPrice,DebitDate,Receiver"_s,
                            advance.join(u','));
    }
    const bool isLastNumber = entry.custId.toInt() == LastCustID;
    Gateway().UpdateRows(u"PRD_Sort"_s, isLastNumber ? u"CurrNumber=0"_s : u"CurrNumber=CurrNumber+1"_s,
                         u"SortID="_s + Quoted(entry.pid));
    return true;
}

void frmPRDList::InsertLot(const Entry& entry, const QString& id, const QDateTime& now)
{
    const QString today = Quoted(FormatDate(now.date()));
    const QStringList values{
        Quoted(id),
        Quoted(entry.pid),
        Quoted(entry.custId),
        Quoted(entry.prdNo),
        Quoted(entry.prdName),
        entry.num,
        entry.num, // Num_Sal: nothing is sold yet
        Quoted(entry.pType),
        entry.mPercent,
        today,
        Quoted(entry.store),
        Quoted(entry.pArea),
        Quoted(entry.bolPack),
        entry.perForegift,
        Quoted(entry.custName),
        Quoted(entry.cardNo),
        Quoted(entry.verifyId),
        Quoted(entry.address),
        entry.debitPrice,
        Quoted(entry.tel),
        Quoted(entry.fax),
        Quoted(entry.mobile),
        Quoted(entry.memo),
        Quoted(entry.bolFixed),
        Quoted(Session::CurrentUserID),
        today,
        Quoted(FormatTime(now.time())),
        Quoted(entry.prdNoS),
        Quoted(entry.packNo),
    };
    Gateway().InsertRow(
        u"PRD_List"_s,
        u"ID,PID,CustID,PRDNo,PRDName,Num,Num_Sal,PType,MPercent,CustInDate,Store,PArea,bolPack,"
        "PerForegift,CustName,CardNO,VerifyID,Address,DebitPrice,Tel,Fax,Mobile,Memo,bolFixed,"
        "Receiver,CustFInDate,CustInTime,PRDNo_S,PackNo"_s,
        values.join(u','));
}

void frmPRDList::PrintSlip(const Entry& entry, const QDateTime& now)
{
    PrintLotSlip({.date = now.date(),
                  .lotId = m_lotId,
                  .custName = entry.custName,
                  .prdNo = entry.prdNo,
                  .verifyId = entry.verifyId,
                  .prdName = entry.prdName,
                  .num = TextToDouble(entry.num),
                  .unit = entry.pType,
                  .mPercent = Trimmed(ui->txtMPercent),
                  .pArea = entry.pArea,
                  .store = entry.store,
                  .debitPrice = TextToDouble(entry.debitPrice),
                  .memo = entry.memo},
                 m_printStyle);
}

void frmPRDList::ClearForNext(const QDateTime& now)
{
    const auto boxes = TextBoxes();
    for (QLineEdit* box : boxes)
        WriteText(box, QString());
    ui->cmbPType->setCurrentIndex(0);
    ui->cmbPack->setCurrentIndex(0);
    ui->chkFixed->setChecked(false);
    ui->txtCustInDate->setText(FormatDate(now.date()));
    FocusAndSelect(ui->txtPID);
}
