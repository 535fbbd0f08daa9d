#include "core/forms/frmScroll.h"

#include "ui_frmScroll.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QWindow>

namespace {

constexpr int LongestWait = 500; // milliseconds for the desktop to bring the window up

void PaintOnly()
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

} // namespace

frmScroll::frmScroll(QWidget* owner)
    : FormWindow(owner, SlotUse::Untouched), ui(std::make_unique<Ui::frmScroll>())
{
    ui->setupUi(this);
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setWindowModality(Qt::ApplicationModal);
}

frmScroll::~frmScroll() = default;

void frmScroll::Begin(int steps)
{
    ui->pbarStatus->setMaximum(steps);
    const QDeadlineTimer deadline(LongestWait);
    do
        PaintOnly();
    while (!windowHandle()->isExposed() && !deadline.hasExpired());
}

void frmScroll::Tell(const QString& text)
{
    ui->lbl01->setText(text);
    PaintOnly();
}

void frmScroll::Reach(int steps)
{
    ui->pbarStatus->setValue(steps);
    PaintOnly();
}
