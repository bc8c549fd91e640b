// SPDX-License-Identifier: GPL-3.0-or-later
#include "AlternativeReading.h"

#include "DateModifications.h"
#include "DaylightSavingChecks.h"
#include "ZoneSteps.h"

#include <tuple>

namespace chronomender {
namespace {

using namespace little;
using enum AlternativeTarget;

const Date later = utc(2024, 10, 27, 1, 30), earlier = later - absl::Hours(1);

/// A raw file with its JPEG, each of 02:30 in Berlin on the night the clocks are put back.
class AlternativeReading : public ZonesTest {
protected:
    AlternativeReading() {
        read(*pic);
        read(*jpeg);
        makeDependent(jpeg, pic);
        sfUpdatePicsFromAndTill(*folder);
    }
    void read(MySinglePic &item, const std::string &stamp = "2024:10:27 02:30:00") {
        SinglePicAttributes &attributes = item.singlePicAttributes;
        attributes.exifDateTimeOriginal = attributes.exifDateTimeDigitized = located(stamp);
        attributes.tiffDateTime = located("2024:11:03 01:30:00");
        item.slots.exifDateTimeOriginalOLD = item.slots.exifDateTimeDigitizedOLD =
            item.slots.tiffDateTimeOLD = later;
        updateAllDatesAfterUpdatingTimezone(item, *folder, zones, 3);
    }
    std::size_t use(AlternativeTarget target, bool isAlternative = true) {
        return useAmbiguityAlternative({pic}, target, isAlternative, zones, undo);
    }
    /// "later earlier" for master and dependent.
    std::string readings() const {
        const auto reading = [](const MySinglePic &item) {
            return item.spDateTimeOriginal == later     ? "later"
                   : item.spDateTimeOriginal == earlier ? "earlier"
                                                        : "other";
        };
        return std::string(reading(*pic)) + ' ' + reading(*jpeg);
    }
    static auto state(const MySinglePic &item) {
        return std::tuple(item.slots, item.spDateTimeOriginal, item.location.spGpsUTCDate,
                          item.zones.usesAltTimeAtAmbiguityReason,
                          item.zones.dstAmbiguityAtImportState, item.zones.majorDateDifferenceType);
    }
    MySinglePicPtr jpeg = addItem(folder, SpTypeExifOriginal, later, "IMG_1.jpeg");
    UndoManager undo;
};

TEST_F(AlternativeReading, IsTakenByTheFilesThatTheTargetMeans) {
    const struct {
        AlternativeTarget target;
        bool isMasterAmbiguous, isDependentAmbiguous;
        const char *readings;
    } rows[] = {{Master, true, true, "earlier later"},
                {Master, true, false, "earlier other"},
                {Master, false, true, "other earlier"},
                {Master, false, false, "other other"},
                {Dependent, true, true, "later earlier"},
                {Dependent, false, true, "other later"},
                {Dependent, true, false, "later other"},
                {Both, true, true, "earlier earlier"},
                {Both, true, false, "later other"},
                {Both, false, true, "other later"},
                {DependentAsMaster, true, true, "later later"}};
    for (const auto &row : rows) {
        for (const auto &[item, isAmbiguous] :
             {std::pair(pic, row.isMasterAmbiguous), std::pair(jpeg, row.isDependentAmbiguous)}) {
            item->zones = {};
            read(*item, isAmbiguous ? "2024:10:27 02:30:00" : "2024:10:28 02:30:00");
        }
        const std::string before = readings();
        const std::size_t changed = use(row.target);
        EXPECT_EQ(readings(), row.readings) << static_cast<int>(row.target);
        EXPECT_EQ(changed, before == row.readings ? 0U : row.target == Both ? 2U : 1U);
        EXPECT_EQ(undo.canUndo(), changed > 0);
        undo.removeAllActions();
    }
    // The half that is named stands for its group.
    EXPECT_EQ(useAmbiguityAlternative({jpeg, pic}, Master, true, zones, undo), 1U);
    EXPECT_EQ(use(DependentAsMaster), 1U);
    EXPECT_EQ(readings(), "earlier earlier");
}

TEST_F(AlternativeReading, IsUndoneAndRedoneToTheLastDate) {
    pic->location.spGpsUTCDate = later;
    pic->singlePicAttributes.gpsDateStamp = located("2024:10:27");
    read(*pic);
    const auto before = state(*pic), dependentBefore = state(*jpeg);
    EXPECT_EQ(use(Both), 2U);
    EXPECT_EQ(pic->slots.exifDateTimeDigitizedOLD, earlier);
    EXPECT_EQ(pic->slots.tiffDateTimeOLD, utc(2024, 11, 3, 0, 30)); // means one instant only
    EXPECT_EQ(pic->location.spGpsUTCDate, earlier);                 // completed from the main date
    const auto after = state(*pic), dependentAfter = state(*jpeg);
    EXPECT_EQ(folder->sfFrom, earlier);
    EXPECT_EQ(undo.undoActionName(), "ambiguityCorrection_undoRedo");
    for (int turn = 0; turn < 2; ++turn) {
        undo.undo();
        EXPECT_EQ(state(*pic), before);
        EXPECT_EQ(state(*jpeg), dependentBefore);
        EXPECT_EQ(folder->sfFrom, later);
        undo.redo();
        EXPECT_EQ(state(*pic), after);
        EXPECT_EQ(state(*jpeg), dependentAfter);
        EXPECT_EQ(folder->sfFrom, earlier);
    }
    EXPECT_EQ(use(Both), 0U); // read so already
    EXPECT_EQ(use(Both, false), 2U);
    EXPECT_EQ(state(*pic), before);
}

TEST_F(AlternativeReading, OfOneHalfMakesTheGroupDeviate) {
    use(Dependent);
    EXPECT_EQ(pic->zones.majorDateDifferenceType, kGroupDeviates);
    EXPECT_EQ(undo.lastAffectedObject<MySinglePic>(), nullptr);
    undo.undo();
    EXPECT_EQ(pic->zones.majorDateDifferenceType, 0U);
    EXPECT_EQ(undo.lastAffectedObject<MySinglePic>(), pic); // which a window shows
}

TEST_F(AlternativeReading, MovesNothingWhereAnotherZoneTookItsMeaning) {
    use(Master);
    const auto readIn = [this](const char *source) {
        folder->sourceTimeZones.folderDefault = ZoneChoice::named(zone(source));
        updateAllDatesAfterUpdatingTimezone(*pic, *folder, zones, 3);
    };
    readIn("America/New_York"); // where the modification stamp alone means two instants
    EXPECT_EQ(pic->zones.dstAmbiguityAtImportState, bit(StampSlot::Modification));
    const DateSlots inNewYork = pic->slots;
    for (const bool isUndo : {true, false}) {
        isUndo ? undo.undo() : undo.redo();
        EXPECT_EQ(pic->slots, inNewYork) << isUndo;
    }
    readIn("Europe/Berlin");
    EXPECT_EQ(pic->spDateTimeOriginal, earlier);
    undo.undo();
    EXPECT_EQ(pic->spDateTimeOriginal, later);
}

} // namespace
} // namespace chronomender
