// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameBuilder.h"

namespace chronomender {

std::optional<NameFacts> nameFactsOf(const MySinglePic &, bool, const Zones &) {
    return std::nullopt;
}

std::string nameString(const NameFacts &facts, std::int64_t, const AddOnTexts &,
                       const NameSettings &, bool) {
    return facts.spName;
}

StyledName styledNameString(const NameFacts &, std::int64_t, const AddOnTexts &,
                            const NameSettings &) {
    return {};
}

std::string cleanedTempName(const std::string &name) {
    return name;
}

std::string correctedExtension(const std::string &extension, SuffixCase) {
    return extension;
}

std::string spNameComplete(const MySinglePic &pic) {
    return pic.spName;
}

} // namespace chronomender
