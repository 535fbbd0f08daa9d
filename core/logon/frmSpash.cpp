#include "core/logon/frmSpash.h"

#include "core/base/IniFile.h"
#include "core/common/Handlers.h"
#include "core/common/Waiting.h"
#include "core/forms/WindowRegistry.h"
#include "core/session/SessionControl.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestTime = 65535; // milliseconds

/// `Define`/`SplashTime` of \Config.ini, a whole number of milliseconds from 1 to 65535; anything else
/// is the longest time.
int SplashTime()
{
    bool good = false;
    const int time = ReadIniValue(ConfigIniPath(), u"Define"_s, u"SplashTime"_s).toInt(&good);
    return good && time >= 1 && time <= LongestTime ? time : LongestTime;
}

} // namespace

frmSpash::frmSpash(QWidget* owner) : FormWindow(owner, SlotUse::Untouched), ShowTimer(new QTimer(this))
{
    setObjectName(u"frmSpash"_s);
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setFixedSize(560, 300);
    ShowTimer->setSingleShot(true);
    connect(ShowTimer, &QTimer::timeout, this, [this] {
        AfterWait([splash = QPointer<frmSpash>(this)] {
            if (splash)
                RunHandler([splash] { splash->TimeIsOver(); });
        });
    });
}

void frmSpash::OnLoad()
{
    move(screen()->availableGeometry().center() - rect().center());
    ShowTimer->start(SplashTime());
}

void frmSpash::TimeIsOver()
{
    ShowTimer->stop();
    Windows().Show(u"frmMain"_s, nullptr);
    close();
}

void frmSpash::mousePressEvent(QMouseEvent* /*event*/)
{
    close();
}

void frmSpash::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    QLinearGradient ground(0, 0, width(), height());
    ground.setColorAt(0, QColor(0x10, 0x57, 0x85));
    ground.setColorAt(1, QColor(0x2f, 0x8f, 0x5b));
    painter.fillRect(rect(), ground);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 36));
    painter.drawEllipse(QPoint(width() - 70, 70), 110, 110);
    painter.setBrush(QColor(0xff, 0xc1, 0x4d));
    painter.drawEllipse(QPoint(width() - 70, 78), 44, 44);
    painter.setPen(Qt::white);
    QFont font = painter.font();
    font.setPointSize(24);
    font.setBold(true);
    painter.setFont(font);
    painter.drawText(QRect(36, 110, width() - 72, 50), Qt::AlignLeft | Qt::AlignVCenter,
                     u"Orvane水果销售管理系统"_s);
    font.setPointSize(12);
    font.setBold(false);
    painter.setFont(font);
    painter.drawText(QRect(38, 164, width() - 72, 30), Qt::AlignLeft | Qt::AlignVCenter, u"通用版  2.0"_s);
    painter.drawText(QRect(38, height() - 46, width() - 72, 24), Qt::AlignLeft | Qt::AlignVCenter,
                     u"正在打开……"_s);
}
