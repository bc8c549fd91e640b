// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "IsoStamp.h"
#include "MySinglePic.h"
#include "Predicate.h"
#include "Zones.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace chronomender {

/// What keys of the filter ask beside the item. The references outlive whoever holds the context.
struct FilterContext {
    const Zones &zones;
    bool highlightEmptyMetaTags = true;
};

/// What the values of a key are, and so what they can be compared with.
enum class FilterValueKind : std::uint8_t {
    Text,    ///< with a quoted text, by every operator
    Number,  ///< with a number, by all but the operators of texts
    State,   ///< with the number of a state, 0 to 7, by == and != alone: whether the item is in it
    Instant, ///< with an instant or a date in quotes, by all but the operators of texts
};

/// States are numbered from 0.
inline constexpr int kLastFilterState = 7;

/// One key of the filter. Of the three accessors the one of its kind is set; a State has none and
/// is replaced by the key of the state in question before it is asked.
struct FilterKey {
    std::string_view name;
    FilterValueKind kind;
    bool isCostly = false;   ///< asked only when what is cheaper has not decided
    bool isReadLate = false; ///< an import does not read all that it needs
    /// "" means that there is no value. The view is of the item or of `scratch`.
    std::string_view (*text)(const MySinglePic &pic, std::string &scratch) = nullptr;
    int (*number)(const MySinglePic &pic, const FilterContext &context) = nullptr;
    OptionalDate (*date)(const MySinglePic &pic) = nullptr;
};

/// The one table of all keys, in the order in which they are told to users.
std::span<const FilterKey> filterKeys();
/// Null for a name that is no key; names are exact.
const FilterKey *findFilterKey(std::string_view name);

/// A date as people write it, to be compared with a date key: "2024-05-06", "2024-05-06 07:08",
/// "2024-05-06T07:08:09", each also with a zone, "Z" or "+02:00". A day means its first second.
std::optional<IsoStamp> readFilterDate(std::string_view text);

/// "Canon EOS R5 (0123)": make and model and, where it is known, the body's serial number; "" where
/// the camera is unknown.
std::string pivMakeModelWithSn(const MySinglePic &pic);
/// The same with the lens, where that is known: "Canon EOS R5 (0123), RF24-70mm F2.8 L".
std::string pivMakeModelLensWithSn(const MySinglePic &pic);

} // namespace chronomender
