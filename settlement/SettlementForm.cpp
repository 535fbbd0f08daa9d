#include "settlement/SettlementForm.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/ColumnNames.h"
#include "core/common/Formats.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/LotStock.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/WholeText.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "settlement/SettlementMath.h"
#include "settlement/SettlementRecords.h"
#include "settlement/SheetStyle.h"

#include <QEvent>
#include <QFontMetricsF>
#include <QLabel>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Characters of the columns that take the typed texts.
constexpr int LotNumberWidth = 50;
constexpr int RateWidth = 30;
constexpr int AmountWidth = 20; // fourteen digits, all that a column holds, grouped and with one decimal
constexpr int PersonWidth = 60;

const QString RenamingHint = u"双击，或在格子里按F2：修改收费名称"_s;

/// A fee as calculated, then as it is shown: each writing runs the field's Change handler.
void WriteFee(QLineEdit* fee, double amount)
{
    WriteText(fee, NumberText(amount));
    FormatTextBox(fee, u"1"_s);
}

/// A caption beside a rate has room for six characters. A longer one is narrowed, and told whole by the tool
/// tip where that is not enough.
void ShowCaption(QLabel* label, const QString& caption)
{
    ShowNarrowed(label, caption);
    const bool isWhole =
        QFontMetricsF(label->font()).horizontalAdvance(caption) <= label->contentsRect().width();
    label->setToolTip(isWhole ? RenamingHint : caption + u'\n' + RenamingHint);
}

} // namespace

SettlementForm::SettlementForm(QWidget* owner) : FormWindow(owner, SlotUse::Takes)
{
    ApplySheetStyle(this);
}

void SettlementForm::Wire(const SettlementControls& controls)
{
    m_controls = controls;
    Chain()
        .Field(m_controls.txtPRDNo)
        .AtMost(LotNumberWidth)
        .OnChange([this] { LotNumberChanged(); })
        .OnLeave([this] { LoadLotForSettlement(); });
    WireFees();
    Chain().Field(m_controls.txtCheckUser).AtMost(PersonWidth);
    Chain().Field(m_controls.txtPayUser).AtMost(PersonWidth).OnEnter([this] { SaveSettlement(); });
    OnPress(m_controls.cmdSubmit, [this] { SaveSettlement(); });
    OnPress(m_controls.cmdCancel, [this] { close(); });
    for (QLabel* caption : m_controls.lblFee) {
        caption->installEventFilter(this);
        caption->setToolTip(RenamingHint);
    }
}

void SettlementForm::WireFees()
{
    const SettlementControls& c = m_controls;
    // F2 does what a double click on the caption does, label by label.
    const auto field = [this](QLineEdit* box, int label) -> FieldRule& {
        return Chain().Field(box).Numeric(u"数字填写错误！"_s).OnKey(Qt::Key_F2, [this, label] {
            RenameFee(label);
        });
    };
    const auto rate = [field](QLineEdit* box, int label, FieldRule::Action charge) {
        field(box, label).AtMost(RateWidth).OnChange(std::move(charge));
    };
    const auto percent = [this, rate](QLineEdit* box, int label, QLineEdit* fee) {
        rate(box, label, [this, box, fee] { ChargeByPercent(box, fee); });
    };
    const auto unit = [this, rate](QLineEdit* box, int label, const QString& feeId, QLineEdit* fee) {
        rate(box, label, [this, box, feeId, fee] { ChargeByUnit(feeId, box, fee); });
    };
    const auto amount = [this, field](QLineEdit* box, int label) {
        field(box, label).AtMost(AmountWidth).ZeroWhenLeftEmpty().ShownWith(1).OnChange([this] {
            RecalculateSettlement();
        });
    };

    percent(c.txtPer_LManage, 0, c.txtLManagePrice);
    amount(c.txtLManagePrice, 0);
    percent(c.txtPer_LElect, 1, c.txtLElectPrice);
    amount(c.txtLElectPrice, 1);
    amount(c.txtLPackPrice, 2);
    unit(c.txtPer_LUnload, 3, u"F01"_s, c.txtLUnloadPrice);
    amount(c.txtLUnloadPrice, 3);
    amount(c.txtLExpendPrice, 4);
    unit(c.txtPer_LSani, 5, u"F02"_s, c.txtLSanitationPrice);
    amount(c.txtLSanitationPrice, 5);
    amount(c.txtLRecoupPrice, 6);
    amount(c.txtLChillPrice, 7);
    amount(c.txtLFieldPrice, 8);
    amount(c.txtLOtherPrice, 9);
}

