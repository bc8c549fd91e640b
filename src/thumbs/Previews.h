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

    /// Those of groups are made anew when it is another one than before; at first it is the master.
    void setRawJpgDisplayType(RawJpgDisplayType type);
    /// Called on the main thread when an answer is another one now.
    void setChanged(std::function<void(std::uint32_t sessionUniqueId)> changed);
    /// The picture with its longer side at `side` pixels or a little more (never enlarged). Where
    /// there is none of that size yet, it is asked for, and a smaller one stands in where there is
    /// one. Of many that were asked for in a row, only the last few are made.
    PreviewAnswer preview(const MySinglePicPtr &pic, int side);
    /// The file is another one now, or the item left the session.
    void forget(const MySinglePicPtr &pic);

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace chronomender
