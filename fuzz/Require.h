// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdlib>

/// Makes a broken promise a find of the fuzzer.
inline void require(bool holds) {
    if (!holds)
        std::abort();
}
