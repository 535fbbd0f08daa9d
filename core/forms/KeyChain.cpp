#include "core/forms/KeyChain.h"

#include "core/base/Numbers.h"
#include "core/common/Formats.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/common/Waiting.h"
#include "core/forms/Fields.h"
#include "core/forms/TextLine.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

/// The topmost row of a list; in a tree a first child stands below its parent. No row counts as the first.
bool IsFirst(const QModelIndex& row)
{
    return row.row() <= 0 && !row.parent().isValid();
}

} // namespace

FieldRule& FieldRule::Numeric(const QString& message)
{
    m_numericMessage = message;
    return TakesQuotes(); // they are refused
}

FieldRule& FieldRule::KeptWhenRefused()
{
    m_keptWhenRefused = true;
    return *this;
}

FieldRule& FieldRule::ZeroWhenLeftEmpty()
{
    m_zeroWhenLeftEmpty = true;
    return *this;
}

FieldRule& FieldRule::ShownWith(int decimals)
{
    m_decimals = decimals;
    return *this;
}

FieldRule& FieldRule::AtMost(int characters)
{
    if (auto* box = qobject_cast<QLineEdit*>(m_control))
        TextLine::Of(box).SetLimit(characters);
    else if (const auto* combo = qobject_cast<QComboBox*>(m_control); combo && combo->lineEdit())
        TextLine::Of(combo->lineEdit()).SetLimit(characters);
    return *this;
}

FieldRule& FieldRule::TakesQuotes()
{
    if (auto* box = qobject_cast<QLineEdit*>(m_control))
        TextLine::Of(box).SetQuotesHarmless();
    return *this;
}

FieldRule& FieldRule::OnChange(Action action)
{
    Q_ASSERT(!qobject_cast<QAbstractItemView*>(m_control));
    m_onChange = std::move(action);
    return *this;
}

FieldRule& FieldRule::OnLeave(Action action)
{
    m_onLeave = std::move(action);
    return *this;
}

FieldRule& FieldRule::OnDoubleClick(Action action)
{
    m_onDoubleClick = std::move(action);
    return *this;
}

FieldRule& FieldRule::OnKey(Qt::Key key, Action action)
{
    m_onKey[key] = std::move(action);
    return *this;
}

FieldRule& FieldRule::OnEnter(Action action)
{
    m_onEnter = std::move(action);
    return *this;
}

FieldRule& FieldRule::BeforeMovingOn(Action action)
{
    m_beforeMovingOn = std::move(action);
    return *this;
}

FieldRule& FieldRule::MovesOnWhenFilled()
{
    m_movesOnWhenFilled = true;
    return *this;
}

FieldRule& FieldRule::EnterTo(QWidget* target)
{
    m_enterTo = target;
    return *this;
}

FieldRule& FieldRule::UpTo(QWidget* target)
{
    m_upTo = target;
    return *this;
}

FieldRule& FieldRule::OutsideChain()
{
    m_outsideChain = true;
    return *this;
}

bool FieldRule::IsHeldBack() const
{
    const auto* box = qobject_cast<const QLineEdit*>(m_control);
    return m_movesOnWhenFilled && box && box->text().trimmed().isEmpty();
}

KeyChain::KeyChain(QWidget* form) : QObject(form), m_form(form)
{
    connect(qApp, &QApplication::focusChanged, this, &KeyChain::FocusMoved);
}

FieldRule& KeyChain::Append(QWidget* control)
{
    m_rules.push_back(std::make_unique<FieldRule>(control));
    control->installEventFilter(this);
    return *m_rules.back();
}

FieldRule& KeyChain::Field(QLineEdit* box)
{
    FieldRule& rule = Append(box);
    connect(&TextLine::Of(box), &TextLine::Changed, this, [this, &rule](const QString& text) {
        RunHandler([this, &rule, text] { TextChanged(rule, text); });
    });
    return rule;
}

FieldRule& KeyChain::Combo(QComboBox* combo)
{
    FieldRule& rule = Append(combo);
    const auto changed = [&rule] {
        if (rule.m_onChange)
            RunHandler(rule.m_onChange);
    };
    if (combo->isEditable())
        connect(combo, &QComboBox::currentTextChanged, this, changed);
    else
        connect(combo, &QComboBox::currentIndexChanged, this, changed);
    return rule;
}

FieldRule& KeyChain::Check(QAbstractButton* check)
{
    FieldRule& rule = Append(check);
    connect(check, &QAbstractButton::toggled, this, [&rule] {
        if (rule.m_onChange)
            RunHandler(rule.m_onChange);
    });
    return rule;
}

FieldRule& KeyChain::Date(QDateEdit* date)
{
    return Append(date);
}

FieldRule& KeyChain::List(QAbstractItemView* list)
{
    return Append(list);
}

FieldRule* KeyChain::RuleOf(const QObject* control) const
{
    const auto found = std::find_if(m_rules.begin(), m_rules.end(),
                                    [control](const auto& rule) { return rule->m_control == control; });
    return found == m_rules.end() ? nullptr : found->get();
}

FieldRule* KeyChain::Neighbour(const FieldRule& rule, int step) const
{
    const auto size = static_cast<std::ptrdiff_t>(m_rules.size());
    auto at = std::find_if(m_rules.begin(), m_rules.end(),
                           [&rule](const auto& other) { return other.get() == &rule; }) -
              m_rules.begin();
    for (at += step; at >= 0 && at < size; at += step) {
        FieldRule* other = m_rules[static_cast<std::size_t>(at)].get();
        if (!other->m_outsideChain && other->m_control->isVisibleTo(m_form) && other->m_control->isEnabled())
            return other;
    }
    return nullptr;
}

