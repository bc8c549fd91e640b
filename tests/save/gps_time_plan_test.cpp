// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

#include "GpsTimePlan.h"

namespace chronomender {
namespace {

using namespace little;
using Rationals = std::vector<Rational>;

class GpsTimePlan : public SaveTest {
protected:
    /// A photo taken at 05:08:09 UTC whose GPS tells these stamps.
    static PhotoFields fieldsWith(const Rationals &time, std::optional<std::string> date,
                                  Endian endian) {
        PhotoFields fields{
            .endian = endian, .original = "2024:05:06 07:08:09", .location = PhotoLocation{}};
        fields.location->time = time;
        fields.location->date = std::move(date);
        return fields;
    }
    static std::string bytesOf(const Rationals &time, Endian endian) {
        std::string bytes;
        for (const auto &[numerator, denominator] : time)
            bytes += number(numerator, 4, endian) + number(denominator, 4, endian);
        return bytes;
    }
};

TEST_F(GpsTimePlan, MovesWithTheShiftAndKeepsDenominatorsAndFractions) {
    const Rationals whole{{5, 1}, {8, 1}, {9, 1}};
    const struct {
        const char *name;
        Rationals before;
        absl::Duration shift;
        Rationals after;
        const char *dateAfter;
    } cases[] = {
        {"plain", whole, absl::Seconds(3661), {{6, 1}, {9, 1}, {10, 1}}, "2024:05:06"},
        {"denominators",
         {{50, 10}, {800, 100}, {9000, 1000}},
         absl::Seconds(3661),
         {{60, 10}, {900, 100}, {10000, 1000}},
         "2024:05:06"},
        {"fraction",
         {{5, 1}, {8, 1}, {9123, 1000}},
         absl::Seconds(3661),
         {{6, 1}, {9, 1}, {10123, 1000}},
         "2024:05:06"},
        {"over midnight", whole, absl::Hours(-6), {{23, 1}, {8, 1}, {9, 1}}, "2024:05:05"},
        {"whole day", whole, absl::Hours(24), whole, "2024:05:07"},
        {"zero denominator",
         {{5, 1}, {8, 1}, {9, 0}},
         absl::Hours(1),
         {{5, 1}, {8, 1}, {9, 0}},
         "2024:05:06"},
        {"fraction of an hour",
         {{51, 10}, {2, 1}, {9, 1}},
         absl::Hours(1),
         {{51, 10}, {2, 1}, {9, 1}},
         "2024:05:06"},
        {"fraction of a minute",
         {{5, 1}, {815, 100}, {0, 1}},
         absl::Hours(24),
         {{5, 1}, {815, 100}, {0, 1}},
         "2024:05:06"},
        {"too large a denominator",
         {{5, 1}, {8, 1}, {0, 4'000'000'000}},
         absl::Seconds(9),
         {{5, 1}, {8, 1}, {0, 4'000'000'000}},
         "2024:05:06"},
    };
    for (const Endian endian : {Endian::Intel, Endian::Motorola})
        for (const auto &each : cases) {
            const BuiltPhoto built = importPhoto(fieldsWith(each.before, "2024:05:06", endian));
            shift(each.shift);
            EXPECT_THAT(results(session.save()), testing::ElementsAre(ItemResult::Saved));
            EXPECT_EQ(at(built, "GPSTimeStamp", 24), bytesOf(each.after, endian)) << each.name;
            EXPECT_EQ(at(built, "GPSDateStamp", 11), std::string(each.dateAfter) + '\0')
                << each.name;
            expectModelIsWhatAFreshImportShows();
        }
}

TEST_F(GpsTimePlan, FollowsThePreferences) {
    const Rationals before{{3, 1}, {0, 1}, {0, 1}};
    const struct {
        const char *sync, *type;
        EditMode mode;
        Rationals after;
    } cases[] = {
        {"0", "1", EditMode::Together, before},
        {"1", "1", EditMode::Together, {{4, 1}, {0, 1}, {0, 1}}},
        {"1", "1", EditMode::Single, {{4, 1}, {0, 1}, {0, 1}}},
        {"1", "0", EditMode::Together, {{6, 1}, {8, 1}, {9, 1}}},
    };
    for (const auto &each : cases) {
        session.defaults.setForThisRun("syncGPSDataOnSave", each.sync);
        session.defaults.setForThisRun("syncGPSDataOnSaveType", each.type);
        session.folder().sfEditMode = each.mode;
        const BuiltPhoto built = importPhoto(fieldsWith(before, "2024:05:06", Endian::Intel));
        if (each.mode == EditMode::Single)
            updateSinglePicModificationBy(session.item("a.jpg"), absl::Hours(1));
        else
            shift(absl::Hours(1));
        session.save();
        EXPECT_EQ(at(built, "GPSTimeStamp", 24), bytesOf(each.after, Endian::Intel))
            << each.sync << each.type;
        EXPECT_EQ(stampAt(built, "ExifDateTimeOriginal"), "2024:05:06 08:08:09");
    }
}

TEST_F(GpsTimePlan, LoneTimeIsWritten) {
    const BuiltPhoto built =
        importPhoto(fieldsWith({{5, 1}, {8, 1}, {9, 1}}, std::nullopt, Endian::Intel));
    shift(absl::Hours(1));
    session.save();
    EXPECT_EQ(at(built, "GPSTimeStamp", 24), bytesOf({{6, 1}, {8, 1}, {9, 1}}, Endian::Intel));
    expectModelIsWhatAFreshImportShows();
}

TEST_F(GpsTimePlan, FieldWithoutRoomKeepsBothStampsAsTheyAre) {
    for (const bool isTimeShort : {true, false}) {
        importPhoto();
        MySinglePic &pic = session.item("a.jpg");
        auto &attributes = pic.singlePicAttributes;
        attributes.gpsTimeStamp->value.room = isTimeShort ? 16 : 24;
        attributes.gpsDateStamp->room = isTimeShort ? 11 : 10;
        std::vector<ValuePatch> patches;
        EXPECT_FALSE(planGpsStamps(pic, utc(2024, 5, 7, 1), patches));
        EXPECT_TRUE(patches.empty());
    }
}

} // namespace
} // namespace chronomender
