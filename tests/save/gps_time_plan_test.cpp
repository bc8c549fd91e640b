// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveTest.h"

#include "GpsTimePlan.h"

#include <sstream>

namespace chronomender {
namespace {

using namespace little;

class GpsTimePlan : public SaveTest {
protected:
    /// "5/1 8/1 9/1"
    static std::vector<Rational> rationals(const std::string &text) {
        std::vector<Rational> list;
        std::istringstream stream(text);
        char slash = 0;
        for (Rational each; stream >> each.first >> slash >> each.second;)
            list.push_back(each);
        return list;
    }
    /// Imports a photo taken at 05:08:09 UTC whose GPS tells these stamps; "" is no date.
    BuiltPhoto importGps(const std::string &time, const std::string &date, Endian endian) {
        PhotoFields fields{
            .endian = endian, .original = "2024:05:06 07:08:09", .location = PhotoLocation{}};
        fields.location->time = rationals(time);
        fields.location->date = date.empty() ? std::nullopt : std::optional(date);
        return importPhoto(fields);
    }
    void expectStamps(const BuiltPhoto &built, const std::string &time, const std::string &date,
                      Endian endian) {
        std::string bytes;
        for (const auto &[numerator, denominator] : rationals(time))
            bytes += number(numerator, 4, endian) + number(denominator, 4, endian);
        EXPECT_EQ(at(built, "GPSTimeStamp", 24), bytes);
        if (!date.empty()) {
            EXPECT_EQ(at(built, "GPSDateStamp", 11), date + '\0');
        }
    }
};

TEST_F(GpsTimePlan, MovesWithTheShiftAndKeepsDenominatorsAndFractions) {
    const std::string whole = "5/1 8/1 9/1", day = "2024:05:06";
    const absl::Duration hour = absl::Hours(1), later = absl::Seconds(3661);
    const struct {
        std::string name, before, date;
        absl::Duration shift;
        std::string after, dateAfter;
    } table[] = {
        {"plain", whole, day, later, "6/1 9/1 10/1", day},
        {"no date", whole, "", later, "6/1 9/1 10/1", ""},
        {"denominators", "50/10 800/100 9000/1000", day, later, "60/10 900/100 10000/1000", day},
        {"fraction", "5/1 8/1 9123/1000", day, later, "6/1 9/1 10123/1000", day},
        {"over midnight", whole, day, -6 * hour, "23/1 8/1 9/1", "2024:05:05"},
        {"whole day", whole, day, 24 * hour, whole, "2024:05:07"},
        {"zero denominator", "5/1 8/1 9/0", day, hour, "5/1 8/1 9/0", day},
        {"fraction of an hour", "51/10 2/1 9/1", day, hour, "51/10 2/1 9/1", day},
        {"fraction of a minute", "5/1 815/100 0/1", day, 24 * hour, "5/1 815/100 0/1", day},
        {"too large", "5/1 8/1 0/4000000000", day, absl::Seconds(9), "5/1 8/1 0/4000000000", day},
    };
    for (const Endian endian : {Endian::Intel, Endian::Motorola})
        for (const auto &row : table) {
            SCOPED_TRACE(row.name);
            const BuiltPhoto built = importGps(row.before, row.date, endian);
            shift(row.shift);
            saves();
            expectStamps(built, row.after, row.dateAfter, endian);
        }
}

TEST_F(GpsTimePlan, FollowsThePreferences) {
    const struct {
        const char *sync, *type;
        EditMode mode;
        const char *after;
    } table[] = {
        {"0", "1", EditMode::Together, "3/1 0/1 0/1"},
        {"1", "1", EditMode::Together, "4/1 0/1 0/1"},
        {"1", "1", EditMode::Single, "4/1 0/1 0/1"},
        {"1", "0", EditMode::Together, "6/1 8/1 9/1"},
    };
    for (const auto &row : table) {
        session.defaults.setForThisRun("syncGPSDataOnSave", row.sync);
        session.defaults.setForThisRun("syncGPSDataOnSaveType", row.type);
        session.folder().sfEditMode = row.mode;
        const BuiltPhoto built = importGps("3/1 0/1 0/1", "2024:05:06", Endian::Intel);
        if (row.mode == EditMode::Single)
            updateSinglePicModificationBy(session.item("a.jpg"), absl::Hours(1));
        else
            shift(absl::Hours(1));
        session.save();
        expectStamps(built, row.after, "2024:05:06", Endian::Intel);
    }
}

TEST_F(GpsTimePlan, IsReadAgainBehindTheTool) {
    if (!session.tool.program())
        GTEST_SKIP() << "there is no exiftool on this machine";
    for (const char *time : {"5/1 8/1 9/1", ""}) {
        session.folder().sfEditMode = EditMode::Together;
        PhotoFields fields{.original = "2024:05:06 07:08:09", .location = PhotoLocation{}};
        fields.location->time = *time ? std::optional(rationals(time)) : std::nullopt;
        importPhoto(fields);
        ASSERT_TRUE(setShouldAddExifDateTimeTags(session.item("a.jpg"), true));
        shift(absl::Hours(20));
        saves();
    }
}

TEST_F(GpsTimePlan, FieldWithoutRoomKeepsBothStampsAsTheyAre) {
    for (const bool isTimeShort : {true, false}) {
        importPhoto();
        MySinglePic &pic = session.item("a.jpg");
        pic.singlePicAttributes.gpsTimeStamp->value.room = isTimeShort ? 16 : 24;
        pic.singlePicAttributes.gpsDateStamp->room = isTimeShort ? 11 : 10;
        std::vector<ValuePatch> patches;
        EXPECT_FALSE(planGpsStamps(pic, utc(2024, 5, 7, 1), patches));
        EXPECT_TRUE(patches.empty());
    }
}

} // namespace
} // namespace chronomender
