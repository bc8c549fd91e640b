// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FilterKeys.h"
#include "UserDefaults.h"

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// How serious a remark is; views give each its colour.
enum class RowTone : std::uint8_t { Plain, Unsaved, Warning, Danger };
struct RowNote {
    std::string words;
    RowTone tone = RowTone::Plain;

    bool operator==(const RowNote &) const = default;
};

/// The words joined by "; ".
std::string joinedWords(const std::vector<RowNote> &notes);
/// With a capital at its start.
std::string asSentence(const std::string &words);
/// "1,204" as the user's region writes numbers.
std::string numberText(std::int64_t number);
template<std::integral Number>
std::string numberText(Number number) {
    return numberText(static_cast<std::int64_t>(number));
}
/// The text of `key` with the number in it; exactly one has a text of its own, `key` + "_one".
std::string countText(std::string_view key, std::int64_t number);
/// By what a display asks of items what a filter asks.
FilterContext filterContext(const Zones &zones, const UserDefaults &defaults);

} // namespace chronomender
