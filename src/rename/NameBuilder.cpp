// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameBuilder.h"

#include "DisplayZone.h"
#include "NameParts.h"
#include "NameValues.h"

namespace chronomender {
namespace {

constexpr std::string_view emptyName = "_";
constexpr std::size_t usualLength = 64;

std::string lastPathComponent(std::string_view path) {
    while (path.ends_with('/'))
        path.remove_suffix(1);
    return std::string(path.substr(path.rfind('/') + 1)); // npos + 1 is 0
}

} // namespace

const std::string &KnownFolderNames::nameOf(const MySingleFolder &folder) {
    const auto [known, isNew] = m_names.try_emplace(&folder);
    if (isNew)
        known->second = lastPathComponent(folder.sfFolderPath());
    return known->second;
}

std::optional<NameFacts> nameFactsOf(const MySinglePic &pic, bool useNameAtImport,
                                     const Zones &zones, KnownFolderNames &folderNames) {
    const MySingleFolderPtr folder = pic.spSingleRealFolder();
    if (!folder)
        return std::nullopt;
    NameFacts facts{pic.spDateTimeModified_sort(),
                    displayZone(pic, *folder, zones),
                    folderNames.nameOf(*folder),
                    useNameAtImport ? pic.spNameAtImport : pic.spTargetName(),
                    pic.spName,
                    {}};
    if (pic.group.bundleDependentImage || !pic.spSidecarExtensions.empty())
        facts.spNameComplete = spNameComplete(pic);
    return facts;
}

std::optional<NameFacts> nameFactsOf(const MySinglePic &pic, bool useNameAtImport,
                                     const Zones &zones) {
    KnownFolderNames folderNames;
    return nameFactsOf(pic, useNameAtImport, zones, folderNames);
}

std::string nameString(const NameFacts &facts, std::int64_t counter, const AddOnTexts &addOns,
                       const NameSettings &settings) {
    const NameValues values(facts, counter, addOns, settings, NameValues::Purpose::Disk);
    std::string name;
    name.reserve(usualLength);
    walkParts(settings.renameTemplate, [&](const TemplatePart &part, std::optional<int> slot) {
        name += slot ? values[*slot] : std::string_view(part.text);
    });
    if (name.empty())
        name = emptyName;
    if (settings.frontDotHandlingMode == FrontDotMode::Remove)
        name.erase(0, frontDotsToRemove(name));
    return name += dottedExtension(facts, settings);
}

std::string correctedExtension(const std::string &extension, SuffixCase suffixChangeCase) {
    return caseChanged(extension, suffixChangeCase);
}

} // namespace chronomender
