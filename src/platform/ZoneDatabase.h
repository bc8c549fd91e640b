// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender::zoneDatabase {

/// The folder of the zone database: TZDIR, else /usr/share/zoneinfo.
std::string folder();

/// Names of all zones and links in that database, sorted, each once. Read once; safe on all
/// threads.
const std::vector<std::string> &names();
bool hasName(std::string_view name);

/// Names listed by the database's own source text ("tzdata.zi": lines "Z name …" and "L target
/// name").
std::vector<std::string> namesInSource(std::string_view text);
/// Names of the compiled zone files (RFC 8536) below a database folder.
std::vector<std::string> namesInFolder(const std::string &folder);

/// Seconds of an offset "±HH:MM" up to ±18:00; none for anything else.
std::optional<int> offsetSeconds(std::string_view text);
/// The name under which an offset of whole minutes is known, for example "-03:30".
std::string offsetName(int seconds);

/// Where to look for the system's zone.
struct SystemPlaces {
    std::optional<std::string> environment; ///< the variable TZ, if set
    std::string link = "/etc/localtime";
    std::string textFile = "/etc/timezone";
};
/// This computer's places, with TZ as the process has it now.
SystemPlaces systemPlaces();
/// The name of the system's zone: from TZ (also ":name", a path into the database, or a POSIX rule
/// without daylight saving such as "JST-9"), else from the link, else from the text file, else
/// "UTC". A POSIX rule with daylight saving has no name in the database and is passed over.
std::string systemZoneName(const SystemPlaces &places);

} // namespace chronomender::zoneDatabase
