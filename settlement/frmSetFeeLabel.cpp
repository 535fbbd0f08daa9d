#include "settlement/frmSetFeeLabel.h"

#include "core/base/Numbers.h"
#include "core/forms/WindowRegistry.h"
#include "core/gateway/DataGateway.h"
#include "core/session/Session.h"

#include "ui_frmSetFeeLabel.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int CaptionWidth = 60; // characters of the columns

// The fees' columns stand together, in the order of their labels, from this one on.
constexpr int FirstDetailColumn = 6;
constexpr int FirstDescribeColumn = 3;

void RenameColumn(const QString& report, int column, const QString& name)
{
    const QString id = QString::number(column).rightJustified(2, u'0');
    Gateway().UpdateRows(u"DFN_RptCol"_s, u"ColName='"_s + name + u"'"_s,
                         u"RptName='"_s + report + u"' And ColID='"_s + id + u"'"_s);
}

} // namespace

frmSetFeeLabel::frmSetFeeLabel(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmSetFeeLabel>())
{
    ui->setupUi(this);
    Chain().Field(ui->txtCaption).AtMost(CaptionWidth).OnEnter([this] { Save(); });
    OnPress(ui->cmdSubmit, [this] { Save(); });
    OnPress(ui->cmdCancel, [this] { close(); });
}

frmSetFeeLabel::~frmSetFeeLabel() = default;

void frmSetFeeLabel::TakeName(const QString& name)
{
    ui->txtCaption->setText(name);
}

void frmSetFeeLabel::Save()
{
    GuardedUnlogged([this] {
        const QString caption = ui->txtCaption->text();
        if (caption.isEmpty())
            return;
        const QString key = Session::FeeLabelKey;
        Gateway().UpdateRows(u"DFN_CheckOutLabel"_s, u"Caption='"_s + caption + u"'"_s,
                             u"LabelID='"_s + key + u"'"_s);
        const int fee = ToInt16(RequiredNumber(key.mid(1)));
        RenameColumn(u"RptCheckOutDetail"_s, fee + FirstDetailColumn, caption);
        RenameColumn(u"RptCheckOutDescribe"_s, fee + FirstDescribeColumn, caption);
        // The other layout reads its captions when it opens.
        if (Form* settlement = Windows().Find(u"frmCheckOut"_s))
            settlement->TakeName(caption);
        close();
    });
}
