// SPDX-License-Identifier: GPL-3.0-or-later
#include "Alignment.h"

#include "LittleItem.h"
#include "Texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

namespace chronomender {
namespace {

using namespace little;
using enum AlignCommand;
using enum AlignOutcome;
using Seconds = std::vector<double>;
using Names = std::vector<std::string>;

Date at(double seconds) {
    return absl::UnixEpoch() + absl::Seconds(seconds);
}
Date floored(Date date) {
    return at(std::floor(absl::ToDoubleSeconds(date - absl::UnixEpoch())));
}

/// A selection of items at seconds around 1970, in a single folder unless told otherwise.
class Align : public testing::Test {
protected:
    void select(const Seconds &times, const Names &names = {}) {
        selection = {};
        for (std::size_t i = 0; i < times.size(); ++i)
            add(at(times[i]), names.empty() ? "IMG_1.JPG" : names[i]);
    }
    MySinglePicPtr add(Date date, const std::string &name = "IMG_1.JPG") {
        selection.sortedSelectedThumbsArray.push_back(
            addItem(folder, SpTypeExifOriginal, date, name));
        return selection.sortedSelectedThumbsArray.back();
    }
    void SetUp() override { loadTexts("en"); }
    AlignOutcome run(AlignCommand command) {
        return realignSelection(command, selection, context, undo);
    }
    /// What the items show, in the order in which they were selected.
    std::vector<Date> shown() const {
        std::vector<Date> dates;
        for (const auto &pic : selection.sortedSelectedThumbsArray)
            dates.push_back(pic->spDateTimeModified());
        return dates;
    }
    Seconds shownSeconds() const {
        Seconds seconds;
        for (Date date : shown())
            seconds.push_back(absl::ToDoubleSeconds(date - absl::UnixEpoch()));
        return seconds;
    }

