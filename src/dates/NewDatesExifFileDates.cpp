// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateRules.h"

namespace chronomender {
namespace {

/// A date that the file's modification date may have been equal to, before and after.
struct FollowedDate {
    OptionalDate oldDate, newDate;
};

FollowedDate lastStamp(const DateSlots &slots, const NewDateInputs &inputs) {
    if (slots.tiffDateTimeOLD)
        return {slots.tiffDateTimeOLD, slots.tiffDateTimeNEW};
    if (slots.exifDateTimeDigitizedOLD)
        return {slots.exifDateTimeDigitizedOLD, slots.exifDateTimeDigitizedNEW};
    return {inputs.original, inputs.corrected};
}

/// The modification date stays, but never lies before the creation date. With `followsUnchanged`,
/// one that was equal to the creation date or to the last stamp goes along with it; when it was
/// equal to both, with the later.
Date keptModificationDate(const DateSlots &slots, const NewDateInputs &inputs,
                          bool followsUnchanged) {
    const Date kept = laterOf(inputs.referenceDate, *slots.fileCreationDateNEW);
    const FollowedDate creation{slots.fileCreationDateOLD, slots.fileCreationDateNEW};
    const FollowedDate stamp = lastStamp(slots, inputs);
    const bool wasCreation = inputs.isSame(inputs.referenceDate, creation.oldDate);
    const bool wasStamp = inputs.isSame(inputs.referenceDate, stamp.oldDate);
    if (!followsUnchanged || (!wasCreation && !wasStamp))
        return kept;
    const bool followsCreation =
        wasCreation && (!wasStamp || !stamp.newDate || *creation.newDate > *stamp.newDate);
    const FollowedDate &followed = followsCreation ? creation : stamp;
    // A date that is only nearly equal to one that did not move stays as it is.
    const bool didFollowedMove = followed.oldDate != followed.newDate;
    const bool isExactlyEqual = inputs.referenceDate == followed.oldDate;
    return followed.newDate && (isExactlyEqual || didFollowedMove) ? *followed.newDate : kept;
}

Date creationDate(const DateSlots &slots, const NewDateInputs &inputs) {
    const Date ofDigitized = slots.exifDateTimeDigitizedNEW.value_or(inputs.corrected);
    switch (inputs.options.dateChangeEXIFFinderCreaDate2) {
    case 0:
        return inputs.corrected;
    case 1:
        return ofDigitized;
    default:
        return slots.tiffDateTimeNEW.value_or(ofDigitized);
    }
}

/// The modification date is to follow a TIFF date that the file does not have.
Date modificationDateWithoutTiff(const DateSlots &slots, const NewDateInputs &inputs) {
    const DateChangeOptions &options = inputs.options;
    switch (options.dateChangeEXIFFinderModDateEXIFModDateOptions) {
    case 0:
        return slots.exifDateTimeDigitizedNEW.value_or(
            slots.exifDateTimeOriginalNEW.value_or(inputs.corrected));
    case 1:
        return keptModificationDate(
            slots, inputs, options.dateChangeEXIFFinderModDateEXIFModDateUnchangedOption != 0);
    default:
        return inputs.nowRule(inputs.corrected);
    }
}

void setModificationDate(DateSlots &slots, const NewDateInputs &inputs) {
    OptionalDate &newDate = slots.fileModificationDateNEW;
    switch (inputs.options.dateChangeEXIFFinderModDate) {
    case 0:
        newDate = slots.tiffDateTimeNEW ? *slots.tiffDateTimeNEW
                                        : modificationDateWithoutTiff(slots, inputs);
        break;
    case 1:
        newDate = keptModificationDate(
            slots, inputs, inputs.options.dateChangeEXIFFinderModDateUnchangedOption != 0);
        break;
    case 2:
        newDate = inputs.nowRule(inputs.corrected);
        break;
    default:
        break;
    }
}

} // namespace

void calculateExifFileDates(DateSlots &slots, const NewDateInputs &inputs) {
    if (inputs.options.dateChangeEXIFChangeFinderWhenChangingEXIF == 0) {
        slots.fileCreationDateNEW = slots.fileCreationDateOLD;
        slots.fileModificationDateNEW = inputs.referenceDate;
        return;
    }
    slots.fileCreationDateNEW = creationDate(slots, inputs);
    setModificationDate(slots, inputs);
}

} // namespace chronomender
