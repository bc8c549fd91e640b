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

constexpr const char *kOriginal = "exif:DateTimeOriginal", *kCreated = "photoshop:DateCreated",
                     *kCreate = "xmp:CreateDate", *kModify = "xmp:ModifyDate",
                     *kGps = "exif:GPSTimeStamp";

/// One stamp planned for a date.
struct Planned {
    StampPlan plan;
    PlanObstacle obstacle{};
    std::string text; ///< once the patches are written
};
Planned planned(const std::string &text, Date date, const char *zoneName, bool hasRoom = true) {
    XmpStamp stamp{XmpProperty::XmpCreateDate, {700, 0, text}, {}, 0};
    stamp.value.room = hasRoom ? static_cast<std::uint32_t>(text.size()) : 0;
    stamp.type = verifiedXmpDateDataType(text, stamp.subtype);
    absl::TimeZone zone;
    EXPECT_TRUE(absl::LoadTimeZone(zoneName, &zone));
    std::vector<ValuePatch> patches;
    Planned made{{}, {}, text};
    made.plan = planXmpStampTo(stamp, date, zone, patches, made.obstacle);
    for (const auto &[value, patch] : patches)
        made.text.replace(patch.offset() - 700, patch.after().size(), patch.after());
    EXPECT_EQ(made.text != text, made.plan.result == SlotResult::WrittenInPlace);
    return made;
}

TEST(XmpStamp, KeepsItsForm) {
    const Date day = utc(2024, 5, 6, 7, 8, 9), newYear = utc(2024, 1, 1, 2);
    const char *kolkata = "Asia/Kolkata", *newfoundland = "America/St_Johns";
    const struct {
        std::string before;
        Date date;
        const char *zone;
        std::string after, zoneChange = "";
    } table[] = {
        {"2020-01-01T00:00:00Z", day, kolkata, "2024-05-06T07:08:09Z"},
        {"2020-01-01T00:00:00.25Z", day, kolkata, "2024-05-06T07:08:09.25Z"},
        {"2020-01-01T00:00Z", day, kolkata, "2024-05-06T07:08Z"},
        {"2020-01-01T00:00:00", day, kolkata, "2024-05-06T12:38:09"},
        {"2020-01-01T00:00:00.125", newYear, newfoundland, "2023-12-31T22:30:00.125"},
        {"2020-01-01T00:00", day, "Asia/Kathmandu", "2024-05-06T12:53"},
        {"2020-01-01T00:00:00+02:00", day, kolkata, "2024-05-06T12:38:09+05:30", "+02:00 → +05:30"},
        {"2020-01-01T00:00:00.5+0200", newYear, newfoundland, "2023-12-31T22:30:00.5-0330",
         "+02:00 → -03:30"},
        {"2020-01-01T00:00-03:30", day, "Etc/GMT-14", "2024-05-06T21:08+14:00", "-03:30 → +14:00"},
        {"2020-01-01T00:00+1400", day, "UTC", "2024-05-06T07:08+0000", "+14:00 → +00:00"},
        {"2020-01-01T00:00:00-00:00", day, "UTC", "2024-05-06T07:08:09-00:00"},
        // Wall clocks before standard time are off by seconds.
        {"2020-01-01T00:00", utc(1900, 1, 1, 12), "Europe/Paris", "1900-01-01T12:09"},
    };
    for (const auto &row : table) {
        SCOPED_TRACE(row.before);
        const Planned made = planned(row.before, row.date + absl::Milliseconds(400), row.zone);
        EXPECT_EQ(made.obstacle, PlanObstacle::None);
        EXPECT_EQ(made.text, row.after);
        EXPECT_EQ(made.plan.zoneChange, row.zoneChange);
        const bool isShort = row.before[16] != ':';
        const absl::Duration cut = row.date - made.plan.readBack.value_or(InfinitePast());
        EXPECT_TRUE(isShort ? cut < absl::Minutes(1) : cut == absl::ZeroDuration()) << cut;
    }
}

