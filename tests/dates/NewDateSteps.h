// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleItem.h"
#include "NewDates.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <utility>
#include <vector>

namespace chronomender::little {

// A calculation as one line of a table. All dates are seconds after noon of an arbitrary day; "now"
// is a day later.

using Moment = std::optional<double>;
inline constexpr Moment none;
inline constexpr double now = 86400;
inline constexpr double past = -1e15, future = 1e15; ///< the two markers
inline constexpr double held = -77777; ///< what each NEW slot held before the calculation

inline Date at(double seconds) {
    if (seconds == past)
        return InfinitePast();
    return seconds == future ? InfiniteFuture() : utc(2024, 6, 1, 12) + absl::Seconds(seconds);
}
inline OptionalDate at(Moment moment) {
    return moment ? OptionalDate(at(*moment)) : std::nullopt;
}
inline Moment moment(const OptionalDate &date) {
    if (!date)
        return none;
    if (isMarker(*date))
        return *date == InfinitePast() ? past : future;
    return absl::ToDoubleSeconds(*date - at(0.0));
}

struct Moments {
    Moment original, digitized, tiff, created, modified;
};

enum Slot { Original, Digitized, Tiff, Created, Modified };

using Option = std::pair<int DateChangeOptions::*, int>;
using Options = std::vector<Option>;

inline constexpr auto Live = CalculationMode::Live;
inline constexpr auto Save = CalculationMode::Save;

/// The item's main date follows from its type, as import decides it.
inline double mainMoment(SpType type, const Moments &old) {
    switch (type) {
    case SpTypeExifOriginal:
        return *old.original;
    case SpTypeExifDigitized:
        return *old.digitized;
    case SpTypeTiffDateTime:
        return *old.tiff;
    default:
        return old.created.value_or(0);
    }
}

inline MySinglePicPtr addItem(const MySingleFolderPtr &folder, SpType type, const Moments &old) {
    const auto pic = addItem(folder, type, at(mainMoment(type, old)));
    const std::array moments{old.original, old.digitized, old.tiff, old.created, old.modified};
    for (std::size_t slot = 0; slot < moments.size(); ++slot) {
        pic->slots.*slotDescriptions[slot].oldDate = at(moments[slot]);
        pic->slots.*slotDescriptions[slot].newDate = at(held);
    }
    return pic;
}

inline Moment newMoment(const MySinglePic &pic, Slot slot) {
    return moment(pic.slots.*slotDescriptions[slot].newDate);
}
inline Moment oldMoment(const MySinglePic &pic, Slot slot) {
    return moment(pic.slots.*slotDescriptions[slot].oldDate);
}

inline NewDateContext context(CalculationMode mode, const Options &options = {}) {
    NewDateContext result;
    result.mode = mode;
    result.options.nowDate = at(now);
    for (const auto &[key, value] : options)
        result.options.*key = value;
    return result;
}

/// One line: what the file holds, the shift, the settings that differ from the defaults, and what
/// the slot in question must hold afterwards (in a save, unless the line says otherwise).
struct Line {
    const char *what;
    SpType type;
    Moments old;
    double shift;
    Options options;
    Moment expected;
    CalculationMode mode = Save;
    bool areFileDatesOutOfOrder = false;
};

inline void check(Slot slot, const std::vector<Line> &lines) {
    for (const Line &line : lines) {
        const auto folder = makeFolder();
        const auto pic = addItem(folder, line.type, line.old);
        folder->sfDateModificationsTimeInterval = absl::Seconds(line.shift);
        pic->save.normalizationType = line.areFileDatesOutOfOrder ? 4 : 0;
        calculateNewDates(*pic, context(line.mode, line.options));
        EXPECT_EQ(newMoment(*pic, slot), line.expected) << line.what;
    }
}

} // namespace chronomender::little
