// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// Kinds of work of the external tool; the numbers pick the texts of their errors,
/// "xTError_ID_<number>".
enum class ToolErrorType : int {
    Location = 1,
    SidecarAdded = 2,
    LocationOther = 3,
    SidecarExists = 5,
    CompleteDateTags = 6,
    ExtendShortXmp = 7,
};

/// One batch of argument lines for one file, without the lines that every action ends with.
struct ToolAction {
    ToolErrorType type{};
    std::vector<std::string> lines; ///< for example "-IFD0:ModifyDate=2024:05:06 07:08:09"
};

} // namespace chronomender
