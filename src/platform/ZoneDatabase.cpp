// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneDatabase.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace chronomender::zoneDatabase {
namespace {

namespace fs = std::filesystem;

/// Copies of the database with other leap-second rules, and files that are no zone of a place.
constexpr std::array<std::string_view, 5> foreignNames = {"Factory", "localtime", "posix",
                                                          "posixrules", "right"};

bool isForeign(std::string_view name) {
    return std::ranges::find(foreignNames, name.substr(0, name.find('/'))) != foreignNames.end();
}

void makeSortedSet(std::vector<std::string> &list) {
    std::erase_if(list, [](const std::string &name) { return name.empty() || isForeign(name); });
    std::ranges::sort(list);
    list.erase(std::unique(list.begin(), list.end()), list.end());
}

std::string contentOf(const fs::path &path, std::size_t most) {
    std::ifstream stream(path, std::ios::binary);
    std::string content(most, '\0');
    stream.read(content.data(), static_cast<std::streamsize>(most));
    content.resize(static_cast<std::size_t>(stream.gcount()));
    return content;
}

std::string_view takeWord(std::string_view &line) {
    line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    const auto word = line.substr(0, line.find(' '));
    line.remove_prefix(word.size());
    return word;
}

std::vector<std::string> readNames() {
    constexpr std::size_t largestSource = 4 << 20;
    auto list = namesInSource(contentOf(fs::path(folder()) / "tzdata.zi", largestSource));
    return list.empty() ? namesInFolder(folder()) : list;
}

} // namespace

std::string folder() {
    const char *moved = std::getenv("TZDIR");
    return moved != nullptr && *moved != '\0' ? moved : "/usr/share/zoneinfo";
}

const std::vector<std::string> &names() {
    static const std::vector<std::string> list = readNames();
    return list;
}

bool hasName(std::string_view name) {
    return std::ranges::binary_search(names(), name);
}

std::vector<std::string> namesInSource(std::string_view text) {
    std::vector<std::string> list;
    while (!text.empty()) {
        auto line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const auto kind = takeWord(line);
        if (kind == "Z") {
            list.emplace_back(takeWord(line));
        } else if (kind == "L") {
            takeWord(line);
            list.emplace_back(takeWord(line));
        }
    }
    makeSortedSet(list);
    return list;
}

std::vector<std::string> namesInFolder(const std::string &folder) {
    std::vector<std::string> list;
    std::error_code error;
    auto entry = fs::recursive_directory_iterator(folder, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        auto name = entry->path().lexically_relative(folder).generic_string();
        std::error_code ignored;
        if (isForeign(name))
            entry.disable_recursion_pending();
        else if (entry->is_regular_file(ignored) && contentOf(entry->path(), 4) == "TZif")
            list.push_back(std::move(name));
    }
    makeSortedSet(list);
    return list;
}

std::optional<int> offsetSeconds(std::string_view text) {
    constexpr int furthest = 18 * 3600;
    const auto digit = [&](std::size_t at) { return text[at] - '0'; };
    const auto isDigit = [&](std::size_t at) { return text[at] >= '0' && text[at] <= '9'; };
    if (text.size() != 6 || (text[0] != '+' && text[0] != '-') || text[3] != ':' || !isDigit(1) ||
        !isDigit(2) || !isDigit(4) || !isDigit(5) || digit(4) > 5)
        return std::nullopt;
    const int seconds = (digit(1) * 10 + digit(2)) * 3600 + (digit(4) * 10 + digit(5)) * 60;
    if (seconds > furthest)
        return std::nullopt;
    return text[0] == '-' ? -seconds : seconds;
}

std::string offsetName(int seconds) {
    const int minutes = std::abs(seconds) / 60;
    const auto digit = [](int value) { return static_cast<char>('0' + value); };
    return {seconds < 0 ? '-' : '+',  digit(minutes / 600), digit(minutes / 60 % 10), ':',
            digit(minutes % 60 / 10), digit(minutes % 10)};
}

} // namespace chronomender::zoneDatabase
