#pragma once

#include <functional>

/// From now on a wait for the server that is felt shows the wait cursor, and the windows go on painting.
/// What the user types or clicks meanwhile comes afterwards, in its order; so does a window's closing.
void InstallWaitCursor();

/// Runs `action` at once, or, while a statement waits for its answer, as an event of its own after that:
/// for timers and answers of other threads, which would otherwise come in the middle of a handler.
void AfterWait(std::function<void()> action);
