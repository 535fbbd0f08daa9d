#include "goods/frmPrintEStore.h"

#include "core/base/Clock.h"
#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/forms/Fields.h"
#include "core/session/Session.h"
#include "ui_frmPrintEStore.h"

using namespace Qt::StringLiterals;

frmPrintEStore::frmPrintEStore() : ui(std::make_unique<Ui::frmPrintEStore>())
{
    ui->setupUi(this);
    ShowCentred(ui->lblCompName, GetCompName() + u"库存变更单"_s);
    ShowCentred(ui->lblReportName, GetDepartName());
}

frmPrintEStore::~frmPrintEStore() = default;

void frmPrintEStore::Fill(const StockChangeSlip& slip)
{
    ui->txtEStoreDate->setText(LongDate(slip.date));
    ui->txtCustName->setText(slip.custName);
    ui->txtPRDNo->setText(slip.prdNo);
    ui->txtPRDName->setText(slip.prdName);
    ui->txtCustInDate->setText(slip.custInDate);
    ui->txtNum->setText(NumberText(slip.custInNum));
    ui->txtStore->setText(slip.store);
    ui->txtEStoreType->setText(slip.kind);
    ui->txtENum->setText(NumberText(slip.num));
    ui->txtTNum->setText(NumberText(slip.stock));
    ui->txtMemo->setText(slip.memo);
    ui->txtUserID->setText(Session::CurrentUserID);
}
