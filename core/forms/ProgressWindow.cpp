#include "core/forms/ProgressWindow.h"

#include "ui_ProgressWindow.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QWindow>

using namespace Qt::StringLiterals;

namespace {

constexpr int LongestWait = 500;  // milliseconds for the desktop to bring the window up
constexpr int PaintInterval = 50; // milliseconds

} // namespace

ProgressWindow::ProgressWindow(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::ProgressWindow>())
{
    ui->setupUi(this);
    ui->lblKeys->hide();
    setFocusPolicy(Qt::StrongFocus);
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setWindowModality(Qt::ApplicationModal);
}

ProgressWindow::~ProgressWindow() = default;

void ProgressWindow::AllowCancel()
{
    m_mayCancel = true;
    ui->lblKeys->show();
}

void ProgressWindow::Begin(int steps)
{
    m_isCancelled = false;
    ui->lblKeys->setText(u"Esc 取消"_s);
    ui->pbarStatus->setMaximum(steps);
    ui->pbarStatus->setValue(0);
    setFocus();
    const QDeadlineTimer deadline(LongestWait);
    do
        Paint();
    while (!windowHandle()->isExposed() && !deadline.hasExpired());
}

void ProgressWindow::Tell(const QString& text)
{
    ui->lbl01->setText(text);
    Paint();
}

void ProgressWindow::Reach(int steps)
{
    ui->pbarStatus->setValue(steps);
    if (steps >= ui->pbarStatus->maximum() || m_sincePaint.hasExpired(PaintInterval))
        Paint();
}

void ProgressWindow::Paint()
{
    // Keys and clicks wait until the run is over, unless one of them may end it: then those for other
    // windows, which this one blocks, are lost.
    QCoreApplication::processEvents(m_mayCancel ? QEventLoop::AllEvents : QEventLoop::ExcludeUserInputEvents);
    m_sincePaint.start();
}

void ProgressWindow::Cancel()
{
    if (!m_mayCancel || m_isCancelled)
        return;
    m_isCancelled = true;
    ui->lblKeys->setText(u"正在取消……"_s);
}

void ProgressWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Cancel();
    else
        FormWindow::keyPressEvent(event);
}

void ProgressWindow::closeEvent(QCloseEvent* event)
{
    if (event->spontaneous()) {
        event->ignore();
        Cancel();
        return;
    }
    FormWindow::closeEvent(event);
}