    MySingleFolderPtr folder = makeFolder(EditMode::Single);
    AlignSelection selection;
    NewDateContext context;
    UndoManager undo;
};

TEST_F(Align, PutsItemsWhereTheCommandSays) {
    constexpr int none = -1;
    const struct {
        const char *what;
        AlignCommand command;
        Seconds times;
        int main;
        Seconds expected;
        const char *name; ///< of the step; "" when nothing happens
    } rows[] = {
        {"two have nothing between", MatchingGaps, {0, 9}, none, {0, 9}, ""},
        {"three", MatchingGaps, {1, 11, 101}, none, {1, 51, 101}, "alignByMatchingGaps"},
        {"thirds", MatchingGaps, {0, 0, 0, 1}, none, {0, 0, 1, 1}, "alignByMatchingGaps"},
        {"half up", MatchingGaps, {2, 2, 5}, none, {2, 4, 5}, "alignByMatchingGaps"},
        {"half down", MatchingGaps, {-5, -3, -2}, none, {-5, -4, -2}, "alignByMatchingGaps"},
        {"half around 0", MatchingGaps, {-1, 0, 0}, none, {-1, -1, 0}, "alignByMatchingGaps"},
        {"own fraction", MatchingGaps, {1.9, 4.5, 10}, none, {1.9, 6.5, 10}, "alignByMatchingGaps"},
        {"floors", MatchingGaps, {-0.25, 4.5, 5}, none, {-0.25, 2.5, 5}, "alignByMatchingGaps"},
        {"around the middle", MinimizingGaps, {3, 10, 99}, 1, {9, 10, 11}, "alignByMinimizingGaps"},
        {"no main", MinimizingGaps, {3, 10, 99.5}, none, {3, 4, 5.5}, "alignByMinimizingGaps"},
        {"ties", MinimizingGaps, {3, 9.1, 9.9}, 2, {7, 8.1, 9.9}, "alignByMinimizingGapsAlt"},
        {"at 1970", MinimizingGaps, {0, 9}, 0, {0, 1}, "alignByMinimizingGapsAlt"},
        {"fractions stay", Reversing, {1.9, 3.2}, none, {3.9, 1.2}, "alignByReversing"},
        {"odd", Reversing, {-7, 0, 1}, none, {1, 0, -7}, "alignByReversing"},
        {"mirrored", ReversingAlt, {0, 1, 10}, none, {10, 9, 0}, "alignByReversingAlt"},
        {"mirrored fractions", ReversingAlt, {0.9, 2, 9}, none, {9.9, 7, 0}, "alignByReversingAlt"},
        {"one has no gap", ReversingAlt, {5}, none, {5}, ""},
        {"nothing", Reversing, {}, none, {}, ""},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.what);
        undo.removeAllActions();
        select(row.times);
        if (row.main != none)
            selection.picSelection =
                selection.sortedSelectedThumbsArray[static_cast<std::size_t>(row.main)];
        EXPECT_EQ(run(row.command), *row.name ? Done : NothingChanged);
        EXPECT_EQ(shownSeconds(), row.expected);
        EXPECT_EQ(undo.undoActionName(), row.name);
        EXPECT_EQ(text(row.name) == row.name, !*row.name) << "each name has a text";
    }
}

TEST_F(Align, ByNameGivesTheDatesOutInNaturalOrderAndStopsWhereTheyAre) {
    select({1, 2.5, 30, 40}, {"IMG_10.JPG", "IMG_9.JPG", "a.jpg", "a.jpg"});
    EXPECT_EQ(run(Filename), Done);
    EXPECT_EQ(shownSeconds(), (Seconds{40, 30.5, 1, 2}));
    undo.removeAllActions();
    select({1, 2, 2, 3}, {"a.jpg", "IMG_9.JPG", "IMG_9.JPG", "IMG_10.JPG"});
    EXPECT_EQ(run(Filename), NothingChanged);
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(Align, CopyingTakesTheDateOfTheItemThatSpeaksAndOnlyWhereThereIsOne) {
    select({100.5, 200, 300});
    const auto &pics = selection.sortedSelectedThumbsArray;
    pics[0]->slots.exifDateTimeDigitizedOLD = at(40.75);
    pics[1]->slots.exifDateTimeDigitizedOLD = InfinitePast();
    EXPECT_TRUE(isCopyOffered(CopyDigitizedOld, pics, context));
    EXPECT_EQ(run(CopyDigitizedOld), Done);
    EXPECT_EQ(shownSeconds(), (Seconds{40.5, 200, 300}));
    EXPECT_EQ(undo.undoActionName(), "alignByCopyingOtherFileDate");
    EXPECT_EQ(run(CopyTiffOld), NothingChanged);

    // A NEW date is calculated for the asking; the item keeps what it has.
    pics[0]->slots.exifDateTimeOriginalOLD = pics[0]->spDateTimeOriginal;
    EXPECT_FALSE(isCopyOffered(CopyDigitizedNew, pics, context)); // as the file has it
    context.options.dateChangeEXIFEXIFDigiDate = 0;               // the date that the item shows
    EXPECT_FALSE(isCopyOffered(CopyDigitizedNew, pics, context));
    context.options.dateChangeEXIFEXIFDigiDate = 3; // the same shift, not before the original
    pics[0]->slots.exifDateTimeDigitizedOLD = at(140.75);
    EXPECT_TRUE(isCopyOffered(CopyDigitizedNew, pics, context));
    EXPECT_EQ(alignment(CopyDigitizedNew, selection, context).records.front().dateDifference,
              absl::Seconds(40)); // 140.75 - 60 to the 40.5 that it shows
    EXPECT_FALSE(pics[0]->slots.exifDateTimeDigitizedNEW);
}

TEST_F(Align, EveryMarkerOfACopyNamesItsSlot) {
    const auto pic = add(at(0));
    context.force = true;
    context.options.dateChangeEXIFEXIFDigiDate = 2;
    context.options.dateChangeEXIFEXIFModDate = 9;
    context.options.dateChangeEXIFFinderCreaDate2 = 2;
    context.options.dateChangeEXIFFinderModDate = 9;
    // With choices that leave the slots alone, each holds what is its own.
    pic->slots = {at(0), at(1), at(20), at(30), at(40), at(50), at(60), at(70), at(80), at(90)};
    const double expected[] = {20, 30, 40, 50, 60, 50 /* as the TIFF date */, 80, 90};
    for (int i = 0; i < 8; ++i) {
        const auto command = AlignCommand(static_cast<int>(CopyDigitizedOld) + i);
        EXPECT_TRUE(isCopyOffered(command, {pic}, context));
        EXPECT_EQ(run(command), Done);
        EXPECT_EQ(pic->spDateTimeModified(), at(expected[i])) << i;
        EXPECT_FALSE(isCopyOffered(command, {pic}, context));
        undo.undo();
    }
    EXPECT_FALSE(isCopyOffered(MatchingGaps, {pic}, context));
    EXPECT_NE(text(copyMenuTitleKey(1)), text(copyMenuTitleKey(2)));
}

TEST_F(Align, LivePhotosStandAtTheirMovieAndMoveTogether) {
    folder->sortFolderLPsByMov = true;
    select({10, 50});
    const auto movie = addItem(folder, SpTypeMovieMdta, at(14));
    movie->slots.fileCreationDateOLD = at(20);
    const auto still = selection.sortedSelectedThumbsArray[0];
    makeDependent(movie, still);
    EXPECT_EQ(run(Reversing), Done);
    EXPECT_EQ(shownSeconds(), (Seconds{46, 14}));
    EXPECT_EQ(movie->spDateTimeModified(), at(50));
    EXPECT_EQ(run(CopyFileCreationOld), Done);
    EXPECT_EQ(still->spDateTimeModified(), at(16));
}

TEST_F(Align, TogetherModeGivesWayAndUndoBringsItBackAsItWas) {
    const auto other = makeFolder(EditMode::Single);
    folder->sfEditMode = EditMode::Together;
    select({0, 100});
    const auto bystander = addItem(folder, SpTypeExifOriginal, at(500));
    const auto elsewhere = addItem(other, SpTypeExifOriginal, at(20));
    updateSinglePicModificationBy(*elsewhere, absl::Milliseconds(200));
    selection.sortedSelectedThumbsArray.push_back(elsewhere);
    setSfDateModificationsFromTimeInterval(*folder, absl::Milliseconds(-7250), true);
    folder->tempHasChangedDirection = false;
    updateFolderRanges({bystander, elsewhere});

    const auto expectRanges = [&](double from, double till, double ofOther) {
        EXPECT_EQ(folder->sfFrom, at(from));
        EXPECT_EQ(folder->sfTill, at(till));
        EXPECT_EQ(other->sfFrom, at(0) + absl::Milliseconds(200) + absl::Seconds(ofOther));
    };
    selection.picSelection = selection.sortedSelectedThumbsArray[1];
    EXPECT_EQ(run(MinimizingGaps), Done);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(folder->sfEditMode, EditMode::Single);
        EXPECT_EQ(folder->singlePicModeImages, 3);
        EXPECT_EQ(bystander->spDateTimeModified(), at(492.75));
        EXPECT_EQ(shownSeconds(), (Seconds{91.75, 92.75, 93.2}));
        expectRanges(91.75, 492.75, 93);
        EXPECT_EQ(undo.undoActionName(), "alignByMinimizingGaps");
        undo.undo();
        EXPECT_EQ(undo.lastAffectedObject<MySinglePic>(), selection.picSelection);
        EXPECT_EQ(undo.lastAffectedObject<MySingleFolder>(), folder);
        EXPECT_FALSE(undo.canUndo());
        EXPECT_EQ(folder->sfEditMode, EditMode::Together);
        EXPECT_EQ(folder->sfDateModificationsTimeInterval, absl::Milliseconds(-7250));
        EXPECT_FALSE(folder->tempHasChangedDirection);
        expectRanges(-7.25, 492.75, 20);
        undo.redo();
    }
}

TEST_F(Align, IsRefusedAsAWholeAndLeavesNoTraceWhereNothingCanMove) {
    folder->sfEditMode = EditMode::Together;
    const auto late = add(maxDate() - absl::Seconds(2));
    add(late->spDateTimeOriginal), add(late->spDateTimeOriginal);
    EXPECT_EQ(run(MinimizingGaps), RefusedOutOfBounds);
    selection = {};
    const auto absurd = add(absl::FromUnixSeconds(std::numeric_limits<std::int64_t>::max() / 2));
    add(-1 * (absurd->spDateTimeOriginal - absl::UnixEpoch()) + absl::UnixEpoch()), add(at(0));
    EXPECT_EQ(run(MatchingGaps), RefusedOutOfBounds);
    selection = {};
    add(at(0))->isMovedToTrash = true;
    add(at(9))->spType = SpTypeUnsupported;
    add(InfinitePast());
    EXPECT_EQ(run(Reversing), NothingChanged);
    EXPECT_EQ(folder->sfEditMode, EditMode::Together);
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(Align, HoldsForAnySelection) {
    std::mt19937 random(20241027);
    const auto floors = [](std::vector<Date> dates) {
        std::ranges::transform(dates, dates.begin(), floored);
        return dates;
    };
    const auto sorted = [](std::vector<Date> dates) {
        std::ranges::sort(dates);
        return dates;
    };
    for (int round = 0; round < 200; ++round) {
        folder = makeFolder(round % 2 ? EditMode::Single : EditMode::Together);
        std::vector<double> times(3 + random() % 12);
        for (double &time : times)
            time = static_cast<double>(static_cast<std::int32_t>(random())) / 64;
        std::ranges::sort(times);
        Names names;
        for (std::size_t i = 0; i < times.size(); ++i)
            names.push_back("IMG_" + std::to_string(random() % 20) + ".JPG");
        select(times, names);
        setSfDateModificationsFromTimeInterval(*folder, absl::Seconds(round * 1.0625), false);
        const std::vector<Date> before = shown();
        for (const AlignCommand command :
             {MatchingGaps, MinimizingGaps, Filename, Reversing, ReversingAlt}) {
            SCOPED_TRACE(static_cast<int>(command) + 10 * round);
            const bool isDone = run(command) == Done;
            const std::vector<Date> after = shown(), seconds = floors(after);
            if (command == Filename || command == Reversing) {
                EXPECT_EQ(sorted(seconds), sorted(floors(before)));
            } else if (command == MatchingGaps) {
                EXPECT_EQ(after.front(), before.front());
                EXPECT_EQ(after.back(), before.back());
                EXPECT_TRUE(std::ranges::is_sorted(seconds));
            } else if (command == ReversingAlt) {
                for (std::size_t i = 0; i < before.size(); ++i)
                    EXPECT_EQ(seconds[i], floored(before.front() + (before.back() - before[i])));
            }
            if (!isDone)
                continue;
            undo.undo();
            EXPECT_EQ(shown(), before);
            undo.redo();
            EXPECT_EQ(shown(), after);
            undo.undo();
        }
    }
}

} // namespace
} // namespace chronomender
