// SPDX-License-Identifier: GPL-3.0-or-later
#include "NeighbourFacts.h"

#include "DisplayZone.h"
#include "ItemTexts.h"
#include "Texts.h"
#include "TimeTexts.h"

#include <algorithm>
#include <optional>

namespace chronomender {
namespace {

std::string distanceText(Date from, Date to) {
    if (isMarker(from) || isMarker(to))
        return {};
    const std::string shift = shiftText(to - from);
    return shift.empty() ? text("preview_sameTime") : shift;
}

/// For the order of items, as it is or as a drag would make it.
Date sortDateOf(const MySinglePic &pic, const DateDrag *drag) {
    return drag ? drag->tempTimeDuringLiveMod(pic) : pic.spDateTimeModified_sort();
}

NeighbourFact factOf(const MySinglePicPtr &pic, const MySinglePic &mainPic, const Zones &zones,
                     const DateDrag *drag) {
    NeighbourFact fact;
    const MySingleFolderPtr folder = pic->spSingleRealFolder();
    if (!folder)
        return fact;
    fact.pic = pic;
    fact.colorIndex = folder->colorIndex;
    fact.name = nameWithCompanions(*pic);
    fact.folder = folder->sfFolder;
    const absl::Duration way =
        drag ? drag->liveDragOf(*pic).tempMoveDateByDuringLiveMod : absl::ZeroDuration();
    fact.date =
        dayAndTimeText(shifted(pic->spDateTimeModified(), way), displayZone(*pic, *folder, zones));
    if (pic.get() != &mainPic)
        fact.distance = distanceText(sortDateOf(mainPic, drag), sortDateOf(*pic, drag));
    return fact;
}

std::optional<std::int64_t> shownIndex(const TimelineStrip &strip, const MySinglePicPtr &pic) {
    if (!strip.tempSource)
        return strip.indexOf(*pic);
    const auto found = std::ranges::find(*strip.tempSource, pic);
    return found == strip.tempSource->end() ? std::nullopt
                                            : std::optional(found - strip.tempSource->begin());
}

} // namespace

std::string NeighbourFact::words() const {
    std::string joined;
    for (const std::string &part : {name, folder, date, distance})
        if (!part.empty())
            joined += (joined.empty() ? "" : ", ") + part;
    return joined;
}

NeighbourFacts neighbourFacts(const TimelineStrip &strip, const MySinglePicPtr &mainPic,
                              const Zones &zones, const DateDrag *drag) {
    NeighbourFacts facts;
    const auto &shown = strip.shown();
    const auto index = mainPic ? shownIndex(strip, mainPic) : std::nullopt;
    if (!index)
        return facts;
    for (std::size_t i = 0; i < facts.size(); ++i) {
        const auto place = *index + static_cast<std::int64_t>(i) - 1;
        if (place >= 0 && place < std::ssize(shown))
            facts[i] = factOf(shown[static_cast<std::size_t>(place)], *mainPic, zones, drag);
    }
    return facts;
}

} // namespace chronomender
