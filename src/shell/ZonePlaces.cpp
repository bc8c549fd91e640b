// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZonePlaces.h"

#include "ZoneDatabase.h"

#include <QLocale>

#include <fstream>
#include <functional>
#include <map>
#include <vector>

namespace chronomender {
namespace {

/// The fields of each line of a table; fields are parted by tabs, and "#" begins a remark.
void forEachLine(const std::string &file,
                 const std::function<void(const std::vector<std::string> &)> &each) {
    std::ifstream stream(zoneDatabase::folder() + '/' + file);
    for (std::string line; std::getline(stream, line);) {
        if (line.starts_with('#'))
            continue;
        std::vector<std::string> fields(1);
        for (const char character : line)
            if (character == '\t')
                fields.emplace_back();
            else
                fields.back() += character;
        each(fields);
    }
}

std::string nativeName(const std::string &countryCode) {
    const auto territory = QLocale::codeToTerritory(QString::fromStdString(countryCode));
    if (territory == QLocale::AnyTerritory)
        return {};
    return QLocale(QLocale::AnyLanguage, territory).nativeTerritoryName().toStdString();
}

using Countries = std::map<std::string, ZoneCountry, std::less<>>;

Countries readCountries() {
    Countries byCode, byZone;
    forEachLine("iso3166.tab", [&](const std::vector<std::string> &fields) {
        if (fields.size() >= 2)
            byCode[fields[0]] = {fields[1], nativeName(fields[0])};
    });
    forEachLine("zone.tab", [&](const std::vector<std::string> &fields) {
        if (fields.size() >= 3 && byCode.contains(fields[0]))
            byZone[fields[2]] = byCode[fields[0]];
    });
    return byZone;
}

} // namespace

const ZoneCountry *countryOfZone(std::string_view zoneName) {
    static const Countries countries = readCountries();
    const auto found = countries.find(zoneName);
    return found == countries.end() ? nullptr : &found->second;
}

} // namespace chronomender
