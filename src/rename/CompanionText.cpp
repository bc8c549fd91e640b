// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameBuilder.h"

#include "NameParts.h"

#include <algorithm>

namespace chronomender {
namespace {

bool endsIn(const std::string &extension, std::string_view kind) {
    const std::string lower = correctedExtension(extension, SuffixCase::Lower);
    return lower == kind || lower.ends_with('.' + std::string(kind));
}

std::string listed(const std::vector<std::string> &extensions) {
    std::string list;
    for (const std::string &extension : extensions)
        list += (list.empty() ? "." : ", .") + extension;
    return list;
}

} // namespace

// The partner comes first; an XMP and an AAE sidecar that an item has both stand in brackets:
// "a.CR2 (+.JPG, .xmp)", "a.HEIC (+.MOV, [.xmp, .aae])".
std::string spNameComplete(const MySinglePic &pic) {
    std::vector<std::string> inFront, sidecars;
    if (const MySinglePicPtr &partner = pic.group.bundleDependentImage)
        inFront.push_back(partner->extension());
    for (const std::string &extension : pic.spSidecarExtensions)
        if (inFront.empty() || extension != inFront.front())
            sidecars.push_back(extension);
    const auto xmp = std::ranges::find_if(sidecars, [](auto &each) { return endsIn(each, "xmp"); });
    const auto aae = std::ranges::find_if(sidecars, [](auto &each) { return endsIn(each, "aae"); });
    std::vector<std::string> both;
    if (xmp != sidecars.end() && aae != sidecars.end())
        both = {*xmp, *aae};
    for (const std::string &extension : sidecars)
        if (std::ranges::find(both, extension) == both.end())
            inFront.push_back(extension);
    if (inFront.empty() && both.empty())
        return pic.spName;
    std::string text = pic.spName + " (+" + listed(inFront);
    if (!both.empty())
        text += (inFront.empty() ? "[" : ", [") + listed(both) + ']';
    return text + ')';
}

} // namespace chronomender
