// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"
#include "Thumbnails.h"

namespace chronomender {

/// What `ask(pic)` answers; of a pair whose leading file has no picture, what it answers of the
/// other one (a raw file that cannot be decoded is shown by its JPEG).
template<class Ask>
auto pictureOfPair(const MySinglePicPtr &pic, Ask ask) {
    auto answer = ask(pic);
    const MySinglePicPtr &dependent = pic->group.bundleDependentImage;
    if (answer.state != ThumbState::Unsupported || !dependent)
        return answer;
    auto other = ask(dependent);
    return other.state == ThumbState::Unsupported ? answer : other;
}

} // namespace chronomender
