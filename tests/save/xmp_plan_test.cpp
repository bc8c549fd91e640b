// SPDX-License-Identifier: GPL-3.0-or-later
#include "LittleXmp.h"
#include "SaveTest.h"
#include "ToolActions.h"
#include "XmpPlan.h"
#include "XmpValues.h"

namespace chronomender {
namespace {

using namespace little;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char *kOriginal = "exif:DateTimeOriginal", *kCreated = "photoshop:DateCreated",
                     *kCreate = "xmp:CreateDate", *kModify = "xmp:ModifyDate",
                     *kGps = "exif:GPSTimeStamp";

/// One stamp planned for a date, and its text once the patches are written.
struct Planned {
    StampPlan plan;
    PlanObstacle obstacle{};
    std::string text;
};
Planned planned(const std::string &text, Date date, const char *zoneName, bool hasRoom = true) {
    XmpStamp stamp{XmpProperty::XmpCreateDate, {700, 0, text}, {}, 0};
    stamp.value.room = hasRoom ? static_cast<std::uint32_t>(text.size()) : 0;
    stamp.type = verifiedXmpDateDataType(text, stamp.subtype);
    absl::TimeZone zone;
    EXPECT_TRUE(absl::LoadTimeZone(zoneName, &zone));
    std::vector<ValuePatch> patches;
    Planned result{{}, {}, text};
    result.plan = planXmpStampTo(stamp, date, zone, patches, result.obstacle);
    for (const ValuePatch &each : patches)
        result.text.replace(each.patch.offset() - 700, each.patch.after().size(),
                            each.patch.after());
    EXPECT_EQ(result.text != text, result.plan.result == SlotResult::WrittenInPlace);
    return result;
}

TEST(XmpStamp, KeepsItsForm) {
    const Date day = utc(2024, 5, 6, 7, 8, 9), newYear = utc(2024, 1, 1, 2);
    const char *kolkata = "Asia/Kolkata", *newfoundland = "America/St_Johns";
    const struct {
        std::string before;
        Date date;
        const char *zone;
        std::string after, zoneChange;
    } table[] = {
        {"2020-01-01T00:00:00Z", day, kolkata, "2024-05-06T07:08:09Z", ""},
        {"2020-01-01T00:00:00.25Z", day, kolkata, "2024-05-06T07:08:09.25Z", ""},
        {"2020-01-01T00:00Z", day, kolkata, "2024-05-06T07:08Z", ""},
        {"2020-01-01T00:00:00", day, kolkata, "2024-05-06T12:38:09", ""},
        {"2020-01-01T00:00:00.125", newYear, newfoundland, "2023-12-31T22:30:00.125", ""},
        {"2020-01-01T00:00", day, "Asia/Kathmandu", "2024-05-06T12:53", ""},
        {"2020-01-01T00:00:00+02:00", day, kolkata, "2024-05-06T12:38:09+05:30", "+02:00 → +05:30"},
        {"2020-01-01T00:00:00.5+0200", newYear, newfoundland, "2023-12-31T22:30:00.5-0330",
         "+02:00 → -03:30"},
        {"2020-01-01T00:00-03:30", day, "Etc/GMT-14", "2024-05-06T21:08+14:00", "-03:30 → +14:00"},
        {"2020-01-01T00:00+1400", day, "UTC", "2024-05-06T07:08+0000", "+14:00 → +00:00"},
        {"2020-01-01T00:00:00-00:00", day, "UTC", "2024-05-06T07:08:09-00:00", ""},
        {"2024-05-06T12:38:09+0530", day, kolkata, "2024-05-06T12:38:09+0530", ""},
        // Wall clocks before standard time are off by seconds.
        {"2020-01-01T00:00", utc(1900, 1, 1, 12), "Europe/Paris", "1900-01-01T12:09", ""},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.before);
        const Planned result = planned(row.before, row.date + absl::Milliseconds(400), row.zone);
        EXPECT_EQ(result.obstacle, PlanObstacle::None);
        EXPECT_EQ(result.text, row.after);
        EXPECT_EQ(result.plan.zoneChange, row.zoneChange);
        EXPECT_FALSE(result.plan.isAmbiguous);
        const bool isShort = row.before[16] != ':';
        const absl::Duration cut = row.date - result.plan.readBack.value_or(InfinitePast());
        EXPECT_TRUE(isShort ? cut < absl::Minutes(1) : cut == absl::ZeroDuration()) << cut;
    }
}

TEST(XmpStamp, IsRefusedWhereItWouldTellAnotherInstant) {
    const Date earlierOfTwo = utc(2024, 10, 27, 0, 30);
    EXPECT_TRUE(planned("2020-01-01T00:00:00", earlierOfTwo, "Europe/Berlin").plan.isAmbiguous);
    EXPECT_FALSE(planned("2020-01-01T00:00:00Z", earlierOfTwo, "Europe/Berlin").plan.isAmbiguous);
    const Date day = utc(2024, 5, 6), noStandard = utc(1900, 1, 1);
    const struct {
        const char *before;
        Date date;
        const char *zone;
        bool hasRoom;
        PlanObstacle obstacle;
    } table[] = {
        {"2020-01-01T00:00:00+02:00", noStandard, "Europe/Paris", true,
         PlanObstacle::UnreadableBack},
        {"2020-01-01T00:00:00", utc(9999, 12, 31, 20), "Asia/Tokyo", true,
         PlanObstacle::UnreadableBack},
        {"2020-01-01T00:00Z", InfiniteFuture(), "UTC", true, PlanObstacle::UnreadableBack},
        {"2020-01-01T00:00:00", day, "UTC", false, PlanObstacle::NoRoom},
        {"2024-05-06T00:00:00", day, "UTC", false, PlanObstacle::None},
    };
    for (const auto &row : table) {
        const Planned result = planned(row.before, row.date, row.zone, row.hasRoom);
        EXPECT_EQ(result.obstacle, row.obstacle) << row.before;
        EXPECT_EQ(result.text, row.before);
    }
}

/// Photos whose dates stand in a packet, shifted by an hour.
class XmpPlanTest : public SaveTest {
protected:
    using Properties = std::vector<std::pair<std::string, std::string>>;

