// SPDX-License-Identifier: GPL-3.0-or-later
#include "SavedZones.h"
#include "ZoneSteps.h"

namespace chronomender {
namespace {

using namespace little;

class ZoneChoices : public ZonesTest {};

/// The choices, the zones they mean, and the choices after the item was saved and after the folder
/// was cleaned up.
struct ChoiceRow {
    const char *choices, *places, *afterItem, *afterFolder;
};

const ChoiceRow choiceRows[] = {
    {"- - - -", "Berlin Berlin", "- - - -", "- - - -"},
    {"Tokyo - - -", "Tokyo Berlin", "Tokyo - - -", "- - - -"},
    {"system system - -", "Berlin Berlin", "system system - -", "system folder - -"},
    {"Berlin system - -", "Berlin Berlin", "Berlin system - -", "system folder - -"},
    {"- Berlin - -", "Berlin Berlin", "- Berlin - -", "Berlin folder - -"},
    {"Tokyo Tokyo - -", "Tokyo Tokyo", "Tokyo Tokyo - -", "Tokyo folder - -"},
    {"Tokyo system - -", "Tokyo Berlin", "Tokyo system - -", "system folder - -"},
    {"Tokyo folder - -", "Tokyo Tokyo", "Tokyo folder - -", "Tokyo folder - -"},
    {"- folder - -", "Berlin Berlin", "- folder - -", "- folder - -"},
    {"system folder Tokyo -", "Tokyo Berlin", "system folder - -", "system folder - -"},
    {"Tokyo folder Lima -", "Lima Tokyo", "Tokyo folder - -", "Tokyo folder - -"},
    {"Tokyo UTC - -", "Tokyo UTC", "Tokyo UTC - -", "UTC folder - -"},
    {"- UTC - -", "Berlin UTC", "- UTC - -", "UTC folder - -"},
    {"Tokyo UTC Lima -", "Lima UTC", "Tokyo UTC - -", "UTC folder - -"},
    {"Tokyo UTC - left", "Tokyo Tokyo", "Tokyo UTC Tokyo left", "UTC folder Tokyo left"},
    {"- UTC - left", "Berlin Berlin", "- UTC system left", "UTC folder system left"},
    {"Tokyo UTC Lima left", "Lima Lima", "Tokyo UTC Lima left", "UTC folder Lima left"},
    {"Tokyo UTC system Lima", "Berlin Lima", "Tokyo UTC Lima left", "UTC folder Lima left"},
    {"Tokyo UTC - Lima", "Tokyo Lima", "Tokyo UTC Lima left", "UTC folder Lima left"},
    {"Tokyo UTC - system", "Tokyo Berlin", "Tokyo UTC system left", "UTC folder system left"},
    // Targets that follow each item's source move nothing.
    {"Tokyo own - -", "Tokyo Tokyo", "Tokyo own - -", "Tokyo own - -"},
    {"Tokyo own Lima -", "Lima Lima", "Tokyo own Lima -", "Tokyo own Lima -"},
    {"Tokyo same Lima -", "Lima Lima", "Tokyo same Lima -", "Tokyo same Lima -"},
};

TEST_F(ZoneChoices, OwnOnesGoBeforeTheFoldersAndASaveMovesTheTargetToTheSource) {
    for (const ChoiceRow &row : choiceRows) {
        SCOPED_TRACE(row.choices);
        assign(row.choices);
        EXPECT_EQ(places(), row.places);
        const Zone source = sourceTimeZoneForPic(*pic, *folder, zones);
        const Zone written = targetTimeZoneForPic(*pic, *folder, zones);
        EXPECT_EQ(hasAnyTimeZoneChangeForPic(*pic, *folder, zones),
                  row.places != std::string("Berlin Berlin"));
        validateTZCUnsaved(*folder, zones);
        EXPECT_EQ(pic->zones.isUnsavedDueToTZC, source != written);
        EXPECT_EQ(folder->isUnsavedDueToTZC, source != written);

        EXPECT_EQ(updateSourceTimeZoneFromTargetTimeZoneForPic(*pic, *folder, zones),
                  source != written);
        EXPECT_EQ(choices(), row.afterItem);
        cleanupTimeZones(*folder);
        EXPECT_EQ(choices(), row.afterFolder);
        // What was written is what the next reading assumes, and what the next save writes.
        EXPECT_EQ(sourceTimeZoneForPic(*pic, *folder, zones), written);
        EXPECT_EQ(targetTimeZoneForPic(*pic, *folder, zones), written);
        validateTZCUnsaved(*folder, zones);
        EXPECT_FALSE(pic->zones.isUnsavedDueToTZC);
    }
}

TEST_F(ZoneChoices, AFailedItemKeepsItsZonesWhenTheFolderMovesOn) {
    for (const ChoiceRow &row : choiceRows) {
        assign(row.choices);
        updateSelectionZonesForTimeErrorFiles(*folder, {pic});
        cleanupTimeZones(*folder);
        EXPECT_EQ(places(), row.places) << row.choices;
    }
    // One left out on purpose keeps its old source.
    assign("Tokyo UTC - left");
    updateSelectionZonesForUnchangedFiles(*folder, {pic});
    cleanupTimeZones(*folder);
    EXPECT_EQ(places(), "Tokyo Tokyo");
}

TEST_F(ZoneChoices, ATargetThatFollowsTheSourceWasChosenByNobody) {
    for (const char *choices : {"Tokyo - - -", "Tokyo folder - -", "Tokyo UTC - left"}) {
        assign(choices);
        EXPECT_FALSE(hasAssignedTargetZone(*pic, *folder)) << choices;
    }
    for (const char *choices : {"Tokyo UTC - -", "Tokyo system - -", "Tokyo - - UTC",
                                "Tokyo own - -", "Tokyo same - -"}) {
        assign(choices);
        EXPECT_TRUE(hasAssignedTargetZone(*pic, *folder)) << choices;
    }
}

TEST_F(ZoneChoices, ASourceGivenAloneMakesTheTargetFollow) {
    setTZDefaultsSource(*folder, *choice("Tokyo"), true);
    EXPECT_EQ(choices(), "Tokyo folder - -");
    setTZDefaultsSource(*folder, *choice("UTC"), false); // acts only while nothing is assigned
    EXPECT_EQ(places(), "Tokyo Tokyo");
    assign("- - - -");
    setTZDefaultsSource(*folder, *choice("Tokyo"), false);
    EXPECT_EQ(choices(), "Tokyo - - -");
    zones.setSystemZone(zone("America/Lima")); // which serves where nothing was chosen
    EXPECT_EQ(places(), "Tokyo Lima");
}

TEST_F(ZoneChoices, BothSidesOfAGroupShareOneChoice) {
    const auto jpeg = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    folder->sourceTimeZones.ofItems.emplace(jpeg->sessionUniqueId, *choice("Tokyo"));
    makeDependent(jpeg, pic);
    EXPECT_EQ(choices(), "- - Tokyo -"); // the set holds only the dependent
    addPicWithZone(*jpeg, *choice("UTC"), folder->sourceTimeZones);
    EXPECT_EQ(sourceTimeZoneForPic(*jpeg, *folder, zones).name, "UTC");
    EXPECT_EQ(choices(), "- - UTC -");
    EXPECT_EQ(folder->sourceTimeZones.ofItems.size(), 1U);
    validateTZCUnsaved(*folder, zones);
    EXPECT_TRUE(jpeg->zones.isUnsavedDueToTZC);
    removePic(*jpeg, folder->sourceTimeZones);
    EXPECT_TRUE(folder->sourceTimeZones.isEmpty());
}

TEST_F(ZoneChoices, WithOwnASlotKeepsTheOffsetOfItsZoneStamp) {
    pic->singlePicAttributes.exifOffsetTimeOriginal = located("-03:30");
    pic->singlePicAttributes.tiffOffsetTime = located("+99:00"); // cannot be read
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"Tokyo own - -", "-03:30", "Asia/Tokyo"},
        {"Tokyo UTC - own", "-03:30", "Asia/Tokyo"},
        {"Tokyo UTC - -", "UTC", "UTC"}};
    for (const auto &[choices, stamped, otherwise] : rows) {
        assign(choices);
        const Zone zone = targetZoneForSlot(*pic, StampSlot::Original, *folder, zones);
        EXPECT_EQ(zone.name, stamped) << choices;
        EXPECT_EQ(zone.rules.At(utc(2024, 6, 1)).offset, zone.name == "UTC" ? 0 : -12600);
        for (StampSlot slot : {StampSlot::Digitized, StampSlot::Modification})
            EXPECT_EQ(targetZoneForSlot(*pic, slot, *folder, zones).name, otherwise) << choices;
    }
}

