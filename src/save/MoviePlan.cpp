// SPDX-License-Identifier: GPL-3.0-or-later
#include "MoviePlan.h"

#include "DaylightSavingChecks.h"
#include "IsoStamp.h"
#include "MovieStampConversions.h"
#include "StampConversions.h"
#include "ZoneLookup.h"

#include <utility>

namespace chronomender {
namespace {

constexpr std::size_t kHeaderTimeLength = 4;
/// A date that far behind 1904 is not asked about, whatever its zone.
constexpr absl::Duration kSafeBehindEpoch = absl::Seconds(3624);

/// One value of the file that is to say a date.
struct MovieValue {
    const LocatedBytes *recorded;
    std::optional<Bytes> built; ///< none: the value cannot say the date
    OptionalDate readBack;      ///< what the built value says
    bool isSource;              ///< the slot's date is read from it
    std::string zoneChange;     ///< "+02:00 → +00:00"; "" when the offset stays
    /// Why it may be that nothing could be built.
    PlanObstacle ifNotBuilt = PlanObstacle::UnreadableBack;
};

/// What a slot's values are built for.
struct Wanted {
    const MySinglePic &pic;
    Date date;
    const PlanContext &context;
    const Zone &zone; ///< the item's target
};

/// `read` tells what bytes say; present ones that say the wanted date already are kept.
template<class Read>
MovieValue movieValue(const LocatedBytes &recorded, const Wanted &wanted,
                      std::optional<Bytes> built, bool isSource, Read read) {
    MovieValue value{&recorded, std::move(built), std::nullopt, isSource, {}};
    if (!value.built)
        return value;
    value.readBack = read(*value.built);
    if (value.readBack == cleanDate(wanted.date) && read(recorded.data) == value.readBack)
        value.built = recorded.data;
    return value;
}

MovieValue riffDate(const LocatedBytes &recorded, const Wanted &wanted) {
    const absl::TimeZone &zone = wanted.zone.rules;
    return movieValue(recorded, wanted, riffTimeStampFromDate(wanted.date, zone, recorded.data),
                      true, [&](const Bytes &data) { return dateFromRIFFTimeStamp(data, zone); });
}

/// Beside a metadata date that counts, header times are UTC.
MovieValue headerTime(const LocatedBytes &recorded, StampSlot slot, const Wanted &wanted) {
    const bool isUtc = wanted.pic.spType == SpTypeMovieMdta;
    const bool isSource = !isUtc || slot == StampSlot::Modification;
    const MvhdCorrection correction{!isUtc &&
                                    wanted.context.folder.isQuicktimeMVHDTimezoneCorrectionEnabled};
    const absl::TimeZone &zone = wanted.zone.rules;
    MovieValue value = movieValue(
        recorded, wanted, mvhdDataFromDate(wanted.date, correction, zone), isSource,
        [&](const Bytes &data) { return finalDateFromMVHDData(data, correction, zone); });
    value.ifNotBuilt = PlanObstacle::OutOfRange;
    return value;
}

/// The header's time would lie before the beginning of 1904.
bool isPre1904(const Wanted &wanted) {
    const MySinglePic &pic = wanted.pic;
    const Date epoch = *dateFromMVHDData(Bytes(kHeaderTimeLength, '\0'));
    if (!isQtMovie(pic.spType) || wanted.date >= epoch + kSafeBehindEpoch)
        return false;
    const bool isLocal = pic.spType != SpTypeMovieMdta &&
                         wanted.context.folder.isQuicktimeMVHDTimezoneCorrectionEnabled;
    const Date inHeader =
        isLocal ? mvhdDateFromCorrectedDate(wanted.date, wanted.zone.rules) : wanted.date;
    return inHeader < epoch + absl::Seconds(1);
}

std::string offsetText(const IsoStamp &stamp) {
    const auto text = exifOffsetDataFromSeconds(stamp.secondsEastOfUtc.value_or(0));
    return text ? std::string(text->c_str()) : std::string();
}

/// A metadata date names its zone, so the same instant can be there and yet be told in another one.
MovieValue metaDate(const LocatedBytes &recorded, const Wanted &wanted) {
    const MySinglePic &pic = wanted.pic;
    const MySingleFolder &folder = wanted.context.folder;
    const Zone zone = targetZoneForMetaDate(pic, folder, wanted.context.zones);
    MovieValue value{&recorded,
                     mdtaDataOfLength(recorded.data.size(), wanted.date, zone.rules),
                     std::nullopt,
                     pic.spType == SpTypeMovieMdta,
                     {}};
    if (!value.built)
        return value;
    value.readBack = dateFromMDTATimeStamp(*value.built, zone.rules);
    const auto before = readIsoStamp(recorded.data), after = readIsoStamp(*value.built);
    if (!before || !after)
        return value;
    if (before->secondsEastOfUtc == after->secondsEastOfUtc) {
        if (before->fields == after->fields) // "-0000" is "+0000"
            value.built = recorded.data;
    } else if (!hasAssignedTargetZone(pic, folder)) {
        value.zoneChange = offsetText(*before) + " → " + offsetText(*after);
    }
    return value;
}

std::vector<MovieValue> valuesOf(StampSlot slot, const Wanted &wanted) {
    const SinglePicAttributes &recorded = wanted.pic.singlePicAttributes;
    const bool isOriginal = slot == StampSlot::Original;
    std::vector<MovieValue> values;
    if (wanted.pic.spType == SpTypeMovieRiff && isOriginal && recorded.riffCreaDate)
        values.push_back(riffDate(*recorded.riffCreaDate, wanted));
    if (!isQtMovie(wanted.pic.spType) || slot == StampSlot::Digitized)
        return values;
    if (isOriginal && recorded.qtMetaDate)
        values.push_back(metaDate(*recorded.qtMetaDate, wanted));
    if (const auto &time = isOriginal ? recorded.qtMvhdCreaDate : recorded.qtMvhdModDate)
        values.push_back(headerTime(*time, slot, wanted));
    return values;
}

/// What keeps the value from being written; without an obstacle its patch is appended.
PlanObstacle planValue(const MovieValue &value, const Wanted &wanted, StampPlan &plan,
                       std::vector<ValuePatch> &patches) {
    if (!value.built)
        return value.ifNotBuilt;
    if (value.readBack != cleanDate(wanted.date)) {
        // Known of clocks that are set back; else the value would be wrong.
        if (!hasDSTAmbiguityForDate(wanted.pic, wanted.date, ExportDate::Main, wanted.zone.rules,
                                    DSTPreFilter::Off))
            return PlanObstacle::UnreadableBack;
        plan.isAmbiguous = true;
    }
    const Bytes &before = value.recorded->data;
    const bool hasRoom =
        before.size() == value.built->size() && value.recorded->hasRoomFor(before.size());
    if (before != *value.built && !hasRoom)
        return PlanObstacle::NoRoom;
    if (before != *value.built)
        plan.result = SlotResult::WrittenInPlace;
    patches.push_back({value.recorded, Patch(value.recorded->offset, before, *value.built)});
    return PlanObstacle::None;
}

} // namespace

StampPlan planMovieStamp(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                         std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
    StampPlan plan;
    obstacle = PlanObstacle::None;
    const OptionalDate &date = pic.slots.*description(slot).newDate;
    if (!(pic.slots.*description(slot).oldDate) || !isCleanDate(date))
        return plan;
    const Wanted wanted{pic, *date, context,
                        targetTimeZoneForPic(pic, context.folder, context.zones)};
    const auto count = static_cast<std::ptrdiff_t>(patches.size());
    for (const MovieValue &value : valuesOf(slot, wanted)) {
        if (value.isSource)
            plan.readBack = value.readBack;
        plan.zoneChange += value.zoneChange;
        obstacle = planValue(value, wanted, plan, patches);
        if (obstacle == PlanObstacle::None)
            continue;
        plan.result = SlotResult::Refused;
        patches.erase(patches.begin() + count, patches.end());
        break;
    }
    plan.isPre1904 = isPre1904(wanted);
    plan.isAmbiguous = plan.isAmbiguous && !plan.isPre1904;
    return plan;
}

} // namespace chronomender