    static std::string photoWith(const Properties &properties,
                                 std::optional<std::string> modified) {
        Xmp xmp;
        for (const auto &[name, value] : properties)
            xmp.attribute(name, value);
        return jpegPhoto({.modified = std::move(modified), .xmp = xmp.end().bytes()}).bytes;
    }
    void importWith(const Properties &properties, std::optional<std::string> modified = {}) {
        session.folder().sfEditMode = EditMode::Together;
        session.folder().sourceTimeZones = session.folder().targetTimeZones = {};
        session.write("a.jpg", photoWith(properties, std::move(modified)));
        session.import();
        shiftAllSlotsAlike();
    }
    PlanContext context() { return {session.folder(), session.zones, session.defaults}; }
    /// What the tool would be asked.
    std::vector<std::string> widened() {
        session.preProcess();
        return extendShortXmpDateTags(supportStamps(session.item("a.jpg"), context())).lines;
    }
    void set(const char *key, const char *value) { session.defaults.setForThisRun(key, value); }
};

TEST_F(XmpPlanTest, EachStampOfThePacketFollowsItsSlot) {
    const char *modified = "2024:05:06 07:08:09", *later = "2024:05:06 08:08:09";
    enum Settings { Plain, SyncXmp, NoGps };
    const struct {
        const char *what;
        Properties before, after;
        Settings settings = Plain;
        bool hasModified = false;
    } table[] = {
        {"first property only",
         {{kCreated, "2024-05-06T07:08:09-03:30"}, {kOriginal, "2024-05-06T07:08:10"}},
         {{kCreated, "2024-05-06T08:08:09-03:30"}, {kOriginal, "2024-05-06T07:08:10"}}},
        {"second property alone",
         {{kOriginal, "2024-05-06T07:08:10"}, {kCreate, "2024-05-06T23:30Z"}},
         {{kOriginal, "2024-05-06T08:08:10"}, {kCreate, "2024-05-07T00:30Z"}}},
        {"both in step, each in its own zone",
         {{kCreated, "2024-05-06T07:08:09-03:30"}, {kOriginal, "2020-01-01T00:00:00.5+0545"}},
         {{kCreated, "2024-05-06T08:08:09-03:30"}, {kOriginal, "2024-05-06T17:23:09.5+0545"}},
         SyncXmp},
        {"stamp of the packet beside a tag",
         {{kModify, "2020-01-01T00:00:00Z"}, {"xmp:MetadataDate", "2020-01-01T00:00:00Z"}},
         {{kModify, "2024-05-06T06:08:09Z"}, {"xmp:MetadataDate", "2020-01-01T00:00:00Z"}},
         Plain,
         true},
        {"GPS time",
         {{kCreate, "2024-05-06T07:08:09Z"}, {kGps, "2024-05-06T23:08:09Z"}},
         {{kCreate, "2024-05-06T08:08:09Z"}, {kGps, "2024-05-07T00:08:09Z"}}},
        {"GPS time not in step",
         {{kCreate, "2024-05-06T07:08:09Z"}, {kGps, "2024-05-06T23:08:09Z"}},
         {{kCreate, "2024-05-06T08:08:09Z"}, {kGps, "2024-05-06T23:08:09Z"}},
         NoGps},
    };
    const auto tag = [&](bool has, const char *text) {
        return has ? std::optional<std::string>(text) : std::nullopt;
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.what);
        set("syncXMPDataOnSave", row.settings == SyncXmp ? "1" : "0");
        set("syncGPSDataOnSave", row.settings == NoGps ? "0" : "1");
        importWith(row.before, tag(row.hasModified, modified));
        keepOwnZones();
        shift(absl::Hours(1));
        saves();
        EXPECT_EQ(content(), photoWith(row.after, tag(row.hasModified, later)));
        shift(absl::Hours(-1));
        saves();
        const bool isReversible = row.settings != SyncXmp && !row.hasModified;
        EXPECT_EQ(content() == photoWith(row.before, tag(row.hasModified, modified)), isReversible);
    }
}