TEST(XmpStamp, IsRefusedWhereItWouldTellAnotherInstant) {
    const Date repeated = utc(2024, 10, 27, 0, 30), day = utc(2024, 5, 6);
    EXPECT_TRUE(planned("2020-01-01T00:00:00", repeated, "Europe/Berlin").plan.isAmbiguous);
    EXPECT_FALSE(planned("2020-01-01T00:00:00Z", repeated, "Europe/Berlin").plan.isAmbiguous);
    using enum PlanObstacle;
    const struct {
        const char *before;
        Date date;
        const char *zone;
        bool hasRoom;
        PlanObstacle obstacle;
    } table[] = {
        {"2020-01-01T00:00:00+02:00", utc(1900, 1, 1), "Europe/Paris", true, UnreadableBack},
        {"2020-01-01T00:00:00", utc(9999, 12, 31, 20), "Asia/Tokyo", true, UnreadableBack},
        {"2020-01-01T00:00:00", day, "UTC", false, NoRoom},
        {"2024-05-06T00:00:00", day, "UTC", false, None},
    };
    for (const auto &row : table) {
        const Planned made = planned(row.before, row.date, row.zone, row.hasRoom);
        EXPECT_EQ(made.obstacle, row.obstacle) << row.before;
        EXPECT_EQ(made.text, row.before);
    }
}

/// Photos whose dates stand in a packet.
class XmpPlanTest : public SaveTest {
protected:
    struct Content {
        std::map<std::string, std::string> packet;
        std::optional<std::string> modified = {}; ///< a tag of the file
    };
    static std::string photoWith(const Content &content) {
        Xmp xmp;
        for (const auto &[name, value] : content.packet)
            xmp.attribute(name, value);
        return jpegPhoto({.modified = content.modified, .xmp = xmp.end().bytes()}).bytes;
    }
    void importWith(const Content &content) {
        session.folder().sfEditMode = EditMode::Together;
        session.folder().sourceTimeZones = session.folder().targetTimeZones = {};
        session.write("a.jpg", photoWith(content));
        session.import();
        shiftAllSlotsAlike();
    }
    void set(const char *key, bool isOn) { session.defaults.setForThisRun(key, isOn ? "1" : "0"); }
    PlanContext context() { return {session.folder(), session.zones, session.defaults}; }
    /// What the tool would be asked.
    std::vector<std::string> widened() {
        session.preProcess();
        return extendShortXmpDateTags(supportStamps(session.item("a.jpg"), context())).lines;
    }
};

TEST_F(XmpPlanTest, EachStampOfThePacketFollowsItsSlot) {
    const char *old = "2020-01-01T00:00:00Z";
    const struct {
        Content before, after;
        bool isXmpInStep = false, isGpsInStep = true, isReversible = true;
    } table[] = {
        // The first property of a slot alone, or the second where there is no other.
        {{{{kCreated, "2024-05-06T07:08:09-03:30"}, {kOriginal, "2024-05-06T07:08:10"}}},
         {{{kCreated, "2024-05-06T08:08:09-03:30"}, {kOriginal, "2024-05-06T07:08:10"}}}},
        {{{{kOriginal, "2024-05-06T07:08:10"}, {kCreate, "2024-05-06T23:30Z"}}},
         {{{kOriginal, "2024-05-06T08:08:10"}, {kCreate, "2024-05-07T00:30Z"}}}},
        // Both, each in its own zone.
        {{{{kCreated, "2024-05-06T07:08:09-03:30"}, {kOriginal, "2020-01-01T00:00:00.5+0545"}}},
         {{{kCreated, "2024-05-06T08:08:09-03:30"}, {kOriginal, "2024-05-06T17:23:09.5+0545"}}},
         true,
         true,
         false},
        // Beside a tag of the file, which tells the clock of Berlin.
        {{{{kModify, old}, {"xmp:MetadataDate", old}}, "2024:05:06 07:08:09"},
         {{{kModify, "2024-05-06T06:08:09Z"}, {"xmp:MetadataDate", old}}, "2024:05:06 08:08:09"},
         false,
         true,
         false},
        // Beside a wall clock an offset stays, and tells that clock.
        {{{{kModify, "2024-05-06T07:08:09-05:00"}}, "2024:05:06 07:08:09"},
         {{{kModify, "2024-05-06T08:08:09-05:00"}}, "2024:05:06 08:08:09"}},
        {{{{kCreate, "2024-05-06T07:08:09Z"}, {kGps, "2024-05-06T23:08:09Z"}}},
         {{{kCreate, "2024-05-06T08:08:09Z"}, {kGps, "2024-05-07T00:08:09Z"}}}},
        {{{{kCreate, "2024-05-06T07:08:09Z"}, {kGps, "2024-05-06T23:08:09Z"}}},
         {{{kCreate, "2024-05-06T08:08:09Z"}, {kGps, "2024-05-06T23:08:09Z"}}},
         false,
         false},
    };
    for (const auto &row : table) {
        set("syncXMPDataOnSave", row.isXmpInStep);
        set("syncGPSDataOnSave", row.isGpsInStep);
        importWith(row.before);
        keepOwnZones();
        shift(absl::Hours(1));
        saves();
        EXPECT_EQ(content(), photoWith(row.after));
        shift(absl::Hours(-1));
        saves();
        EXPECT_EQ(content() == photoWith(row.before), row.isReversible);
    }
}

