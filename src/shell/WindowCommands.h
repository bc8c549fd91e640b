// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace chronomender {

class WindowSession;

/// Everything that a person can do by a menu or a key. The table says the rest.
enum class CommandId : std::uint8_t {
    AddFolders,
    AddWithOptions,
    RemoveFolders,
    Save,
    SaveAll,
    SaveWithoutChanges,
    RenameCurrent,
    RenameAll,
    SaveAndRename,
    ErrorLog,
    Preferences,
    Quit,
    Undo,
    Redo,
    SelectAll,
    SelectFolderItems,
    InvertSelection,
    Deselect,
    Find,
    EditFilter,
    ClearFilters,
    MoveWithArrows,
    ItemZones,
    EarlierReading,
    AddMissingTags,
    Keeper,
    Rejected,
    NoMark,
    NextKeeper,
    PreviousKeeper,
    ToShelf,
    FromShelf,
    OpenItem,
    AlignSelected,
    AlignMatchingGaps,
    AlignMinimizingGaps,
    AlignFilename,
    AlignReversing,
    AlignReversingAlt,
    CopyDigitizedOld,
    CopyDigitizedNew,
    CopyTiffOld,
    CopyTiffNew,
    CopyFileCreationOld,
    CopyFileCreationNew,
    CopyFileModificationOld,
    CopyFileModificationNew,
    FolderZones,
    TogetherMode,
    SingleMode,
    ResetShift,
    MovieClock,
    OnlyTheseFolders,
    FolderToShelf,
    Recolor,
    OneStrip,
    MirrorStrip,
    NextChapter,
    PreviousChapter,
    OtherStrip,
    LargerThumbs,
    SmallerThumbs,
    Labels,
    FocusFolders,
    FocusStrip,
    FocusInspector,
    FocusShift,
    FullScreen,
    Shortcuts,
    About,
};

enum class CommandMenu : std::uint8_t { File, Edit, Items, Align, Folders, Timeline, View, Help };

/// What must hold for a command to do anything.
enum CommandNeed : std::uint32_t {
    NeedsNothing = 0,
    NeedsIdle = 1U << 0U,      ///< no save runs
    NeedsItems = 1U << 1U,     ///< the list has items
    NeedsSelection = 1U << 2U, ///< an item is selected
    NeedsSeveral = 1U << 3U,   ///< more than one
    NeedsFolder = 1U << 4U,    ///< a folder is selected
    NeedsUnsaved = 1U << 5U,   ///< something waits for a save
    NeedsUndo = 1U << 6U,
    NeedsRedo = 1U << 7U,
    NeedsFilter = 1U << 8U, ///< a filter is on
    NeedsSecondStrip = 1U << 9U,
    NeedsAmbiguous = 1U << 10U, ///< a selected item's stamp means two instants
    NeedsShift = 1U << 11U,     ///< a selected folder is shifted
    NeedsAllRead = 1U << 12U,   ///< no folder is being read
    NeedsMovies = 1U << 13U,    ///< a selected folder has movies
};
using CommandNeeds = std::uint32_t;

struct WindowCommand {
    CommandId id;
    CommandMenu menu;
    const char *textKey;
    const char *shortcut; ///< as QKeySequence reads it; every command has one
    CommandNeeds needs = NeedsNothing;
    bool beginsGroup = false; ///< a line above it in the menu
    bool isCheckable = false;
};

/// In the order of the menus.
std::span<const WindowCommand> commandTable();
const WindowCommand &commandOf(CommandId id);
/// Text key of a menu's title.
const char *titleKey(CommandMenu menu);

/// The needs that are met now.
CommandNeeds metNeeds(const WindowSession &session);
constexpr bool isAvailable(const WindowCommand &command, CommandNeeds met) {
    return (command.needs & ~met) == 0;
}

/// A checkable command is on.
bool isChecked(CommandId id, const WindowSession &session);

/// Does what needs no window: corrections, selection, saving. False for the commands of a window.
bool runInSession(CommandId id, WindowSession &session);

} // namespace chronomender
