#include "settlement/frmDebit.h"

#include "core/base/Clock.h"
#include "core/common/Lookups.h"
#include "core/forms/Fields.h"
#include "core/session/Session.h"
#include "settlement/SheetStyle.h"
#include "ui_frmDebit.h"

using namespace Qt::StringLiterals;

frmDebit::frmDebit(QWidget* owner) : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmDebit>())
{
    ui->setupUi(this);
    ApplySheetStyle(this);
    Chain().Field(ui->txtPRDNo);
    Chain().Field(ui->txtDebitAmount);
    Chain().Field(ui->txtMemo);
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmDebit::~frmDebit() = default;

void frmDebit::OnLoad()
{
    ShowCentred(ui->lblCompName, GetCompName() + u"预支款登记单"_s);
    ShowCentred(ui->lblReportName, GetDepartName());
    ui->txtDebitDate->setText(LongDate(Clock::Now().date()));
    ui->txtReceiver->setText(u'[' + Session::CurrentUserID + u']' + Session::CurrentUserName);
}
