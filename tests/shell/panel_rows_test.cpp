// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeSession.h"
#include "FilterFacts.h"
#include "FilterSourceController.h"
#include "FolderRows.h"
#include "InspectorFacts.h"
#include "JobRows.h"
#include "NeighbourFacts.h"
#include "ShiftFacts.h"
#include "SourceViews.h"
#include "Texts.h"
#include "ZoneLookup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace chronomender {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string remarks(const std::vector<RowNote> &notes) {
    return joinedWords(notes);
}

/// Two folders: the night in which Berlin's clocks go back, and a day of another camera.
class PanelRows : public ::testing::Test {
protected:
    PanelRows() {
        session.photo("a.jpg", {.original = "2024:10:27 02:30:00"});
        session.photo("b.jpg", {.original = "2024:10:27 12:00:00"});
        session.photo("c.jpg", {.make = "Other", .model = "Two", .original = "2024:10:27 12:00:12"},
                      1);
        session.import();
        for (const MySingleFolderPtr &folder : session.folders)
            sfUpdatePicsFromAndTill(*folder);
        a = session.item("a.jpg").shared_from_this();
        b = session.item("b.jpg").shared_from_this();
        c = session.item("c.jpg").shared_from_this();
    }

    FilterContext context() const { return filterContext(session.zones, session.defaults); }
    FolderRow row() { return folderRow(session.folder(), context(), false); }
    InspectorFacts inspect(const std::vector<MySinglePicPtr> &pics) {
        return inspectorFacts(pics, liveContext(session.defaults, session.now), context());
    }
    std::string value(const FileFacts &file, const std::string &label) {
        for (const FactRow &fact : file.facts)
            if (fact.label == label)
                return fact.value;
        return "";
    }
    ShiftFacts shift(const std::vector<MySingleFolderPtr> &folders,
                     const std::vector<MySinglePicPtr> &items, bool isSaving = false) {
        return shiftFacts(MyCompoundFolder(folders), items, isSaving, session.zones);
    }

    little::FakeSession session{2};
    MySinglePicPtr a, b, c;
};

TEST_F(PanelRows, aFolderSaysWhatBecameOfItsDates) {
    EXPECT_EQ(row().words(), "folder0, 2 items, 27 Oct 2024, shifted together, 1 alert");
    dragChangedDates(-absl::Hours(25) - absl::Seconds(5), session.folder(), session.undo);
    EXPECT_EQ(row().shift, "1 d 1 h 5 s earlier");
    EXPECT_EQ(row().range, "26 Oct 2024");
    EXPECT_THAT(remarks(row().notes), HasSubstr("2 unsaved"));
    changeEditMode(session.folder(), EditMode::Single);
    EXPECT_EQ(row().shift, "2 items shifted");
    EXPECT_TRUE(folderRow(session.folder(), context(), true).isDimmed);
}

TEST_F(PanelRows, aFolderSaysItsZonesAndExceptions) {
    MySingleFolder &folder = session.folder();
    const auto named = [&](const char *name) {
        return ZoneChoice::named(*session.zones.zoneWithName(name));
    };
    EXPECT_EQ(zoneWords(folder, session.zones), "");
    setTZDefaultsSource(folder, named("Asia/Tokyo"), true);
    EXPECT_EQ(zoneWords(folder, session.zones), "Asia/Tokyo");
    folder.targetTimeZones.folderDefault = named("Europe/Berlin");
    EXPECT_EQ(zoneWords(folder, session.zones), "Asia/Tokyo → Europe/Berlin");
    folder.targetTimeZones.folderDefault = ZoneChoice::marker(ZoneChoice::Kind::Own);
    addPicWithZone(*a, named("Europe/Paris"), folder.sourceTimeZones);
    EXPECT_EQ(zoneWords(folder, session.zones),
              "Asia/Tokyo → each file’s own, 1 with zones of its own");
}

