// SPDX-License-Identifier: GPL-3.0-or-later
#include "Sidecars.h"

#include "Parallel.h"
#include "XmpFilling.h"

#include <algorithm>
#include <unordered_map>

namespace chronomender {

namespace {

/// The items of a folder by name and by base name.
class ItemNames {
public:
    void add(const std::vector<MySinglePicPtr> &items) {
        for (const MySinglePicPtr &pic : items) {
            m_byName.emplace(pic->spName, pic);
            m_byBaseName[pic->spBaseName()].push_back(pic);
        }
    }
    MySinglePicPtr named(const std::string &name) const {
        const auto found = m_byName.find(name);
        return found == m_byName.end() ? nullptr : found->second;
    }
    std::vector<MySinglePicPtr> withBaseName(const std::string &name) const {
        const auto found = m_byBaseName.find(name);
        return found == m_byBaseName.end() ? std::vector<MySinglePicPtr>() : found->second;
    }

private:
    std::unordered_map<std::string, MySinglePicPtr> m_byName;
    std::unordered_map<std::string, std::vector<MySinglePicPtr>> m_byBaseName;
};

std::string nameWithoutExtension(const std::string &name) {
    return name.substr(0, name.size() - extensionOfName(name).size() - 1);
}

/// What is behind the item's base name and its dot: "xmp", or "CR2.xmp".
std::string sidecarExtensionFor(const MySinglePic &pic, const std::string &name) {
    return name.substr(pic.spBaseName().size() + 1);
}

bool isKnown(const SidecarMatch &match) {
    const auto hasIt = [&](const MySinglePicPtr &pic) {
        const auto &known = pic->spSidecarExtensions;
        return std::ranges::find(known, sidecarExtensionFor(*pic, match.file.name)) != known.end();
    };
    return match.own ? hasIt(match.own) : std::ranges::any_of(match.candidates, hasIt);
}

/// The two sides of a group are one shot, and its master stands for it.
MySinglePicPtr onlyShotOf(const std::vector<MySinglePicPtr> &candidates) {
    MySinglePicPtr only;
    for (const MySinglePicPtr &pic : candidates) {
        const MySinglePicPtr master = pic->bundleMasterImage();
        const MySinglePicPtr &shot = master ? master : pic;
        if (only && only != shot)
            return nullptr;
        only = shot;
    }
    return only;
}

MySinglePicPtr ownerOfXmp(const SidecarMatch &match) {
    if (match.content && !match.content->extensions.empty()) {
        const auto &named = match.content->extensions;
        const auto found = std::ranges::find_if(match.candidates, [&](const MySinglePicPtr &pic) {
            return std::ranges::find(named, lowerCaseName(pic->extension())) != named.end();
        });
        return found == match.candidates.end() ? nullptr : *found;
    }
    if (MySinglePicPtr only = onlyShotOf(match.candidates))
        return only;
    const auto raw = std::ranges::find_if(match.candidates,
                                          [](const MySinglePicPtr &pic) { return pic->isRaw(); });
    return raw == match.candidates.end() ? nullptr : *raw;
}

MySinglePicPtr ownerOf(const SidecarMatch &match) {
    if (match.own)
        return match.own;
    return match.kind == SidecarKind::Xmp ? ownerOfXmp(match) : onlyShotOf(match.candidates);
}

void give(SidecarMatch match, MySinglePic &pic) {
    const std::string sidecarExtension = sidecarExtensionFor(pic, match.file.name);
    addSidecarExtension(pic, sidecarExtension);
    if (const MySinglePicPtr master = pic.bundleMasterImage())
        addSidecarExtension(*master, sidecarExtension);
    if (match.content)
        addRelevantSidecarInfos(pic, *std::move(match.content));
}

bool hasOwner(const SidecarMatch &match) {
    return match.own || !match.candidates.empty();
}

} // namespace

std::vector<SidecarMatch> matchSidecars(std::vector<SidecarFile> sidecars,
                                        const MySingleFolder &folder,
                                        const std::vector<MySinglePicPtr> &newItems) {
    std::vector<SidecarMatch> matches;
    if (sidecars.empty())
        return matches;
    ItemNames items;
    for (const auto *list : {&folder.sfPicDetails_fullArray, &newItems,
                             &folder.bundleDependentsRawAndJPG, &folder.bundleDependentsLivePhotos})
        items.add(*list);
    for (SidecarFile &file : sidecars) {
        const std::string base = nameWithoutExtension(file.name);
        SidecarMatch match{std::move(file), {}, items.named(base), items.withBaseName(base), {}};
        match.kind = sidecarKindOfName(match.file.name).value_or(SidecarKind::Xmp);
        if ((hasOwner(match) || !match.file.isFoundAutomatically) && !isKnown(match))
            matches.push_back(std::move(match));
    }
    return matches;
}

void readSidecars(std::vector<SidecarMatch> &matches, const std::string &folderPath,
                  const Cancellation &cancellation) {
    const std::size_t read = parallelFor(
        matches.size(),
        [&](std::size_t i) {
            if (matches[i].kind == SidecarKind::Xmp && hasOwner(matches[i]))
                matches[i].content =
                    metadataFromXMPSidecarAtPath(folderPath + '/' + matches[i].file.name);
        },
        [&] { return cancellation.isRequested(); });
    matches.erase(matches.begin() + static_cast<std::ptrdiff_t>(read), matches.end());
}

std::vector<ImportError> giveSidecars(std::vector<SidecarMatch> matches,
                                      const std::string &folderPath) {
    std::vector<ImportError> errors;
    for (SidecarMatch &match : matches) {
        const std::string path = folderPath + '/' + match.file.name;
        if (const MySinglePicPtr owner = ownerOf(match)) {
            if (match.kind == SidecarKind::Xmp && !match.content)
                errors.push_back({ImportErrorId::SidecarUnreadable, path, owner});
            give(std::move(match), *owner);
        } else if (!match.file.isFoundAutomatically) {
            const auto id = match.candidates.empty() ? ImportErrorId::SidecarOfNone
                                                     : ImportErrorId::SidecarOfSeveral;
            errors.push_back({id, path, nullptr});
        }
    }
    return errors;
}

} // namespace chronomender
