#include "reports/frmSearchCond.h"

#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/DateField.h"
#include "core/forms/Fields.h"
#include "core/forms/FunctionWindows.h"
#include "core/forms/LabelButton.h"
#include "core/forms/WindowRegistry.h"
#include "core/session/Session.h"
#include "reports/ReportView.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QScopeGuard>
#include <QVBoxLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

constexpr int FieldWidth = 240;

/// What a report on the screen switches on.
const QStringList ReportButtons{u"mnuPreview"_s, u"mnuPrint"_s, u"mnuSearch"_s, u"mnuExport"_s};

/// The keys that a frame has a use for.
QString KeysOf(const ConditionFrame& frame)
{
    const auto has = [&frame](auto test) {
        return std::any_of(frame.controls.begin(), frame.controls.end(), test);
    };
    using Control = ConditionControl;
    QStringList keys{u"Enter 下一项，最后一项查询"_s};
    if (has([](const Control& c) {
            return c.kind == Control::Kind::Check || c.kind == Control::Kind::Radio;
        }))
        keys << u"空格 选中"_s;
    if (has([](const Control& c) { return c.kind == Control::Kind::Combo; }))
        keys << u"Delete 清除选择"_s;
    if (has([](const Control& c) { return c.picksBuyer; }))
        keys << u"F2 选客户"_s;
    keys << u"Esc 关闭"_s;
    return keys.join(u"    "_s);
}

} // namespace

frmSearchCond::frmSearchCond(QWidget* owner)
    : FormWindow(owner, SlotUse::Takes), m_box(new QGroupBox(this)), m_rows(new QGridLayout(m_box))
{
    setWindowTitle(u"查询条件"_s);
}

frmSearchCond::~frmSearchCond() = default;

// Only the shown frame exists: a report must not fail because a list that it does not ask for cannot be read.
void frmSearchCond::OnLoad()
{
    m_frame = ConditionFrameOf(Session::CurrentMenuKey);
    if (!m_frame) {
        close();
        return;
    }
    m_box->setObjectName(m_frame->Name());
    m_box->setTitle(m_frame->caption);
    BuildWindow();
    for (const ConditionControl& control : m_frame->controls)
        AddControl(control);
    if (m_frame->days == ConditionFrame::Days::FromTo) {
        AddDay(m_frame->StartName(), u"起始日期"_s);
        AddDay(m_frame->EndName(), u"截止日期"_s);
    } else if (m_frame->days == ConditionFrame::Days::One) {
        AddDay(m_frame->StartName(), u"日期"_s);
    }
    WireChain();
    adjustSize();
}

void frmSearchCond::BuildWindow()
{
    m_rows->setContentsMargins(16, 12, 16, 14);
    m_rows->setHorizontalSpacing(12);
    m_rows->setVerticalSpacing(8);

    auto* keys = new QLabel(KeysOf(*m_frame), this);
    keys->setObjectName(u"lblKeys"_s);
    keys->setProperty("isHint", true);

    auto* select = new LabelButton(this);
    select->setObjectName(u"cmdSelect"_s);
    select->setText(u"查询"_s);
    OnPress(
        select, [this] { Select(); }, QKeySequence(u"Alt+S"_s));
    auto* cancel = new LabelButton(this);
    cancel->setObjectName(u"cmdCancel"_s);
    cancel->setText(u"关闭"_s);
    OnPress(cancel, [this] { close(); });

    auto* buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addStretch();
    buttons->addWidget(select);
    buttons->addWidget(cancel);

    auto* form = new QVBoxLayout(this);
    form->setContentsMargins(20, 16, 20, 16);
    form->setSpacing(10);
    form->setSizeConstraint(QLayout::SetFixedSize);
    form->addWidget(m_box);
    form->addWidget(keys);
    form->addLayout(buttons);
}

