// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// Problems found before anything is written. A person must accept each key.
enum class PreSaveProblem : std::uint8_t {
    error_01_ambiguousStamp,
    error_02_pre1904,
    error_03_pre1970,
    error_04_livePhotoDriftingApart,
    error_05_notFound,
    error_06_modifiedAfterImport,
    error_07_notFound,
    error_08_modifiedAfterImport,
    error_10_disconnected,
    error_11_oldVersion_file,
    error_11_oldVersion_group,
    error_12_zoneStampRewritten,
    error_13_unreadableStamp,
};
std::string_view key(PreSaveProblem problem);
/// None for a text that is no key.
std::optional<PreSaveProblem> problemWithKey(std::string_view key);

/// One problem of one item with its details, for example "+02:00 → +00:00".
struct PreSaveFinding {
    MySinglePicPtr pic;
    PreSaveProblem problem{};
    std::string detail;
};

/// Run-time error ids. Checking without saving adds 8 to the ids 2, 3 and 4.
enum class SaveErrorId : int {
    SettingFileDatesFailed = 0,
    CannotBeOpened = 2,
    ChangedSinceImport = 3,
    NotReachable = 4,
    NotRenamed = 5,
    SyncCannotBeOpened = 6, ///< the XMP sync could not open the file
    SidecarCannotBeOpened = 7,
    NumberAdded = 8,          ///< a rename's name was taken
    CompanionNotWritable = 9, ///< the item is not renamed for it
    CannotBeOpenedChecking = 10,
    ChangedSinceImportChecking = 11,
    NotReachableChecking = 12,
    CompanionNotRenamed = 14, ///< a companion is missing or could not be moved with its item
    SidecarMissing = 15,
    NameBeginsWithDot = 18,
    NotWrittenUnreadableBack =
        21,                 ///< a stamp built for it does not read back as the wanted instant
    WriteFailed = 23,       ///< the system refused a write in the middle of an item
    ToolFailed = 25,        ///< the external tool did not write the file
    ToolMissing = 26,       ///< there is no external tool, and the item needs it
    InUse = 27,             ///< another program is writing the file
    IntentNotKept = 28,     ///< the record that a recovery needs could not be written
    ReplacedMeanwhile = 29, ///< between proof and write another file took its place
};

struct SaveError {
    SaveErrorId id{};
    std::string path;
    std::string systemText; ///< the system's own words where it refused something; else ""
};

/// The text of a run's errors: a header, then for each id its description and its paths, in order
/// of id, and behind them the external tool's own summary; "" without any.
std::string actionErrorText(const std::vector<SaveError> &errors,
                            const std::string &toolErrors = {});

} // namespace chronomender
