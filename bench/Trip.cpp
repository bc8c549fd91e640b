// SPDX-License-Identifier: GPL-3.0-or-later
#include "Trip.h"

#include "StampConversions.h"

#include <array>
#include <random>
#include <string>

namespace chronomender::bench {
namespace {

constexpr std::size_t folderCount = 20, firstFolderShare = 10;
constexpr std::size_t alertEvery = 40, groupEvery = 25, shiftEvery = 7;

struct Camera {
    const char *prefix, *make, *model;
};
constexpr std::array<Camera, 2> cameras{
    {{"IMG_", "Canon", "Canon EOS R5"}, {"DSC_", "NIKON CORPORATION", "NIKON Z 6"}}};

std::string nameOf(const Camera &camera, std::size_t number, const char *extension) {
    const std::string digits = std::to_string(number % 10'000);
    return camera.prefix + std::string(4 - digits.size(), '0') + digits + extension;
}

void fill(MySinglePic &pic, const Camera &camera, const Zone &zone) {
    const Date date = pic.spDateTimeOriginal;
    const auto record = [&](StampSlot slot, std::optional<LocatedBytes> &value) {
        value = LocatedBytes{100, 20, *exifDataFromDate(date, zone.rules)};
        pic.slots.*description(slot).oldDate = date;
    };
    record(StampSlot::Original, pic.singlePicAttributes.exifDateTimeOriginal);
    record(StampSlot::Digitized, pic.singlePicAttributes.exifDateTimeDigitized);
    record(StampSlot::Modification, pic.singlePicAttributes.tiffDateTime);
    pic.slots.fileModificationDateOLD = date;
    pic.camera.make = camera.make;
    pic.camera.model = camera.model;
    pic.camera.pivMakeModel = completeMakerModelString(camera.make, camera.model);
}

void addJpeg(const MySinglePicPtr &raw, const MySingleFolderPtr &folder, const Zone &zone) {
    const std::string name = raw->spBaseName() + ".JPG";
    auto jpeg = MySinglePic::create(name, folder, SpTypeExifOriginal, raw->spDateTimeOriginal);
    fill(*jpeg, cameras[0], zone);
    raw->fileFormatType = FileFormatRaw;
    raw->group.bundleDependentImage = jpeg;
    jpeg->group.bundleMasterImage = raw;
    folder->bundleDependentsRawAndJPG.push_back(std::move(jpeg));
}

/// Folders come in pairs: two cameras on the same days, a third of the shots in bursts.
void addShots(const MySingleFolderPtr &folder, std::size_t index, std::size_t count,
              const Zone &zone) {
    std::mt19937 random(static_cast<unsigned>(index) + 1);
    const Camera &camera = cameras[index % cameras.size()];
    Date date = absl::FromCivil(
        absl::CivilSecond(2024, 5, 1 + 4 * static_cast<int>(index / cameras.size()), 9),
        zone.rules);
    for (std::size_t i = 0; i < count; ++i) {
        if (random() % 3 != 0)
            date += absl::Seconds(1 + random() % 60);
        const bool isGroup = i % groupEvery == 0;
        auto pic = MySinglePic::create(nameOf(camera, 1 + i, isGroup ? ".CR3" : ".JPG"), folder,
                                       SpTypeExifOriginal, date);
        fill(*pic, camera, zone);
        if (isGroup)
            addJpeg(pic, folder, zone);
        if (i % shiftEvery == 0)
            pic->shift.singlePicModification = absl::Seconds(30);
        folder->sfPicDetails_fullArray.push_back(std::move(pic));
    }
}

} // namespace

TripCounts addTrip(MyDroppedFolders &folders, Zones &zones, std::size_t itemCount) {
    TripCounts counts;
    const Zone home = *zones.zoneWithName("Europe/Berlin");
    zones.setSystemZone(home);
    const std::size_t first = itemCount / firstFolderShare;
    std::size_t left = itemCount - first;
    for (std::size_t i = 0; i < folderCount; ++i) {
        auto folder =
            MySingleFolder::initWithFolder("/trip/" + std::to_string(i), nullptr,
                                           i % 4 == 3 ? EditMode::Single : EditMode::Together);
        const std::size_t count = i == 0 ? first : left / (folderCount - i);
        left -= i == 0 ? 0 : count;
        addShots(folder, i, count, home);
        if (i % 5 == 1)
            folder->sfDateModificationsTimeInterval = absl::Seconds(3);
        if (i % 3 == 1)
            folder->targetTimeZones.folderDefault =
                ZoneChoice::named(*zones.zoneWithName("Asia/Tokyo"));
        folders.append(folder);
        for (std::size_t j = 0; j < count; ++j) {
            MySinglePic &pic = *folder->sfPicDetails_fullArray[j];
            counts.namesWith7 += pic.spName.find('7') != std::string::npos;
            if (j % alertEvery != 0)
                continue;
            pic.save.saveErrorType = 1;
            ++counts.alerts;
        }
    }
    return counts;
}

} // namespace chronomender::bench