TEST_F(XmpPlanTest, AnOffsetThatNobodyAskedToChangeIsAProblem) {
    importWith({{{kCreate, "2024-05-06T07:08:09+05:30"}, {kGps, "2024-05-06T07:08:09+05:30"}}});
    shift(absl::Hours(1));
    const PreProcessResult dry = session.preProcess();
    ASSERT_THAT(kinds(dry), ElementsAre(PreSaveProblem::error_12_zoneStampRewritten));
    EXPECT_EQ(dry.problems[0].detail, "+05:30 → +02:00");
    saves();
    EXPECT_EQ(content(), photoWith({{{kCreate, "2024-05-06T04:38:09+02:00"},
                                     {kGps, "2024-05-06T08:08:09+05:30"}}}));
}

TEST_F(XmpPlanTest, AShortStampIsWidenedForSecondsOnly) {
    const struct {
        const char *before, *widened, *inPlace;
        absl::Duration shift;
    } table[] = {
        {"2024-05-06T07:08Z", "2024-05-06T07:08:30Z", "2024-05-06T07:08Z", absl::Seconds(30)},
        {"2024-05-06T07:08+0545", "2024-05-06T07:07:59+0545", "2024-05-06T07:07+0545",
         absl::Seconds(-1)},
        {"2024-12-31T23:59", "2025-01-01T00:00:30", "2025-01-01T00:00", absl::Seconds(90)},
        {"2024-05-06T07:08Z", nullptr, "2024-05-06T07:09Z", absl::Seconds(60)},
    };
    for (const auto &row : table) {
        importWith({{{kCreate, row.before}}});
        keepOwnZones();
        shift(row.shift);
        set("shouldSupportXmpSave", true);
        std::vector<std::string> lines;
        if (row.widened)
            lines.push_back("-XMP-xmp:CreateDate=" + std::string(row.widened));
        EXPECT_EQ(widened(), lines);
        set("shouldSupportXmpSave", false);
        EXPECT_THAT(widened(), testing::IsEmpty());
        session.save();
        EXPECT_EQ(content(), photoWith({{{kCreate, row.inPlace}}}));
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
                            "-IFD0:ModifyDate-=", "-IFD0:ModifyDate=\"2025:01:01 05:00:00\"",
                            "-ExifIFD:OffsetTime=+05:30"));
}

TEST_F(XmpPlanTest, APacketIsKeptInStepWhileTagsAreAdded) {
    importWith({{{kGps, "2024-05-06T05:08:09Z"}}, "2024:05:06 07:08:09"});
    ASSERT_TRUE(setShouldAddExifDateTimeTags(session.item("a.jpg"), true));
    shift(absl::Hours(1));
    if (!session.tool.program())
        GTEST_SKIP() << "there is no exiftool on this machine";
    saves();
    EXPECT_THAT(content(), testing::HasSubstr("2024-05-06T06:08:09Z"));
}

} // namespace
} // namespace chronomender
