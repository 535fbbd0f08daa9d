#include "core/forms/FormWindow.h"

#include "core/base/RunTimeError.h"
#include "core/common/ErrorLog.h"
#include "core/common/Handlers.h"
#include "core/common/Messages.h"
#include "core/forms/Fields.h"
#include "core/forms/LabelButton.h"
#include "core/forms/Skin.h"
#include "core/forms/TextLine.h"
#include "core/forms/WindowRegistry.h"
#include "core/session/Session.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QCloseEvent>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

QKeySequence UsualKey(const QWidget* button)
{
    if (button->objectName() == u"cmdSubmit")
        return QKeySequence(u"Alt+S"_s);
    if (button->objectName() == u"cmdCancel")
        return QKeySequence(u"Alt+C"_s);
    return {};
}

} // namespace

FormWindow::FormWindow(QWidget* owner, SlotUse slot)
    : QWidget(owner, Qt::Dialog | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint),
      m_slot(slot), m_chain(this)
{
    ApplyWindowSkin(this);
    if (m_slot == SlotUse::Takes)
        Session::WindowSlotFree = false;
}

FormWindow::~FormWindow()
{
    if (!m_isClosed)
        Windows().Unloaded(this);
}

void FormWindow::OnPress(LabelButton* button, std::function<void()> action, const QKeySequence& key)
{
    if (!m_hoverLines[0])
        m_hoverLines = MakeHoverLines(this);
    const QKeySequence own = key.isEmpty() ? UsualKey(button) : key;
    if (!own.isEmpty())
        button->SetKey(own);
    connect(button, &LabelButton::Pressed, this, [action] { RunHandler(action); });
    connect(button, &LabelButton::PressedByKey, this, [this, button, action = std::move(action)] {
        RunByKey(button, [action] { RunHandler(action); });
    });
    connect(button, &LabelButton::Hovered, this, [this, button](bool over) {
        if (over)
            ShowHoverBox(button, m_hoverLines);
        else
            HideHoverBox(m_hoverLines);
    });
}

void FormWindow::OnPress(QAbstractButton* button, std::function<void()> action, const QKeySequence& key)
{
    connect(button, &QAbstractButton::clicked, this, [action = std::move(action)] { RunHandler(action); });
    const QKeySequence own = key.isEmpty() ? UsualKey(button) : key;
    if (own.isEmpty())
        return;
    // A shortcut of the button itself would press it a tenth of a second late, behind what is typed next.
    connect(new QShortcut(own, this), &QShortcut::activated, this, [this, button] {
        if (button->isEnabled())
            RunByKey(button, [button] { button->click(); });
    });
    button->setToolTip(own.toString(QKeySequence::NativeText));
}

void FormWindow::RunByKey(const QWidget* button, const std::function<void()>& press)
{
    // Whoever closes the window wants nothing of the field looked up or tested.
    if (button->objectName() == u"cmdCancel")
        press();
    else
        m_chain.LeaveThen(press);
}

void FormWindow::Guarded(const QString& label, const std::function<void()>& routine)
{
    const KeyChain::Suspension suspension(m_chain);
    try {
        routine();
    } catch (const RunTimeError& error) {
        ShowErrorMessage(error);
        LogError(Session::CurrentUserName, error.Description(), label);
    }
}

void FormWindow::GuardedUnlogged(const std::function<void()>& routine)
{
    const KeyChain::Suspension suspension(m_chain);
    try {
        routine();
    } catch (const RunTimeError& error) {
        ShowErrorMessage(error);
    }
}

bool FormWindow::Refuse(QWidget* field, const QString& why)
{
    ShowInfo(why);
    FocusAndSelect(field);
    return false;
}

void FormWindow::CloseThenShow(const QString& name)
{
    Windows().CloseThenShow(this, name, parentWidget());
}

QList<QLineEdit*> FormWindow::TextBoxes() const
{
    QList<QLineEdit*> boxes = findChildren<QLineEdit*>();
    boxes.removeIf([](const QLineEdit* box) { return !box->objectName().startsWith(u"txt"); });
    return boxes;
}

void FormWindow::FreeSlot()
{
    if (m_slot != SlotUse::Untouched)
        Session::WindowSlotFree = true;
}

void FormWindow::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (event->spontaneous())
        return;
    for (QLineEdit* box : findChildren<QLineEdit*>()) {
        if (!qobject_cast<QAbstractSpinBox*>(
                box->parentWidget())) // those of dates and numbers see to themselves
            TextLine::Of(box);
    }
    // A window without an owner stands where the desktop puts it, which a move would forestall.
    if (parentWidget() && isWindow()) {
        move(parentWidget()->window()->geometry().center() - rect().center());
        StayOnScreen();
    }
    m_chain.FocusFirst();
}

void FormWindow::StayOnScreen()
{
    constexpr int title = 30; // pixels: the frame is not there yet
    const QRect room = screen()->availableGeometry();
    const int x = std::max(room.left(), std::min(pos().x(), room.right() - width()));
    const int y = std::max(room.top(), std::min(pos().y(), room.bottom() - height() - title));
    move(x, y);
}

void FormWindow::closeEvent(QCloseEvent* event)
{
    QWidget::closeEvent(event);
    if (!event->isAccepted() || m_isClosed)
        return;
    m_isClosed = true;
    FreeSlot();
    Windows().Unloaded(this);
    DestroyWhenIdle(this);
}
