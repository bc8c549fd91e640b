// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneSteps.h"

namespace chronomender {
namespace {

using namespace little;

class ZoneLookup : public ZonesTest {};

TEST_F(ZoneLookup, OwnChoicesGoBeforeTheFoldersAndMarkersSayWhereToLook) {
    const struct {
        const char *source, *target, *ownSource, *ownTarget;
        const char *sourceZone, *targetZone;
    } rows[] = {
        {"", "", "", "", "Europe/Berlin", "Europe/Berlin"},
        {"Asia/Tokyo", "", "", "", "Asia/Tokyo", "Europe/Berlin"},
        {"_SYSTEM", "_SYSTEM", "", "", "Europe/Berlin", "Europe/Berlin"},
        {"Asia/Tokyo", "_UNCHANGED_LEFT_FOLDER", "", "", "Asia/Tokyo", "Asia/Tokyo"},
        {"", "_UNCHANGED_LEFT_FOLDER", "", "", "Europe/Berlin", "Europe/Berlin"},
        {"_SYSTEM", "_UNCHANGED_LEFT_FOLDER", "Asia/Tokyo", "", "Asia/Tokyo", "Europe/Berlin"},
        {"Asia/Tokyo", "_UNCHANGED", "America/Lima", "", "America/Lima", "America/Lima"},
        {"Asia/Tokyo", "_OWN", "", "", "Asia/Tokyo", "Asia/Tokyo"},
        {"Asia/Tokyo", "UTC", "", "", "Asia/Tokyo", "UTC"},
        {"Asia/Tokyo", "UTC", "America/Lima", "", "America/Lima", "UTC"},
        {"Asia/Tokyo", "UTC", "", "_UNCHANGED_LEFT", "Asia/Tokyo", "Asia/Tokyo"},
        {"Asia/Tokyo", "UTC", "America/Lima", "_UNCHANGED_LEFT", "America/Lima", "America/Lima"},
        {"Asia/Tokyo", "UTC", "_SYSTEM", "America/Lima", "Europe/Berlin", "America/Lima"},
        {"Asia/Tokyo", "UTC", "", "_SYSTEM", "Asia/Tokyo", "Europe/Berlin"},
    };
    for (const auto &row : rows) {
        assign(row.source, row.target, row.ownSource, row.ownTarget);
        EXPECT_EQ(source(), row.sourceZone) << choices();
        EXPECT_EQ(target(), row.targetZone) << choices();
    }
}

TEST_F(ZoneLookup, AFolderWithoutChoicesFollowsTheSystem) {
    zones.setSystemZone(zone("Asia/Kathmandu"));
    EXPECT_EQ(source(), "Asia/Kathmandu");
    EXPECT_EQ(target(), "Asia/Kathmandu");
    EXPECT_FALSE(hasAnyTimeZoneChangeForPic(*pic, *folder, zones));
    assign("Asia/Tokyo", "");
    EXPECT_TRUE(hasAnyTimeZoneChangeForPic(*pic, *folder, zones));
    assign("Asia/Kathmandu", "_UNCHANGED");
    EXPECT_FALSE(hasAnyTimeZoneChangeForPic(*pic, *folder, zones));
}

TEST_F(ZoneLookup, BothSidesOfAGroupShareOneChoice) {
    const auto jpeg = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
    folder->sourceTimeZones.ofItems.emplace(jpeg->sessionUniqueId, *choice("Asia/Tokyo"));
    makeDependent(jpeg, pic);
    EXPECT_EQ(source(), "Asia/Tokyo"); // the set holds only the dependent
    addPicWithZone(*jpeg, *choice("UTC"), folder->sourceTimeZones);
    EXPECT_EQ(sourceTimeZoneForPic(*jpeg, *folder, zones).name, "UTC");
    EXPECT_EQ(source(), "UTC");
    EXPECT_EQ(folder->sourceTimeZones.ofItems.size(), 1U);
    removePic(*jpeg, folder->sourceTimeZones);
    EXPECT_TRUE(folder->sourceTimeZones.isEmpty());
}

TEST_F(ZoneLookup, WithOwnASlotKeepsTheOffsetOfItsZoneStamp) {
    pic->singlePicAttributes.exifOffsetTimeOriginal = located("-03:30");
    pic->singlePicAttributes.tiffOffsetTime = located("+99:00"); // cannot be read
    const auto zoneOf = [&](StampSlot slot) {
        return targetZoneForSlot(*pic, slot, *folder, zones);
    };
    for (const char *target : {"_OWN", "UTC"}) {
        const bool isOwn = target == std::string("_OWN");
        assign("Asia/Tokyo", target);
        const char *otherwise = isOwn ? "Asia/Tokyo" : "UTC";
        EXPECT_EQ(zoneOf(StampSlot::Original).name, isOwn ? "-03:30" : "UTC");
        EXPECT_EQ(zoneOf(StampSlot::Digitized).name, otherwise);
        EXPECT_EQ(zoneOf(StampSlot::Modification).name, otherwise);
    }
    assign("Asia/Tokyo", "UTC", "", "_OWN");
    EXPECT_EQ(zoneOf(StampSlot::Original).rules.At(utc(2024, 6, 1)).offset, -12600);
}

TEST_F(ZoneLookup, ATargetThatFollowsTheSourceWasChosenByNobody) {
    const struct {
        const char *target, *ownTarget;
        bool isAssigned;
    } rows[] = {
        {"", "", false},       {"_UNCHANGED_LEFT_FOLDER", "", false},
        {"UTC", "", true},     {"UTC", "_UNCHANGED_LEFT", false},
        {"_SYSTEM", "", true}, {"", "UTC", true},
        {"_OWN", "", true},    {"_UNCHANGED", "", true},
    };
    for (const auto &row : rows) {
        assign("Asia/Tokyo", row.target, "", row.ownTarget);
        EXPECT_EQ(hasAssignedTargetZone(*pic, *folder), row.isAssigned) << choices();
    }
}

} // namespace
} // namespace chronomender
