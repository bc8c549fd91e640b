// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <absl/time/time.h>

#include <optional>

namespace chronomender {

/// An instant, exact to a fraction of a nanosecond. "No date" is an empty optional; two instants
/// are markers with a meaning of their own and are never shifted.
using Date = absl::Time;
using OptionalDate = std::optional<Date>;

/// No date is known; in an OLD slot it marks a tag that is to be added.
inline Date InfinitePast() {
    return absl::InfinitePast();
}
/// In a NEW slot of a live calculation: the moment of saving.
inline Date InfiniteFuture() {
    return absl::InfiniteFuture();
}

inline bool isMarker(Date date) {
    return date == InfinitePast() || date == InfiniteFuture();
}

/// `date` moved by `shift`; a marker stays what it is.
inline Date shifted(Date date, absl::Duration shift) {
    return isMarker(date) ? date : date + shift;
}

/// A date that is present and no marker.
inline bool isCleanDate(const OptionalDate &date) {
    return date && !isMarker(*date);
}

/// `date` cut to whole seconds (towards the past); markers and absence give none.
OptionalDate cleanDate(const OptionalDate &date);

/// |a − b| in exact duration.
inline absl::Duration distance(Date a, Date b) {
    return a < b ? b - a : a - b;
}

} // namespace chronomender
