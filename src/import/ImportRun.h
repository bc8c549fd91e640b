// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "Grouping.h"
#include "ImportQuestions.h"
#include "KeyStates.h"
#include "MySingleFolder.h"
#include "SessionFiles.h"
#include "UserDefaults.h"
#include "Zones.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace chronomender {

/// Why an entry of a folder did not become an item. Every entry that a person could miss is listed.
enum class SkipReason : std::uint8_t {
    SymbolicLink, ///< links to files are never read: a save would have to replace them
    NameNotUtf8,
    Unreadable,    ///< cannot be opened or has no attributes
    Empty,         ///< zero bytes
    NotAMedium,    ///< no format answers for it; listed only when named by the user
    SameFileTwice, ///< the same file stands in the session already under another name
    NoDate,
    Cancelled, ///< the import was stopped before this file
};

struct SkippedEntry {
    std::string path;
    SkipReason reason{};
};
/// Text key of a reason, for example "skipReason_symbolicLink".
const char *textKey(SkipReason reason);

/// What is wrong with a sidecar. The numbers are those of the session's errors.
enum class ImportErrorId : std::uint8_t {
    SidecarUnreadable = 1, ///< it is its item's, but nothing of it is known
    SidecarOfSeveral = 16, ///< several items have its name, and it says of none that it is its own
    SidecarOfNone = 17,    ///< no item has its name
};
struct ImportError {
    ImportErrorId id{};
    std::string path;   ///< of the sidecar
    MySinglePicPtr pic; ///< its item, for SidecarUnreadable
};
/// Text key of an error, for example "errorPanelDescriptionText_ID17".
const char *textKey(ImportErrorId id);

/// What one run is to import.
struct ImportBatch {
    std::vector<std::string> names; ///< empty: the whole folder
    KeyStates keyStates;
};

struct ImportProgress {
    std::size_t done = 0, total = 0;
};

/// What one run over one folder gave. `items` are finished and not yet part of the folder.
struct ImportOutcome {
    std::vector<MySinglePicPtr> items; ///< without those that became the second half of a group
    std::vector<MergedGroup> merged;   ///< groups that came to be; visible items may be in them
    std::vector<SkippedEntry> skipped;
    std::vector<ImportError> importErrors;
    std::vector<std::string> subfolders; ///< paths of folders to be imported next, natural order
    bool wasCancelled = false;
    int fixedDates = 0; ///< items with empty date tags; the folder's count has them already
};

/// Everything a run asks of its surroundings; references outlive the run.
struct ImportServices {
    const Zones &zones;
    const UserDefaults &defaults;
    ImportQuestions &questions;
    const Cancellation &cancellation;
    std::function<void(ImportProgress)> progress; ///< called on the import thread; may be empty
    /// The files of the whole session; null when the run stands alone. Used on the import thread.
    SessionFiles *sessionFiles = nullptr;
    /// Runs work on the main thread and waits for it; it may drop the work when the program ends.
    /// Empty: the run calls directly.
    std::function<void(std::function<void()>)> onMainThread = {};
};

/// Imports a batch of a folder on the calling thread, with files read ahead in parallel. Items come
/// in natural order of their names, their dates decided one after the other in that order. At the
/// end, pairs become groups, movies that turned out to be no half of a live photo get their date,
/// and sidecars are given to their items. Writes nothing to disk.
///
/// The folder is changed on the main thread only, except that answers to questions are kept in it.
ImportOutcome updatePicData(MySingleFolder &folder, ImportBatch batch,
                            const ImportServices &services);

} // namespace chronomender
