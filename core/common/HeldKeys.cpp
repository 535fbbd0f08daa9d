#include "core/common/HeldKeys.h"

#include <QApplication>
#include <QHash>
#include <QKeyEvent>
#include <QWindow>

namespace {

/// Milliseconds. A press without a release of the one before is a repetition when it follows within this
/// time; after a longer one the release was lost. Displays wait up to 0.7 s before they begin to repeat.
constexpr quint64 LongestRepeat = 1000;

class HeldKeys : public QObject {
public:
    explicit HeldKeys(QApplication& application) : QObject(&application)
    {
        // A release that comes while the keyboard changes hands reaches nobody: the toolkit drops what is
        // sent to a window behind a box that opened meanwhile, the display what is sent to one that closed.
        // What a held key sends to the next window are pairs again, which are known by their time.
        connect(&application, &QGuiApplication::focusWindowChanged, this, [this] { m_down.clear(); });
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ShortcutOverride:
            if (!IsRepeat(*static_cast<QKeyEvent*>(event)))
                break;
            // Accepted, it is a key for the control with the focus and no shortcut.
            event->accept();
            return true;
        case QEvent::KeyPress:
            return TellRepeat(watched, *static_cast<QKeyEvent*>(event));
        case QEvent::KeyRelease:
            Release(*static_cast<QKeyEvent*>(event));
            break;
        default:
            break;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    /// The key itself, not what it means with Shift: that may change between press and release.
    static quint64 KeyOf(const QKeyEvent& event)
    {
        return event.nativeScanCode() != 0 ? event.nativeScanCode()
                                           : static_cast<quint64>(event.key()) << 32U;
    }

    bool IsRepeat(const QKeyEvent& event)
    {
        const quint64 now = event.timestamp();
        if (now == 0) // made by code, which knows what it wants
            return event.isAutoRepeat();
        const quint64 key = KeyOf(event);
        const auto down = m_down.constFind(key);
        // One press passes here several times: as a shortcut, at the window, at the controls.
        const bool isSamePress = down != m_down.cend() && down->at == now;
        const bool isRepeat = event.isAutoRepeat() || (isSamePress && down->isRepeat) ||
                              (!isSamePress && down != m_down.cend() && now - down->at < LongestRepeat) ||
                              m_releasedAt.value(key) == now;
        m_down.insert(key, {now, isRepeat});
        return isRepeat;
    }

    void Release(const QKeyEvent& event)
    {
        if (event.timestamp() == 0 || event.isAutoRepeat())
            return;
        m_down.remove(KeyOf(event));
        m_releasedAt.insert(KeyOf(event), event.timestamp());
    }

    /// Passes a repetition on with its flag. True when the event itself is dealt with.
    bool TellRepeat(QObject* watched, QKeyEvent& event)
    {
        if (!IsRepeat(event))
            return false;
        // Refused as a shortcut, Alt with a letter would be typed as that letter.
        if (event.modifiers().testFlag(Qt::AltModifier))
            return true;
        if (event.isAutoRepeat())
            return false;
        QKeyEvent repeat(event.type(), event.key(), event.modifiers(), event.nativeScanCode(),
                         event.nativeVirtualKey(), event.nativeModifiers(), event.text(), true,
                         static_cast<quint16>(event.count()), event.device());
        repeat.setTimestamp(event.timestamp());
        QCoreApplication::sendEvent(watched, &repeat);
        event.setAccepted(repeat.isAccepted());
        return true;
    }

    struct Press {
        quint64 at;
        bool isRepeat;
    };
    QHash<quint64, Press> m_down; ///< in the present window, the last press of each key that was not released
    QHash<quint64, quint64> m_releasedAt;
};

} // namespace

void WatchHeldKeys(QApplication& application)
{
    application.installEventFilter(new HeldKeys(application));
}
