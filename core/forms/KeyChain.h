#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

class QAbstractButton;
class QAbstractItemView;
class QComboBox;
class QDateEdit;
class QKeyEvent;
class QLineEdit;
class QWidget;

/// What one control of a window does: one line of the table in the window's constructor. Every setter
/// returns the rule, so that a line reads as a sentence. A control without a setter still takes part in
/// the chain of keys.
class FieldRule {
public:
    using Action = std::function<void()>;

    explicit FieldRule(QWidget* control) : m_control(control) {}

    /// Each change to a text that is not empty and no number shows `message` and empties the field,
    /// which keeps the focus. OnChange runs for numbers only.
    FieldRule& Numeric(const QString& message);
    /// A refused text stays in the field, selected, instead of being emptied.
    FieldRule& KeptWhenRefused();
    /// Left empty, the field becomes "0".
    FieldRule& ZeroWhenLeftEmpty();
    /// Left, the number is shown with so many decimals, grouped.
    FieldRule& ShownWith(int decimals);
    /// The field, or a combo box that is typed in, takes so many characters at the most, and says so when
    /// more are typed or pasted. What the program writes is not cut: grouping makes a number longer.
    FieldRule& AtMost(int characters);
    /// No hint at a ' or \ that is typed: the text goes into no statement.
    FieldRule& TakesQuotes();

    /// After each real change of the text, by typing or from code. With Numeric: only for a number. In a
    /// combo box after another choice, of a check box or a radio button after it turned; not for lists.
    FieldRule& OnChange(Action action);
    /// When the focus has moved on to another control of the window.
    FieldRule& OnLeave(Action action);
    FieldRule& OnDoubleClick(Action action);
    /// A key of the control's own, F2 for instance.
    FieldRule& OnKey(Qt::Key key, Action action);

    /// Enter leaves the control and does this instead of moving on.
    FieldRule& OnEnter(Action action);
    /// Enter and Down do this, then move on.
    FieldRule& BeforeMovingOn(Action action);
    /// Enter and Down move on only from a field with text.
    FieldRule& MovesOnWhenFilled();
    /// Enter moves here instead of to the next control.
    FieldRule& EnterTo(QWidget* target);
    /// Up moves here instead of to the control before.
    FieldRule& UpTo(QWidget* target);
    /// The control has keys of its own but is nobody's neighbour.
    FieldRule& OutsideChain();

private:
    friend class KeyChain;

    /// It moves on when filled, and is empty.
    bool IsHeldBack() const;

    QWidget* m_control;
    std::optional<QString> m_numericMessage;
    bool m_keptWhenRefused = false;
    bool m_zeroWhenLeftEmpty = false;
    std::optional<int> m_decimals;
    Action m_onChange;
    Action m_onLeave;
    Action m_onDoubleClick;
    std::map<int, Action> m_onKey;
    Action m_onEnter;
    Action m_beforeMovingOn;
    bool m_movesOnWhenFilled = false;
    QWidget* m_enterTo = nullptr;
    QWidget* m_upTo = nullptr;
    bool m_outsideChain = false;
};

/// The keyboard of one window: the order of its controls under Enter, Down and Up, the numeric test on
/// each change, and what runs when a control is left.
///
/// Leaving means that the focus moved to another control of the same window, by key, click or code. A
/// box, a popup, a menu, another window or another program in front is not leaving, nor is closing.
class KeyChain : public QObject {
    Q_OBJECT

public:
    /// `form` holds the controls and outlives the chain.
    explicit KeyChain(QWidget* form);

    /// Appends a control. The order of these calls is the order of the keys; hidden controls are passed
    /// over, locked ones are not.
    FieldRule& Field(QLineEdit* box);
    /// In a combo box Up and Down choose; Up leaves it from the first entry only.
    FieldRule& Combo(QComboBox* combo);
    /// A check box or a radio button; Left and Right choose among radio buttons side by side.
    FieldRule& Check(QAbstractButton* check);
    /// In a date Up and Down move between the fields, as in a text box.
    FieldRule& Date(QDateEdit* date);
    /// In a list Up and Down choose; Up leaves it from the first row only.
    FieldRule& List(QAbstractItemView* list);

    /// The control appended last, for a window whose controls are data.
    FieldRule& Last() { return *m_rules.back(); }

    /// Puts the focus back on a control once the present event has run its course, with its text
    /// selected. Until then nothing counts as left.
    void ReturnTo(QWidget* control);

    /// For a key that saves: does first what Enter does to the control with the focus, as if it were left
    /// (lookup, test, format), then `action`, unless the control refused by asking the focus back or by a
    /// failure. Moving the focus on, as the action may, does not leave the control a second time.
    void LeaveThen(const std::function<void()>& action);

    /// The boxes with a numeric test, in their order.
    QList<QLineEdit*> NumericFields() const;

    /// Puts the focus on the first control of the chain.
    void FocusFirst();

    /// While one stands, nothing counts as left: a save moves the focus by itself.
    class Suspension {
    public:
        explicit Suspension(KeyChain& chain) : m_chain(chain) { ++m_chain.m_suspended; }
        ~Suspension() { --m_chain.m_suspended; }
        Suspension(const Suspension&) = delete;
        Suspension& operator=(const Suspension&) = delete;

    private:
        KeyChain& m_chain;
    };

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FieldRule& Append(QWidget* control);
    FieldRule* RuleOf(const QObject* control) const;
    FieldRule* Neighbour(const FieldRule& rule, int step) const;
    bool HandleKey(FieldRule& rule, const QKeyEvent& key);
    void LeaveThen(FieldRule* rule, const std::function<void()>& action);
    void MoveOn(FieldRule& rule, bool byEnter);
    void MoveBack(FieldRule& rule);
    void TextChanged(FieldRule& rule, const QString& text);
    void FocusMoved(QWidget* from, QWidget* to);
    void Left(FieldRule& rule);
    bool IsInForm(const QWidget* control) const;

    QWidget* m_form;
    std::vector<std::unique_ptr<FieldRule>> m_rules;
    QPointer<QWidget> m_returningTo;
    int m_suspended = 0;
    int m_refusals = 0;                ///< how often ReturnTo was called
    const FieldRule* m_left = nullptr; ///< left by a key whose action is under way
};
