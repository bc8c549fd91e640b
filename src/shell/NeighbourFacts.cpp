// SPDX-License-Identifier: GPL-3.0-or-later
#include "NeighbourFacts.h"

#include "DisplayZone.h"
#include "ItemTexts.h"
#include "Texts.h"
#include "TimeTexts.h"

namespace chronomender {
namespace {

std::string distanceText(Date from, Date to) {
    if (isMarker(from) || isMarker(to))
        return {};
    const std::string shift = shiftText(to - from);
    return shift.empty() ? text("preview_sameTime") : shift;
}

NeighbourFact factOf(const MySinglePicPtr &pic, const MySinglePic &mainPic, const Zones &zones) {
    NeighbourFact fact;
    const MySingleFolderPtr folder = pic->spSingleRealFolder();
    if (!folder)
        return fact;
    fact.pic = pic;
    fact.colorIndex = folder->colorIndex;
    fact.name = nameWithCompanions(*pic);
    fact.folder = folder->sfFolder;
    fact.date = dayAndTimeText(pic->spDateTimeModified(), displayZone(*pic, *folder, zones));
    if (pic.get() != &mainPic)
        fact.distance =
            distanceText(mainPic.spDateTimeModified_sort(), pic->spDateTimeModified_sort());
    return fact;
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
                              const Zones &zones) {
    NeighbourFacts facts;
    const auto index = mainPic ? strip.indexOf(*mainPic) : std::nullopt;
    if (!index)
        return facts;
    for (std::size_t i = 0; i < facts.size(); ++i) {
        const auto place = *index + static_cast<std::int64_t>(i) - 1;
        if (place >= 0 && place < static_cast<std::int64_t>(strip.theSource.size()))
            facts[i] = factOf(strip.theSource[static_cast<std::size_t>(place)], *mainPic, zones);
    }
    return facts;
}

} // namespace chronomender