void frmSearchCond::AddControl(const ConditionControl& control)
{
    QWidget* made = MakeControl(control);
    made->setObjectName(control.name);
    m_controls.insert(control.name, made);
    const bool hasLabel =
        control.kind == ConditionControl::Kind::Text || control.kind == ConditionControl::Kind::Combo;
    if (control.kind != ConditionControl::Kind::Radio) {
        AddRow(hasLabel ? control.caption : QString(), made);
        return;
    }
    if (!m_radioRow) {
        m_radioRow = new QWidget(m_box);
        auto* side = new QHBoxLayout(m_radioRow);
        side->setContentsMargins(0, 0, 0, 0);
        AddRow(QString(), m_radioRow);
    }
    m_radioRow->layout()->addWidget(made);
}

QWidget* frmSearchCond::MakeControl(const ConditionControl& control)
{
    switch (control.kind) {
    case ConditionControl::Kind::Text:
        return new QLineEdit(m_box);
    case ConditionControl::Kind::Combo:
        return MakeCombo(control);
    case ConditionControl::Kind::Check:
        return new QCheckBox(control.caption, m_box);
    case ConditionControl::Kind::Radio:
        return new QRadioButton(control.caption, m_box);
    }
    return nullptr;
}

QWidget* frmSearchCond::MakeCombo(const ConditionControl& control)
{
    auto* combo = new QComboBox(m_box);
    combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    const ConditionChoices choices = ReadChoices(control.choices);
    for (const ConditionChoice& choice : choices.choices)
        combo->addItem(choice.shown);
    combo->setCurrentIndex(choices.isPinned ? 0 : -1);
    m_choices.insert(control.name, choices);
    return combo;
}

void frmSearchCond::AddDay(const QString& name, const QString& caption)
{
    auto* day = new DateField(m_box);
    day->setObjectName(name);
    m_controls.insert(name, day);
    AddRow(caption, day);
}

void frmSearchCond::AddRow(const QString& caption, QWidget* control)
{
    const int row = m_rows->rowCount();
    if (!caption.isEmpty())
        m_rows->addWidget(new QLabel(caption, m_box), row, 0, Qt::AlignRight | Qt::AlignVCenter);
    control->setMinimumWidth(FieldWidth);
    m_rows->addWidget(control, row, 1);
}

void frmSearchCond::WireChain()
{
    for (const ConditionControl& control : m_frame->controls)
        Wire(control);
    for (const QString& name : {m_frame->StartName(), m_frame->EndName()}) {
        if (!name.isEmpty())
            Chain().Date(Day(name));
    }
    Chain().Last().OnEnter([this] { Select(); });
}

void frmSearchCond::Wire(const ConditionControl& control)
{
    QWidget* widget = Control(control.name);
    switch (control.kind) {
    case ConditionControl::Kind::Text: {
        FieldRule& rule = Chain().Field(static_cast<QLineEdit*>(widget)).AtMost(control.maxLength);
        if (control.picksBuyer) {
            widget->setToolTip(u"F2 或双击：从客户名单中选"_s);
            rule.OnDoubleClick([this] { PickBuyer(); }).OnKey(Qt::Key_F2, [this] { PickBuyer(); });
        }
        break;
    }
    case ConditionControl::Kind::Combo: {
        auto* combo = static_cast<QComboBox*>(widget);
        FieldRule& rule = Chain().Combo(combo);
        if (m_choices.value(control.name).isPinned) {
            combo->setToolTip(u"只能查自己开的单子"_s);
            break;
        }
        combo->setToolTip(u"Delete 键清除选择"_s);
        rule.OnKey(Qt::Key_Delete, [combo] { combo->setCurrentIndex(-1); });
        break;
    }
    case ConditionControl::Kind::Check:
    case ConditionControl::Kind::Radio:
        Chain().Check(static_cast<QAbstractButton*>(widget));
        break;
    }
    if (!control.usableWith.isEmpty())
        FollowCheck(control.usableWith, control.name, true);
    if (!control.usableWithout.isEmpty())
        FollowCheck(control.usableWithout, control.name, false);
}

void frmSearchCond::FollowCheck(const QString& check, const QString& control, bool usableTicked)
{
    auto* combo = static_cast<QComboBox*>(Control(control));
    const auto follow = [combo, usableTicked](bool isTicked) {
        combo->setEnabled(isTicked == usableTicked);
        if (!combo->isEnabled())
            combo->setCurrentIndex(-1);
    };
    auto* box = static_cast<QCheckBox*>(Control(check));
    connect(box, &QCheckBox::toggled, combo, follow);
    follow(box->isChecked());
}

