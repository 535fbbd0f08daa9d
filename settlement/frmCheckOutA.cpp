#include "settlement/frmCheckOutA.h"

#include "core/common/Handlers.h"
#include "core/common/Lookups.h"
#include "ui_frmCheckOutA.h"

using namespace Qt::StringLiterals;

frmCheckOutA::frmCheckOutA(QWidget* owner) : SettlementForm(owner), ui(std::make_unique<Ui::frmCheckOutA>())
{
    ui->setupUi(this);
    Wire(SettlementControls::Of(*ui));
}

frmCheckOutA::~frmCheckOutA() = default;

void frmCheckOutA::LotNumberChanged()
{
    if (!IsNewStatus())
        return;
    const QList<QLineEdit*> kept{ui->txtPRDNo, ui->txtCheckDate, ui->txtCheckNo, ui->txtPayUser};
    for (QLineEdit* box : TextBoxes()) {
        if (!kept.contains(box))
            WriteText(box, QString());
    }
}

void frmCheckOutA::TakeStore(const QString& store)
{
    ui->txtStore->setText(store);
}

QString frmCheckOutA::Store() const
{
    return ui->txtStore->text();
}

QString frmCheckOutA::PrintStyle() const
{
    return GetPrintStyle(u"P05"_s);
}
