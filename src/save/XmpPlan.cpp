// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpPlan.h"

#include "IsoStamp.h"
#include "StampConversions.h"
#include "XmpStampConversions.h"
#include "XmpValues.h"
#include "ZoneLookup.h"

#include <array>

namespace chronomender {
namespace {

constexpr std::size_t kSecondsAt = 17; ///< in "2024-05-06T07:08:09"

struct ShapeMark {
    std::size_t position;
    char character;
};
constexpr std::array kShapeMarks{ShapeMark{4, '-'}, ShapeMark{7, '-'}, ShapeMark{10, 'T'},
                                 ShapeMark{13, ':'}, ShapeMark{16, ':'}};

/// The last mark stands in front of the seconds.
bool seemsValidXMPString(std::string_view text, unsigned subtype) {
    return text.size() >= xmpClockLength(subtype) &&
           std::ranges::all_of(kShapeMarks, [&](const ShapeMark &mark) {
               return mark.position >= xmpClockLength(subtype) ||
                      text[mark.position] == mark.character;
           });
}

/// The zone whose wall clock a stamp of this type tells.
const absl::TimeZone &clockZone(const XmpStamp &stamp, const absl::TimeZone &zone) {
    static const absl::TimeZone utc = absl::UTCTimeZone();
    return stamp.type == XmpStampType::Utc ? utc : zone;
}

std::size_t zoneLength(const XmpStamp &stamp) {
    return stamp.type == XmpStampType::Zoned ? xmpZoneLength(stamp.subtype) : 0;
}

/// A stamp with the form of another and the text that it is to have.
struct NewStamp {
    XmpStamp stamp;
    OptionalDate readBack;
    bool isWanted = false;    ///< it reads back as the wanted date, cut to the form's precision
    bool isAmbiguous = false; ///< a wall clock that means two instants, and is read as the other
    std::string zoneChange;
};

/// `date` as far as the form can say it.
Date inPrecision(Date date, const absl::TimeZone &zone, unsigned subtype) {
    const Date whole = cleanDate(date).value_or(date);
    return subtype & kXmpWithoutSeconds ? whole - absl::Seconds(zone.At(whole).cs.second()) : whole;
}

/// The present offset text where it tells the wanted offset already ("-00:00" is "+00:00").
std::string offsetText(const XmpStamp &stamp, std::string_view built) {
    const std::string_view present =
        std::string_view(stamp.value.data).substr(stamp.value.data.size() - built.size());
    const auto after = readIsoStamp("2000-01-01T00:00" + std::string(built));
    const bool isSaidAlready = after && secondsFromXmpStamp(&stamp) == after->secondsEastOfUtc;
    return std::string(isSaidAlready ? present : built);
}

/// The whole text of the stamp once it tells `date`, with seconds if `subtype` has them.
std::optional<std::string> textTelling(const XmpStamp &stamp, Date date, const absl::TimeZone &zone,
                                       unsigned subtype) {
    const bool isZoned = stamp.type == XmpStampType::Zoned;
    const auto built = xmpTimeStampFromDate(date, clockZone(stamp, zone), !isZoned, subtype);
    const std::string_view present = stamp.value.data;
    const std::size_t clock = xmpClockLength(stamp.subtype), offset = zoneLength(stamp);
    const std::size_t newClock = xmpClockLength(subtype);
    if (!built || built->size() < newClock + offset || present.size() < clock + offset)
        return std::nullopt;
    std::string text = built->substr(0, newClock);
    text.append(present.substr(clock, present.size() - clock - offset));
    if (isZoned)
        text += offsetText(stamp, built->substr(built->size() - offset));
    return seemsValidXMPString(text, subtype) ? std::optional(text) : std::nullopt;
}

std::string zoneChange(const XmpStamp &before, const XmpStamp &after) {
    const auto from = secondsFromXmpStamp(&before), to = secondsFromXmpStamp(&after);
    if (!from || !to || from == to)
        return {};
    const auto text = [](std::int32_t seconds) {
        const auto offset = exifOffsetDataFromSeconds(seconds);
        return offset ? std::string(offset->c_str()) : std::string();
    };
    return text(*from) + " → " + text(*to);
}

/// Built, and read back by the reader's own parser; none where the form cannot say the date.
std::optional<NewStamp> stampTelling(const XmpStamp &stamp, Date date, const absl::TimeZone &zone,
                                     unsigned subtype) {
    const auto text = stamp.type == XmpStampType::Invalid ? std::nullopt
                                                          : textTelling(stamp, date, zone, subtype);
    if (!text)
        return std::nullopt;
    NewStamp made{stamp, {}, false, false, {}};
    made.stamp.value.data = *text;
    made.stamp.type = verifiedXmpDateDataType(*text, made.stamp.subtype);
    const bool isOfForm = made.stamp.type == stamp.type && made.stamp.subtype == subtype &&
                          isXmpZoneInRange(*text, made.stamp.type, subtype);
    if (!isOfForm)
        return made;
    const absl::TimeZone &itsZone = clockZone(stamp, zone);
    made.readBack = xmpDateFromStampInfos(&made.stamp, zone);
    const Date wanted = inPrecision(date, itsZone, subtype);
    made.isWanted = made.readBack == wanted;
    made.isAmbiguous = !made.isWanted && stamp.type == XmpStampType::Local &&
                       wallClockOfXmpStamp(&made.stamp) == civilFromInstant(wanted, zone);
    made.zoneChange = zoneChange(stamp, made.stamp);
    return made;
}

/// What a stamp becomes, without its patches.
StampPlan planFor(const XmpStamp &stamp, const std::optional<NewStamp> &made,
                  PlanObstacle &obstacle) {
    StampPlan plan;
    obstacle = PlanObstacle::None;
    if (made) {
        plan.readBack = made->readBack;
        plan.isAmbiguous = made->isAmbiguous;
        plan.zoneChange = made->zoneChange;
    }
    const bool isChange = made && made->stamp.value.data != stamp.value.data;
    if (!made || !(made->isWanted || made->isAmbiguous))
        obstacle = PlanObstacle::UnreadableBack;
    else if (isChange && !stamp.value.hasRoomFor(stamp.value.data.size()))
        obstacle = PlanObstacle::NoRoom;
    if (obstacle != PlanObstacle::None)
        plan.result = SlotResult::Refused;
    else if (isChange)
        plan.result = SlotResult::WrittenInPlace;
    return plan;
}

void appendPatch(const XmpStamp &stamp, std::string_view after, std::size_t at, std::size_t length,
                 std::vector<ValuePatch> &patches) {
    const std::string_view before = stamp.value.data;
    patches.push_back({&stamp.value, Patch(stamp.value.offset + at, before.substr(at, length),
                                           after.substr(at, length))});
}

bool isSlotToBeWritten(const MySinglePic &pic, StampSlot slot) {
    return isCleanDate(pic.slots.*description(slot).oldDate) &&
           isCleanDate(pic.slots.*description(slot).newDate);
}

Date wantedDate(const MySinglePic &pic, StampSlot slot) {
    return *(pic.slots.*description(slot).newDate);
}

/// The stamp's own offset as a zone; none for a stamp without one.
std::optional<absl::TimeZone> ownZone(const XmpStamp &stamp) {
    const auto seconds =
        stamp.type == XmpStampType::Zoned ? secondsFromXmpStamp(&stamp) : std::nullopt;
    return seconds ? std::optional(absl::FixedTimeZone(*seconds)) : std::nullopt;
}

/// Stamps of one packet can have offsets of their own, and each keeps its own where all are to.
absl::TimeZone zoneFor(const MySinglePic &pic, const XmpStamp &stamp, const PlanContext &context) {
    const ZoneSides sides(context.folder);
    const ZoneChoice *choice = choiceForPic(pic, sides.target);
    if (!choice || !choice->is(ZoneChoice::Kind::Own))
        return targetTimeZoneForPic(pic, sides, context.zones).rules;
    const auto own = ownZone(stamp);
    return own ? *own : sourceTimeZoneForPic(pic, sides, context.zones).rules;
}

/// The stamps of a slot in the packet: which the slot is read from, and the other one. Each is null
/// where there is none or it does not take part.
struct SlotStamps {
    const XmpStamp *first = nullptr;
    const XmpStamp *twin = nullptr;
};
struct SlotProperties {
    StampSlot slot;
    XmpProperty first, second;
};
constexpr std::array kSlotProperties{
    SlotProperties{StampSlot::Original, XmpProperty::PhotoshopDateCreated,
                   XmpProperty::ExifDateTimeOriginal},
    SlotProperties{StampSlot::Digitized, XmpProperty::XmpCreateDate,
                   XmpProperty::ExifDateTimeDigitized},
    SlotProperties{StampSlot::Modification, XmpProperty::XmpModifyDate, XmpProperty::TiffDateTime},
};

SlotStamps stampsOf(const MySinglePic &pic, StampSlot slot, bool isInStep) {
    const XmpDateInfos &packet = pic.singlePicAttributes.xmpDateInfos;
    const auto &names = *std::ranges::find(kSlotProperties, slot, &SlotProperties::slot);
    const XmpStamp *first = packet.find(names.first), *second = packet.find(names.second);
    if (!first)
        return {second, nullptr};
    return {first, isInStep ? second : nullptr};
}

/// The long form of a short stamp whose date has seconds; none where the stamp can say the date, or
/// is not to be widened.
std::optional<NewStamp> widened(const MySinglePic &pic, StampSlot slot, const XmpStamp &stamp,
                                const absl::TimeZone &zone, const PlanContext &context) {
    const bool isAsked = (stamp.subtype & kXmpWithoutSeconds) && pic.isSlotXmp(slot) &&
                         context.shouldSupportXmpSave && pic.isThisTimeUnsaved();
    if (!isAsked)
        return std::nullopt;
    auto made =
        stampTelling(stamp, wantedDate(pic, slot), zone, stamp.subtype & ~kXmpWithoutSeconds);
    const bool isNeeded = made && made->stamp.value.data.substr(kSecondsAt, 2) != "00";
    return isNeeded ? made : std::nullopt;
}

/// A question to the user is asked of all stamps of the slot together.
void takeQuestions(const StampPlan &twin, StampPlan &plan) {
    plan.isAmbiguous = plan.isAmbiguous || twin.isAmbiguous;
    if (twin.zoneChange.empty() || twin.zoneChange == plan.zoneChange)
        return;
    plan.zoneChange += (plan.zoneChange.empty() ? "" : ", ") + twin.zoneChange;
}

/// A stamp that only goes along; without an obstacle its patches stand in `patches`.
StampPlan planCompanion(const MySinglePic &pic, StampSlot slot, const XmpStamp &stamp,
                        const PlanContext &context, std::vector<ValuePatch> &patches) {
    PlanObstacle obstacle{};
    const StampPlan plan = planXmpStampTo(stamp, wantedDate(pic, slot),
                                          zoneFor(pic, stamp, context), patches, obstacle);
    return obstacle == PlanObstacle::None ? plan : StampPlan{};
}

StampPlan planSource(const MySinglePic &pic, StampSlot slot, const XmpStamp &stamp,
                     const PlanContext &context, std::vector<ValuePatch> &patches,
                     PlanObstacle &obstacle) {
    const absl::TimeZone zone = zoneFor(pic, stamp, context);
    const auto longer = widened(pic, slot, stamp, zone, context);
    if (!longer)
        return planXmpStampTo(stamp, wantedDate(pic, slot), zone, patches, obstacle);
    StampPlan plan = planFor(stamp, longer, obstacle);
    if (plan.result == SlotResult::WrittenInPlace)
        plan.result = SlotResult::WrittenByTool;
    return plan;
}

} // namespace

StampPlan planXmpStampTo(const XmpStamp &stamp, Date date, const absl::TimeZone &zone,
                         std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
    const auto made = stampTelling(stamp, date, zone, stamp.subtype);
    StampPlan plan = planFor(stamp, made, obstacle);
    if (obstacle != PlanObstacle::None)
        return plan;
    const std::string_view after = made->stamp.value.data;
    appendPatch(stamp, after, 0, xmpClockLength(stamp.subtype), patches);
    if (const std::size_t length = zoneLength(stamp))
        appendPatch(stamp, after, after.size() - length, length, patches);
    return plan;
}

StampPlan planXmpStamps(const MySinglePic &pic, StampSlot slot, const PlanContext &context,
                        std::vector<ValuePatch> &patches, PlanObstacle &obstacle) {
    obstacle = PlanObstacle::None;
    const bool isFollower = slot == StampSlot::Modification && pic.xmp.hasModiXmp;
    StampPlan plan;
    if (!isSlotToBeWritten(pic, slot) || !(pic.isSlotXmp(slot) || isFollower))
        return plan;
    const SlotStamps stamps = stampsOf(pic, slot, context.syncXMPDataOnSave);
    if (!stamps.first)
        return plan;
    plan = isFollower ? planCompanion(pic, slot, *stamps.first, context, patches)
                      : planSource(pic, slot, *stamps.first, context, patches, obstacle);
    if (obstacle == PlanObstacle::None && stamps.twin)
        takeQuestions(planCompanion(pic, slot, *stamps.twin, context, patches), plan);
    if (hasAssignedTargetZone(pic, context.folder))
        plan.zoneChange.clear();
    return plan;
}

OptionalDate planXmpGpsStamp(const MySinglePic &pic, Date date, const PlanContext &context,
                             std::vector<ValuePatch> &patches) {
    const XmpStamp *stamp = pic.singlePicAttributes.xmpDateInfos.xmpGpsDict();
    if (!stamp)
        return std::nullopt;
    const auto own = hasAssignedTargetZone(pic, context.folder) ? std::nullopt : ownZone(*stamp);
    const std::size_t count = patches.size();
    PlanObstacle obstacle{};
    const StampPlan plan =
        planXmpStampTo(*stamp, date, own ? *own : zoneFor(pic, *stamp, context), patches, obstacle);
    if (obstacle == PlanObstacle::None && !plan.isAmbiguous)
        return plan.readBack;
    patches.erase(patches.begin() + static_cast<std::ptrdiff_t>(count), patches.end());
    return std::nullopt;
}

std::vector<SupportStamp> supportStamps(const MySinglePic &pic, const PlanContext &context) {
    std::vector<SupportStamp> stamps;
    for (const StampSlot slot : stampSlots) {
        const XmpStamp *stamp = pic.xmpStamp(slot);
        if (!stamp || !isSlotToBeWritten(pic, slot))
            continue;
        if (const auto longer = widened(pic, slot, *stamp, zoneFor(pic, *stamp, context), context))
            stamps.push_back({stamp->property, longer->stamp.value.data});
    }
    return stamps;
}

} // namespace chronomender
