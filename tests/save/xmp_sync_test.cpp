// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittlePng.h"
#include "LittleXmp.h"
#include "SaveTest.h"
#include "ZoneLookup.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

/// A packet that tells the dates of fullPhotoFields, or the same `hours` later, each in another
/// form.
std::string packet(int hours = 0) {
    const auto day = [hours](int hour) {
        return absl::FormatTime("%Y-%m-%dT%H", utc(2024, 5, 6, hour) + absl::Hours(hours),
                                absl::UTCTimeZone());
    };
    return Xmp()
        .attribute("photoshop:DateCreated", day(7) + ":08:09+02:00")
        .attribute("exif:DateTimeOriginal", day(7) + ":08:09.25")
        .attribute("xmp:CreateDate", day(5) + ":08:10Z")
        .attribute("exif:DateTimeDigitized", day(0) + ":08:10-0500")
        .attribute("xmp:ModifyDate", day(7) + ":08+0200")
        .attribute("exif:GPSTimeStamp", day(5) + ":08:09Z")
        .end()
        .bytes();
}

std::string withPacket(std::string bytes, const std::string &before, const std::string &after) {
    return bytes.replace(bytes.find(before), before.size(), after);
}

class XmpSync : public SaveTest {
protected:
    XmpSync() { session.defaults.setForThisRun("syncXMPDataOnSave", "1"); }

    BuiltPhoto importWithPacket(BuiltPhoto (*build)(const PhotoFields &) = jpegPhoto,
                                const std::string &name = "a.jpg") {
        PhotoFields fields = fullPhotoFields();
        fields.xmp = packet();
        const BuiltPhoto built = build(fields);
        session.write(name, built.bytes);
        session.import();
        shiftAllSlotsAlike();
        keepOwnZones();
        return built;
    }
    static std::map<std::string, std::string> dayLater() {
        return {{"ExifDateTimeOriginal", "2024:05:07 08:08:09"},
                {"ExifDateTimeDigitized", "2024:05:07 08:08:10"},
                {"TIFFDateTime", "2024:05:07 08:08:11"},
                {"GPSDateStamp", "2024:05:07"},
                {"GPSTimeStamp", number(6, 4, Endian::Intel)}};
    }
};

TEST_F(XmpSync, EveryDateOfThePacketFollowsInItsOwnFormAndTheFileKeepsItsDate) {
    const BuiltPhoto built = importWithPacket();
    shift(absl::Hours(25));
    saves();
    EXPECT_EQ(content(), withPacket(replaced(built, dayLater()), packet(), packet(25)));
    EXPECT_EQ(attributesOf(session.path("a.jpg")).modificationDate,
              *session.item("a.jpg").slots.tiffDateTimeOLD);
    shift(absl::Hours(-25));
    saves();
    EXPECT_EQ(content(), built.bytes);
    session.defaults.setForThisRun("syncXMPDataOnSave", "0");
    shift(absl::Hours(25));
    saves();
    EXPECT_EQ(content(), replaced(built, dayLater()));
}

TEST_F(XmpSync, OffsetsFollowAZoneThatSomebodyAssigned) {
    importWithPacket();
    targetZone("America/New_York");
    validateTZCUnsaved(session.folder(), session.zones);
    saves();
    const std::string bytes = content();
    for (const char *stamp : {"2024-05-06T01:08:09-04:00", "2024-05-06T01:08:09.25",
                              "2024-05-06T05:08:10Z", "2024-05-06T01:08:10-0400"})
        EXPECT_NE(bytes.find(stamp), std::string::npos) << stamp;
}

TEST_F(XmpSync, AnOffsetBesideAWallClockStays) {
    const std::string before = xmpWith("xmp:CreateDate", "2024-05-06T07:08:10-05:00");
    const BuiltPhoto built = importPhoto(
        {.original = "2024:05:06 07:08:09", .digitized = "2024:05:06 07:08:10", .xmp = before});
    shiftAllSlotsAlike();
    shift(absl::Hours(2));
    saves();
    EXPECT_EQ(content(),
              withPacket(replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 09:08:09"},
                                          {"ExifDateTimeDigitized", "2024:05:06 09:08:10"}}),
                         before, xmpWith("xmp:CreateDate", "2024-05-06T09:08:10-05:00")));
}

TEST_F(XmpSync, ASidecarTakesThePlaceOfThePacket) {
    const std::string sidecar = session.write("a.xmp", packet());
    const BuiltPhoto built = importWithPacket();
    shift(absl::Hours(25));
    saves();
    EXPECT_EQ(content(), replaced(built, dayLater()));
    EXPECT_EQ(fileContent(sidecar), packet(25));
}

TEST_F(XmpSync, AChunkOfAPngGetsItsChecksum) {
    importWithPacket(pngPhoto, "a.png");
    shift(absl::Hours(25));
    saves();
    PhotoFields later = fullPhotoFields();
    later.original = "2024:05:07 08:08:09";
    later.digitized = "2024:05:07 08:08:10";
    later.modified = "2024:05:07 08:08:11";
    later.location->date = "2024:05:07";
    later.location->time->front() = {6, 1};
    later.xmp = packet(25);
    EXPECT_EQ(content("a.png"), pngPhoto(later).bytes);
}

TEST_F(XmpSync, WhatTheRunDidNotSaveStaysAsItIs) {
    const std::string stale = packet(3);
    PhotoFields fields = fullPhotoFields();
    fields.xmp = stale;
    const BuiltPhoto other = session.photo("b.jpg", fields);
    const BuiltPhoto built = importWithPacket();
    session.folder().sfEditMode = EditMode::Single;
    session.item("a.jpg").shift.singlePicModification = absl::Hours(25);
    EXPECT_THAT(session.save().errors, IsEmpty());
    EXPECT_EQ(content("b.jpg"), other.bytes);
    EXPECT_EQ(content(), withPacket(replaced(built, dayLater()), packet(), packet(25)));
}

TEST_F(XmpSync, AFileThatCannotBeOpenedAgainIsToldUnderItsOwnId) {
    const BuiltPhoto built = importWithPacket();
    shift(absl::Hours(25));
    int opens = 0;
    session.files.beforeUpdateOpen = [&](const std::string &) {
        session.files.updateOpenError = opens++ == 0 ? 0 : EACCES;
    };
    const SaveRunResult run = session.save();
    EXPECT_THAT(results(run), ElementsAre(ItemResult::Saved));
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::SyncCannotBeOpened));
    EXPECT_THAT(run.items.at(0).errors, testing::SizeIs(1));
    EXPECT_EQ(content(), replaced(built, dayLater()));
}

} // namespace
} // namespace chronomender