void SettlementForm::OnLoad()
{
    ShowCentred(m_controls.lblCompName, GetCompName() + u"结算清单"_s);
    ShowCentred(m_controls.lblReportName, GetDepartName());
    KeepPrintStyle();
    InitSettlementForm();
}

void SettlementForm::InitSettlementForm()
{
    const QDate today = Clock::Now().date();
    m_controls.txtCheckDate->setText(LongDate(today));
    m_controls.txtCheckNo->setText(NextBillNo(BillSeries::Settlements));
    ShowFeeCaptions();
    if (CheckNoExists(StoredBillNo(m_controls.txtCheckNo->text()))) {
        ShowInfo(u"单号重复，请重新打开本菜单！"_s);
        BumpBillCounter(Session::CurrentUserID, BillSeries::Settlements, FormatDate(today));
    }
}

void SettlementForm::ShowFeeCaptions()
{
    RecordSet captions =
        Gateway().SelectRows(u"DFN_CheckOutLabel"_s, u"LabelID,Caption"_s, u" Order By LabelID"_s);
    for (; !captions.Eof(); captions.MoveNext())
        ShowFeeCaption(captions.Text(0), captions.Text(1));
}

void SettlementForm::ShowFeeCaption(const QString& key, const QString& caption)
{
    bool isNumber = false;
    const auto index = key.mid(1).toUInt(&isNumber);
    if (isNumber && index < m_controls.lblFee.size())
        ShowCaption(m_controls.lblFee[index], caption);
}

bool SettlementForm::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonDblClick) {
        const auto& captions = m_controls.lblFee;
        const auto caption = std::find(captions.begin(), captions.end(), watched);
        if (caption != captions.end()) {
            RunHandler([this, index = static_cast<int>(caption - captions.begin())] { RenameFee(index); });
            return true;
        }
    }
    return FormWindow::eventFilter(watched, event);
}

void SettlementForm::RenameFee(int index)
{
    static const QString window = u"frmSetFeeLabel"_s;
    Session::FeeLabelKey = u'L' + QString::number(index);
    if (Form* form = Windows().Load(window, this))
        form->TakeName(m_controls.lblFee[static_cast<std::size_t>(index)]->text());
    Windows().ShowModal(window, this);
}

void SettlementForm::LoadLotForSettlement()
{
    if (!m_bolNewStatus)
        return;
    try {
        LookUpLot(m_controls.txtPRDNo->text().trimmed());
    } catch (...) {
        ForgetLot();
        throw;
    }
}

