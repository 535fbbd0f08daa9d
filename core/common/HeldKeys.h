#pragma once

class QApplication;

/// From here on a key that is held down is known as such, whatever the display tells: its presses carry
/// the auto-repeat flag, and none of them sets off a shortcut. Once, at the start of the program.
///
/// A display in the manner of X repeats a held key as releases and presses, and the toolkit sees that
/// they belong together only when it finds both in its queue. A repeated press is one that
/// - the display itself flags, or
/// - comes in the very millisecond of its release, which no hand can do, or
/// - comes without a release of the one before, in the same window.
void WatchHeldKeys(QApplication& application);
