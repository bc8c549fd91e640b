// SPDX-License-Identifier: GPL-3.0-or-later
#include "WindowCommands.h"

#include "WindowSession.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

using enum CommandId;
using enum CommandMenu;

constexpr CommandNeeds change = NeedsIdle | NeedsSelection;
constexpr CommandNeeds several = NeedsIdle | NeedsSelection | NeedsSeveral;
constexpr CommandNeeds folder = NeedsIdle | NeedsFolder;

struct Lines { // how an entry stands in its menu
    static constexpr bool below = true, none = false;
};

constexpr WindowCommand commands[] = {
    {AddFolders, File, "command_addFolders", "Ctrl+O", NeedsIdle},
    {AddWithOptions, File, "command_addWithOptions", "Ctrl+Shift+O", NeedsIdle},
    {RemoveFolders, File, "command_removeFolders", "Ctrl+Backspace", folder},
    {Save, File, "command_save", "Ctrl+S", folder | NeedsUnsaved | NeedsAllRead, Lines::below},
    {SaveAll, File, "command_saveAll", "Ctrl+Shift+S", NeedsIdle | NeedsUnsaved | NeedsAllRead},
    {SaveWithoutChanges, File, "command_saveWithoutChanges", "Ctrl+Alt+S", folder | NeedsAllRead},
    {RenameCurrent, File, "command_renameCurrent", "Ctrl+R", folder | NeedsItems | NeedsAllRead,
     Lines::below},
    {RenameAll, File, "command_renameAll", "Ctrl+Shift+R", NeedsIdle | NeedsItems | NeedsAllRead},
    {SaveAndRename, File, "command_saveAndRename", "Ctrl+Alt+R",
     NeedsIdle | NeedsItems | NeedsAllRead},
    {ErrorLog, File, "command_errorLog", "Ctrl+L", NeedsNothing, Lines::below},
    {Preferences, File, "command_preferences", "Ctrl+,"},
    {Quit, File, "command_quit", "Ctrl+Q", NeedsNothing, Lines::below},

    {Undo, Edit, "menu_undo", "Ctrl+Z", NeedsIdle | NeedsUndo},
    {Redo, Edit, "menu_redo", "Ctrl+Shift+Z", NeedsIdle | NeedsRedo},
    {SelectAll, Edit, "command_selectAll", "Ctrl+A", NeedsItems, Lines::below},
    {SelectFolderItems, Edit, "command_selectFolderItems", "Ctrl+Alt+A", NeedsFolder | NeedsItems},
    {InvertSelection, Edit, "command_invertSelection", "Ctrl+I", NeedsItems},
    {Deselect, Edit, "command_deselect", "Ctrl+D", NeedsSelection},
    {Find, Edit, "command_find", "Ctrl+F", NeedsNothing, Lines::below},
    {EditFilter, Edit, "command_filter", "Ctrl+Alt+F"},
    {ClearFilters, Edit, "command_clearFilters", "Ctrl+Shift+F", NeedsFilter},

    {MoveWithArrows, Items, "command_moveWithArrows", "Ctrl+M", change},
    {ItemZones, Items, "command_itemZones", "Ctrl+Shift+T", change},
    {EarlierReading, Items, "command_earlierReading", "Ctrl+E", change | NeedsAmbiguous,
     Lines::none, true},
    {AddMissingTags, Items, "command_addMissingTags", "Ctrl+G", change, Lines::none, true},
    {Keeper, Items, "command_keeper", "K", NeedsSelection, Lines::below, true},
    {Rejected, Items, "command_rejected", "X", NeedsSelection, Lines::none, true},
    {NoMark, Items, "command_noMark", "U", NeedsSelection},
    {NextKeeper, Items, "command_nextKeeper", "Alt+K", NeedsItems},
    {PreviousKeeper, Items, "command_previousKeeper", "Alt+Shift+K", NeedsItems},
    {ToShelf, Items, "command_toShelf", "Ctrl+H", NeedsSelection, Lines::below},
    {FromShelf, Items, "command_fromShelf", "Ctrl+Shift+H", NeedsSelection | NeedsSecondStrip},
    {OpenItem, Items, "command_openItem", "Ctrl+Return", NeedsSelection, Lines::below},

    {AlignSelected, Align, "command_alignSelected", "Ctrl+K", change},
    {AlignMatchingGaps, Align, "alignByMatchingGaps", "Ctrl+1", several, Lines::below},
    {AlignMinimizingGaps, Align, "alignByMinimizingGaps", "Ctrl+2", several},
    {AlignFilename, Align, "alignByFileName", "Ctrl+3", several},
    {AlignReversing, Align, "alignByReversing", "Ctrl+4", several},
    {AlignReversingAlt, Align, "alignByReversingAlt", "Ctrl+5", several},
    {CopyDigitizedOld, Align, "command_copyDigitizedOld", "Ctrl+Alt+1", change, Lines::below},
    {CopyDigitizedNew, Align, "command_copyDigitizedNew", "Ctrl+Alt+2", change},
    {CopyTiffOld, Align, "command_copyTiffOld", "Ctrl+Alt+3", change},
    {CopyTiffNew, Align, "command_copyTiffNew", "Ctrl+Alt+4", change},
    {CopyFileCreationOld, Align, "command_copyFileCreationOld", "Ctrl+Alt+5", change},
    {CopyFileCreationNew, Align, "command_copyFileCreationNew", "Ctrl+Alt+6", change},
    {CopyFileModificationOld, Align, "command_copyFileModificationOld", "Ctrl+Alt+7", change},
    {CopyFileModificationNew, Align, "command_copyFileModificationNew", "Ctrl+Alt+8", change},

    {FolderZones, Folders, "command_folderZones", "Ctrl+T", folder},
    {MovieClock, Folders, "command_movieClock", "Ctrl+Alt+C", folder | NeedsMovies, Lines::none,
     true},
    {ResetShift, Folders, "command_resetShift", "Ctrl+0", folder | NeedsShift},
    {TogetherMode, Folders, "command_togetherMode", "Ctrl+Alt+T", folder, Lines::below, true},
    {SingleMode, Folders, "command_singleMode", "Ctrl+Alt+E", folder, Lines::none, true},
    {OnlyTheseFolders, Folders, "command_onlyTheseFolders", "Ctrl+Alt+O", NeedsFolder, Lines::below,
     true},
    {FolderToShelf, Folders, "command_folderToShelf", "Ctrl+Alt+H", NeedsFolder | NeedsItems},
    {Recolor, Folders, "command_recolor", "Ctrl+Alt+L"},

    {OneStrip, Timeline, "command_oneStrip", "Alt+1", NeedsSecondStrip},
    {MirrorStrip, Timeline, "command_mirrorStrip", "Alt+2", NeedsItems},
    {OtherStrip, Timeline, "command_otherStrip", "F8", NeedsSecondStrip},
    {NextChapter, Timeline, "command_nextChapter", "Ctrl+PgDown", NeedsItems, Lines::below},
    {PreviousChapter, Timeline, "command_previousChapter", "Ctrl+PgUp", NeedsItems},
    {LargerThumbs, Timeline, "command_largerThumbs", "Ctrl++", NeedsNothing, Lines::below},
    {SmallerThumbs, Timeline, "command_smallerThumbs", "Ctrl+-"},
    {Labels, Timeline, "command_labels", "Ctrl+B", NeedsNothing, Lines::none, true},

    {FocusFolders, View, "command_focusFolders", "F2"},
    {FocusStrip, View, "command_focusStrip", "F3"},
    {FocusInspector, View, "command_focusInspector", "F4"},
    {FocusShift, View, "command_focusShift", "F5"},
    {FullScreen, View, "command_fullScreen", "F11", NeedsNothing, Lines::below, true},

    {Shortcuts, Help, "command_shortcuts", "F1"},
    {About, Help, "command_about", "Ctrl+F1"},
};
static_assert(std::size(commands) == static_cast<std::size_t>(About) + 1, "each stands once");

