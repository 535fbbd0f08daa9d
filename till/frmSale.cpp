#include "till/frmSale.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Bills.h"
#include "core/common/Formats.h"
#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/WholeText.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"
#include "core/session/SessionControl.h"
#include "till/SaleLot.h"
#include "till/TicketTotals.h"

#include "ui_frmSale.h"

#include <QKeyEvent>
#include <QShortcut>
#include <QStyle>

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Characters, as wide as the columns they go to; the paper slip has room for ten.
constexpr int LotNumberWidth = 50;
constexpr int CheckCodeWidth = 50;
constexpr int NumberWidth = 20;
constexpr int SlipNumberWidth = 10;
constexpr int SalesmanWidth = 30;

/// Yuan in a locked box. A box is laid out anew by each write, and most keystrokes change few of them.
void ShowMoney(QLineEdit* box, double yuan)
{
    const QString text = FormatMoney(yuan);
    if (box->text() != text)
        box->setText(text);
}

/// A sum with the same sum in capitals; no capitals for nothing.
void ShowCapitals(QLabel* figure, const QString& caption, QLabel* capitals)
{
    ShowWhole(figure, caption);
    ShowWhole(capitals, MoneyToCapitals(TextToDouble(caption)));
}

enum class Change { New, Old };

/// The change of a batch. One that falls short shows in another colour: its minus alone is easily
/// overlooked. That of a batch before is small and dim: nobody must give it again.
void ShowChangeAs(QLabel* label, const QString& change, Change age)
{
    constexpr double oldSize = 0.5;
    label->setProperty("isShort", change.startsWith(u'-'));
    label->setProperty("isOld", age == Change::Old);
    // The style sheet asks for the properties, and looks again only when told.
    label->style()->unpolish(label);
    label->style()->polish(label);
    ShowWhole(label, change, age == Change::Old ? oldSize : 1);
}

} // namespace

frmSale::frmSale(QWidget* owner) : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmSale>())
{
    ui->setupUi(this);
    const auto recalc = [this] { RecalcTicket(); };
    const auto putSalesName = [this] { ui->txtSalesName->setText(GetSalesName(ui->txtSalesID->text())); };

    Chain().Field(ui->txtVendee).OnDoubleClick([this] { PickVendee(); });
    Chain().Field(ui->txtPRDNo).AtMost(LotNumberWidth).MovesOnWhenFilled().OnLeave([this] { LookupLot(); });
    Chain().Field(ui->txtVerifyID).AtMost(CheckCodeWidth).OnLeave([this] { CheckVerifyCode(); });
    Chain().Field(ui->txtPRDName);
    const auto figure = [this, &recalc](QLineEdit* box, const QString& message) -> FieldRule& {
        return Chain().Field(box).AtMost(NumberWidth).Numeric(message).ZeroWhenLeftEmpty().OnChange(recalc);
    };
    figure(ui->txtNum, u"数量填写错误！"_s);
    figure(ui->txtSuttle, u"净重填写错误！"_s).ShownWith(1);
    figure(ui->txtUPR, u"价格填写错误！"_s).ShownWith(2);
    figure(ui->txtPerPack, u"包装费填写错误！"_s).ShownWith(1);
    figure(ui->txtPerForegift, u"押包装填写错误！"_s).ShownWith(1);
    Chain().Field(ui->txtListNo).AtMost(SlipNumberWidth);
    Chain().Field(ui->txtSalesID).AtMost(SalesmanWidth).BeforeMovingOn(putSalesName).OnLeave([this] {
        CheckSalesman();
    });
    Chain().Combo(ui->cmbSaleType);
    Chain().Combo(ui->cmbCheckStatus).OnEnter([this] { SaveTicket(); });
    Chain()
        .Field(ui->txtRPrice)
        .AtMost(NumberWidth)
        .Numeric(u"实收填写错误！"_s)
        .OnLeave([this] { ShowChange(); })
        .EnterTo(ui->txtVendee)
        .OutsideChain();
    OnPress(ui->cmdSubmit, [this] { SaveTicket(); });
    OnPress(ui->cmdCancel, [this] { close(); });
    // The key stands beside the caption of 实收.
    connect(new QShortcut(QKeySequence(Qt::ALT | Qt::Key_R), this), &QShortcut::activated, this,
            [this] { RunHandler([this] { FocusAndSelect(ui->txtRPrice); }); });
    for (QLineEdit* box : TextBoxes()) {
        KeepNarrowed(box);
        connect(box, &QLineEdit::textEdited, ui->FlblNotice, &QLabel::clear);
    }
}

frmSale::~frmSale() = default;

void frmSale::OnLoad()
{
    if (LeaveWhenOutOfStep())
        return;
    FillLists();
    ui->txtSaleDate->setText(LongDate(Clock::Now().date()));
    ui->txtReceiver->setText(u'[' + Session::CurrentUserID + u']' + Session::CurrentUserName.left(1));
    m_batchTotal = 0;
    ShowThisBatch(FormatMoney(m_batchTotal));
    TakeNextNumber();
    ShowHeadings();
    m_printStyle = GetPrintStyle(u"P03"_s);
}

bool frmSale::LeaveWhenOutOfStep()
{
    if (!IsOutOfStepWithServer())
        return false;
    ShowInfo(u"本地时间与服务器时间不同步，请修正后再操作！"_s);
    close();
    return true;
}

