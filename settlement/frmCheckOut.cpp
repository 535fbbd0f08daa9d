#include "settlement/frmCheckOut.h"

#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/common/LotStock.h"
#include "core/session/Session.h"
#include "ui_frmCheckOut.h"

using namespace Qt::StringLiterals;

frmCheckOut::frmCheckOut(QWidget* owner) : SettlementForm(owner), ui(std::make_unique<Ui::frmCheckOut>())
{
    ui->setupUi(this);
    Wire(SettlementControls::Of(*ui));
}

frmCheckOut::~frmCheckOut() = default;

void frmCheckOut::TakeName(const QString& name)
{
    ShowFeeCaption(Session::FeeLabelKey, name);
}

void frmCheckOut::KeepPrintStyle()
{
    m_printStyle = GetPrintStyle(u"P05"_s);
}

void frmCheckOut::ShowStock(const LotStock& stock)
{
    ui->txtSNum_0->setText(NumberText(stock.delivered));
    ui->txtSNum_1->setText(NumberText(stock.added));
    ui->txtSNum_2->setText(NumberText(stock.Arrived()));
    ui->txtSNum_3->setText(NumberText(stock.movedOut));
    ui->txtSNum_4->setText(NumberText(stock.lost));
    ui->txtSNum_5->setText(NumberText(stock.sold));
    ui->txtSNum_6->setText(NumberText(stock.Left()));
}
