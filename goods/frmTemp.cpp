#include "goods/frmTemp.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Formats.h"
#include "core/common/Lookups.h"
#include "core/forms/Fields.h"
#include "core/session/Session.h"
#include "goods/LotSlip.h"
#include "ui_frmTemp.h"

using namespace Qt::StringLiterals;

frmTemp::frmTemp() : ui(std::make_unique<Ui::frmTemp>())
{
    ui->setupUi(this);
    ShowCentred(ui->lblCompName, GetCompName() + u"商品登记单"_s);
    ShowCentred(ui->lblReportName, GetDepartName());
}

frmTemp::~frmTemp() = default;

void frmTemp::Fill(const LotSlip& slip, double stock)
{
    ui->txtCustDate->setText(LongDate(slip.date));
    ui->txtCustName->setText(slip.custName);
    ui->txtPRDNo->setText(slip.prdNo);
    ui->txtVerifyID->setText(slip.verifyId);
    ui->txtPRDName->setText(slip.prdName);
    ui->txtNum->setText(NumberText(stock) + slip.unit);
    ui->txtMPercent->setText(slip.mPercent);
    ui->txtPArea->setText(slip.pArea);
    ui->txtStore->setText(slip.store);
    ui->txtDebitPrice->setText(FormatMoney(slip.debitPrice));
    ui->txtMemo->setText(slip.memo);
    ui->txtUserID->setText(Session::CurrentUserID);
}