struct MenuTitle {
    CommandMenu menu;
    const char *key;
};
constexpr std::array<MenuTitle, 8> menuTitles{{
    {File, "menu_file"},
    {Edit, "menu_edit"},
    {Items, "menu_items"},
    {Align, "menu_align"},
    {Folders, "menu_folders"},
    {Timeline, "menu_timeline"},
    {View, "menu_view"},
    {Help, "menu_help"},
}};

bool anyFolder(const WindowSession &session, bool (*holds)(const MySingleFolder &)) {
    return std::ranges::any_of(session.selectedFolders(),
                               [holds](const auto &each) { return holds(*each); });
}

bool isAmbiguous(const MySinglePicPtr &pic) {
    const MySinglePicPtr &dependent = pic->group.bundleDependentImage;
    return pic->zones.dstAmbiguityAtImportState != 0 ||
           (dependent && dependent->zones.dstAmbiguityAtImportState != 0);
}

bool hasMovies(const MySingleFolder &each) {
    return (static_cast<int>(each.mediaTypesState) & static_cast<int>(MediaTypesState::Movies)) !=
           0;
}

} // namespace

std::span<const WindowCommand> commandTable() {
    return commands;
}

const WindowCommand &commandOf(CommandId id) {
    return *std::ranges::find(commands, id, &WindowCommand::id);
}

const char *titleKey(CommandMenu menu) {
    return std::ranges::find(menuTitles, menu, &MenuTitle::menu)->key;
}

CommandNeeds metNeeds(const WindowSession &session) {
    const AppController &controller = session.controller();
    const MyTimelinesController &strips = controller.timelines();
    const std::vector<MySinglePicPtr> selected = session.selectedPics();
    const auto met = [](bool holds, CommandNeed need) -> CommandNeeds {
        return holds ? need : NeedsNothing;
    };
    const bool isFiltered = controller.filters().isAnyFilterActive() || controller.foldersFilter();
    return met(session.saveFlow().isIdle(), NeedsIdle) |
           met(!session.jobs().isRunning(JobKind::Import), NeedsAllRead) |
           met(!controller.source_full().empty(), NeedsItems) |
           met(!selected.empty(), NeedsSelection) | met(selected.size() > 1, NeedsSeveral) |
           met(!session.selectedFolders().empty(), NeedsFolder) |
           met(session.hasUnsavedChanges(), NeedsUnsaved) |
           met(controller.undoManager().canUndo(), NeedsUndo) |
           met(controller.undoManager().canRedo(), NeedsRedo) | met(isFiltered, NeedsFilter) |
           met(strips.secondTimeline() != nullptr, NeedsSecondStrip) |
           met(std::ranges::any_of(selected, isAmbiguous), NeedsAmbiguous) |
           met(anyFolder(session,
                         [](const MySingleFolder &each) {
                             return each.isTogetherDateUIModified() || each.isDateModified();
                         }),
               NeedsShift) |
           met(anyFolder(session, hasMovies), NeedsMovies);
}

} // namespace chronomender
