// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PairPicture.h"
#include "StripDrag.h"
#include "StripMetrics.h"

#include <functional>
#include <memory>

namespace chronomender {

/// What the strips of one window share. Main thread.
struct StripShared {
    explicit StripShared(WindowSession &theSession) : session(theSession) {
        thumbnail = [&theSession](const MySinglePicPtr &pic, ThumbSide side) {
            return pictureOfPair(pic, [&](const MySinglePicPtr &each) {
                return theSession.thumbnails().spThumb(each, side);
            });
        };
    }

    FilterContext filters() const {
        return {session.zones(), session.defaults().boolForKey("highlightEmptyMetaTags")};
    }

    WindowSession &session;
    int thumbSize = usualThumb;
    std::unique_ptr<StripDrag> drag; ///< null while nothing is dragged
    std::function<ThumbAnswer(const MySinglePicPtr &, ThumbSide)> thumbnail;
};

} // namespace chronomender
