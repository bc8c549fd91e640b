// SPDX-License-Identifier: GPL-3.0-or-later
#include "FilterKeys.h"

#include "ItemAlerts.h"
#include "ZoneLookup.h"

#include <algorithm>

namespace chronomender {
namespace {

using Pic = MySinglePic;
using Context = FilterContext;

/// Of a movie whose header names no camera the display text is "-".
bool hasTwoCharacters(std::string_view text) {
    constexpr std::size_t kLongestCharacter = 4;
    if (text.size() > kLongestCharacter)
        return true;
    const auto isFirstByte = [](char byte) { return (byte & 0xC0) != 0x80; };
    return std::ranges::count_if(text, isFirstByte) >= 2;
}

std::string_view name(const Pic &pic, std::string &) {
    return pic.spName;
}

std::string_view makeModel(const Pic &pic, std::string &) {
    return pic.camera.pivMakeModel;
}

std::string_view filter_pivMakeModel(const Pic &pic, std::string &scratch) {
    if (pic.camera.serialNumber.empty())
        return hasTwoCharacters(pic.camera.pivMakeModel) ? pic.camera.pivMakeModel
                                                         : std::string_view();
    scratch = pivMakeModelWithSn(pic);
    return hasTwoCharacters(scratch) ? scratch : std::string_view();
}

std::string_view filter_pivMakeModelLens(const Pic &pic, std::string &scratch) {
    return scratch = pivMakeModelLensWithSn(pic);
}

int filter_rating(const Pic &pic, const Context &) {
    return pic.marks.isRejected ? -1 : pic.marks.isKeeper ? 1 : 0;
}

int filter_mediaType(const Pic &pic, const Context &) {
    if (const MySinglePicPtr &dependent = pic.group.bundleDependentImage)
        return dependent->isMovie() ? 2 : 3;
    return pic.isMovie() ? 1 : 0;
}

int filter_mediaType_2(const Pic &pic, const Context &) {
    return !pic.livePhoto.compoundLivePhotoPrev.expired() ||
           !pic.livePhoto.compoundLivePhotoNext.expired();
}

int filter_dataSource(const Pic &pic, const Context &) {
    constexpr int kXmp = 8;
    const Pic &sorted = pic.sortPic();
    switch (sorted.spType) {
    case SpTypeExifOriginal:
        return sorted.xmp.isCreaXmp ? kXmp : 0;
    case SpTypeExifDigitized:
        return sorted.xmp.isDigiXmp ? kXmp : 0;
    case SpTypeTiffDateTime:
        return sorted.xmp.isModiXmp ? kXmp : 1;
    case SpTypeMovieMvhdCreation:
    case SpTypeMovieMvhdModification:
        return 2;
    case SpTypeMovieMdta:
        return 3;
    case SpTypeMovieRiff:
        return 4;
    case SpTypeNoTagsFileDate:
        return 5;
    case SpTypeUnsupported:
    case SpTypeMovieIgnored:
        return 6;
    default:
        return 7;
    }
}

OptionalDate filter_dateTimeModified(const Pic &pic) {
    const Pic &sorted = pic.sortPic();
    return sorted.hasCorrectableDate() ? OptionalDate(sorted.spDateTimeModified()) : std::nullopt;
}

int unsaved(const Pic &pic, const Context &) {
    return pic.isUnsavedOrGroupHarmonized();
}
int location(const Pic &pic, const Context &) {
    return hasBundleLocation(pic);
}
int zoneChange(const Pic &pic, const Context &context) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    return folder && hasAnyTimeZoneChangeForPic(pic, *folder, context.zones);
}
int error(const Pic &pic, const Context &) {
    return hasBundleSaveError(pic) || pic.rename.hasRenameError != 0;
}
int changedOnDisk(const Pic &pic, const Context &) {
    const FileUnchangedState state = pic.bundleUnchangedState();
    return state >= FileUnchangedState::CannotBeOpened && state <= FileUnchangedState::BytesDiffer;
}
int notFound(const Pic &pic, const Context &) {
    return pic.bundleUnchangedState() == FileUnchangedState::NotFound;
}
int alert(const Pic &pic, const Context &context) {
    return hasAnyAlert(pic, context);
}
int mustBeReadAgain(const Pic &pic, const Context &) {
    return pic.bundleUnchangedState() == FileUnchangedState::MustBeReadAgain;
}

constexpr FilterKey textKey(std::string_view name, decltype(FilterKey::text) value) {
    return {.name = name, .kind = FilterValueKind::Text, .text = value};
}
constexpr FilterKey lateTextKey(std::string_view name, decltype(FilterKey::text) value) {
    return {.name = name, .kind = FilterValueKind::Text, .isReadLate = true, .text = value};
}
constexpr FilterKey numberKey(std::string_view name, decltype(FilterKey::number) value) {
    return {.name = name, .kind = FilterValueKind::Number, .number = value};
}
constexpr FilterKey costlyNumberKey(std::string_view name, decltype(FilterKey::number) value) {
    return {.name = name, .kind = FilterValueKind::Number, .isCostly = true, .number = value};
}

constexpr FilterKey kKeys[] = {
    textKey("spName", name),
    textKey("spDisplayName", name),
    lateTextKey("pivMakeModel", makeModel),
    lateTextKey("filter_pivMakeModel", filter_pivMakeModel),
    lateTextKey("filter_pivMakeModelLens", filter_pivMakeModelLens),
    {.name = "filter_dateTimeModified",
     .kind = FilterValueKind::Instant,
     .isCostly = true,
     .date = filter_dateTimeModified},
    numberKey("filter_rating", filter_rating),
    numberKey("filter_mediaType", filter_mediaType),
    numberKey("filter_mediaType_2", filter_mediaType_2),
    numberKey("filter_dataSource", filter_dataSource),
    {.name = "filter_miscState", .kind = FilterValueKind::State},
    costlyNumberKey("filter_miscState_0", unsaved),
    {.name = "filter_miscState_1",
     .kind = FilterValueKind::Number,
     .isReadLate = true,
     .number = location},
    costlyNumberKey("filter_miscState_2", zoneChange),
    numberKey("filter_miscState_3", error),
    numberKey("filter_miscState_4", changedOnDisk),
    numberKey("filter_miscState_5", notFound),
    costlyNumberKey("filter_miscState_6", alert),
    numberKey("filter_miscState_7", mustBeReadAgain),
};

} // namespace

std::span<const FilterKey> filterKeys() {
    return kKeys;
}

const FilterKey *findFilterKey(std::string_view name) {
    const auto found = std::ranges::find(kKeys, name, &FilterKey::name);
    return found == std::end(kKeys) ? nullptr : found;
}

std::optional<IsoStamp> readFilterDate(std::string_view text) {
    constexpr std::size_t kDay = 10;
    std::string stamp(text);
    if (stamp.size() == kDay)
        stamp += "T00:00";
    else if (stamp.size() > kDay && stamp[kDay] == ' ')
        stamp[kDay] = 'T';
    return readIsoStamp(stamp);
}

std::string pivMakeModelWithSn(const MySinglePic &pic) {
    const CameraInfo &camera = pic.camera;
    if (camera.serialNumber.empty() || camera.pivMakeModel.empty())
        return camera.pivMakeModel;
    return camera.pivMakeModel + " (" + camera.serialNumber + ')';
}

std::string pivMakeModelLensWithSn(const MySinglePic &pic) {
    const std::string camera = pivMakeModelWithSn(pic), &lens = pic.camera.lens;
    return camera.empty() || lens.empty() ? camera + lens : camera + ", " + lens;
}

} // namespace chronomender
