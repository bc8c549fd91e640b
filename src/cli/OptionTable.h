// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CommandLine.h"

#include <array>
#include <cstdint>

namespace chronomender {

enum class OptionId : std::uint8_t {
    Path, ///< an argument that is no option
    Folder,
    Shift,
    Pic,
    Alternative,
    SourceZone,
    TargetZone,
    EmptyTags,
    MovieDate,
    MovieClock,
    FilterExt,
    FilterExtNot,
    Subfolders,
    TagMissing,
    DateSequence,
    Set,
    SystemZone,
    All,
    DryRun,
    Accept,
    Json,
    Gaps,
    Pack,
    ByName,
    Reverse,
    Mirror,
    Copy,
    Pics,
    Main,
    Save,
    SyncXmp,
    Forget,
};

/// One option of a command: which commands have it, and what it belongs to.
struct OptionDescription {
    OptionId id;
    const char *name;
    const char *valueName; ///< "" for a flag
    const char *textKey;
    bool isOfFolder; ///< belongs to the block that is open, not to the run
    unsigned commands;
    bool takesSeveral = false; ///< all values up to the next option
};

constexpr unsigned commandBit(Command command) {
    return 1U << static_cast<unsigned>(command);
}
inline constexpr unsigned ofInfo = commandBit(Command::Info);
inline constexpr unsigned ofSave = commandBit(Command::Save);
inline constexpr unsigned ofAlign = commandBit(Command::Align);
inline constexpr unsigned ofResume = commandBit(Command::Resume);
inline constexpr unsigned ofFolders = commandBit(Command::List) | ofInfo | ofSave | ofAlign;

inline constexpr std::array<OptionDescription, 31> optionTable{{
    {OptionId::Folder, "--folder", "PATH", "cli_help_folder", true, ofFolders},
    {OptionId::Shift, "--shift", "SPEC", "cli_help_shift", true, ofFolders},
    {OptionId::Pic, "--pic", "NAME", "cli_help_pic", true, ofFolders},
    {OptionId::SourceZone, "--source-zone", "NAME", "cli_help_sourceZone", true, ofFolders},
    {OptionId::TargetZone, "--target-zone", "NAME|own", "cli_help_targetZone", true, ofFolders},
    {OptionId::Alternative, "--alternative", "NAME", "cli_help_alternative", true, ofFolders},
    {OptionId::EmptyTags, "--empty-tags", "leave|file|DATE[+STEP]", "cli_help_emptyTags", true,
     ofFolders},
    {OptionId::MovieDate, "--movie-date", "mdta|mvhd", "cli_help_movieDate", true, ofFolders},
    {OptionId::MovieClock, "--movie-clock", "utc|local", "cli_help_movieClock", true, ofFolders},
    {OptionId::FilterExt, "--filter-ext", "LIST", "cli_help_filterExt", true, ofFolders},
    {OptionId::FilterExtNot, "--filter-ext-not", "LIST", "cli_help_filterExtNot", true, ofFolders},
    {OptionId::Subfolders, "--subfolders", "DEPTH", "cli_help_subfolders", true, ofFolders},
    {OptionId::TagMissing, "--tag-missing", "", "cli_help_tagMissing", true, ofFolders},
    {OptionId::Gaps, "--gaps", "", "cli_help_gaps", false, ofAlign},
    {OptionId::Pack, "--pack", "", "cli_help_pack", false, ofAlign},
    {OptionId::ByName, "--by-name", "", "cli_help_byName", false, ofAlign},
    {OptionId::Reverse, "--reverse", "", "cli_help_reverse", false, ofAlign},
    {OptionId::Mirror, "--mirror", "", "cli_help_mirror", false, ofAlign},
    {OptionId::Copy, "--copy", "SLOT", "cli_help_copy", false, ofAlign},
    {OptionId::Pics, "--pics", "NAME|all", "cli_help_pics", false, ofAlign, true},
    {OptionId::Main, "--main", "NAME", "cli_help_main", false, ofAlign},
    {OptionId::Save, "--save", "", "cli_help_alignSave", false, ofAlign},
    {OptionId::DateSequence, "--date-sequence", "DATE[+STEP]", "cli_help_dateSequence", false,
     ofFolders},
    {OptionId::DryRun, "--dry-run", "", "cli_help_dryRun", false, ofSave},
    {OptionId::Accept, "--accept", "KEY|all", "cli_help_accept", false, ofSave | ofAlign},
    {OptionId::All, "--all", "", "cli_help_all", false, ofSave},
    {OptionId::SyncXmp, "--sync-xmp", "", "cli_help_syncXmp", false, ofSave | ofAlign},
    {OptionId::Forget, "--forget", "", "cli_help_forget", false, ofResume},
    {OptionId::Json, "--json", "", "cli_help_json", false, ofFolders | ofResume},
    {OptionId::Set, "--set", "KEY=VALUE", "cli_help_set", false, ofFolders},
    {OptionId::SystemZone, "--system-zone", "NAME", "cli_help_systemZone", false, ofFolders},
}};

} // namespace chronomender
