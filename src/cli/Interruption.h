// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"

namespace chronomender {

/// While it lives, SIGINT and SIGTERM ask the running operation to stop instead of ending the
/// program, and a broken pipe is an error of the write. One at a time; main thread.
class Interruption {
public:
    explicit Interruption(Cancellation &cancellation);
    ~Interruption();
    Interruption(const Interruption &) = delete;
    Interruption &operator=(const Interruption &) = delete;
};

} // namespace chronomender
