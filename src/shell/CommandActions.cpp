// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlignRows.h"
#include "DateChapters.h"
#include "DateModifications.h"
#include "SelectionModes.h"
#include "Texts.h"
#include "WindowCommands.h"
#include "WindowSession.h"

#include <algorithm>
#include <array>
#include <string>

// What the commands do that need no widget.

namespace chronomender {
namespace {

using enum CommandId;
using Strips = MyTimelinesController;

void align(WindowSession &session, AlignCommand command) {
    session.edit([&](AppController &controller) {
        switch (controller.align(command, {session.selectedPics(), session.mainPic()})) {
        case AlignOutcome::RefusedOutOfBounds:
            return session.tellOutcome(DateChangeOutcome::RefusedOutOfBounds);
        case AlignOutcome::NothingChanged:
            return session.tell(text("status_nothingToAlign"));
        case AlignOutcome::Done:
            break;
        }
    });
}

void select(WindowSession &session, void (Strips::*change)(TimelineStrip &)) {
    session.select([change](Strips &strips) { (strips.*change)(strips.focusedTimeline()); });
}

/// A mark that the main item has already is taken back.
void rate(WindowSession &session, Rating rating) {
    const MySinglePicPtr main = session.mainPic();
    const Rating wanted = main && ratingOf(*main) == rating ? Rating::None : rating;
    session.controller().marking().setRating(session.selectedPics(), wanted);
    Q_EMIT session.listChanged();
    Q_EMIT session.undoChanged();
}

void walkToKeeper(WindowSession &session, WalkDirection direction) {
    session.select([direction](Strips &strips) {
        TimelineStrip &strip = strips.focusedTimeline();
        if (const auto pic = selectNextMarked(strip, Rating::Keeper, direction))
            strips.simpleSelectThumb(pic, strip);
    });
}

using Chapters = std::optional<ChapterScroll> (*)(const TimelineStrip &, DateScale, absl::TimeZone);

void scrollByChapter(WindowSession &session, Chapters walk) {
    TimelineStrip &strip = session.timelines().focusedTimeline();
    if (const auto scroll = walk(strip, DateScale::Day, session.zones().systemZone().rules)) {
        strip.scrollX = scroll->scrollX;
        Q_EMIT session.scrolled();
    }
}

void switchMode(WindowSession &session, EditMode mode) {
    session.edit([&](AppController &controller) {
        const UndoGroup group(controller.undoManager());
        for (const MySingleFolderPtr &folder : session.selectedFolders())
            if (folder->sfEditMode != mode)
                changeEditMode(*folder, mode, controller.undoManager());
    });
}

void switchMovieClock(WindowSession &session) {
    const bool isLocal = !isChecked(MovieClock, session);
    session.edit([&](AppController &controller) {
        const UndoGroup group(controller.undoManager());
        for (const MySingleFolderPtr &folder : session.selectedFolders())
            controller.setMovieClock(*folder, isLocal);
    });
}

void switchMissingTags(WindowSession &session) {
    const bool shouldAdd = !isChecked(AddMissingTags, session);
    session.edit([&](AppController &controller) {
        controller.addMissingDateTags(session.selectedPics(), shouldAdd);
    });
}

void switchReading(WindowSession &session) {
    const bool isEarlier = !isChecked(EarlierReading, session);
    session.edit([&](AppController &controller) {
        controller.useAlternative(session.selectedPics(), AlternativeTarget::Master, isEarlier);
        controller.useAlternative(session.selectedPics(), AlternativeTarget::DependentAsMaster,
                                  isEarlier);
    });
}

void switchOnlyTheseFolders(WindowSession &session) {
    AppController &controller = session.controller();
    if (controller.foldersFilter())
        controller.setFoldersFilter(std::nullopt);
    else
        controller.setFoldersFilter(session.selectedFolders());
}

void clearFilters(WindowSession &session) {
    session.controller().filters().disableFilters();
    session.controller().setFoldersFilter(std::nullopt);
    Q_EMIT session.listChanged();
}

void switchLabels(WindowSession &session) {
    const bool isOn = session.defaults().boolForKey("displayTimelineLabels");
    session.defaults().set("displayTimelineLabels", isOn ? "0" : "1");
    Q_EMIT session.listChanged();
}

void recolor(WindowSession &session) {
    session.controller().droppedFolders().reDistributeColors();
    Q_EMIT session.foldersChanged();
    Q_EMIT session.listChanged();
}

void shelve(WindowSession &session, bool toShelf) {
    session.select([toShelf](Strips &strips) {
        strips.addSelectionFromToShelf(strips.focusedTimeline(), toShelf);
    });
}

struct Action {
    CommandId id;
    void (*run)(WindowSession &);
};
constexpr Action actions[] = {
    {RemoveFolders, [](auto &session) { session.removeFolders(session.selectedFolders()); }},
    {Save, [](auto &session) { session.save(false); }},
    {SaveAll, [](auto &session) { session.save(true); }},
    {SaveWithoutChanges, [](auto &session) { session.save(false, true); }},
    {Undo, [](auto &session) { session.undo(); }},
    {Redo, [](auto &session) { session.redo(); }},
    {SelectAll, [](auto &session) { select(session, &Strips::selectAll); }},
    {SelectFolderItems,
     [](auto &session) {
         const auto folders = session.selectedFolders();
         session.select([&](Strips &strips) {
             strips.selectAllOfFolder(folders.front(), strips.focusedTimeline());
         });
     }},
    {InvertSelection, [](auto &session) { select(session, &Strips::invertSelection); }},
    {Deselect, [](auto &session) { select(session, &Strips::deselectAll); }},
    {ClearFilters, clearFilters},
    {EarlierReading, switchReading},
    {AddMissingTags, switchMissingTags},
    {Keeper, [](auto &session) { rate(session, Rating::Keeper); }},
    {Rejected, [](auto &session) { rate(session, Rating::Rejected); }},
    {NoMark, [](auto &session) { rate(session, Rating::None); }},
    {NextKeeper, [](auto &session) { walkToKeeper(session, WalkDirection::Forward); }},
    {PreviousKeeper, [](auto &session) { walkToKeeper(session, WalkDirection::Backward); }},
    {ToShelf, [](auto &session) { shelve(session, true); }},
    {FromShelf, [](auto &session) { shelve(session, false); }},
    {MovieClock, switchMovieClock},
    {ResetShift, [](auto &session) { session.resetShift(); }},
    {TogetherMode, [](auto &session) { switchMode(session, EditMode::Together); }},
    {SingleMode, [](auto &session) { switchMode(session, EditMode::Single); }},
    {OnlyTheseFolders, switchOnlyTheseFolders},
    {FolderToShelf,
     [](auto &session) {
         const auto folders = session.selectedFolders();
         session.select([&](Strips &strips) {
             for (const MySingleFolderPtr &folder : folders)
                 strips.addFolderToShelf(folder, true);
         });
     }},
    {Recolor, recolor},
    {OneStrip,
     [](auto &session) { session.select([](Strips &strips) { strips.removeSecondTimeline(); }); }},
    {MirrorStrip,
     [](auto &session) {
         session.select(
             [](Strips &strips) { strips.addTimelineOfMode(TimelineKind::Mirror, false); });
     }},
    {NextChapter, [](auto &session) { scrollByChapter(session, scrollByDateChapterNext); }},
    {PreviousChapter, [](auto &session) { scrollByChapter(session, scrollByDateChapterPrevious); }},
    {Labels, switchLabels},
};

bool isForAll(const WindowSession &session, bool (*holds)(const MySingleFolder &)) {
    const auto &folders = session.selectedFolders();
    return !folders.empty() &&
           std::ranges::all_of(folders, [holds](const auto &each) { return holds(*each); });
}

} // namespace

bool isChecked(CommandId id, const WindowSession &session) {
    const MySinglePicPtr main = session.mainPic();
    switch (id) {
    case EarlierReading:
        return main && main->zones.usesAltTimeAtAmbiguityReason != 0;
    case AddMissingTags:
        return main && main->save.shouldAddExifDateTimeTags;
    case Keeper:
        return main && ratingOf(*main) == Rating::Keeper;
    case Rejected:
        return main && ratingOf(*main) == Rating::Rejected;
    case MovieClock:
        return isForAll(session, [](const MySingleFolder &each) {
            return each.isQuicktimeMVHDTimezoneCorrectionEnabled;
        });
    case TogetherMode:
        return isForAll(session, [](const MySingleFolder &each) {
            return each.sfEditMode == EditMode::Together;
        });
    case SingleMode:
        return isForAll(session, [](const MySingleFolder &each) {
            return each.sfEditMode == EditMode::Single;
        });
    case OnlyTheseFolders:
        return session.controller().foldersFilter().has_value();
    case Labels:
        return session.defaults().boolForKey("displayTimelineLabels");
    default:
        return false;
    }
}

bool runInSession(CommandId id, WindowSession &session) {
    if (!isAvailable(commandOf(id), metNeeds(session)))
        return true;
    if (const AlignChoice *choice = alignChoiceOf(id)) {
        align(session, choice->command);
        return true;
    }
    const auto found = std::ranges::find(actions, id, &Action::id);
    if (found == std::end(actions))
        return false;
    found->run(session);
    return true;
}

} // namespace chronomender
