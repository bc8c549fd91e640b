// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleItem.h"
#include "ZoneLookup.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <sstream>
#include <string>

namespace chronomender::little {

/// Choices in one word each; "-" is none.
inline const std::array<std::pair<const char *, std::optional<ZoneChoice>>, 11> &choiceWords() {
    using Kind = ZoneChoice::Kind;
    const auto named = [](const char *name) { return ZoneChoice::named(zone(name)); };
    static const std::array<std::pair<const char *, std::optional<ZoneChoice>>, 11> words{
        {{"-", {}},
         {"system", ZoneChoice::system()},
         {"same", ZoneChoice::marker(Kind::Unchanged)},
         {"left", ZoneChoice::marker(Kind::UnchangedLeft)},
         {"folder", ZoneChoice::marker(Kind::UnchangedLeftFolder)},
         {"own", ZoneChoice::marker(Kind::Own)},
         {"mixed", ZoneChoice::marker(Kind::Multiple)},
         {"Berlin", named("Europe/Berlin")},
         {"Tokyo", named("Asia/Tokyo")},
         {"Lima", named("America/Lima")},
         {"UTC", named("UTC")}}};
    return words;
}
inline std::optional<ZoneChoice> choice(const std::string &word) {
    for (const auto &[known, choice] : choiceWords())
        if (known == word)
            return choice;
    ADD_FAILURE() << word;
    return {};
}
inline std::string word(const std::optional<ZoneChoice> &choice) {
    for (const auto &[word, known] : choiceWords())
        if (known == choice)
            return word;
    return "?";
}

/// A folder on a machine in Berlin, with one photo.
class ZonesTest : public testing::Test {
protected:
    ZonesTest() { zones.setSystemZone(zone("Europe/Berlin")); }

    /// Sets the four places a choice can stand in: "source target own-source own-target" of the
    /// folder and the photo.
    void assign(const std::string &choices) {
        const ZoneProvider assigned = provider(choices);
        folder->sourceTimeZones = assigned.sourceTimeZones;
        folder->targetTimeZones = assigned.targetTimeZones;
    }
    /// The same four as a pending change.
    ZoneProvider provider(const std::string &choices) const {
        std::istringstream words(choices);
        std::array<std::string, 4> word;
        for (std::string &each : word)
            words >> each;
        ZoneProvider result{{choice(word[0]), {}}, {choice(word[1]), {}}};
        if (const auto own = choice(word[2]))
            addPicWithZone(*pic, *own, result.sourceTimeZones);
        if (const auto own = choice(word[3]))
            addPicWithZone(*pic, *own, result.targetTimeZones);
        return result;
    }
    std::string choices() const {
        const auto own = [&](const ZoneAssignments &assignments) {
            const ZoneChoice *found = choiceForPicIgnoringDefault(*pic, assignments);
            return word(found ? std::optional(*found) : std::nullopt);
        };
        return word(folder->sourceTimeZones.folderDefault) + ' ' +
               word(folder->targetTimeZones.folderDefault) + ' ' + own(folder->sourceTimeZones) +
               ' ' + own(folder->targetTimeZones);
    }
    /// Where the photo is read and written: "Tokyo UTC".
    std::string places() const { return places(*folder); }
    std::string places(const ZoneSides &sides) const {
        return word(ZoneChoice::named(sourceTimeZoneForPic(*pic, sides, zones))) + ' ' +
               word(ZoneChoice::named(targetTimeZoneForPic(*pic, sides, zones)));
    }

    Zones zones;
    MySingleFolderPtr folder = makeFolder();
    MySinglePicPtr pic = addItem(folder, SpTypeExifOriginal, utc(2024, 6, 1));
};

} // namespace chronomender::little
