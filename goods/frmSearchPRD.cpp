#include "goods/frmSearchPRD.h"

#include "core/forms/FunctionWindows.h"
#include "core/forms/LabelButton.h"
#include "core/gateway/DataGateway.h"
#include "ui_frmSearchPRD.h"

using namespace Qt::StringLiterals;

namespace {

void FillChoices(QComboBox* combo, RecordSet rows)
{
    for (; !rows.Eof(); rows.MoveNext())
        combo->addItem(rows.Text(0));
    combo->setCurrentIndex(-1);
}

QString Condition(const QString& column, const QString& text)
{
    return text.isEmpty() ? QString() : u" And "_s + column + u'=' + Quoted(text);
}

} // namespace

frmSearchPRD::frmSearchPRD(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), ui(std::make_unique<Ui::frmSearchPRD>())
{
    ui->setupUi(this);
    const auto forget = [](QComboBox* combo) { return [combo] { combo->setCurrentIndex(-1); }; };

    Chain().Field(ui->txtPRDNo).AtMost(50);
    Chain().Combo(ui->cmbStoreList).OnKey(Qt::Key_Delete, forget(ui->cmbStoreList));
    Chain().Field(ui->txtCustName).AtMost(60);
    Chain().Combo(ui->cmbPRDSort).OnKey(Qt::Key_Delete, forget(ui->cmbPRDSort)).OnEnter([this] { Search(); });

    OnPress(
        ui->cmdSelect, [this] { Search(); }, QKeySequence(u"Alt+S"_s));
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmSearchPRD::~frmSearchPRD() = default;

void frmSearchPRD::OnLoad()
{
    FillChoices(ui->cmbStoreList, Gateway().SelectRows(u"Store"_s, u"Store"_s, QString()));
    FillChoices(ui->cmbPRDSort, Gateway().SelectRows(u"PRD_Sort"_s, u"SortName"_s, u" Order By SortID"_s));
}

QString frmSearchPRD::Clause() const
{
    return Condition(u"PRDNo"_s, ui->txtPRDNo->text().trimmed()) +
           Condition(u"Store"_s, ui->cmbStoreList->currentText()) +
           Condition(u"CustName"_s, ui->txtCustName->text().trimmed()) +
           Condition(u"PRDName"_s, ui->cmbPRDSort->currentText());
}

void frmSearchPRD::Search()
{
    Guarded(u"查询内容"_s, [this] {
        if (Form* list = OpenList())
            list->SetSearchClause(Clause());
        RefreshOpenList();
        close();
    });
}