DateField* frmSearchCond::Day(const QString& name) const
{
    return static_cast<DateField*>(Control(name));
}

void frmSearchCond::PickBuyer()
{
    Windows().ShowModal(u"frmGetCustList"_s, this);
}

void frmSearchCond::TakeName(const QString& name)
{
    for (const ConditionControl& control : m_frame->controls) {
        if (control.picksBuyer)
            WriteText(static_cast<QLineEdit*>(Control(control.name)), name);
    }
}

// A bill that was opened from a report has freed the slot, and another report was chosen from the menu while
// this window stood open.
bool frmSearchCond::event(QEvent* event)
{
    if (event->type() == QEvent::WindowActivate && m_frame && m_frame->report != Session::CurrentMenuKey)
        QMetaObject::invokeMethod(
            this, [this] { RunHandler([this] { BeginAnew(); }); }, Qt::QueuedConnection);
    return FormWindow::event(event);
}

void frmSearchCond::BeginAnew()
{
    if (Windows().Find(objectName()) != this || m_frame->report == Session::CurrentMenuKey)
        return;
    close();
    ShowFunctionWindow(objectName());
}

ConditionValues frmSearchCond::ReadControls() const
{
    ConditionValues values;
    for (const ConditionControl& control : m_frame->controls) {
        QWidget* widget = Control(control.name);
        if (const auto* box = qobject_cast<QLineEdit*>(widget)) {
            if (const QString text = box->text(); !text.isEmpty())
                values.filled.insert(control.name, {text, text, text});
        } else if (const auto* combo = qobject_cast<QComboBox*>(widget)) {
            if (!combo->currentText().isEmpty()) {
                const auto& choices = m_choices.value(control.name).choices;
                values.filled.insert(control.name,
                                     choices[static_cast<std::size_t>(combo->currentIndex())].chosen);
            }
        } else if (static_cast<QAbstractButton*>(widget)->isChecked()) {
            values.filled.insert(control.name, {});
        }
    }
    if (const QString start = m_frame->StartName(); !start.isEmpty()) {
        values.startDate = Day(start)->Day();
        const QString end = m_frame->EndName();
        values.endDate = end.isEmpty() ? values.startDate : Day(end)->Day();
    }
    return values;
}

void frmSearchCond::Select()
{
    if (m_isSelecting)
        return; // the report that is being built lets events through
    m_isSelecting = true;
    bool isShown = false;
    Guarded(u"查询内容"_s, [this, &isShown] {
        const ConditionValues values = ReadControls();
        if (const auto refusal = RefusalOf(*m_frame, values)) {
            ShowInfo(refusal->message);
            FocusAndSelect(Control(refusal->control));
            return;
        }
        isShown = ShowReport(Compose(*m_frame, values));
    });
    m_isSelecting = false;
    if (isShown)
        close();
}

bool frmSearchCond::ShowReport(const ComposedCondition& condition)
{
    const bool wasOpen = OpenReport();
    // A report that failed before it was seen is not left behind; closing it freed the slot under this
    // window.
    auto putBack = qScopeGuard([wasOpen] {
        Form* report = dynamic_cast<Form*>(OpenReport());
        if (report && !wasOpen)
            report->Widget()->close();
        Session::WindowSlotFree = false;
    });
    ReportView* report = LoadReport();
    if (!report) {
        TellNotProvided();
        return false;
    }
    condition.HandOver();
    report->SetCondition(condition.report);
    report->ShowData(true);
    ShowInFrame(dynamic_cast<Form*>(report));
    ::EnableToolbar(ReportButtons);
    putBack.dismiss();
    return true;
}

// Not a shortcut: that would also take the key that closes a combo box's open list.
void frmSearchCond::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        FormWindow::keyPressEvent(event);
}

void frmSearchCond::FreeSlot()
{
    if (!OpenReport())
        FormWindow::FreeSlot();
}

void frmSearchCond::closeEvent(QCloseEvent* event)
{
    if (m_isSelecting)
        event->ignore();
    else
        FormWindow::closeEvent(event);
}