TEST_F(XmpPlanTest, AnOffsetThatNobodyAskedToChangeIsAProblem) {
    importWith({{kCreate, "2024-05-06T07:08:09+05:30"}, {kGps, "2024-05-06T07:08:09+05:30"}});
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(kinds(dry), ElementsAre(PreSaveProblem::error_12_zoneStampRewritten));
    EXPECT_EQ(dry.problems[0].detail, "+05:30 → +02:00");
    saves();
    EXPECT_EQ(content(), photoWith({{kCreate, "2024-05-06T04:38:09+02:00"},
                                    {kGps, "2024-05-06T08:08:09+05:30"}},
                                   {}));
    targetZone("Asia/Tokyo");
    EXPECT_THAT(session.preProcess().problems, IsEmpty());
}

TEST_F(XmpPlanTest, AShortStampIsWidenedForSecondsOnly) {
    const struct {
        const char *before, *widened, *inPlace;
        absl::Duration shift;
    } table[] = {
        {"2024-05-06T07:08Z", "-XMP-xmp:CreateDate=2024-05-06T07:08:30Z", "2024-05-06T07:08Z",
         absl::Seconds(30)},
        {"2024-05-06T07:08+0545", "-XMP-xmp:CreateDate=2024-05-06T07:07:59+0545",
         "2024-05-06T07:07+0545", absl::Seconds(-1)},
        {"2024-12-31T23:59", "-XMP-xmp:CreateDate=2025-01-01T00:00:30", "2025-01-01T00:00",
         absl::Seconds(90)},
        {"2024-05-06T07:08Z", "", "2024-05-06T07:09Z", absl::Seconds(60)},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.inPlace);
        importWith({{kCreate, row.before}});
        keepOwnZones();
        shift(row.shift);
        set("shouldSupportXmpSave", "1");
        const std::vector<std::string> lines = widened();
        EXPECT_EQ(lines, *row.widened ? std::vector<std::string>{row.widened}
                                      : std::vector<std::string>{});
        set("shouldSupportXmpSave", "0");
        EXPECT_THAT(widened(), IsEmpty());
        session.save();
        EXPECT_EQ(content(), photoWith({{kCreate, row.inPlace}}, {}));
    }
}

TEST_F(XmpPlanTest, MissingTagsAreAddedAndNeverPatched) {
    // An empty digitized tag counts as missing and has a place all the same.
    importPhoto({.original = "2024:12:31 23:30:00", .digitized = "    :  :     :  :  "});
    MySinglePic &pic = session.item("a.jpg");
    ASSERT_TRUE(setShouldAddExifDateTimeTags(pic, true));
    targetZone("Asia/Kolkata");
    shift(absl::Hours(1));
    session.preProcess();
    EXPECT_THAT(completeFullExifDateTags(pic, context()).value_or(ToolAction{}).lines,
                ElementsAre("-ExifIFD:CreateDate=\"2025:01:01 05:00:00\"",
                            "-ExifIFD:OffsetTimeDigitized=+05:30",
                            "-IFD0:ModifyDate=\"2025:01:01 05:00:00\"",
                            "-ExifIFD:OffsetTime=+05:30"));
}

} // namespace
} // namespace chronomender
