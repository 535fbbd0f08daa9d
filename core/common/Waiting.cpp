#include "core/common/Waiting.h"

#include "core/gateway/DataGateway.h"

#include <QApplication>

#include <utility>
#include <vector>

namespace {

std::vector<std::function<void()>> actionsAfterWait;

class WaitCursor : public WaitView {
public:
    void Began() override { QApplication::setOverrideCursor(Qt::WaitCursor); }

    void GoesOn() override
    {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents |
                                        QEventLoop::ExcludeSocketNotifiers);
    }

    void Ended() override
    {
        QApplication::restoreOverrideCursor();
        for (auto& action : std::exchange(actionsAfterWait, {}))
            QMetaObject::invokeMethod(
                qApp, [action = std::move(action)] { AfterWait(action); }, Qt::QueuedConnection);
    }
};

} // namespace

void InstallWaitCursor()
{
    static WaitCursor cursor;
    Gateway().SetWaitView(&cursor);
}

void AfterWait(std::function<void()> action)
{
    if (Gateway().IsWaiting())
        actionsAfterWait.push_back(std::move(action));
    else
        action();
}