TEST_F(ZoneChoices, OnlyItemsWithStampsCanBeUnsavedByAZone) {
    assign("Tokyo UTC - -");
    for (int type = 1; type <= 22; ++type) {
        pic->spType = static_cast<SpType>(type);
        validateTZCUnsaved(*folder, zones);
        EXPECT_EQ(pic->zones.isUnsavedDueToTZC, (type < 11 || type > 14) && type != 22) << type;
    }
    pic->spType = SpTypeEmptyOriginalFileDate;
    pic->importState.isLeftAlone = true;
    validateTZCUnsaved(*folder, zones);
    EXPECT_FALSE(folder->isUnsavedDueToTZC);
}

TEST_F(ZoneChoices, APendingChangeIsLookedUpInsteadAndMixedValuesStayTheFolders) {
    const struct {
        const char *choices, *pending, *places;
        bool isUnsaved;
    } rows[] = {
        {"- - - -", "mixed mixed - -", "Berlin Berlin", false},
        {"Tokyo UTC - -", "mixed mixed - -", "Tokyo UTC", true},
        {"Tokyo folder - -", "Lima mixed - -", "Lima Lima", false},
        {"Tokyo folder - -", "mixed UTC - -", "Tokyo UTC", true},
        {"Tokyo folder - -", "mixed mixed Lima -", "Lima Tokyo", true},
        {"Tokyo folder - -", "mixed mixed Lima left", "Lima Lima", false},
        {"Tokyo UTC Lima left", "mixed mixed - -", "Tokyo UTC", true},
        {"Tokyo UTC Lima left", "- - - -", "Berlin Berlin", false},
        {"Tokyo UTC Lima left", "Lima Lima - -", "Lima Lima", false},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.choices) + " / " + row.pending);
        assign(row.choices);
        const std::string placesBefore = places();
        const ZoneProvider pending = provider(row.pending);
        const ZoneSides sides(&pending, *folder);
        EXPECT_EQ(places(sides), row.places);
        for (const ZoneSide &side : {sides.source, sides.target})
            EXPECT_FALSE(side.folderDefault() &&
                         side.folderDefault()->is(ZoneChoice::Kind::Multiple));
        validateTZCUnsavedForPic(*pic, sides, zones);
        EXPECT_EQ(pic->zones.isUnsavedDueToTZC, row.isUnsaved);
        EXPECT_EQ(places(), placesBefore);
    }
    // A target that follows an item's source takes one that is known already.
    assign("Tokyo UTC - left");
    EXPECT_EQ(targetTimeZoneForPicWithKnownSourceZone(*pic, *folder, zone("America/Lima"), zones),
              zone("America/Lima"));
    assign("Tokyo UTC - -");
    EXPECT_EQ(targetTimeZoneForPicWithKnownSourceZone(*pic, *folder, zone("America/Lima"), zones),
              zone("UTC"));
}

