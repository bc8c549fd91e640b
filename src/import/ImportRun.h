// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Cancellation.h"
#include "ImportQuestions.h"
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
    Unreadable,      ///< cannot be opened or has no attributes
    Empty,           ///< zero bytes
    NotAMedium,      ///< no format answers for it; listed only when named by the user
    NotYetSupported, ///< a medium whose format this version does not read
    SameFileTwice,   ///< the same file stands in the session already under another name
    NoDate,
    Cancelled, ///< the import was stopped before this file
};

struct SkippedEntry {
    std::string path;
    SkipReason reason{};
};
/// Text key of a reason, for example "skipReason_symbolicLink".
const char *textKey(SkipReason reason);

struct ImportProgress {
    std::size_t done = 0, total = 0;
};

/// What one run over one folder gave. `items` are finished and not yet part of the folder.
struct ImportOutcome {
    std::vector<MySinglePicPtr> items;
    std::vector<SkippedEntry> skipped;
    bool wasCancelled = false;
    int fixedDates = 0; ///< items with empty date tags, to be added to the folder's count
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
};

/// Imports a batch of names of a folder (an empty list: the whole folder) on the calling thread,
/// with files read ahead in parallel. Items come in natural order of their names, their dates
/// decided one after the other in that order. Writes nothing to disk and nothing to the folder,
/// except that it keeps the answer to the empty-tag question in it.
ImportOutcome updatePicData(MySingleFolder &folder, std::vector<std::string> names,
                            const ImportServices &services);

} // namespace chronomender
