#include "masterdata/frmPRDSort.h"

#include "ui_frmPRDSort.h"

using namespace Qt::StringLiterals;

frmPRDSort::frmPRDSort(QWidget* owner)
    : CodeTableForm(owner, {.table = u"PRD_Sort"_s,
                            .keyColumn = u"SortID"_s,
                            .nameColumn = u"SortName"_s,
                            .keyMissing = u"请填写编号！"_s,
                            .nameMissing = u"请填写名称！"_s,
                            .errorLabel = u"新增或修改商品信息"_s}),
      ui(std::make_unique<Ui::frmPRDSort>())
{
    ui->setupUi(this);
    Wire({ui->txtSortID, ui->txtSortName, ui->cmdSubmit, ui->cmdCancel});
}

frmPRDSort::~frmPRDSort() = default;