TEST_F(ZoneChoices, AnItemKeepsItsZonesInAnotherFolder) {
    const std::tuple<const char *, const char *, const char *> rows[] = {
        {"- - - -", "- - - -", "- - - -"},
        {"- - - -", "Tokyo folder - -", "Tokyo folder system left"},
        {"- - - -", "system - - -", "system - - -"},
        {"Tokyo - - -", "- - - -", "- - Tokyo -"},
        {"Tokyo - - -", "- UTC - -", "- UTC Tokyo system"},
        {"Tokyo folder - -", "Tokyo folder - -", "Tokyo folder - -"},
        {"Tokyo folder - -", "- - - -", "- - Tokyo left"},
        {"Tokyo folder - -", "Lima folder - -", "Lima folder Tokyo left"},
        {"Tokyo folder Lima -", "- - - -", "- - Lima Tokyo"},
        {"- folder Lima -", "UTC folder - -", "UTC folder Lima system"},
        {"Tokyo UTC - -", "Lima UTC - -", "Lima UTC Tokyo -"},
        {"- - Tokyo UTC", "Tokyo folder - -", "Tokyo folder - UTC"},
        {"- - Tokyo left", "Lima UTC - -", "Lima UTC Tokyo left"},
        {"Tokyo own - -", "UTC - - -", "UTC - Tokyo own"},
    };
    const MySingleFolderPtr here = folder, there = makeFolder();
    for (const auto &[choicesHere, choicesThere, after] : rows) {
        SCOPED_TRACE(std::string(choicesHere) + " > " + choicesThere);
        folder = there;
        assign(choicesThere);
        folder = here;
        assign(choicesHere);
        const std::string before = places();
        const bool wasAssigned = hasAssignedTargetZone(*pic, *folder);
        moveTimeZoneInfosForPic(*pic, *here, *there);
        EXPECT_TRUE(here->sourceTimeZones.ofItems.empty() && here->targetTimeZones.ofItems.empty());
        folder = there;
        EXPECT_EQ(choices(), after);
        EXPECT_EQ(places(), before);
        EXPECT_TRUE(!wasAssigned || hasAssignedTargetZone(*pic, *folder));
    }
    assign("- - Tokyo UTC");
    here->isEXIFIgnored = true;
    moveTimeZoneInfosForPic(*pic, *there, *here);
    EXPECT_TRUE(here->sourceTimeZones.ofItems.empty() && here->targetTimeZones.ofItems.empty());
}

