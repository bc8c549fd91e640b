// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"
#include "Thumbnails.h"

#include <QImage>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>

namespace chronomender {

struct PreviewAnswer {
    ThumbState state = ThumbState::Pending;
    QImage image;                    ///< upright; null where there is none (yet)
    std::string_view reasonKey = {}; ///< Unsupported: text key of why
};

/// Large pictures of single items, made on a worker, the last ones asked for first, and kept within
/// a bound. Main thread, with an event loop.
class Previews {
public:
    explicit Previews(std::size_t mostBytes = 192U << 20U);
    ~Previews();
    Previews(const Previews &) = delete;
    Previews &operator=(const Previews &) = delete;

    /// Called on the main thread when an answer is another one now.
    void setChanged(std::function<void(std::uint32_t sessionUniqueId)> changed);
    /// The picture with its longer side near `side` pixels (never enlarged). Where there is none
    /// yet, it is asked for; what was asked for before `keep` items ago is dropped.
    PreviewAnswer preview(const MySinglePicPtr &pic, int side);
    void forget(const MySinglePicPtr &pic);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace chronomender