TEST_F(PanelRows, anItemShowsOldAndNewAndIsNotChangedByIt) {
    dragChangedDates(absl::Hours(1), session.folder(), session.undo);
    const DateSlots before = b->slots;
    const InspectorFacts facts = inspect({b});
    EXPECT_EQ(b->slots, before);
    EXPECT_EQ(facts.date, "27 Oct 2024, 13:00:00");
    ASSERT_EQ(facts.files.size(), 1U);
    EXPECT_EQ(value(facts.files[0], "Shift"), "1 h later");
    EXPECT_EQ(value(facts.files[0], "Zone"), "Europe/Berlin");
    const SlotRow &taken = facts.files[0].slots.at(0);
    EXPECT_EQ(taken.label, "Taken");
    EXPECT_TRUE(taken.isSource);
    EXPECT_EQ(taken.oldText, "2024-10-27 12:00:00 +01:00");
    EXPECT_EQ(taken.newText, "2024-10-27 13:00:00 +01:00");
}

TEST_F(PanelRows, anAlertHasAWayOut) {
    const std::vector<AlertRow> alerts = inspect({a}).alerts;
    ASSERT_FALSE(alerts.empty());
    EXPECT_THAT(alerts[0].words, HasSubstr("Happens twice on 27 Oct 2024"));
    EXPECT_THAT(alerts[0].actions, ElementsAre(AlertAction::ReadAsEarlier, AlertAction::SetZones));
    useAmbiguityAlternative({a}, alerts[0].target, true, session.zones, session.undo);
    EXPECT_EQ(inspect({a}).alerts[0].actions[0], AlertAction::ReadAsLater);
}

TEST_F(PanelRows, severalItemsSayWhatTheyShare) {
    const InspectorFacts facts = inspect({a, b, c});
    EXPECT_EQ(facts.title, "3 items");
    EXPECT_EQ(facts.folder, "several folders");
    EXPECT_EQ(value(facts.files[0], "Date from"), "date taken");
    EXPECT_EQ(value(facts.files[0], "Zone"), "Europe/Berlin");
    EXPECT_EQ(facts.date, "27 Oct 2024, 02:30:00 – 27 Oct 2024, 12:00:12");
    EXPECT_EQ(facts.alerts.at(0).words, "1 item with a time that happens twice");
    dragChangedDates(absl::Hours(1), session.folder(1), session.undo);
    EXPECT_EQ(value(inspect({b, c}).files[0], "Shift"), "mixed");
}

TEST_F(PanelRows, neighboursTellTheirDistance) {
    TimelineStrip strip;
    strip.theSource = {a, b, c};
    const NeighbourFacts facts = neighbourFacts(strip, b, session.zones);
    EXPECT_EQ(facts[0].distance, "9 h 30 min earlier"); // the later of its two 02:30
    EXPECT_EQ(facts[1].words(), "b.jpg, folder0, 27 Oct 2024, 12:00:00");
    EXPECT_EQ(facts[2].distance, "12 s later");
    EXPECT_EQ(neighbourFacts(strip, a, session.zones)[0].pic, nullptr);
}

TEST_F(PanelRows, shiftFieldsOfSeveralFoldersKeepWhatDiffers) {
    dragChangedDates(absl::Hours(25), session.folder(0), session.undo);
    dragChangedDates(absl::Hours(2), session.folder(1), session.undo);
    const ShiftFacts facts = shift(session.folders, {});
    EXPECT_EQ(facts.target, ShiftFacts::Target::Folders);
    EXPECT_EQ(facts.fields.dmDirection, "+");
    EXPECT_EQ(facts.fields.dmDays, std::nullopt);
    EXPECT_EQ(facts.fields.dmSeconds, "0");
    EXPECT_TRUE(facts.isShifted);
    EXPECT_EQ(facts.hint, "a.jpg: 27 Oct 2024, 02:30:00 → 28 Oct 2024, 03:30:00");
}

