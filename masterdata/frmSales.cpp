#include "masterdata/frmSales.h"

#include "ui_frmSales.h"

using namespace Qt::StringLiterals;

frmSales::frmSales(QWidget* owner)
    : CodeTableForm(owner, {.table = u"Sales"_s,
                            .keyColumn = u"SalesID"_s,
                            .nameColumn = u"SalesName"_s,
                            .keyMissing = u"请将内容填写完整！"_s,
                            .nameMissing = u"请将内容填写完整！"_s,
                            .errorLabel = u"保存业务员信息"_s}),
      ui(std::make_unique<Ui::frmSales>())
{
    ui->setupUi(this);
    Wire({ui->txtSalesID, ui->txtSalesName, ui->cmdSubmit, ui->cmdCancel});
}

frmSales::~frmSales() = default;
