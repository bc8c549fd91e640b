// SPDX-License-Identifier: GPL-3.0-or-later
#include "MySinglePic.h"

#include "MySingleFolder.h"

namespace chronomender {
namespace {

/// How far the dates of a raw and its JPEG may lie apart before the JPEG takes the raw's date, for
/// each kind of harmonising; none when nothing is harmonised.
std::optional<absl::Duration> harmonizingTolerance(int harmonizingRawJpgsType) {
    switch (harmonizingRawJpgsType) {
    case 1:
        return absl::Seconds(300);
    case 2:
        return absl::Seconds(1);
    default:
        return std::nullopt;
    }
}

bool isHarmonized(const MySinglePic &master) {
    const MySinglePicPtr &dependent = master.group.bundleDependentImage;
    if (!dependent || dependent->isMovie() || isMarker(master.spDateTimeOriginal) ||
        isMarker(dependent->spDateTimeOriginal))
        return false;
    const MySingleFolderPtr folder = master.spSingleRealFolder();
    const auto tolerance = harmonizingTolerance(folder ? folder->harmonizingRawJpgsType : 0);
    return tolerance &&
           distance(master.spDateTimeOriginal, dependent->spDateTimeOriginal) > *tolerance;
}

} // namespace

MySinglePicPtr MySinglePic::bundleMasterImage() const {
    // Most items stand alone: asking first spares them the counting of a lock.
    return group.bundleMasterImage.expired() ? nullptr : group.bundleMasterImage.lock();
}

const MySinglePic &MySinglePic::sortPic() const {
    if (const MySinglePicPtr master = bundleMasterImage())
        return master->sortPic();
    const MySinglePicPtr &dependent = group.bundleDependentImage;
    if (!dependent || !dependent->isMovie())
        return *this;
    const MySingleFolderPtr folder = spSingleRealFolder();
    return folder && folder->sortFolderLPsByMov ? *dependent : *this;
}

OptionalDate MySinglePic::singlePicModeDate() const {
    if (shift.singlePicModification == absl::ZeroDuration())
        return std::nullopt;
    return shifted(spDateTimeOriginal, shift.singlePicModification);
}

Date MySinglePic::spDateTimeModified() const {
    if (!isMovie())
        if (const MySinglePicPtr master = bundleMasterImage(); master && isHarmonized(*master))
            return master->spDateTimeModified();
    return hasCorrectableDate() ? shifted(spDateTimeOriginal, presentShift()) : spDateTimeOriginal;
}

absl::Duration MySinglePic::presentShift() const {
    const MySingleFolderPtr folder = spSingleRealFolder();
    if (!folder)
        return absl::ZeroDuration();
    return folder->sfEditMode == EditMode::Single ? shift.singlePicModification
                                                  : folder->sfDateModificationsTimeInterval;
}

bool MySinglePic::isGroupHarmonized() const {
    const MySinglePicPtr master = bundleMasterImage();
    return isHarmonized(master ? *master : *this);
}

bool MySinglePic::isThisHarmonizationChanged() const {
    if (isMovie() || importState.isLeftAlone)
        return false;
    const MySinglePicPtr master = bundleMasterImage();
    return master && isHarmonized(*master);
}

bool MySinglePic::isBundleMasterAffectedByHarmonization() const {
    return group.bundleDependentImage && isThisHarmonizationChanged();
}

bool MySinglePic::isThisPureTimeUnsaved() const {
    if (importState.isLeftAlone || !hasCorrectableDate())
        return false;
    return zones.isUnsavedDueToTZC || hasImportOptionChanges(spType) ||
           presentShift() != absl::ZeroDuration() || isThisHarmonizationChanged();
}

bool MySinglePic::isThisTimeUnsaved() const {
    if (importState.isLeftAlone || !hasCorrectableDate())
        return false;
    return hasSaveErrorTime() || save.shouldAddExifDateTimeTags || save.didAddExifDateTimeTags ||
           isThisPureTimeUnsaved();
}

bool MySinglePic::isThisUnsaved() const {
    if (importState.isLeftAlone)
        return false;
    return isThisTimeUnsaved() || hasLocationChange() || hasSaveErrorLocation();
}

bool MySinglePic::isUnsavedOrGroupHarmonized() const {
    const MySinglePicPtr master = bundleMasterImage();
    const MySinglePic &first = master ? *master : *this;
    const MySinglePicPtr &second = first.group.bundleDependentImage;
    return first.isThisUnsaved() || (second && second->isThisUnsaved());
}

bool MySinglePic::isUnsavedIgnoringSaveError() const {
    if (importState.isLeftAlone)
        return false;
    return isThisPureTimeUnsaved() || hasLocationChange() ||
           (hasCorrectableDate() &&
            (save.shouldAddExifDateTimeTags || save.didAddExifDateTimeTags));
}

bool MySinglePic::isDataSourceXmp() const {
    // Only the first flag that is set decides.
    if (xmp.isCreaXmp)
        return spType == SpTypeExifOriginal;
    if (xmp.isDigiXmp)
        return spType == SpTypeExifDigitized;
    return xmp.isModiXmp && (spType == SpTypeTiffDateTime || spType == SpTypeTiffYoungerThanFile);
}

bool MySinglePic::isDataSourceLocal() const {
    if (isMovie()) {
        const bool hasHeaderDate =
            isInRange(spType, SpTypeMovieMvhdCreation, SpTypeMovieEmptyFixedDate) &&
            spType != SpTypeMovieMvhdYoungerThanFile;
        const MySingleFolderPtr folder = spSingleRealFolder();
        return hasHeaderDate && folder && folder->isQuicktimeMVHDTimezoneCorrectionEnabled;
    }
    if (spType == SpTypeTiffYoungerThanFile)
        return false;
    for (StampSlot slot : stampSlots)
        if (isCleanDate(slots.*description(slot).oldDate)) {
            const XmpStamp *fromXmp = xmpStamp(slot);
            return fromXmp ? fromXmp->type == XmpStampType::Local : !zoneStamp(slot);
        }
    return false;
}

XmpStampType MySinglePic::sourceXmpDateType() const {
    if (!isDataSourceXmp())
        return XmpStampType::Invalid;
    const XmpStamp *stamp = xmpStamp(xmp.isCreaXmp   ? StampSlot::Original
                                     : xmp.isDigiXmp ? StampSlot::Digitized
                                                     : StampSlot::Modification);
    return stamp ? stamp->type : XmpStampType::Invalid;
}

const XmpStamp *MySinglePic::xmpStamp(StampSlot slot) const {
    const XmpDateInfos &infos = singlePicAttributes.xmpDateInfos;
    if (!isSlotXmp(slot))
        return nullptr;
    return slot == StampSlot::Original    ? infos.xmpCreaDict()
           : slot == StampSlot::Digitized ? infos.xmpDigiDict()
                                          : infos.xmpModDict();
}

bool MySinglePic::isSlotXmp(StampSlot slot) const {
    return slot == StampSlot::Original    ? xmp.isCreaXmp
           : slot == StampSlot::Digitized ? xmp.isDigiXmp
                                          : xmp.isModiXmp;
}

} // namespace chronomender
