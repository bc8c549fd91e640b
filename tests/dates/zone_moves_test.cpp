// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneSteps.h"

namespace chronomender {
namespace {

using namespace little;

class ZoneMoves : public ZonesTest {};

TEST_F(ZoneMoves, ASourceGivenAloneMakesTheTargetFollow) {
    setTZDefaultsSource(*folder, *choice("Asia/Tokyo"), true);
    EXPECT_EQ(choices(), "Asia/Tokyo _UNCHANGED_LEFT_FOLDER - -");
    EXPECT_EQ(target(), "Asia/Tokyo");
    setTZDefaultsSource(*folder, *choice("UTC"), false); // acts only while nothing is assigned
    EXPECT_EQ(source(), "Asia/Tokyo");
    folder = makeFolder();
    setTZDefaultsSource(*folder, *choice("Asia/Tokyo"), false);
    EXPECT_EQ(choices(), "Asia/Tokyo - - -");
}

/// A save of the photo: the choices before, after the item was written, and after the folder was
/// cleaned up.
struct SaveRow {
    const char *source, *target, *ownSource, *ownTarget;
    bool didDiffer;
    const char *afterItem, *afterFolder;
};

const SaveRow saveRows[] = {
    {"", "", "", "", false, "- - - -", "- - - -"},
    {"Asia/Tokyo", "", "", "", true, "Asia/Tokyo - - -", "- - - -"},
    {"Asia/Tokyo", "UTC", "", "", true, "Asia/Tokyo UTC - -", "UTC _UNCHANGED_LEFT_FOLDER - -"},
    {"Asia/Tokyo", "UTC", "America/Lima", "", true, "Asia/Tokyo UTC - -",
     "UTC _UNCHANGED_LEFT_FOLDER - -"},
    {"Asia/Tokyo", "UTC", "", "America/Lima", true, "Asia/Tokyo UTC America/Lima _UNCHANGED_LEFT",
     "UTC _UNCHANGED_LEFT_FOLDER America/Lima _UNCHANGED_LEFT"},
    {"Asia/Tokyo", "UTC", "", "_UNCHANGED_LEFT", false, "Asia/Tokyo UTC Asia/Tokyo _UNCHANGED_LEFT",
     "UTC _UNCHANGED_LEFT_FOLDER Asia/Tokyo _UNCHANGED_LEFT"},
    {"", "UTC", "", "_UNCHANGED_LEFT", false, "- UTC _SYSTEM _UNCHANGED_LEFT",
     "UTC _UNCHANGED_LEFT_FOLDER _SYSTEM _UNCHANGED_LEFT"},
    {"Asia/Tokyo", "_UNCHANGED_LEFT_FOLDER", "", "", false, "Asia/Tokyo _UNCHANGED_LEFT_FOLDER - -",
     "Asia/Tokyo _UNCHANGED_LEFT_FOLDER - -"},
    {"Asia/Tokyo", "_UNCHANGED_LEFT_FOLDER", "America/Lima", "", true,
     "Asia/Tokyo _UNCHANGED_LEFT_FOLDER - -", "Asia/Tokyo _UNCHANGED_LEFT_FOLDER - -"},
    {"Asia/Tokyo", "_SYSTEM", "", "", true, "Asia/Tokyo _SYSTEM - -",
     "_SYSTEM _UNCHANGED_LEFT_FOLDER - -"},
    // Targets that follow each item's source move nothing.
    {"Asia/Tokyo", "_OWN", "America/Lima", "", false, "Asia/Tokyo _OWN America/Lima -",
     "Asia/Tokyo _OWN America/Lima -"},
    {"Asia/Tokyo", "_UNCHANGED", "America/Lima", "", false, "Asia/Tokyo _UNCHANGED America/Lima -",
     "Asia/Tokyo _UNCHANGED America/Lima -"},
};

TEST_F(ZoneMoves, ASaveMovesTheTargetToTheSource) {
    for (const SaveRow &row : saveRows) {
        assign(row.source, row.target, row.ownSource, row.ownTarget);
        SCOPED_TRACE(choices());
        const std::string written = target();
        EXPECT_EQ(updateSourceTimeZoneFromTargetTimeZoneForPic(*pic, *folder, zones),
                  row.didDiffer);
        EXPECT_EQ(choices(), row.afterItem);
        cleanupTimeZones(*folder);
        EXPECT_EQ(choices(), row.afterFolder);
        // What was written is what the next reading assumes, and what the next save writes.
        EXPECT_EQ(source(), written);
        EXPECT_EQ(target(), written);
        validateTZCUnsaved(*folder, zones);
        EXPECT_FALSE(pic->zones.isUnsavedDueToTZC);
    }
}

TEST_F(ZoneMoves, AFailedItemKeepsItsZonesWhenTheFolderMovesOn) {
    const struct {
        const char *source, *target, *ownSource, *ownTarget;
    } rows[] = {
        {"Asia/Tokyo", "UTC", "", ""},
        {"", "UTC", "", ""},
        {"Asia/Tokyo", "", "", ""},
        {"Asia/Tokyo", "UTC", "America/Lima", ""},
        {"Asia/Tokyo", "UTC", "", "_UNCHANGED_LEFT"},
        {"Asia/Tokyo", "_UNCHANGED_LEFT_FOLDER", "", ""},
        {"Asia/Tokyo", "_OWN", "", ""},
        {"", "", "", ""},
    };
    for (const auto &row : rows) {
        assign(row.source, row.target, row.ownSource, row.ownTarget);
        SCOPED_TRACE(choices());
        const std::string sourceBefore = source(), targetBefore = target();
        updateSelectionZonesForTimeErrorFiles(*folder, {pic});
        cleanupTimeZones(*folder);
        EXPECT_EQ(source(), sourceBefore);
        EXPECT_EQ(target(), targetBefore);
    }
}

TEST_F(ZoneMoves, ALeftOutItemThatStaysKeepsItsOldSource) {
    assign("Asia/Tokyo", "UTC", "", "_UNCHANGED_LEFT");
    updateSelectionZonesForUnchangedFiles(*folder, {pic});
    cleanupTimeZones(*folder);
    EXPECT_EQ(source(), "Asia/Tokyo");
    EXPECT_EQ(target(), "Asia/Tokyo");
}

TEST_F(ZoneMoves, AnItemIsUnsavedWhereSourceAndTargetDiffer) {
    const struct {
        const char *source, *target, *ownSource, *ownTarget;
        bool isUnsaved;
    } rows[] = {
        {"", "", "", "", false},
        {"Asia/Tokyo", "", "", "", true},
        {"Asia/Tokyo", "UTC", "", "", true},
        {"Europe/Berlin", "_SYSTEM", "", "", false},
        {"", "Europe/Berlin", "", "", false},
        {"Asia/Tokyo", "Asia/Tokyo", "", "", false},
        {"Asia/Tokyo", "UTC", "", "_UNCHANGED_LEFT", false},
        {"Asia/Tokyo", "_UNCHANGED_LEFT_FOLDER", "", "", false},
        {"Asia/Tokyo", "_UNCHANGED_LEFT_FOLDER", "UTC", "", true},
        {"Asia/Tokyo", "_OWN", "", "", false},
        {"Asia/Tokyo", "_UNCHANGED", "UTC", "", false},
    };
    const auto jpeg = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    makeDependent(jpeg, pic);
    for (const auto &row : rows) {
        assign(row.source, row.target, row.ownSource, row.ownTarget);
        SCOPED_TRACE(choices());
        validateTZCUnsaved(*folder, zones);
        EXPECT_EQ(pic->zones.isUnsavedDueToTZC, row.isUnsaved);
        EXPECT_EQ(jpeg->zones.isUnsavedDueToTZC, row.isUnsaved);
        EXPECT_EQ(folder->isUnsavedDueToTZC, row.isUnsaved);
    }
}

TEST_F(ZoneMoves, OnlyItemsWithStampsCanBeUnsavedByAZone) {
    assign("Asia/Tokyo", "UTC");
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

} // namespace
} // namespace chronomender
