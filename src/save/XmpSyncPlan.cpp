// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpSyncPlan.h"

#include "ItemFilling.h"
#include "MySingleFolderDataReader.h"
#include "UnchangedProof.h"
#include "XmpPlan.h"
#include "XmpRewrite.h"
#include "ZoneLookup.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

/// Which of the item's dates a property tells; none stands for the GPS time.
struct SyncedProperty {
    XmpProperty property;
    std::optional<StampSlot> slot;
};
constexpr std::array<SyncedProperty, 7> syncedProperties{{
    {XmpProperty::ExifDateTimeOriginal, StampSlot::Original},
    {XmpProperty::PhotoshopDateCreated, StampSlot::Original},
    {XmpProperty::ExifDateTimeDigitized, StampSlot::Digitized},
    {XmpProperty::XmpCreateDate, StampSlot::Digitized},
    {XmpProperty::TiffDateTime, StampSlot::Modification},
    {XmpProperty::XmpModifyDate, StampSlot::Modification},
    {XmpProperty::GpsTimeStamp, std::nullopt},
}};

OptionalDate gpsDateToSync(const MySinglePic &pic, const PlanContext &context) {
    const SinglePicAttributes &recorded = pic.singlePicAttributes;
    const bool isSynced =
        context.syncGPSDataOnSave && recorded.gpsTimeStamp && recorded.gpsDateStamp;
    return isSynced ? pic.location.spGpsUTCDate : std::nullopt;
}

bool hasNamedSourceZone(const MySinglePic &pic, const MySingleFolder &folder) {
    const ZoneChoice *choice = choiceForPic(pic, folder.sourceTimeZones);
    return choice && choice->zone();
}

/// A date as the packet is to tell it.
struct ToldDate {
    Date date;
    absl::TimeZone zone;
};

/// The packet tells a slot in the zone of the slot's own tag. A stamp with an offset keeps it where
/// nobody said in which zone the item is; a tag with a wall clock only then stands for that clock.
ToldDate toldDate(const XmpStamp &stamp, Date date, const std::optional<StampSlot> &slot,
                  const MySinglePic &pic, const PlanContext &context) {
    const absl::TimeZone zone =
        slot ? sourceZoneForSlot(pic, *slot, context.folder, context.zones).rules
             : sourceTimeZoneForPic(pic, context.folder, context.zones).rules;
    const auto own = ownZone(stamp);
    if (!own || hasNamedSourceZone(pic, context.folder))
        return {date, zone};
    const bool isWallClock = slot && !pic.zoneStamp(*slot);
    return {isWallClock ? dateBesideWallClock(date, zone, *own) : date, *own};
}

void planStamps(const MySinglePic &pic, const XmpDateInfos &packet, const PlanContext &context,
                std::vector<ValuePatch> &patches) {
    for (const XmpStamp &stamp : packet.stamps) {
        const auto synced =
            std::ranges::find(syncedProperties, stamp.property, &SyncedProperty::property);
        if (synced == syncedProperties.end())
            continue;
        const OptionalDate date = synced->slot ? pic.slots.*description(*synced->slot).oldDate
                                               : gpsDateToSync(pic, context);
        if (!isCleanDate(date))
            continue;
        const auto count = static_cast<std::ptrdiff_t>(patches.size());
        PlanObstacle obstacle{};
        const ToldDate told = toldDate(stamp, *date, synced->slot, pic, context);
        planXmpStampTo(stamp, told.date, told.zone, patches, obstacle);
        if (obstacle != PlanObstacle::None)
            patches.erase(patches.begin() + count, patches.end());
    }
}

/// The file that holds the packet, open for reading.
std::unique_ptr<OpenFile> openPacket(const XmpSyncPlan &sync, FileLayer &files,
                                     std::optional<XmpSyncProblem> &problem) {
    FileError error;
    auto file = files.open(sync.path, OpenMode::Read, &error);
    if (!file)
        problem = {!sync.isSidecar    ? SaveErrorId::SyncCannotBeOpened
                   : isAbsence(error) ? SaveErrorId::SidecarMissing
                                      : SaveErrorId::SidecarCannotBeOpened,
                   sync.path, error.text()};
    return file;
}

XmpDateInfos readPacket(const MySinglePic &pic, bool isSidecar, OpenFile &file) {
    MySingleFolderDataReader reader;
    if (!reader.borrow(file.descriptor()))
        return {};
    if (isSidecar) {
        std::vector<Finding> findings;
        return reader.readXmpSidecar(findings).dates;
    }
    DatesData dates = reader.readDates(pic.fileFormatType, pic.extension());
    return reader.readXmpDates(pic.fileFormatType, dates).value_or(XmpDateInfos());
}

/// A sidecar is proved by what was just read of it alone.
void standForSidecar(MySinglePic &recorded, const FileAttributes &attributes) {
    recorded.singlePicAttributes = {};
    recorded.spSidecarExtensions.clear();
    recorded.fileFormatType = FileFormatNone;
    recorded.save = {};
    takeFileAttributes(recorded, attributes);
}

} // namespace

bool shouldSyncXmpChangesForPic(const MySinglePic &pic) {
    const bool isAnyXmp = pic.xmp.isCreaXmp || pic.xmp.isDigiXmp || pic.xmp.isModiXmp;
    return isInRange(pic.spType, SpTypeExifOriginal, SpTypeEmptyTiffFixedDate) && !isAnyXmp &&
           pic.save.saveErrorType == 0 && !pic.save.isInvalidDueToChangesAfterImport;
}

std::optional<XmpSyncPlan> planXmpSync(const MySinglePic &pic, const PlanContext &context,
                                       FileLayer &files, std::optional<XmpSyncProblem> &problem) {
    XmpSyncPlan sync;
    sync.isSidecar = pic.hasXMPSidecar();
    sync.path = sync.isSidecar ? pic.spXMPPath() : pic.spPath();
    const auto file = openPacket(sync, files, problem);
    const auto attributes = file ? file->attributes() : std::nullopt;
    if (!attributes)
        return std::nullopt;
    sync.recorded = std::make_shared<MySinglePic>(pic);
    if (sync.isSidecar)
        standForSidecar(*sync.recorded, *attributes);
    SinglePicAttributes &recorded = sync.recorded->singlePicAttributes;
    recorded.xmpDateInfos = readPacket(pic, sync.isSidecar, *file);
    std::vector<ValuePatch> patches;
    planStamps(pic, recorded.xmpDateInfos, context, patches);
    if (doPatchesCollide(recorded, patches))
        return sync;
    for (const ValuePatch &each : patches)
        if (!each.patch.changesNothing())
            sync.plan.patches.push_back(each.patch);
    if (!sync.isSidecar && !sync.plan.patches.empty())
        sync.plan.modificationDate = recorded.fileModificationDate;
    return sync;
}

} // namespace chronomender
