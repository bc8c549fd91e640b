// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint16_t tagOriginal = 36867, tagDigitized = 36868, tagZoneOriginal = 36881;

/// What is and what is not written, value by value. Photos are TIFF files built tag by tag.
class PatchPlanTest : public SaveTest {
protected:
    BuiltTiff importTiff(const Tiff &tiff) {
        BuiltTiff built = tiff.build();
        session.write("a.tif", built.bytes);
        session.import();
        return built;
    }
    std::string tiffContent() const { return content("a.tif"); }
    static std::string replacedAt(std::string bytes, std::size_t offset, std::string_view after) {
        return bytes.replace(offset, after.size(), after);
    }
};

TEST_F(PatchPlanTest, ZoneFieldOfSixBytesLeavesWhatStandsBehindIt) {
    // Some cameras declare six bytes and put another value right behind them.
    const BuiltTiff built = importTiff(
        Tiff()
            .text(Directory::Exif, tagOriginal, "2024:05:06 07:08:09")
            .value(Directory::Exif, tagZoneOriginal, 2, 6, std::string("+02:00") + "\x2A\x07"));
    targetZone("Asia/Tokyo");
    shift(absl::Hours(1));
    EXPECT_THAT(results(session.save()), ElementsAre(ItemResult::Saved));
    std::string expected =
        replacedAt(built.bytes, built.at(Directory::Exif, tagOriginal), "2024:05:06 15:08:09");
    expected = replacedAt(expected, built.at(Directory::Exif, tagZoneOriginal), "+09:00");
    EXPECT_EQ(tiffContent(), expected);
}

TEST_F(PatchPlanTest, ZoneFieldWithoutRoomKeepsItsStampFromBeingWritten) {
    const BuiltTiff built = importTiff(
        Tiff()
            .text(Directory::Exif, tagOriginal, "2024:05:06 07:08:09")
            .value(Directory::Exif, tagZoneOriginal, 2, 5, std::string("+02:00\0\0", 8)));
    targetZone("Asia/Tokyo");
    shift(absl::Hours(1));
    const SaveRunResult run = session.save();
    EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotWrittenUnreadableBack));
    EXPECT_EQ(run.errors[0].systemText, text("saveObstacle_noRoom"));
    EXPECT_EQ(tiffContent(), built.bytes);
    EXPECT_EQ(session.files.updateOpens, 0);
}

TEST_F(PatchPlanTest, KeepsAColonBetweenDateAndTime) {
    const BuiltPhoto built = importPhoto({.original = "2024:05:06:07:08:09"});
    shift(absl::Hours(1));
    session.save();
    EXPECT_EQ(stampAt(built, "ExifDateTimeOriginal"), "2024:05:06:08:08:09");
    expectModelIsWhatAFreshImportShows();
}

TEST_F(PatchPlanTest, ValueThatSaysTheWantedAlreadyStaysAsItIsWritten) {
    session.zones.setSystemZone(Zones::utc());
    // The digitized date is kept, and its blanks in place of zeros stay.
    const BuiltPhoto built = importPhoto({.original = "2024:05:06 07:08:09",
                                          .digitized = "2024: 7: 6  7:08:09",
                                          .zoneOriginal = "-00:00"});
    targetZone("UTC");
    shift(absl::Hours(1));
    session.save();
    EXPECT_EQ(content(), replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 08:08:09"}}));
}

TEST_F(PatchPlanTest, ShortStampIsWrittenOnlyWithRoomForAllOfIt) {
    const std::string zeros(3, '\0');
    const struct {
        std::uint32_t declared;
        ItemResult expected;
    } cases[] = {{20, ItemResult::Saved}, {19, ItemResult::Saved}, {18, ItemResult::Unchanged}};
    for (const auto &each : cases) {
        const BuiltTiff built = importTiff(
            Tiff()
                .value(Directory::Exif, tagOriginal, 2, each.declared, "2024:05:06 07:08:" + zeros)
                .text(Directory::Exif, tagZoneOriginal, "+02:00"));
        session.item("a.tif").findings.clear();
        keepOwnZones();
        shift(absl::Hours(1));
        const SaveRunResult run = session.save();
        const bool isWritten = each.expected == ItemResult::Saved;
        ASSERT_EQ(run.items.size(), 1U) << each.declared;
        EXPECT_EQ(run.items[0].result == ItemResult::Saved, isWritten) << each.declared;
        EXPECT_EQ(tiffContent(),
                  isWritten ? replacedAt(built.bytes, built.at(Directory::Exif, tagOriginal),
                                         "2024:05:06 08:08:00")
                            : built.bytes)
            << each.declared;
    }
}

TEST_F(PatchPlanTest, OtherStampWithoutRoomIsRefusedAndTheRestIsWritten) {
    const BuiltTiff built =
        importTiff(Tiff()
                       .text(Directory::Exif, tagOriginal, "2024:05:06 07:08:09")
                       .text(Directory::Exif, tagDigitized, "2024:05:06 07:08:09", 12));
    shift(absl::Hours(1));
    const SaveRunResult run = session.save();
    EXPECT_THAT(results(run), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(slotResult(run.items[0], "exifDateTimeDigitized"), SlotResult::Refused);
    EXPECT_EQ(tiffContent(), replacedAt(built.bytes, built.at(Directory::Exif, tagOriginal),
                                        "2024:05:06 08:08:09"));
}

TEST_F(PatchPlanTest, TagsThatShareTheirBytesMustAgree) {
    for (const bool doAgree : {true, false}) {
        Tiff tiff;
        tiff.text(Directory::Exif, tagOriginal, "2024:05:06 07:08:09")
            .text(Directory::Exif, tagDigitized, "2024:05:06 07:08:09");
        BuiltTiff built = tiff.build();
        const auto entry = [&](std::uint16_t tag) {
            return built.entries.at({Directory::Exif, tag}) + 8;
        };
        built.bytes.replace(entry(tagDigitized), 4, built.bytes.substr(entry(tagOriginal), 4));
        session.write("a.tif", built.bytes);
        session.import();
        session.defaults.setForThisRun("dateChangeEXIFEXIFDigiDateUnchangedOption",
                                       doAgree ? "1" : "0");
        shift(absl::Hours(-1)); // where the digitized date is kept it stays behind
        const SaveRunResult run = session.save();
        if (doAgree) {
            EXPECT_EQ(tiffContent(), replacedAt(built.bytes, built.at(Directory::Exif, tagOriginal),
                                                "2024:05:06 06:08:09"));
        } else {
            EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotWrittenUnreadableBack));
            EXPECT_EQ(run.errors[0].systemText, text("saveObstacle_valuesCollide"));
            EXPECT_EQ(tiffContent(), built.bytes);
        }
    }
}

