// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleItem.h"
#include "ZoneLookup.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace chronomender::little {

/// Choices in one word: a zone's name, a marker as sessions store it, or "" for none.
inline std::optional<ZoneChoice> choice(const std::string &word) {
    using Kind = ZoneChoice::Kind;
    if (word.empty())
        return std::nullopt;
    for (Kind kind :
         {Kind::System, Kind::Unchanged, Kind::UnchangedLeft, Kind::UnchangedLeftFolder, Kind::Own})
        if (ZoneChoice marker = ZoneChoice::marker(kind); marker.persistedName() == word)
            return marker;
    return ZoneChoice::named(zone(word));
}

inline std::string word(const ZoneChoice *choice) {
    return choice ? choice->persistedName() : "";
}
inline std::string word(const std::optional<ZoneChoice> &choice) {
    return word(choice ? &*choice : nullptr);
}

/// A folder on a machine in Berlin, with one photo.
class ZonesTest : public testing::Test {
protected:
    ZonesTest() { zones.setSystemZone(zone("Europe/Berlin")); }

    /// Sets the four places a choice can stand in.
    void assign(const std::string &source, const std::string &target,
                const std::string &ownSource = "", const std::string &ownTarget = "") {
        folder->sourceTimeZones = {choice(source), {}};
        folder->targetTimeZones = {choice(target), {}};
        if (const auto own = choice(ownSource))
            addPicWithZone(*pic, *own, folder->sourceTimeZones);
        if (const auto own = choice(ownTarget))
            addPicWithZone(*pic, *own, folder->targetTimeZones);
    }
    /// "source target own-source own-target" of the folder and the photo, "-" for none.
    std::string choices() const {
        std::string text;
        for (const std::string &part :
             {word(folder->sourceTimeZones.folderDefault),
              word(folder->targetTimeZones.folderDefault),
              word(choiceForPicIgnoringDefault(*pic, folder->sourceTimeZones)),
              word(choiceForPicIgnoringDefault(*pic, folder->targetTimeZones))})
            text += (text.empty() ? "" : " ") + (part.empty() ? "-" : part);
        return text;
    }
    std::string source() const { return sourceTimeZoneForPic(*pic, *folder, zones).name; }
    std::string target() const { return targetTimeZoneForPic(*pic, *folder, zones).name; }

    Zones zones;
    MySingleFolderPtr folder = makeFolder();
    MySinglePicPtr pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
};

} // namespace chronomender::little
