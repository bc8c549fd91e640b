// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateDrag.h"

namespace chronomender {

struct DateDrag::State {};

DateDrag::DateDrag() = default;
DateDrag::~DateDrag() = default;

std::unique_ptr<DateDrag> DateDrag::begin(const MySinglePicPtr &, MyTimelinesController &,
                                          TimelineStrip &, absl::Duration) {
    return nullptr;
}

void DateDrag::moveTo(DragTarget) {}
Date DateDrag::tempTimeDuringLiveMod(const MySinglePic &pic) const {
    return pic.spDateTimeModified_sort();
}
absl::Duration DateDrag::tempMoveDateByDuringLiveMod() const {
    return absl::ZeroDuration();
}
DateChangeOutcome DateDrag::commit(UndoManager &) {
    return DateChangeOutcome::NothingChanged;
}
void DateDrag::cancel() {}

} // namespace chronomender
