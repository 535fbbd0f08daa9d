#include "masterdata/frmFeeType.h"

#include "ui_frmFeeType.h"

using namespace Qt::StringLiterals;

frmFeeType::frmFeeType(QWidget* owner)
    : CodeTableForm(owner, {.table = u"Fee_Type"_s,
                            .keyColumn = u"FeeID"_s,
                            .nameColumn = u"FeeName"_s,
                            .keyMissing = u"请将内容填写完整！"_s,
                            .nameMissing = u"请将内容填写完整！"_s,
                            .errorLabel = u"保存费用类别"_s}),
      ui(std::make_unique<Ui::frmFeeType>())
{
    ui->setupUi(this);
    Wire({ui->txtFeeID, ui->txtFeeName, ui->cmdSubmit, ui->cmdCancel});
}

frmFeeType::~frmFeeType() = default;
