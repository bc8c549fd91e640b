// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QEventLoop>

#include <optional>
#include <utility>

namespace chronomender {

/// Waits for an operation of the controller while the main thread serves its events. `start` is
/// given the callback to hand on, and starts the operation.
///
///     auto outcome = waitFor<ImportOutcome>([&](auto finished) { c.startImport(r, finished); });
template<class Result, class Start>
Result waitFor(Start start) {
    std::optional<Result> result;
    QEventLoop loop;
    start([&](Result answer) {
        result.emplace(std::move(answer));
        loop.quit();
    });
    if (!result)
        loop.exec();
    return std::move(*result);
}

} // namespace chronomender
