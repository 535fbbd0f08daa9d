#pragma once

#include <exception>
#include <functional>
#include <vector>

class QLineEdit;
class QObject;
class QString;

/// What every event of a window runs through, so that no failure crosses the toolkit's event loop: an
/// exception out of `handler` shows its description in one box, ends the handler, and the program goes
/// on. Inside another handler (a Change event set off by that handler's own write) the failure is kept
/// instead, and WriteText passes it on to the routine that wrote. True when nothing failed.
bool RunHandler(const std::function<void()>& handler);

/// Runs `action` from the event loop once no handler is under way any more, nested loops of boxes
/// included: what ends the program must not come while a box is being read.
void WhenIdle(std::function<void()> action);

/// Destroys a closed window once no handler is under way any more: the one that waits for an answer to
/// its box, or for a modal window, may be the window's own.
void DestroyWhenIdle(QObject* window);

/// Writes a field from code. The Change event it sets off runs before this returns; when that failed,
/// its failure is thrown here, so that it ends the routine that wrote.
void WriteText(QLineEdit* box, const QString& text);

/// Runs `action` as a handler of its own when the one under way has ended, its failure shown: what a
/// save has to tell must not stand between its statements, nor behind a box of the save itself. Where no
/// handler is under way, the event loop runs it next.
void AfterHandler(std::function<void()> action);

/// Runs `action`. A failure does not end the handler under way; it is shown after it.
void ToldAfterwards(const std::function<void()>& action);

/// Stands while a modal window or box runs an event loop of its own inside a handler: events handled
/// there begin afresh and show their own failures, and one that waits outside is none of theirs.
class NestedLoop {
public:
    NestedLoop();
    ~NestedLoop();
    NestedLoop(const NestedLoop&) = delete;
    NestedLoop& operator=(const NestedLoop&) = delete;

private:
    int m_outerDepth;
    std::exception_ptr m_outerFailure;
    std::vector<std::function<void()>> m_outerActions;
};