bool KeyChain::eventFilter(QObject* watched, QEvent* event)
{
    FieldRule* rule = nullptr;
    switch (event->type()) {
    case QEvent::KeyPress:
        rule = RuleOf(watched);
        if (rule && HandleKey(*rule, *static_cast<QKeyEvent*>(event)))
            return true;
        break;
    case QEvent::MouseButtonDblClick:
        rule = RuleOf(watched);
        if (rule && rule->m_onDoubleClick) {
            RunHandler(rule->m_onDoubleClick);
            return true;
        }
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool KeyChain::HandleKey(FieldRule& rule, const QKeyEvent& key)
{
    if ((key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
        return false;
    if (const auto own = rule.m_onKey.find(key.key()); own != rule.m_onKey.end()) {
        if (!key.isAutoRepeat())
            RunHandler(own->second);
        return true;
    }
    const auto* combo = qobject_cast<QComboBox*>(rule.m_control);
    const auto* list = qobject_cast<QAbstractItemView*>(rule.m_control);
    switch (key.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (!rule.m_onEnter)
            RunHandler([this, &rule] { MoveOn(rule, true); });
        else if (!key.isAutoRepeat() &&
                 !rule.IsHeldBack()) // held down it walks on through the fields, but does not save
            LeaveThen(&rule, rule.m_onEnter);
        return true;
    case Qt::Key_Down:
        if (combo || list)
            return false;
        RunHandler([this, &rule] { MoveOn(rule, false); });
        return true;
    case Qt::Key_Up:
        if ((combo && combo->currentIndex() > 0) || (list && !IsFirst(list->currentIndex())))
            return false;
        RunHandler([this, &rule] { MoveBack(rule); });
        return true;
    default:
        return false;
    }
}

void KeyChain::MoveOn(FieldRule& rule, bool byEnter)
{
    if (rule.IsHeldBack())
        return;
    if (auto* date = qobject_cast<QDateEdit*>(rule.m_control))
        date->interpretText(); // the chain has taken the key that would have ended the typing
    if (rule.m_beforeMovingOn)
        rule.m_beforeMovingOn();
    const FieldRule* next = Neighbour(rule, 1);
    if (byEnter && rule.m_enterTo)
        FocusAndSelect(rule.m_enterTo);
    else if (next && !rule.m_outsideChain)
        FocusAndSelect(next->m_control);
}

void KeyChain::LeaveThen(const std::function<void()>& action)
{
    LeaveThen(RuleOf(QApplication::focusWidget()), action);
}

void KeyChain::LeaveThen(FieldRule* rule, const std::function<void()>& action)
{
    const int refusals = m_refusals;
    const bool isLeft = !rule || RunHandler([this, rule] {
        if (rule->m_beforeMovingOn && !rule->IsHeldBack())
            rule->m_beforeMovingOn();
        Left(*rule);
    });
    if (!isLeft || m_refusals != refusals)
        return;
    const QPointer<KeyChain> self = this;
    m_left = rule;
    RunHandler(action);
    if (self)
        m_left = nullptr;
}

void KeyChain::MoveBack(FieldRule& rule)
{
    const FieldRule* previous = Neighbour(rule, -1);
    if (rule.m_upTo)
        FocusAndSelect(rule.m_upTo);
    else if (previous && !rule.m_outsideChain)
        FocusAndSelect(previous->m_control);
}

void KeyChain::TextChanged(FieldRule& rule, const QString& text)
{
    if (rule.m_numericMessage) {
        if (text.isEmpty())
            return;
        if (!IsNumeric(text)) {
            ShowInfo(*rule.m_numericMessage);
            if (!rule.m_keptWhenRefused)
                WriteText(static_cast<QLineEdit*>(rule.m_control), QString());
            ReturnTo(rule.m_control);
            return;
        }
    }
    if (rule.m_onChange)
        rule.m_onChange();
}

bool KeyChain::IsInForm(const QWidget* control) const
{
    return control && (control == m_form || m_form->isAncestorOf(control));
}

void KeyChain::FocusMoved(QWidget* from, QWidget* to)
{
    if (m_suspended > 0 || m_returningTo || from == to || !IsInForm(from) || !IsInForm(to))
        return;
    FieldRule* rule = RuleOf(from);
    if (rule && rule != m_left)
        RunHandler([this, rule] { Left(*rule); });
    m_left = nullptr;
}

void KeyChain::Left(FieldRule& rule)
{
    if (auto* box = qobject_cast<QLineEdit*>(rule.m_control)) {
        if (rule.m_zeroWhenLeftEmpty && box->text().isEmpty())
            WriteText(box, u"0"_s);
        if (rule.m_decimals && !box->text().trimmed().isEmpty())
            FormatTextBox(box, QString::number(*rule.m_decimals));
    }
    if (rule.m_onLeave)
        rule.m_onLeave();
}

QList<QLineEdit*> KeyChain::NumericFields() const
{
    QList<QLineEdit*> boxes;
    for (const auto& rule : m_rules) {
        if (rule->m_numericMessage)
            boxes << static_cast<QLineEdit*>(rule->m_control);
    }
    return boxes;
}

void KeyChain::FocusFirst()
{
    for (const auto& rule : m_rules) {
        if (!rule->m_outsideChain && rule->m_control->isVisibleTo(m_form)) {
            FocusAndSelect(rule->m_control);
            return;
        }
    }
}

void KeyChain::ReturnTo(QWidget* control)
{
    ++m_refusals;
    m_returningTo = control;
    const auto giveBack = [chain = QPointer<KeyChain>(this)] {
        if (!chain)
            return;
        if (chain->m_returningTo)
            FocusAndSelect(chain->m_returningTo);
        chain->m_returningTo = nullptr;
    };
    QMetaObject::invokeMethod(
        this, [giveBack] { AfterWait(giveBack); }, Qt::QueuedConnection);
}
