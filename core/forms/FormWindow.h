#pragma once

#include "core/forms/Form.h"
#include "core/forms/HoverBox.h"
#include "core/forms/KeyChain.h"

#include <QKeySequence>
#include <QList>
#include <QWidget>

#include <functional>

class LabelButton;
class QAbstractButton;

/// What a window does to the one-window slot (Session::WindowSlotFree).
enum class SlotUse {
    Takes,     ///< takes it on load, frees it on close
    Frees,     ///< leaves it on load, frees it on close
    Untouched, ///< a window before or beside the function windows
};

/// The base of every window but the frame. A window's own class is then its rules: the constructor
/// sets up the controls and states the chain, OnLoad runs its first statements.
class FormWindow : public QWidget, public Form {
    Q_OBJECT

public:
    /// The windows are dialogs of their owner, without blocking it.
    FormWindow(QWidget* owner, SlotUse slot);
    /// A window that goes with its owner, without closing, leaves the registry here.
    ~FormWindow() override;

    QWidget* Widget() override { return this; }

protected:
    KeyChain& Chain() { return m_chain; }

    /// A button's action. A label button gets its key: 确定 and 保存 Alt+S, 关闭 and 取消 Alt+C, unless
    /// another is given. A click leaves no field; the key first leaves the one with the focus as Enter
    /// would, unless the button is cmdCancel, and presses nothing when that was refused.
    void OnPress(LabelButton* button, std::function<void()> action, const QKeySequence& key = {});
    /// A command button takes the focus and the same keys; its tool tip tells which.
    void OnPress(QAbstractButton* button, std::function<void()> action, const QKeySequence& key = {});

    /// A saving routine. The focus moves it makes leave no field. On a failure its description is shown,
    /// a row goes to ErrInfo under `label`, and the routine is over; what already ran stays.
    void Guarded(const QString& label, const std::function<void()>& routine);

    /// The same without a row in ErrInfo, for the routines that have no label.
    void GuardedUnlogged(const std::function<void()>& routine);

    /// Says why a field is refused and puts the cursor into it, its text selected. Always false, so that a
    /// check reads `return Refuse(...)`.
    bool Refuse(QWidget* field, const QString& why);

    /// Closes this window, which has done its work, and shows another once the handler under way is over:
    /// a prompt that comes back after each bill. It is not shown when this one stays open.
    void CloseThenShow(const QString& name);

    /// The text boxes of the form in their order, without those inside other controls.
    QList<QLineEdit*> TextBoxes() const;

    /// What closing does to the slot.
    virtual void FreeSlot();

    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private:
    /// Keeps the window, its upper left corner first, on its screen.
    void StayOnScreen();
    void RunByKey(const QWidget* button, const std::function<void()>& press);

    SlotUse m_slot;
    KeyChain m_chain;
    HoverLines m_hoverLines{};
    bool m_isClosed = false;
};
