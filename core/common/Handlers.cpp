#include "core/common/Handlers.h"

#include "core/base/RunTimeError.h"
#include "core/common/Messages.h"
#include "core/common/Waiting.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPointer>

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

int depth = 0;
std::exception_ptr keptFailure;
std::vector<std::function<void()>> actionsAfterwards;

int underWay = 0; // handlers on the stack, those that wait for a nested loop included
std::vector<QPointer<QObject>> closedWindows;
std::vector<std::function<void()>> actionsWhenIdle;

void Idle()
{
    for (const QPointer<QObject>& window : std::exchange(closedWindows, {})) {
        if (window)
            window->deleteLater();
    }
    for (auto& action : std::exchange(actionsWhenIdle, {}))
        WhenIdle(std::move(action));
}

void ShowFailure(const std::exception_ptr& failure)
{
    try {
        std::rethrow_exception(failure);
    } catch (const RunTimeError& error) {
        ShowErrorMessage(error);
    } catch (const std::exception& error) {
        ShowInfo(u"程序错误：%1"_s.arg(QString::fromUtf8(error.what())));
    }
}

} // namespace

bool RunHandler(const std::function<void()>& handler)
{
    ++depth;
    ++underWay;
    std::exception_ptr failure;
    try {
        handler();
    } catch (...) {
        failure = std::current_exception();
    }
    --depth;
    bool isGood = !failure;
    if (depth > 0) {
        if (failure && !keptFailure)
            keptFailure = failure;
    } else {
        const std::exception_ptr kept = std::exchange(keptFailure, nullptr);
        isGood = isGood && !kept;
        if (!isGood)
            ShowFailure(failure ? failure : kept);
        for (const auto& action : std::exchange(actionsAfterwards, {}))
            RunHandler(action);
    }
    if (--underWay == 0)
        Idle();
    return isGood;
}

void WhenIdle(std::function<void()> action)
{
    if (underWay > 0) {
        actionsWhenIdle.push_back(std::move(action));
        return;
    }
    // By the time the event comes, another handler's box may stand open.
    QMetaObject::invokeMethod(
        QCoreApplication::instance(),
        [action = std::move(action)] {
            if (underWay > 0)
                actionsWhenIdle.push_back(action);
            else
                action();
        },
        Qt::QueuedConnection);
}

void DestroyWhenIdle(QObject* window)
{
    if (underWay == 0)
        window->deleteLater();
    else
        closedWindows.emplace_back(window);
}

void AfterHandler(std::function<void()> action)
{
    if (depth > 0)
        actionsAfterwards.push_back(std::move(action));
    else
        QMetaObject::invokeMethod(
            QCoreApplication::instance(),
            [action = std::move(action)] { AfterWait([action] { RunHandler(action); }); },
            Qt::QueuedConnection);
}

void ToldAfterwards(const std::function<void()>& action)
{
    try {
        action();
    } catch (...) {
        AfterHandler([failure = std::current_exception()] { std::rethrow_exception(failure); });
    }
}

void WriteText(QLineEdit* box, const QString& text)
{
    ++depth;
    box->setText(text);
    --depth;
    if (keptFailure)
        std::rethrow_exception(std::exchange(keptFailure, nullptr));
}

NestedLoop::NestedLoop()
    : m_outerDepth(std::exchange(depth, 0)), m_outerFailure(std::exchange(keptFailure, nullptr)),
      m_outerActions(std::exchange(actionsAfterwards, {}))
{}

NestedLoop::~NestedLoop()
{
    depth = m_outerDepth;
    keptFailure = m_outerFailure;
    actionsAfterwards = std::move(m_outerActions);
}
