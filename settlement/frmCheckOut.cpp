#include "settlement/frmCheckOut.h"

#include "core/base/Numbers.h"
#include "core/common/Lookups.h"
#include "core/gateway/RecordSet.h"
#include "core/session/Session.h"
#include "settlement/SettlementMath.h"
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

QString frmCheckOut::ExtraLotColumns() const
{
    return u",Num"_s;
}

void frmCheckOut::ShowStock(const RecordSet& lot, double pieces)
{
    const auto changed = [this](const QString& type) {
        return SumField(u"EStore_List"_s, u"Num"_s,
                        u"ID='"_s + LotId() + u"' And EStoreType='"_s + type + u"'"_s);
    };
    StockSummary stock;
    stock.delivered = NullToZero(lot.Fields(FirstExtraColumn).Value);
    stock.added = changed(u"0"_s);
    stock.movedOut = changed(u"1"_s);
    stock.lost = changed(u"2"_s);
    stock.sold = pieces;
    ui->txtSNum_0->setText(NumberText(stock.delivered));
    ui->txtSNum_1->setText(NumberText(stock.added));
    ui->txtSNum_2->setText(NumberText(stock.Arrived()));
    ui->txtSNum_3->setText(NumberText(stock.movedOut));
    ui->txtSNum_4->setText(NumberText(stock.lost));
    ui->txtSNum_5->setText(NumberText(stock.sold));
    ui->txtSNum_6->setText(NumberText(stock.Left()));
}
