// SPDX-License-Identifier: GPL-3.0-or-later
#include "Alignment.h"

namespace chronomender {

Alignment alignment(AlignCommand, const AlignSelection &, const NewDateContext &) {
    return {};
}

bool areThereIdenticalTimesIn(const std::vector<MySinglePicPtr> &) {
    return false;
}

AlignOutcome realignSelection(AlignCommand, const AlignSelection &, const NewDateContext &,
                              UndoManager &) {
    return AlignOutcome::NothingChanged;
}

bool isCopyOffered(AlignCommand, const std::vector<MySinglePicPtr> &, const NewDateContext &) {
    return false;
}

} // namespace chronomender
