// SPDX-License-Identifier: GPL-3.0-or-later
#include "Names.h"

#include "NameBuilder.h"
#include "TemplateText.h"
#include "ZoneLookup.h"

#include <array>
#include <set>

namespace chronomender::bench {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t itemCount = 10'000, zoneEvery = 5, sidecarEvery = 8;
constexpr std::array<const char *, 4> prefixes{"IMG_", "_DSC", "Caf\u00E9 ", "DJI_20240602_"};
constexpr std::array<const char *, 4> extensions{".JPG", ".cr3", ".HEIC", ".mov"};

MySingleFolderPtr makeFolder(const std::string &path, const Zone &away) {
    auto folder =
        MySingleFolder::initWithFolder(path, FolderReference::open(path), EditMode::Together);
    folder->sfDateModificationsTimeInterval = absl::Seconds(3723);
    folder->sfPicDetails_fullArray.reserve(itemCount);
    const Date first = absl::FromCivil(absl::CivilSecond(2019, 1, 1), away.rules);
    for (std::size_t i = 0; i < itemCount; ++i) {
        auto pic = MySinglePic::create(
            prefixes[i % prefixes.size()] + std::to_string(i) + extensions[i / 7 % 4], folder,
            SpTypeExifOriginal, first + absl::Seconds(19'997) * static_cast<std::int64_t>(i));
        if (i % zoneEvery == 0)
            addPicWithZone(*pic, ZoneChoice::named(away), folder->targetTimeZones);
        if (i % sidecarEvery == 0)
            pic->spSidecarExtensions.emplace_back("xmp");
        folder->sfPicDetails_fullArray.push_back(std::move(pic));
    }
    return folder;
}

/// All names are different, and each says the date of its item.
bool areRight(const std::vector<std::string> &names, const MySingleFolder &folder,
              const Zones &zones) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        const MySinglePic &pic = *folder.sfPicDetails_fullArray[i];
        const std::string date = absl::FormatTime("%E4Y-%m-%d_", pic.spDateTimeModified_sort(),
                                                  targetTimeZoneForPic(pic, folder, zones).rules);
        if (!names[i].starts_with(date) || !names[i].ends_with('.' + pic.extension()) ||
            names[i].find(pic.spBaseName()) == std::string::npos)
            return false;
    }
    return std::set<std::string>(names.begin(), names.end()).size() == itemCount;
}

} // namespace

BuiltNames buildNames(const std::string &path) {
    Zones zones;
    zones.setSystemZone(*zones.zoneWithName("Europe/Berlin"));
    static const MySingleFolderPtr folder = makeFolder(path, *zones.zoneWithName("Asia/Tokyo"));
    NameSettings settings;
    settings.renameTemplate = std::get<RenameTemplate>(
        templateFromText("{year}-{month}-{day}_{folder}_{name}_{counter:4}x"));
    settings.folderModifications = settings.fileModifications = factoryModifications();
    std::vector<std::string> names;
    names.reserve(itemCount);
    const auto begin = Clock::now();
    std::int64_t counter = 0;
    KnownFolderNames folderNames;
    for (const MySinglePicPtr &pic : folder->sfPicDetails_fullArray)
        if (const auto facts = nameFactsOf(*pic, true, zones, folderNames))
            names.push_back(nameString(*facts, ++counter, {}, settings));
    const auto time = Clock::now() - begin;
    return {time, areRight(names, *folder, zones) ? names.size() : 0};
}

} // namespace chronomender::bench