void SettlementForm::LookUpLot(const QString& number)
{
    const SettlementControls& c = m_controls;
    if (number.isEmpty()) {
        Chain().ReturnTo(c.txtPRDNo);
        return;
    }
    const ColumnNames columns(u"ID,CustName,Store,PRDName,MPercent,PRDNo"_s +
                              (HasStockLine() ? u",Num"_s : QString()));
    const RecordSet lot = Gateway().SelectRows(u"PRD_List"_s, columns.Text(),
                                               u"(PRDNo="_s + Quoted(number) + u" Or PRDNo_S="_s +
                                                   Quoted(number) + u") And bolCheckOut='0'"_s);
    if (lot.Eof()) {
        ShowInfo(u"该编号不存在或已结算，请重新输入！"_s);
        WriteText(c.txtPRDNo, QString());
        Chain().ReturnTo(c.txtPRDNo);
        return;
    }
    const auto text = [&](const QString& column) { return lot.Text(columns.At(column)); };
    m_lotId = text(u"ID"_s);
    c.txtCustName->setText(text(u"CustName"_s));
    TakeStore(text(u"Store"_s));
    c.txtPRDName->setText(text(u"PRDName"_s));
    // Last of the four: on the layout that clears itself with each new number, a lot found by its
    // shortcut loses owner, store and product here.
    WriteText(c.txtPRDNo, text(u"PRDNo"_s));

    const QString ofLot = u"ID="_s + Quoted(m_lotId);
    const double pieces = SumField(u"Sal_List"_s, u"Num"_s, ofLot);
    const double unweighed = SumField(u"Sal_List"_s, u"Num"_s, ofLot + u" And Suttle=0"_s);
    const double weighed = SumField(u"Sal_List"_s, u"Suttle"_s, ofLot);
    const double amount = SumField(u"Sal_List"_s, u"Amount"_s, ofLot);
    c.txtNum->setText(NumberText(pieces));
    const double perPiece = NullToZero(lot.Fields(columns.At(u"MPercent"_s)).Value);
    c.txtSuttle->setText(NumberText(WeightShown(weighed, unweighed, perPiece)));
    c.txtAmount->setText(FormatAmount(amount, QString()));
    c.txtListNum->setText(QString::number(CountLotTickets(m_lotId)));

    WriteText(c.txtLExpendPrice, NumberText(SumField(u"CustDebit"_s, u"DebitAmount"_s, ofLot)));
    // An advance equal to the last lot's changes no text, and the net must still be this lot's.
    RecalculateSettlement();
    if (HasStockLine()) {
        LotStock stock = ReadStockChanges(m_lotId, NullToZero(lot.Fields(columns.At(u"Num"_s)).Value));
        stock.sold = pieces;
        ShowStock(stock);
    }
}

void SettlementForm::ForgetLot()
{
    m_lotId.clear();
    TakeStore(QString());
    // What a lot brings to the sheet stands in the locked boxes, the net among them.
    for (QLineEdit* box : TextBoxes()) {
        if (box->isReadOnly() && box != m_controls.txtCheckDate && box != m_controls.txtCheckNo)
            WriteText(box, QString());
    }
    m_controls.lblPriceUCase->clear();
}

void SettlementForm::RecalculateSettlement()
{
    const SettlementControls& c = m_controls;
    Deductions lines{};
    std::ranges::transform(c.Deductions(), lines.begin(),
                           [](const QLineEdit* box) { return TextToDouble(box->text()); });
    const double total = TotalOfDeductions(lines);
    c.txtLTotalPrice->setText(FormatMoney(total));
    // Until the new net stands there is none: the rounding switch may not be readable.
    c.txtGTotalPrice->clear();
    double net = NetToOwner(TextToDouble(c.txtAmount->text()), total);
    if (net <= 0)
        return;
    if (IsRoundOn(u"C02"_s))
        net = RoundHalfUp(net);
    c.txtGTotalPrice->setText(FormatMoney(net));
    c.lblPriceUCase->setText(u'(' + MoneyToCapitals(net) + u')');
}

void SettlementForm::ChargeByPercent(const QLineEdit* rate, QLineEdit* fee)
{
    if (const auto amount = ParseNumber(m_controls.txtAmount->text()))
        WriteFee(fee, FeeByPercent(RequiredNumber(rate->text()), *amount));
}

void SettlementForm::ChargeByUnit(const QString& feeId, const QLineEdit* rate, QLineEdit* fee)
{
    const bool isByWeight = GetFeeCountID(feeId) == u"0";
    const QLineEdit* quantityBox = isByWeight ? m_controls.txtSuttle : m_controls.txtNum;
    if (const auto quantity = ParseNumber(quantityBox->text())) {
        const double perUnit = RequiredNumber(rate->text());
        WriteFee(fee, isByWeight ? FeeByWeight(perUnit, *quantity) : FeeByCount(perUnit, *quantity));
    }
}
