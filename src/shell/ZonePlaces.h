// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace chronomender {

/// Where a zone is in use, by the tables that come with the zone database: "zone.tab" tells the
/// country of each zone, "iso3166.tab" the countries' names.
struct ZoneCountry {
    std::string name;       ///< in English, as the table has it: "Japan"
    std::string nativeName; ///< in a language of the country; "" where it is not known
};
/// Null for a zone that stands for no country, for example "UTC" or an older name of a zone. The
/// tables are read once; safe on all threads.
const ZoneCountry *countryOfZone(std::string_view zoneName);

} // namespace chronomender