TEST_F(ZoneChoices, OfAFolderAreAChangeUnlessTheyMeanTheSystemsZone) {
    const std::tuple<const char *, bool, const char *> rows[] = {
        {"- - - -", false, "Berlin Berlin"},
        {"system folder - -", false, "Berlin Berlin"},
        {"Berlin same - left", false, "Berlin Berlin"},
        {"- system system system", false, "Berlin Berlin"},
        {"- folder - -", false, "Berlin Berlin"},
        {"Tokyo folder - -", true, "Tokyo Tokyo"},
        {"- UTC - -", true, "Berlin UTC"},
        {"Tokyo system - -", true, "Tokyo Tokyo"},
        {"- - Lima -", true, "Berlin Berlin"},
        {"system system - Lima", true, "Berlin Berlin"},
    };
    for (const auto &[choices, isAffected, defaults] : rows) {
        SCOPED_TRACE(choices);
        assign(choices);
        EXPECT_EQ(isFolderAffectedByTZC(*folder, zones), isAffected);
        const TimeZoneDefaults ofFolder = changedTimeZoneDefaults(*folder, zones);
        EXPECT_EQ(word(ZoneChoice::named(ofFolder.source)) + ' ' +
                      word(ZoneChoice::named(ofFolder.target)),
                  defaults);
        // Only a choice of its own can differ from the folder's and from the system's zone.
        EXPECT_EQ(hasAnyTimeZoneChangeForPic(*pic, *folder, zones, &ofFolder),
                  std::string(choices).find("Lima") != std::string::npos);
    }
    assign("system - - -");
    EXPECT_EQ(changedSourceTimeZoneForAllPics(*folder), nullptr);
    assign("Tokyo - - -");
    EXPECT_EQ(*changedSourceTimeZoneForAllPics(*folder), zone("Asia/Tokyo"));
}

TEST_F(ZoneChoices, AreStoredByNameAndPositionAndDamageCostsOnlyItself) {
    const auto second = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    const auto jpeg = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    folder->sourceTimeZones.ofItems.emplace(jpeg->sessionUniqueId, *choice("Tokyo"));
    makeDependent(jpeg, second);
    for (const auto &[name, known] : choiceWords()) {
        if (!known || known->is(ZoneChoice::Kind::Multiple))
            continue;
        folder->sourceTimeZones.folderDefault = known;
        addPicWithZone(*pic, *known, folder->sourceTimeZones);
        const SavedTimeZones saved = saveableTimeZones(folder->sourceTimeZones, *folder);
        const ZoneAssignments loaded = timeZonesFromSavedData(saved, *folder, zones);
        EXPECT_EQ(loaded.folderDefault, known) << name;
        EXPECT_EQ(*choiceForPicIgnoringDefault(*pic, loaded), *known) << name;
        EXPECT_EQ(*choiceForPicIgnoringDefault(*jpeg, loaded), *choice("Tokyo")) << name;
    }
    const SavedTimeZones damaged{"Mars/Olympus",
                                 {{"Asia/Tokyo", {-1, 0, 2, 1LL << 40}},
                                  {"_DEFAULT", {1}},
                                  {"_MULTIPLE", {1}},
                                  {"", {1}},
                                  {"_UNCHANGED_LEFT", {0, 1}}}};
    folder->sourceTimeZones = timeZonesFromSavedData(damaged, *folder, zones);
    EXPECT_EQ(choices(), "- - Tokyo -");
    EXPECT_EQ(*choiceForPic(*jpeg, folder->sourceTimeZones), *choice("left"));
    EXPECT_EQ(folder->sourceTimeZones.ofItems.size(), 2U);
    EXPECT_EQ(timeZonesFromSavedData({"_MULTIPLE", {}}, *folder, zones).folderDefault,
              std::nullopt);
}

} // namespace
} // namespace chronomender
