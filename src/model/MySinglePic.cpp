// SPDX-License-Identifier: GPL-3.0-or-later
#include "MySinglePic.h"

#include "MySingleFolder.h"
#include "NameParts.h"

#include <algorithm>
#include <atomic>

namespace chronomender {
namespace {

std::uint32_t nextSessionUniqueId() {
    static std::atomic<std::uint32_t> counter{0};
    return ++counter;
}

std::string joined(std::string folder, std::string_view name) {
    if (folder.empty() || folder.back() != '/')
        folder += '/';
    return folder.append(name);
}

std::string trimmed(const std::string &text) {
    constexpr const char *blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string::npos)
        return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isXmp(std::string_view extension) {
    constexpr std::string_view xmp = "xmp";
    const auto isSameLetter = [](char a, char b) { return (a | 0x20) == b; };
    return std::equal(extension.begin(), extension.end(), xmp.begin(), xmp.end(), isSameLetter);
}

std::vector<std::string>::const_iterator xmpSidecarOf(const MySinglePic &pic) {
    const std::vector<std::string> &all = pic.spSidecarExtensions;
    if (all.empty())
        return all.end();
    return std::find_if(all.begin(), all.end(), [own = pic.extension()](const std::string &each) {
        return isXmpSidecarExtension(each, own);
    });
}

} // namespace

FileUnchangedState MySinglePic::bundleUnchangedState() const {
    const FileUnchangedState own = save.fileUnchangedState;
    const MySinglePicPtr &dependent = group.bundleDependentImage;
    // Where both sides have something to say, the item itself speaks first.
    return !dependent || own != FileUnchangedState::Unchanged ? own
                                                              : dependent->save.fileUnchangedState;
}

MySinglePicPtr MySinglePic::create(std::string name, const MySingleFolderPtr &folder, SpType type,
                                   Date date) {
    MySinglePicPtr pic(new MySinglePic);
    pic->sessionUniqueId = nextSessionUniqueId();
    pic->spName = std::move(name);
    pic->spNameAtImport = pic->spName;
    pic->m_folder = folder;
    pic->spType = type;
    pic->spDateTimeOriginal = date;
    pic->spDateTimeModified_tempFIX = date;
    return pic;
}

std::string MySinglePic::spPath() const {
    const MySingleFolderPtr folder = spSingleRealFolder();
    return folder ? joined(folder->sfFolderPath(), spName) : spName;
}

std::string MySinglePic::spBaseName() const {
    return std::string(baseOfName(spName));
}

std::string MySinglePic::extension() const {
    return std::string(extensionOfName(spName));
}

std::int64_t MySinglePic::spCategory() const {
    const MySingleFolderPtr folder = spSingleRealFolder();
    return folder ? folder->folderSortGeneral : -1;
}

std::optional<std::string> RenameState::cachedTargetName() const {
    if (!wantedName || !addonCounter)
        return wantedName;
    constexpr std::size_t digits = 6;
    const std::string number = std::to_string(*addonCounter);
    return *wantedName + std::string(digits - std::min(digits, number.size()), '0') + number;
}

std::vector<std::string> MySinglePic::spSidecarPaths() const {
    std::vector<std::string> paths;
    if (spSidecarExtensions.empty())
        return paths;
    const MySingleFolderPtr folder = spSingleRealFolder();
    const std::string stem = joined(folder ? folder->sfFolderPath() : ".", spBaseName()) + '.';
    for (const std::string &sidecarExtension : spSidecarExtensions)
        paths.push_back(stem + sidecarExtension);
    return paths;
}

std::string MySinglePic::spXMPPath() const {
    const auto found = xmpSidecarOf(*this);
    if (found == spSidecarExtensions.end())
        return {};
    return spSidecarPaths()[static_cast<std::size_t>(found - spSidecarExtensions.begin())];
}

bool MySinglePic::hasXMPSidecar() const {
    return xmpSidecarOf(*this) != spSidecarExtensions.end();
}

const LocatedBytes *MySinglePic::stamp(StampSlot slot) const {
    const auto &value = slot == StampSlot::Original    ? singlePicAttributes.exifDateTimeOriginal
                        : slot == StampSlot::Digitized ? singlePicAttributes.exifDateTimeDigitized
                                                       : singlePicAttributes.tiffDateTime;
    return value ? &*value : nullptr;
}

const LocatedBytes *MySinglePic::zoneStamp(StampSlot slot) const {
    const auto &value = slot == StampSlot::Original    ? singlePicAttributes.exifOffsetTimeOriginal
                        : slot == StampSlot::Digitized ? singlePicAttributes.exifOffsetTimeDigitized
                                                       : singlePicAttributes.tiffOffsetTime;
    return value ? &*value : nullptr;
}

bool isXmpSidecarExtension(std::string_view sidecarExtension, std::string_view ownExtension) {
    if (isXmp(sidecarExtension))
        return true;
    const std::size_t length = ownExtension.size();
    return sidecarExtension.starts_with(ownExtension) &&
           sidecarExtension.substr(length).starts_with('.') &&
           isXmp(sidecarExtension.substr(length + 1));
}

void addSidecarExtension(MySinglePic &pic, const std::string &sidecarExtension) {
    std::vector<std::string> &all = pic.spSidecarExtensions;
    if (std::find(all.begin(), all.end(), sidecarExtension) == all.end())
        all.push_back(sidecarExtension);
}

std::string completeMakerModelString(const std::string &make, const std::string &model) {
    const std::string maker = trimmed(make);
    std::string camera = trimmed(model);
    if (maker.empty() || camera.starts_with(maker))
        return camera;
    return camera.empty() ? maker : maker + ' ' + camera;
}

} // namespace chronomender
