// SPDX-License-Identifier: GPL-3.0-or-later
#include "ItemTexts.h"

#include "DateAlertTexts.h"
#include "Texts.h"

#include <array>
#include <cstdio>

namespace chronomender {
namespace {

struct Note {
    bool (*applies)(const MySinglePic &);
    const char *key;
};
constexpr std::array<Note, 6> notes{{
    {isUnsaved, "cli_note_unsaved"},
    {[](const MySinglePic &pic) { return pic.importState.isLeftAlone; }, "cli_note_emptyTags"},
    {[](const MySinglePic &pic) {
         return isNullerFile(pic.spType) && !pic.importState.isLeftAlone;
     },
     "cli_note_filledTags"},
    {[](const MySinglePic &pic) { return hasNoDateTags(pic.spType); }, "cli_note_noTags"},
    {[](const MySinglePic &pic) { return isPreferringFileDate(pic.spType); },
     "cli_note_youngerThanFile"},
    {[](const MySinglePic &pic) { return pic.importState.isExtraHardLink; }, "cli_note_hardLinks"},
}};

} // namespace

bool isUnsaved(const MySinglePic &pic) {
    return !pic.importState.isLeftAlone && pic.isUnsavedOrGroupHarmonized();
}

std::string noteText(const MySinglePic &pic) {
    std::string joined;
    for (const Note &note : notes)
        if (note.applies(pic))
            joined += (joined.empty() ? "" : "; ") + text(note.key);
    return joined;
}

std::string wordsOf(const DateAlert &alert, const MySinglePic &pic) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    return alert.isOfDependent && dependent ? dependent->spName + ": " + alertText(alert)
                                            : alertText(alert);
}

std::string alertsText(const std::vector<DateAlert> &alerts, const MySinglePic &pic) {
    std::string joined;
    for (const DateAlert &alert : alerts)
        joined += (joined.empty() ? "" : "; ") + wordsOf(alert, pic);
    return joined;
}

std::string sourceText(const MySinglePic &pic) {
    const std::string source = text("dateSource_" + std::to_string(static_cast<int>(pic.spType)));
    const bool isXmp = pic.isDataSourceXmp() && !isPreferringFileDate(pic.spType);
    return isXmp ? text("dateSource_xmp", {source}) : source;
}

std::string locationText(const MySinglePic &pic) {
    if (!pic.location.gpsLat || !pic.location.gpsLong)
        return {};
    std::array<char, 64> buffer{};
    std::snprintf(buffer.data(), buffer.size(), "%.6f, %.6f", *pic.location.gpsLat,
                  *pic.location.gpsLong);
    return buffer.data();
}

std::vector<std::string> sidecarNames(const MySinglePic &pic) {
    std::vector<std::string> names;
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    for (const std::string &sidecarExtension : pic.spSidecarExtensions) {
        const bool isOtherHalf = dependent && sidecarExtension == dependent->extension();
        if (!isOtherHalf)
            names.push_back(pic.spBaseName() + '.' + sidecarExtension);
    }
    return names;
}

std::string nameWithCompanions(const MySinglePic &pic) {
    const MySinglePicPtr &dependent = pic.group.bundleDependentImage;
    std::string companions = dependent ? dependent->extension() : std::string();
    const std::size_t stem = pic.spBaseName().size() + 1;
    for (const std::string &name : sidecarNames(pic))
        companions += (companions.empty() ? "" : ", ") + name.substr(stem);
    return companions.empty() ? pic.spName : pic.spName + " + " + companions;
}

} // namespace chronomender
