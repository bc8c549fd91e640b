// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateRules.h"

namespace chronomender {
namespace {

void setTiffDateTime(DateSlots &slots, const NewDateInputs &inputs) {
    if (!slots.tiffDateTimeOLD) {
        slots.tiffDateTimeNEW = std::nullopt;
        return;
    }
    switch (inputs.options.dateChangeNoEXIFButTIFFMetaModDate) {
    case 0:
        // The file date has fractions of a second; a stamp has none.
        slots.tiffDateTimeNEW = cleanDate(inputs.corrected);
        break;
    case 1:
        slots.tiffDateTimeNEW = inputs.nowRule(inputs.corrected);
        break;
    case 2:
        slots.tiffDateTimeNEW = laterOf(slots.tiffDateTimeOLD, inputs.corrected);
        break;
    case 3:
        // Without a lower bound, unlike every other same-shift rule: the two dates had no order
        // before either.
        slots.tiffDateTimeNEW = shifted(*slots.tiffDateTimeOLD, inputs.shift());
        break;
    default:
        break;
    }
}

Date keptModificationDate(const DateSlots &slots, const NewDateInputs &inputs) {
    const Date kept = laterOf(inputs.referenceDate, inputs.corrected);
    if (inputs.options.dateChangeNoEXIFButTIFFFinderModDateUnchangedOption == 0)
        return kept;
    if (inputs.isSame(inputs.referenceDate, slots.tiffDateTimeOLD)) {
        const bool didStampMove = slots.tiffDateTimeOLD != slots.tiffDateTimeNEW;
        return didStampMove && slots.tiffDateTimeNEW ? *slots.tiffDateTimeNEW : kept;
    }
    return inputs.isSame(inputs.referenceDate, inputs.original) ? inputs.corrected : kept;
}

} // namespace

void calculateTiffOnlyPath(DateSlots &slots, const NewDateInputs &inputs) {
    slots.fileCreationDateNEW = inputs.corrected;
    setTiffDateTime(slots, inputs);
    switch (inputs.options.dateChangeNoEXIFButTIFFFinderModDate) {
    case 0:
        slots.fileModificationDateNEW = slots.tiffDateTimeNEW;
        break;
    case 1:
        slots.fileModificationDateNEW = inputs.nowRule(inputs.corrected);
        break;
    case 2:
        slots.fileModificationDateNEW = keptModificationDate(slots, inputs);
        break;
    default:
        break;
    }
}

} // namespace chronomender