TEST_F(PanelRows, itemsAreShiftedToWhatTheFieldsSay) {
    for (const MySingleFolderPtr &folder : session.folders)
        changeEditMode(*folder, EditMode::Single);
    updateSinglePicModificationBy(*a, absl::Hours(26));
    EXPECT_EQ(shift({session.folders[0]}, {a, b}).fields.dmDays, std::nullopt);
    CompoundFields fields;
    fields.dmMinutes = "5";
    EXPECT_EQ(shiftItemsTo({a, b}, fields, session.undo, a), DateChangeOutcome::Done);
    EXPECT_EQ(a->shift.singlePicModification, absl::Hours(26) + absl::Minutes(5));
    EXPECT_EQ(b->shift.singlePicModification, absl::Minutes(5));
    session.undo.undo();
    EXPECT_EQ(b->shift.singlePicModification, absl::ZeroDuration());
    fields.dmDays = "2000000";
    EXPECT_EQ(shiftItemsTo({a}, fields, session.undo, a), DateChangeOutcome::RefusedOutOfBounds);
}

TEST_F(PanelRows, shiftFieldsSayWhyTheyAreOff) {
    const auto reason = [&](bool isSaving, const std::vector<MySingleFolderPtr> &folders,
                            const std::vector<MySinglePicPtr> &items) {
        return shift(folders, items, isSaving).reason;
    };
    EXPECT_EQ(reason(true, session.folders, {}), "A save is running");
    EXPECT_EQ(reason(false, {}, {}), "Select a folder to shift its dates");
    changeEditMode(session.folder(), EditMode::Single);
    EXPECT_EQ(reason(false, session.folders, {a}), "The selected folders are in different modes");
    EXPECT_EQ(reason(false, {session.folders[0]}, {}), "Select the items to shift");
    EXPECT_EQ(reason(false, {session.folders[0]}, {c}), "No date here can be shifted");
    EXPECT_EQ(reason(false, {session.folders[0]}, {a}), "");
}

TEST_F(PanelRows, aQuickFilterIsFoundAgain) {
    SourceViews views;
    UserDefaults defaults;
    const auto next = [&] {
        return FilterSourceController(defaults, session.zones, views, [](auto, auto) {});
    };
    FilterSourceController filters = next();
    const QuickFilter wanted{"Two \"x\"", RatingChoice::NotRejected};
    setQuickFilter(wanted, filters, defaults);
    EXPECT_EQ(quickFilter(filters, defaults), wanted);
    FilterSourceController later = next();
    restoreFilter(later, defaults);
    EXPECT_EQ(quickFilter(later, defaults), wanted);

    setQuickFilter({"nowhere"}, filters, defaults);
    const Predicate runs = *filters.filter_finalPredicate();
    EXPECT_FALSE(CompiledPredicate(runs, context()).matches(*c));
    setQuickFilter({"two"}, filters, defaults);
    EXPECT_TRUE(CompiledPredicate(*filters.filter_finalPredicate(), context()).matches(*c));
    setQuickFilter({}, filters, defaults);
    EXPECT_EQ(filters.compiled(), nullptr);
}

TEST(JobRows, tellWhatIsKnown) {
    loadTexts("en");
    JobStatus status{JobKind::Import, "Reading canon", 120, 400, 35.4, absl::Seconds(8)};
    EXPECT_EQ(progressText(status), "120 of 400 · 35 per second · 8 s left");
    status.perSecond = 1.26;
    EXPECT_THAT(progressText(status), HasSubstr("1.3 per second"));
    status.isCancelling = true;
    EXPECT_EQ(progressText(status), "stopping…");
    EXPECT_THAT(progressText({}), IsEmpty());
    const JobStatus other{JobKind::Import, "Reading nikon", 30, 100, 10.0, absl::Seconds(7)};
    EXPECT_EQ(
        progressText(
            mergedByKind({{JobKind::Import, "Reading canon", 20, 40, 5.0, absl::Seconds(4)}, other})
                .at(0)),
        "50 of 140 · 15 per second · 7 s left");
    EXPECT_EQ(mergedByKind({{JobKind::Check, "Checking", 3, 0, {}, {}}, other}).size(), 2U);
    EXPECT_EQ(sessionText(1, 0, 12), "1 item · 12 unsaved");
}

} // namespace
} // namespace chronomender
