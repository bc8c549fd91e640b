// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace chronomender::mainThread {

/// The only way back from a worker to the main thread. Runs the same under QCoreApplication and
/// QApplication; needs a running event loop on the main thread.

enum class CallResult { Done, Cancelled };

/// Remembers the present thread as the main thread and opens the door again after a shutdown.
void initialise();
bool isCurrent();
/// Runs `work` later on the main thread and returns at once. Dropped once shutdown began.
void post(std::function<void()> work);
/// Runs `work` on the main thread and waits for its end; on the main thread it runs at once.
/// Cancelled, without running it, once shutdown began.
CallResult callAndWait(std::function<void()> work);
/// From now on nothing is posted, and waiting callers come back cancelled.
void beginShutdown();

} // namespace chronomender::mainThread
