// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "PictureSource.h"

#include <algorithm>
#include <chrono>

namespace chronomender {

/// How long a file is waited for: until the time is up, or the user no longer wants it.
class PicturePatience {
public:
    PicturePatience(std::chrono::milliseconds longest, const Cancellation *cancellation)
        : m_end(std::chrono::steady_clock::now() + longest), m_cancellation(cancellation) {}

    /// The same, but from now on for no longer than this.
    PicturePatience atMost(std::chrono::milliseconds longest) const {
        PicturePatience shorter(longest, m_cancellation);
        shorter.m_end = std::min(shorter.m_end, m_end);
        return shorter;
    }

    bool isCancelled() const { return m_cancellation && m_cancellation->isRequested(); }
    bool isOver() const { return isCancelled() || std::chrono::steady_clock::now() > m_end; }
    /// What a decoder that may have been stopped in the middle has to say.
    PictureFailure failureOr(PictureFailure failure) const {
        if (isCancelled())
            return PictureFailure::Cancelled;
        return isOver() ? PictureFailure::TooLarge : failure;
    }

private:
    std::chrono::steady_clock::time_point m_end;
    const Cancellation *m_cancellation;
};

} // namespace chronomender
