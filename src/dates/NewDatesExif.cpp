// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateRules.h"

namespace chronomender {
namespace {

/// How the digitised date follows.
struct DigitizedRule {
    int choice = 1;
    bool followsWhenUnchanged = true; ///< a date equal to the original one follows it
};

DigitizedRule digitizedRule(const DateChangeOptions &options, bool keepsDigitized) {
    if (keepsDigitized)
        return {1, false};
    return {options.dateChangeEXIFEXIFDigiDate,
            options.dateChangeEXIFEXIFDigiDateUnchangedOption != 0};
}

void setDigitized(DateSlots &slots, const NewDateInputs &inputs, const DigitizedRule &rule) {
    const OptionalDate &oldDate = slots.exifDateTimeDigitizedOLD;
    OptionalDate &newDate = slots.exifDateTimeDigitizedNEW;
    if (!oldDate) {
        newDate = std::nullopt;
        return;
    }
    if (!slots.exifDateTimeOriginalOLD) {
        newDate = inputs.corrected;
        return;
    }
    const Date newOriginal = *slots.exifDateTimeOriginalNEW;
    switch (rule.choice) {
    case 0:
        newDate = inputs.corrected;
        break;
    case 1:
        newDate = rule.followsWhenUnchanged && inputs.isSame(oldDate, inputs.original)
                      ? inputs.corrected
                      : laterOf(oldDate, newOriginal);
        break;
    case 3:
        newDate = laterOf(shifted(*oldDate, newOriginal - inputs.original), newOriginal);
        break;
    default:
        break;
    }
}

/// The modification stamp keeps its date, unless it was equal to the date before it and that one
/// moved.
Date keptTiffDateTime(const DateSlots &slots, const NewDateInputs &inputs, Date bound) {
    const bool hasDigitized = slots.exifDateTimeDigitizedOLD.has_value();
    const OptionalDate &followed =
        hasDigitized ? slots.exifDateTimeDigitizedOLD : slots.exifDateTimeOriginalOLD;
    const OptionalDate target =
        hasDigitized ? slots.exifDateTimeDigitizedNEW : OptionalDate(inputs.corrected);
    const bool isFollowing = inputs.options.dateChangeEXIFEXIFModDateUnchangedOption != 0 &&
                             target && followed != target &&
                             inputs.isSame(slots.tiffDateTimeOLD, followed);
    return isFollowing ? *target : laterOf(slots.tiffDateTimeOLD, bound);
}

void setTiffDateTime(DateSlots &slots, const NewDateInputs &inputs) {
    const OptionalDate &oldDate = slots.tiffDateTimeOLD;
    OptionalDate &newDate = slots.tiffDateTimeNEW;
    if (!oldDate) {
        newDate = std::nullopt;
        return;
    }
    if (!slots.exifDateTimeOriginalOLD && !slots.exifDateTimeDigitizedOLD) {
        newDate = inputs.corrected;
        return;
    }
    const Date bound = slots.exifDateTimeDigitizedNEW.value_or(
        slots.exifDateTimeOriginalNEW.value_or(inputs.corrected));
    switch (inputs.options.dateChangeEXIFEXIFModDate) {
    case 0:
        newDate = bound;
        break;
    case 1:
        newDate = keptTiffDateTime(slots, inputs, bound);
        break;
    case 2:
        newDate = inputs.nowRule(bound);
        break;
    case 3:
        newDate = laterOf(shifted(*oldDate, inputs.shift()), bound);
        break;
    default:
        break;
    }
}

} // namespace

void calculateExifPath(DateSlots &slots, const NewDateInputs &inputs, bool keepsDigitized) {
    slots.exifDateTimeOriginalNEW =
        slots.exifDateTimeOriginalOLD ? OptionalDate(inputs.corrected) : std::nullopt;
    setDigitized(slots, inputs, digitizedRule(inputs.options, keepsDigitized));
    setTiffDateTime(slots, inputs);
    calculateExifFileDates(slots, inputs);
}

} // namespace chronomender