void frmSale::FillLists()
{
    ui->cmbCheckStatus->addItems({u"开票"_s, u"结账"_s});
    for (RecordSet types = Gateway().SelectRows(u"DFN_SaleType"_s, u"TypeName"_s, u" Order By TypeID"_s);
         !types.Eof(); types.MoveNext())
        ui->cmbSaleType->addItem(types.Text(0));
}

void frmSale::TakeNextNumber()
{
    ui->txtSalNo->setText(NextBillNo(BillSeries::Tickets));
    if (!TicketExists(StoredBillNo(ui->txtSalNo->text())))
        return;
    BumpBillCounter(Session::CurrentUserID, BillSeries::Tickets, FormatDate(Clock::Now().date()));
    ShowInfo(u"单号重复，请重新打开本菜单！"_s);
}

void frmSale::ShowHeadings()
{
    ShowCentred(ui->lblCompName, GetCompName() + u"收款清单"_s);
    ShowCentred(ui->lblReportName, GetDepartName());
    const bool isVerifyOn = IsVerifyOn();
    ui->txtVerifyID->setVisible(isVerifyOn);
    if (!isVerifyOn) { // the number stands over the pieces, and takes the room of the code
        const QRect below = ui->txtNum->geometry();
        ui->txtPRDNo->setGeometry(below.x(), ui->txtPRDNo->y(), below.width(), below.height());
    }
}

void frmSale::TakeName(const QString& name)
{
    WriteText(ui->txtVendee, name);
}

void frmSale::PickVendee()
{
    Windows().ShowModal(u"frmGetCustList"_s, this);
}

void frmSale::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F2 && event->modifiers() == Qt::NoModifier)
        RunHandler([this] { PickVendee(); });
    else
        FormWindow::keyPressEvent(event);
}

void frmSale::LookupLot()
{
    const QString number = ui->txtPRDNo->text().trimmed();
    if (number.isEmpty()) {
        ShowInfo(u"编号不能为空！"_s);
        Chain().ReturnTo(ui->txtPRDNo);
        return;
    }
    // A failing statement leaves no lot in hand: the number on the screen would be sold off the lot before.
    const QString lotBefore = std::exchange(m_lotId, QString());
    const std::optional<SaleLot> lot = FindSaleLot(number);
    if (!lot) {
        m_lotId = lotBefore;
        ShowInfo(u"该编号不存在或已结算，请重新输入！"_s);
        WriteText(ui->txtPRDNo, QString());
        Chain().ReturnTo(ui->txtPRDNo);
        return;
    }
    WriteText(ui->txtPRDNo, lot->prdNo);
    m_lotId = lot->id;
    ui->txtPRDName->setText(lot->prdName);
    ShowNarrowed(ui->lblCustName, lot->custName);
    ShowNarrowed(ui->lblPArea, lot->pArea);
    m_lotStore = lot->store;
    if (ui->txtPerForegift->text().isEmpty())
        WriteText(ui->txtPerForegift, lot->perForegift);
}

void frmSale::CheckVerifyCode()
{
    const QString number = ui->txtPRDNo->text();
    const QString code = ui->txtVerifyID->text();
    if (number.isEmpty())
        return;
    if (code.isEmpty()) {
        Chain().ReturnTo(ui->txtVerifyID);
    } else if (!LotVerifyMatches(number, code)) {
        ShowInfo(u"客户校验码错误!"_s);
        Chain().ReturnTo(ui->txtVerifyID);
    }
}

void frmSale::CheckSalesman()
{
    if (SalesExists(ui->txtSalesID->text()))
        return;
    ShowInfo(u"不存在的工号!"_s);
    Chain().ReturnTo(ui->txtSalesID);
}

void frmSale::RecalcTicket()
{
    m_isRecalcDue = true; // should it break off here
    const double num = TextToDouble(ui->txtNum->text());
    const double packAmount = num * TextToDouble(ui->txtPerPack->text());
    const double foregiftAmount = num * TextToDouble(ui->txtPerForegift->text());
    ShowMoney(ui->txtPackAmount, packAmount);
    ShowMoney(ui->txtForegiftAmount, foregiftAmount);

    const TicketTotals totals =
        ComputeTicketTotals(num, TextToDouble(ui->txtSuttle->text()), TextToDouble(ui->txtUPR->text()),
                            packAmount, foregiftAmount, IsRoundOn(u"C01"_s));
    ShowMoney(ui->txtAmount, totals.amount);
    ShowMoney(ui->txtTotalAmount, totals.total);
    ShowThisBatch(FormatMoney(totals.total + m_batchTotal));
    m_isRecalcDue = false;
}

void frmSale::ShowThisBatch(const QString& caption)
{
    ShowCapitals(ui->FlblTPrice01, caption, ui->FlblUCaseTPrice01);
}

void frmSale::ShowLastBatch(const QString& caption)
{
    ShowCapitals(ui->FlblTPrice02, caption, ui->FlblUCaseTPrice02);
    // What stands there was counted against the batch before.
    ShowChangeAs(ui->FlblGPrice, ui->FlblGPrice->text(), Change::Old);
}

void frmSale::ShowChange()
{
    const QString paid = ui->txtRPrice->text();
    const QString owed = ui->FlblTPrice02->text();
    if (paid.isEmpty()) {
        ui->FlblGPrice->clear();
    } else if (!owed.isEmpty()) {
        ShowChangeAs(ui->FlblGPrice, FormatMoney(TextToDouble(paid) - TextToDouble(owed)), Change::New);
    }
}
