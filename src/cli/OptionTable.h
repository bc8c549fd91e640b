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
    Filter,
    Rating,
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
    Dragged,
    Between,
    Before,
    After,
    Onto,
    Save,
    SyncXmp,
    Forget,
    Rename,
    Template,
    TemplateText,
    Templates,
    AddOn1,
    AddOn2,
    AddOn3,
    Counter,
    CounterStart,
    TakeBack,
};

/// How many values follow an option: several are all up to the next option.
enum class Values : std::uint8_t { One, Two, Several };

/// One option of a command: which commands have it, and what it belongs to.
struct OptionDescription {
    OptionId id;
    const char *name;
    const char *valueName; ///< "" for a flag
    const char *textKey;
    bool isOfFolder; ///< belongs to the block that is open, not to the run
    unsigned commands;
    Values values = Values::One; ///< of an option that is no flag
};

constexpr unsigned commandBit(Command command) {
    return 1U << static_cast<unsigned>(command);
}
inline constexpr unsigned ofList = commandBit(Command::List);
inline constexpr unsigned ofInfo = commandBit(Command::Info);
inline constexpr unsigned ofSave = commandBit(Command::Save);
inline constexpr unsigned ofAlign = commandBit(Command::Align);
inline constexpr unsigned ofDrag = commandBit(Command::Drag);
inline constexpr unsigned ofRename = commandBit(Command::Rename);
inline constexpr unsigned ofResume = commandBit(Command::Resume);
/// Commands that take corrections, and those that read folders at all.
inline constexpr unsigned ofCorrections = ofList | ofInfo | ofSave | ofAlign | ofDrag;
inline constexpr unsigned ofFolders = ofCorrections | ofRename;
inline constexpr unsigned ofNames = ofSave | ofRename;

inline constexpr std::array<OptionDescription, 48> optionTable{{
    {OptionId::Folder, "--folder", "PATH", "cli_help_folder", true, ofFolders},
    {OptionId::Shift, "--shift", "SPEC", "cli_help_shift", true, ofCorrections},
    {OptionId::Pic, "--pic", "NAME", "cli_help_pic", true, ofCorrections & ~ofDrag},
    {OptionId::SourceZone, "--source-zone", "NAME", "cli_help_sourceZone", true, ofFolders},
    {OptionId::TargetZone, "--target-zone", "NAME|own", "cli_help_targetZone", true, ofFolders},
    {OptionId::Alternative, "--alternative", "NAME", "cli_help_alternative", true, ofCorrections},
    {OptionId::EmptyTags, "--empty-tags", "leave|file|DATE[+STEP]", "cli_help_emptyTags", true,
     ofFolders},
    {OptionId::MovieDate, "--movie-date", "mdta|mvhd", "cli_help_movieDate", true, ofFolders},
    {OptionId::MovieClock, "--movie-clock", "utc|local", "cli_help_movieClock", true, ofFolders},
    {OptionId::FilterExt, "--filter-ext", "LIST", "cli_help_filterExt", true, ofFolders},
    {OptionId::FilterExtNot, "--filter-ext-not", "LIST", "cli_help_filterExtNot", true, ofFolders},
    {OptionId::Subfolders, "--subfolders", "DEPTH", "cli_help_subfolders", true, ofFolders},
    {OptionId::TagMissing, "--tag-missing", "", "cli_help_tagMissing", true, ofCorrections},
    {OptionId::Gaps, "--gaps", "", "cli_help_gaps", false, ofAlign},
    {OptionId::Pack, "--pack", "", "cli_help_pack", false, ofAlign},
    {OptionId::ByName, "--by-name", "", "cli_help_byName", false, ofAlign},
    {OptionId::Reverse, "--reverse", "", "cli_help_reverse", false, ofAlign},
    {OptionId::Mirror, "--mirror", "", "cli_help_mirror", false, ofAlign},
    {OptionId::Copy, "--copy", "SLOT", "cli_help_copy", false, ofAlign},
    {OptionId::Pics, "--pics", "NAME|all", "cli_help_pics", false, ofAlign | ofRename,
     Values::Several},
    {OptionId::Main, "--main", "NAME", "cli_help_main", false, ofAlign},
    {OptionId::Dragged, "--pic", "NAME", "cli_help_dragPic", false, ofDrag},
    {OptionId::Between, "--between", "NAME", "cli_help_between", false, ofDrag, Values::Two},
    {OptionId::Before, "--before", "NAME", "cli_help_before", false, ofDrag},
    {OptionId::After, "--after", "NAME", "cli_help_after", false, ofDrag},
    {OptionId::Onto, "--onto", "NAME", "cli_help_onto", false, ofDrag},
    {OptionId::Save, "--save", "", "cli_help_alignSave", false, ofAlign | ofDrag},
    {OptionId::Filter, "--filter", "PREDICATE", "cli_help_filter", false, ofList},
    {OptionId::Rating, "--rating", "keepers|not-rejected", "cli_help_rating", false, ofList},
    {OptionId::DateSequence, "--date-sequence", "DATE[+STEP]", "cli_help_dateSequence", false,
     ofCorrections},
    {OptionId::DryRun, "--dry-run", "", "cli_help_dryRun", false, ofNames},
    {OptionId::Accept, "--accept", "KEY|all", "cli_help_accept", false, ofSave | ofAlign | ofDrag},
    {OptionId::All, "--all", "", "cli_help_all", false, ofSave},
    {OptionId::SyncXmp, "--sync-xmp", "", "cli_help_syncXmp", false, ofSave | ofAlign | ofDrag},
    {OptionId::Rename, "--rename", "", "cli_help_renameAtSave", false, ofSave},
    {OptionId::Template, "--template", "N", "cli_help_template", false, ofNames},
    {OptionId::TemplateText, "--template-text", "TEXT", "cli_help_templateText", false, ofNames},
    {OptionId::Templates, "--templates", "", "cli_help_templates", false, ofRename},
    {OptionId::AddOn1, "--addon1", "TEXT", "cli_help_addOn", false, ofNames},
    {OptionId::AddOn2, "--addon2", "TEXT", "cli_help_addOn2", false, ofNames},
    {OptionId::AddOn3, "--addon3", "TEXT", "cli_help_addOn3", false, ofNames},
    {OptionId::Counter, "--counter", "all|folder", "cli_help_counter", false, ofNames},
    {OptionId::CounterStart, "--counter-start", "N", "cli_help_counterStart", false, ofNames},
    {OptionId::TakeBack, "--take-back", "", "cli_help_takeBack", false, ofResume},
    {OptionId::Forget, "--forget", "", "cli_help_forget", false, ofResume},
    {OptionId::Json, "--json", "", "cli_help_json", false, ofFolders | ofResume},
    {OptionId::Set, "--set", "KEY=VALUE", "cli_help_set", false, ofFolders},
    {OptionId::SystemZone, "--system-zone", "NAME", "cli_help_systemZone", false, ofFolders},
}};

} // namespace chronomender
