// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneDatabase.h"

#include <unistd.h>

#include <array>
#include <climits>
#include <cstddef>
#include <cstdlib>
#include <fstream>

namespace chronomender::zoneDatabase {
namespace {

using OptionalName = std::optional<std::string>;

bool isLetter(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

/// The part of a path behind the last "zoneinfo/" (or the database's own folder) that is a name.
OptionalName nameInPath(std::string_view path) {
    constexpr std::string_view usualFolder = "zoneinfo/";
    const std::string own = folder() + "/";
    if (path.starts_with(own))
        path.remove_prefix(own.size());
    else if (const auto at = path.rfind(usualFolder); at != std::string_view::npos)
        path.remove_prefix(at + usualFolder.size());
    for (const std::string_view copy : {"posix/", "right/"})
        if (path.starts_with(copy))
            path.remove_prefix(copy.size());
    return hasName(path) ? OptionalName(path) : std::nullopt;
}

/// Length of the abbreviation that a POSIX rule begins with: letters, or anything in "<…>"; 0 if
/// none.
std::size_t abbreviationLength(std::string_view rule) {
    if (rule.starts_with('<')) {
        const auto end = rule.find('>');
        return end == std::string_view::npos ? 0 : end + 1;
    }
    std::size_t length = 0;
    while (length < rule.size() && isLetter(rule[length]))
        ++length;
    return length < 3 ? 0 : length;
}

/// "JST-9", "<+0530>-5:30": POSIX counts westwards, so the sign is turned.
OptionalName fixedOffsetOfRule(std::string_view rule) {
    const auto abbreviation = abbreviationLength(rule);
    if (abbreviation == 0)
        return std::nullopt;
    rule.remove_prefix(abbreviation);
    const bool isWest = !rule.starts_with('-');
    if (rule.starts_with('-') || rule.starts_with('+'))
        rule.remove_prefix(1);
    const auto colon = rule.find(':');
    const auto hours = rule.substr(0, colon);
    const auto minutes = colon == std::string_view::npos ? "00" : rule.substr(colon + 1);
    const std::string text = std::string(1, isWest ? '-' : '+')
                                 .append(hours.size() == 1 ? "0" : "")
                                 .append(hours)
                                 .append(":")
                                 .append(minutes);
    const auto seconds = offsetSeconds(text);
    if (!seconds)
        return std::nullopt;
    return *seconds == 0 ? "UTC" : offsetName(*seconds);
}

OptionalName nameInEnvironment(std::string_view value) {
    if (value.starts_with(':'))
        value.remove_prefix(1);
    if (value.empty())
        return "UTC"; // POSIX: an empty TZ means universal time
    if (auto name = nameInPath(value))
        return name;
    return fixedOffsetOfRule(value);
}

/// Follows the links one by one: the first that says a known name is the one the user chose.
OptionalName nameInLink(std::string path) {
    for (int step = 0; step < 8; ++step) {
        std::array<char, PATH_MAX> target;
        const ssize_t length = readlink(path.c_str(), target.data(), target.size());
        if (length <= 0)
            return std::nullopt;
        const std::string_view text(target.data(), static_cast<std::size_t>(length));
        if (auto name = nameInPath(text))
            return name;
        path = text.starts_with('/') ? std::string(text)
                                     : path.substr(0, path.rfind('/') + 1).append(text);
    }
    return std::nullopt;
}

OptionalName nameInTextFile(const std::string &path) {
    std::ifstream stream(path);
    std::string word;
    return stream >> word && hasName(word) ? OptionalName(word) : std::nullopt;
}

} // namespace

SystemPlaces systemPlaces() {
    const char *given = std::getenv("TZ");
    return {given ? OptionalName(given) : std::nullopt};
}

std::string systemZoneName(const SystemPlaces &places) {
    OptionalName name;
    if (places.environment)
        name = nameInEnvironment(*places.environment);
    if (!name)
        name = nameInLink(places.link);
    if (!name)
        name = nameInTextFile(places.textFile);
    return name.value_or("UTC");
}

} // namespace chronomender::zoneDatabase
