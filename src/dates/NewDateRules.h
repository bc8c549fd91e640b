// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NewDates.h"

namespace chronomender {

/// What the rules of one calculation start from.
struct NewDateInputs {
    const DateChangeOptions &options;
    CalculationMode mode = CalculationMode::Live;
    absl::Duration threshold;   ///< two dates that near count as the same
    Date corrected;             ///< the item's main date with its shift
    Date original;              ///< the item's main date as read
    OptionalDate referenceDate; ///< the file's modification date as the rules see it

    absl::Duration shift() const { return corrected - original; }
    /// Within the threshold. An absent date is the same as nothing; a marker only as itself.
    bool isSame(const OptionalDate &a, const OptionalDate &b) const;
    /// The moment of saving, but never before `candidate`: a date in the future is respected.
    Date nowRule(Date candidate) const;
};

inline Date laterOf(Date a, Date b) {
    return a < b ? b : a;
}
inline Date laterOf(const OptionalDate &a, Date b) {
    return a ? laterOf(*a, b) : b;
}

// One path for each kind of file. Each fills the NEW slots in order; later slots may look at the
// NEW values of earlier ones.

/// Types 11, 12 and 14: no date tag, file dates only.
void calculateNoExifPath(DateSlots &slots, const NewDateInputs &inputs);
/// Types 4 and 18: the main date is the file's, and a modification stamp stands in the file.
void calculateTiffOnlyPath(DateSlots &slots, const NewDateInputs &inputs);
/// All other types. `keepsDigitized`: a save for the sake of a location leaves that date alone.
void calculateExifPath(DateSlots &slots, const NewDateInputs &inputs, bool keepsDigitized);
/// The file dates of the last path, once its stamps are calculated.
void calculateExifFileDates(DateSlots &slots, const NewDateInputs &inputs);

} // namespace chronomender
