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
inline Date mainDate(SpType type, const Moments &old) {
    const auto stamp = type == SpTypeExifOriginal    ? old.original
                       : type == SpTypeExifDigitized ? old.digitized
                       : type == SpTypeTiffDateTime  ? old.tiff
                                                     : old.created;
    return at(stamp.value_or(0));
}

inline MySinglePicPtr addItem(const MySingleFolderPtr &folder, SpType type, const Moments &old) {
    const auto pic = addItem(folder, type, mainDate(type, old));
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

/// One line: what the file holds, the shift, and what the slot in question must hold afterwards (in
/// a save, unless the line says otherwise) under each value of the setting in question, from 0.
struct Line {
    const char *what;
    SpType type;
    Moments old;
    double shift;
    std::vector<Moment> expected;
    Options options{}; ///< that differ from the defaults
    CalculationMode mode = Save;
    bool areFileDatesOutOfOrder = false;
};

inline void check(Slot slot, int DateChangeOptions::*setting, const std::vector<Line> &lines) {
    for (const Line &line : lines) {
        for (std::size_t value = 0; value < line.expected.size(); ++value) {
            const auto folder = makeFolder();
            const auto pic = addItem(folder, line.type, line.old);
            folder->sfDateModificationsTimeInterval = absl::Seconds(line.shift);
            pic->save.normalizationType = line.areFileDatesOutOfOrder ? 4 : 0;
            NewDateContext calculation = context(line.mode, line.options);
            calculation.options.*setting = static_cast<int>(value);
            calculateNewDates(*pic, calculation);
            EXPECT_EQ(newMoment(*pic, slot), line.expected[value]) << line.what << ", " << value;
        }
    }
}

} // namespace chronomender::little
