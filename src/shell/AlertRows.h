// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AlternativeReading.h"
#include "MySingleFolder.h"
#include "RowTexts.h"

#include <cstdint>
#include <string>
#include <vector>

namespace chronomender {

class AppController;

/// What a person can do about an alert.
enum class AlertAction : std::uint8_t {
    ReadAsEarlier,
    ReadAsLater,
    SetZones,
    AddMissingTags,
    LeaveTagsOut, ///< takes the wish for them back
    ShowErrors,
};
/// Text key of an action's button.
const char *textKey(AlertAction action);

/// One thing that deserves a second look, and its way out.
struct AlertRow {
    std::string words;
    RowTone tone = RowTone::Warning;
    std::vector<AlertAction> actions;
    AlternativeTarget target = AlternativeTarget::Master; ///< of the two readings

    bool operator==(const AlertRow &) const = default;
};

/// All of an item and of the other half of its group, most serious first. Main thread.
std::vector<AlertRow> alertRows(const MySinglePic &pic, const FilterContext &context);
/// Of several items: how many have what, and what can be done for all of them at once. One pass.
std::vector<AlertRow> alertRows(const std::vector<MySinglePicPtr> &pics,
                                const FilterContext &context);

/// Carries out an action that changes items; false for those that show a window. As one undoable
/// step.
bool perform(AlertAction action, AlternativeTarget target, const std::vector<MySinglePicPtr> &pics,
             AppController &controller);

} // namespace chronomender
