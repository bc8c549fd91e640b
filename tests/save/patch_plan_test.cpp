// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;

constexpr std::uint16_t tagOriginal = 36867, tagDigitized = 36868, tagZoneOriginal = 36881;
constexpr const char *stamp = "2024:05:06 07:08:09";

/// What is and what is not written, value by value. Photos are TIFF files built tag by tag.
class PatchPlanTest : public SaveTest {
protected:
    void importTiff(BuiltTiff tiff) {
        built = std::move(tiff);
        session.write("a.tif", built.bytes);
        session.folder().sfEditMode = EditMode::Together;
        session.import();
    }
    /// The file has another text at the place of a tag, and no other byte has changed.
    void expectOnly(const std::map<std::uint16_t, std::string> &values) const {
        std::string bytes = built.bytes;
        for (const auto &[tag, after] : values)
            bytes.replace(built.at(Directory::Exif, tag), after.size(), after);
        EXPECT_EQ(content("a.tif"), bytes);
    }

    BuiltTiff built;
};

TEST_F(PatchPlanTest, ZoneFieldIsWrittenInItsRoomOrNotAtAll) {
    // Some cameras declare six bytes and put another value right behind them.
    const auto importZone = [&](std::uint32_t declared, const std::string &bytes) {
        importTiff(Tiff()
                       .text(Directory::Exif, tagOriginal, stamp)
                       .value(Directory::Exif, tagZoneOriginal, 2, declared, bytes)
                       .build());
        targetZone("Asia/Tokyo");
        shift(absl::Hours(1));
    };
    importZone(6, "+02:00\x2A\x07");
    saves();
    expectOnly({{tagOriginal, "2024:05:06 15:08:09"}, {tagZoneOriginal, "+09:00"}});
    session.files.updateOpens = 0;
    session.folder().sourceTimeZones = {};
    importZone(5, std::string("+02:00\0\0", 8));
    refuses(SaveErrorId::NotWrittenUnreadableBack, "saveObstacle_noRoom");
    expectOnly({});
    EXPECT_EQ(session.files.updateOpens, 0);
}

TEST_F(PatchPlanTest, ValueThatSaysTheWantedAlreadyStaysAsItIsWritten) {
    session.zones.setSystemZone(Zones::utc());
    // The digitized date is kept, and its blanks in place of zeros stay.
    const BuiltPhoto photo = importPhoto(
        {.original = stamp, .digitized = "2024: 7: 6  7:08:09", .zoneOriginal = "-00:00"});
    targetZone("UTC");
    shift(absl::Hours(1));
    session.save();
    EXPECT_EQ(content(), replaced(photo, {{"ExifDateTimeOriginal", "2024:05:06 08:08:09"}}));
}

TEST_F(PatchPlanTest, ShortStampIsWrittenOnlyWithRoomForAllOfIt) {
    for (const std::uint32_t declared : {20U, 19U, 18U}) {
        importTiff(Tiff()
                       .value(Directory::Exif, tagOriginal, 2, declared,
                              std::string("2024:05:06 07:08:\0\0\0", 20))
                       .text(Directory::Exif, tagZoneOriginal, "+02:00")
                       .build());
        keepOwnZones();
        shift(absl::Hours(1));
        const bool isWritten = declared >= 19;
        EXPECT_EQ(session.save().items.at(0).result == ItemResult::Saved, isWritten) << declared;
        expectOnly({{tagOriginal, isWritten ? "2024:05:06 08:08:00" : ""}});
    }
}

TEST_F(PatchPlanTest, OtherStampWithoutRoomIsRefusedAndTheRestIsWritten) {
    importTiff(Tiff()
                   .text(Directory::Exif, tagOriginal, stamp)
                   .text(Directory::Exif, tagDigitized, stamp, 12)
                   .build());
    shift(absl::Hours(1));
    const SaveRunResult run = session.save();
    EXPECT_THAT(results(run), ElementsAre(ItemResult::Saved));
    EXPECT_EQ(slotResult(run.items[0], "exifDateTimeDigitized"), SlotResult::Refused);
    EXPECT_EQ(run.items[0].slots.at(1).reasonKey, "saveObstacle_noRoom");
    expectOnly({{tagOriginal, "2024:05:06 08:08:09"}});
}

TEST_F(PatchPlanTest, TagsThatShareTheirBytesMustAgree) {
    for (const bool doAgree : {true, false}) {
        BuiltTiff tiff = Tiff()
                             .text(Directory::Exif, tagOriginal, stamp)
                             .text(Directory::Exif, tagDigitized, stamp)
                             .build();
        const auto entry = [&](std::uint16_t tag) {
            return tiff.entries.at({Directory::Exif, tag}) + 8;
        };
        tiff.bytes.replace(entry(tagDigitized), 4, tiff.bytes.substr(entry(tagOriginal), 4));
        importTiff(tiff);
        session.defaults.setForThisRun("dateChangeEXIFEXIFDigiDateUnchangedOption",
                                       doAgree ? "1" : "0");
        shift(absl::Hours(-1)); // where the digitized date is kept it stays behind
        if (doAgree)
            session.save();
        else
            refuses(SaveErrorId::NotWrittenUnreadableBack, "saveObstacle_valuesCollide");
        expectOnly({{tagOriginal, doAgree ? "2024:05:06 06:08:09" : ""}});
    }
}

TEST_F(PatchPlanTest, OwnZonesKeepEachStampsOffset) {
    shiftAllSlotsAlike();
    const BuiltPhoto photo = importPhoto({.original = stamp,
                                          .digitized = stamp,
                                          .modified = stamp,
                                          .zoneOriginal = "+05:45",
                                          .zoneModified = "-03:30"});
    keepOwnZones();
    shift(absl::Milliseconds(3'599'500)); // a fraction of a second is cut, and the model knows
    saves();
    EXPECT_EQ(content(), replaced(photo, {{"ExifDateTimeOriginal", "2024:05:06 08:08:08"},
                                          {"ExifDateTimeDigitized", "2024:05:06 08:08:08"},
                                          {"TIFFDateTime", "2024:05:06 08:08:08"}}));
}

TEST_F(PatchPlanTest, DateThatNoStampCanSayIsAnErrorOfTheItem) {
    const struct {
        const char *zone, *original;
        absl::Duration shift;
    } table[] = {
        {"UTC", "9999:12:31 23:00:00", absl::Hours(2)},
        {"Europe/Paris", "1911:01:01 12:00:00", absl::Hours(-24 * 365)}, // offset with seconds
    };
    for (const auto &row : table) {
        session.folder().sfEditMode = EditMode::Together;
        const BuiltPhoto photo = importPhoto({.original = row.original, .zoneOriginal = "+00:00"});
        targetZone(row.zone);
        shift(row.shift);
        refuses(SaveErrorId::NotWrittenUnreadableBack, "saveObstacle_unreadableBack");
        EXPECT_EQ(content(), photo.bytes);
    }
}

} // namespace
} // namespace chronomender
