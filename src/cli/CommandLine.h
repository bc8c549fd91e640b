// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Alignment.h"
#include "DragDates.h"
#include "PredicateRewriting.h"
#include "RenameTemplate.h"
#include "SaveErrors.h"
#include "ShiftSpec.h"

#include <absl/time/time.h>

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace chronomender {

/// Which of a movie's dates is its date: the metadata's, or the header's.
enum class MovieDate : std::uint8_t { Mdta, Mvhd };
/// What a movie's header times tell: UTC as the format says, or the camera's own clock.
enum class MovieClock : std::uint8_t { Utc, Local };

/// What is to be corrected of a folder or of one item.
struct Correction {
    std::optional<absl::Duration> shift;
    std::optional<std::string> sourceZone, targetZone; ///< names, not yet looked up

    bool isEmpty() const { return !shift && !sourceZone && !targetZone; }
};

/// `--pic NAME` with the options behind it.
struct PicBlock : Correction {
    std::string name;
};

/// `--folder PATH` with the options behind it, or a plain PATH, which has none.
struct FolderBlock : Correction {
    std::string path;
    bool isPlain = false;
    std::vector<PicBlock> pics;
    std::vector<std::string> alternatives; ///< files to be read as the earlier of two instants
    std::optional<EmptyTagsSpec> emptyTags;
    std::optional<MovieDate> movieDate;
    std::optional<MovieClock> movieClock;
    std::optional<std::string> filterExt, filterExtNot; ///< as typed; never both
    std::optional<int> subfolderDepth;                  ///< 0: no folders inside the folder
    std::optional<bool> tagsMissing; ///< date tags that a file lacks are to be added
};

/// What `mend align` is to do.
struct AlignWish {
    std::optional<AlignCommand> command;
    std::vector<std::string> pics;      ///< names, FOLDER/NAME or paths; "all"
    std::optional<std::string> mainPic; ///< likewise; none: the first of the selection
};

/// What `mend drag` is to do. Names are names, FOLDER/NAME or paths.
struct DragWish {
    std::vector<std::string> pics;
    DragType dragType = DragType::None;
    std::vector<std::string> targets; ///< two with Between, else one
};

/// What of the list `mend list` is to show.
struct FilterWish {
    std::optional<Predicate> predicate;
    std::optional<RatingFilter> rating;

    bool isAnything() const { return predicate || rating; }
};

/// How files are to be named; all that a preference says as well stands with the settings.
struct RenameWish {
    bool isWanted = false; ///< by `mend rename`, or by a save that renames
    bool listsTemplates = false;
    std::optional<RenameTemplate> renameTemplate; ///< typed; none: the selected one
    std::vector<std::string> pics; ///< names, FOLDER/NAME or paths; "all"; none: all, too
};

enum class Command : std::uint8_t { List, Info, Save, Align, Drag, Rename, Resume };

/// What the user asked for, checked as far as that goes without looking at the disk.
struct CommandLine {
    Command command = Command::List;
    std::vector<FolderBlock> blocks; ///< in the order given
    std::vector<std::pair<std::string, std::string>> settings;
    std::optional<std::string> systemZone;
    /// Dates that all items of all folders get, one after the other in the order of their names.
    std::optional<EmptyTagsSpec> dateSequence;
    AlignWish align;
    DragWish drag;
    FilterWish filter;
    RenameWish rename;
    bool isJson = false, isDryRun = false, savesAll = false;
    bool acceptsAll = false;
    bool isForgetting = false; ///< (resume) files that cannot be put right are given up
    bool isTakingBack = false; ///< (resume) what was begun is not finished
    std::set<PreSaveProblem> accepted;
    std::string typed; ///< the whole line as it could be typed, without what a terminal obeys
};

/// The run ends here: help or version was asked for (code 0), or the arguments are wrong (code 2).
struct ParseEnd {
    int exitCode = 0;
    std::string output, errors;
};

using ParsedCommandLine = std::variant<CommandLine, ParseEnd>;

/// Texts must be loaded. `arguments` are those behind the program's name.
ParsedCommandLine parseCommandLine(std::vector<std::string> arguments);

/// The value of `--language`, which is needed before anything can be said; "" without one.
std::string languageArgument(const std::vector<std::string> &arguments);

} // namespace chronomender