TEST_F(PatchPlanTest, WallClockAndZoneStampChangeTogether) {
    const BuiltPhoto built = importPhoto({.original = "2024:05:06 23:30:00",
                                          .modified = "2024:05:06 23:30:00",
                                          .zoneOriginal = "+02:00"});
    targetZone("America/St_Johns");
    session.item("a.jpg").zones.isUnsavedDueToTZC = true;
    session.save();
    EXPECT_EQ(content(), replaced(built, {{"ExifDateTimeOriginal", "2024:05:06 19:00:00"},
                                          {"ExifOffsetTimeOriginal", "-02:30"},
                                          {"TIFFDateTime", "2024:05:06 19:00:00"}}));
    expectModelIsWhatAFreshImportShows();
}

TEST_F(PatchPlanTest, OwnZonesKeepEachStampsOffset) {
    PhotoFields fields{.original = "2024:05:06 07:08:09",
                       .digitized = "2024:05:06 07:08:09",
                       .modified = "2024:05:06 07:08:09",
                       .zoneOriginal = "+05:45",
                       .zoneModified = "-03:30"};
    shiftAllSlotsAlike();
    const BuiltPhoto built = importPhoto(fields);
    session.defaults.setForThisRun("dateChangeEXIFEXIFDigiDate", "3");
    keepOwnZones();
    shift(absl::Hours(1));
    EXPECT_THAT(session.save().errors, IsEmpty());
    EXPECT_EQ(stampAt(built, "ExifDateTimeOriginal"), "2024:05:06 08:08:09");
    EXPECT_EQ(stampAt(built, "ExifDateTimeDigitized"), "2024:05:06 08:08:09");
    EXPECT_EQ(stampAt(built, "TIFFDateTime"), "2024:05:06 08:08:09");
    EXPECT_EQ(at(built, "ExifOffsetTimeOriginal", 6), "+05:45");
}

TEST_F(PatchPlanTest, DateThatNoStampCanSayIsAnErrorOfTheItem) {
    const struct {
        const char *name, *zone, *original;
        absl::Duration shift;
    } cases[] = {
        {"beyond the year 9999", "UTC", "9999:12:31 23:00:00", absl::Hours(2)},
        {"offset with seconds", "Europe/Paris", "1911:01:01 12:00:00", absl::Hours(-24 * 365)},
    };
    for (const auto &each : cases) {
        const BuiltPhoto built = importPhoto({.original = each.original, .zoneOriginal = "+00:00"});
        targetZone(each.zone);
        shift(each.shift);
        const SaveRunResult run = session.save();
        EXPECT_THAT(ids(run), ElementsAre(SaveErrorId::NotWrittenUnreadableBack)) << each.name;
        EXPECT_EQ(run.errors[0].systemText, text("saveObstacle_unreadableBack"));
        EXPECT_EQ(content(), built.bytes);
        session.folder().sfEditMode = EditMode::Together;
    }
}

TEST_F(PatchPlanTest, FractionOfASecondIsCutAndTheModelKnows) {
    const BuiltPhoto built = importPhoto({.original = "2024:05:06 07:08:09"});
    shift(absl::Milliseconds(-500));
    session.save();
    EXPECT_EQ(stampAt(built, "ExifDateTimeOriginal"), "2024:05:06 07:08:08");
    expectModelIsWhatAFreshImportShows();
}

} // namespace
} // namespace chronomender
