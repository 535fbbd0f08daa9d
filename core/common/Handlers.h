#pragma once

#include <functional>

class QLineEdit;
class QObject;
class QString;

/// What every event of a window runs through, so that no failure crosses the toolkit's event loop: an
/// exception out of `handler` shows its description in one box, ends the handler, and the program goes
/// on. Inside another handler (a Change event set off by that handler's own write) the failure is kept
/// instead, and WriteText passes it on to the routine that wrote.
void RunHandler(const std::function<void()>& handler);

/// Destroys a closed window once no handler is under way any more: the one that waits for an answer to
/// its box, or for a modal window, may be the window's own.
void DestroyWhenIdle(QObject* window);

/// Writes a field from code. The Change event it sets off runs before this returns; when that failed,
/// its failure is thrown here, so that it ends the routine that wrote.
void WriteText(QLineEdit* box, const QString& text);

/// Stands while a modal window or box runs an event loop of its own inside a handler: events handled
/// there begin afresh and show their own failures.
class NestedLoop {
public:
    NestedLoop();
    ~NestedLoop();
    NestedLoop(const NestedLoop&) = delete;
    NestedLoop& operator=(const NestedLoop&) = delete;

private:
    int m_outerDepth;
};
