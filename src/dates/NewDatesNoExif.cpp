// SPDX-License-Identifier: GPL-3.0-or-later
#include "NewDateRules.h"

namespace chronomender {
namespace {

Date keptModificationDate(const DateSlots &slots, const NewDateInputs &inputs) {
    const bool followsUnchanged =
        inputs.options.dateChangeNoEXIFFinderModDateUnchangedOption != 0 &&
        inputs.isSame(inputs.referenceDate, inputs.original);
    return followsUnchanged ? inputs.corrected
                            : laterOf(inputs.referenceDate, *slots.fileCreationDateNEW);
}

Date shiftedModificationDate(const DateSlots &slots, const NewDateInputs &inputs) {
    const Date created = *slots.fileCreationDateNEW;
    return inputs.referenceDate ? laterOf(shifted(*inputs.referenceDate, inputs.shift()), created)
                                : created;
}

} // namespace

void calculateNoExifPath(DateSlots &slots, const NewDateInputs &inputs) {
    slots.fileCreationDateNEW = inputs.corrected;
    switch (inputs.options.dateChangeNoEXIFFinderModDate) {
    case 0:
        slots.fileModificationDateNEW = inputs.corrected;
        break;
    case 1:
        slots.fileModificationDateNEW = inputs.nowRule(*slots.fileCreationDateNEW);
        break;
    case 2:
        slots.fileModificationDateNEW = keptModificationDate(slots, inputs);
        break;
    case 3:
        slots.fileModificationDateNEW = shiftedModificationDate(slots, inputs);
        break;
    default:
        break;
    }
}

} // namespace chronomender
