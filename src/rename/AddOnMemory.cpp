// SPDX-License-Identifier: GPL-3.0-or-later
#include "AddOnMemory.h"

namespace chronomender {

void rememberAddOns(const RenameScope &, const RenameChoices &) {}

AddOnTexts addOnsOfPic(const MySinglePic &, const RenameChoices &choices) {
    return choices.additionalTexts;
}

} // namespace chronomender
