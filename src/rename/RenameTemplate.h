// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

/// What a template places in a name. The numbers are those of stored templates.
enum class RenameElement : int {
    Year = 1,
    Month,
    Day,
    Hour,
    Minute,
    Second,
    Counter,
    FolderName,
    AddOn, ///< may stand three times; each occurrence is a text of its own
    SourceName,
};
inline constexpr int renameElementCount = 10;
/// A counter is filled up with zeros to so many digits at most.
inline constexpr int mostCounterDigits = 9;
/// How often a template may hold the element.
constexpr int mostOccurrences(RenameElement element) {
    return element == RenameElement::AddOn ? 3 : 1;
}

/// A run of text, or an element.
struct TemplatePart {
    std::string text; ///< of a run of text
    /// None for a run of text. A stored template may hold numbers that are no element; they place
    /// nothing.
    std::optional<RenameElement> element;

    static TemplatePart ofText(std::string text) { return {std::move(text), std::nullopt}; }
    static TemplatePart ofElement(RenameElement element) { return {{}, element}; }
    bool operator==(const TemplatePart &) const = default;
};

/// How a template writes year, month and counter.
struct TemplateOptions {
    int yearHasFourDigits = 1; ///< 0: the last two digits
    int monthHasTwoDigits = 1; ///< 0: one character, 1 to 9, A, B, C
    int counterDigits = 4;     ///< one less than the fewest digits of the counter

    bool operator==(const TemplateOptions &) const = default;
};

struct RenameTemplate {
    TemplateOptions options;
    std::vector<TemplatePart> stringParts; ///< the name, left to right

    bool has(RenameElement element) const;
    /// How many add-on texts it places, at most 3.
    int useAddOnsCount() const;
    bool operator==(const RenameTemplate &) const = default;
};

/// What is wrong with a template, or worth a warning.
enum class TemplateStatus : std::uint8_t {
    Good,
    OnlyOneName,     ///< all files would get one name ("templateStatusText1"): it cannot be used
    NamesMayBeEqual, ///< neither a counter nor the source name ("templateStatusText2")
};
TemplateStatus statusOf(const RenameTemplate &renameTemplate);

} // namespace chronomender
