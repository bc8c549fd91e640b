// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ExtensionFilter.h"
#include "MySingleFolder.h"

#include <cstdint>
#include <optional>

namespace chronomender {

/// Dates that are given to files one after the other: the first date, and what is added from file
/// to file.
struct DateSequence {
    /// The numbers stand in saved sessions.
    enum class StepperKind : std::uint8_t { Seconds = 0, Minutes = 1, Hours = 2 };
    Date date;
    int stepValue = 0;
    StepperKind stepperKind = StepperKind::Seconds;

    absl::Duration step() const {
        constexpr int sixty = 60;
        const int minutes = stepperKind == StepperKind::Seconds ? 1 : sixty;
        const int hours = stepperKind == StepperKind::Hours ? sixty : 1;
        return absl::Seconds(stepValue) * minutes * hours;
    }
};

/// A zone for all files of a folder, given with a drop.
struct AdaptedZone {
    std::optional<ZoneChoice> source = {};
    /// Where absent, the target follows the source, so that no file changes by it.
    std::optional<ZoneChoice> target = {};
};

/// What a person chose for one import, by keys held down or in a sheet. Subfolders that are found
/// take over the choices of the folder that they lie in. An absent choice means the preference of
/// the same name.
struct KeyStates {
    bool isEXIFIgnored = false; ///< embedded dates are not looked at
    EditMode sfEditMode = EditMode::Together;
    std::optional<bool> isSubFolderAutoImportEnabled = {};
    std::optional<int> subFolderAutoImportMaxDepth = {}; ///< levels of folders inside the folder
    std::optional<bool> createFileGroups = {};
    std::optional<ExtensionFilter> filter = {}; ///< absent: every file
    std::optional<DateSequence> dateSequence = {};
    AdaptedZone adaptedZone = {};
};

} // namespace chronomender
