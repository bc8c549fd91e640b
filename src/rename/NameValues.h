// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NameBuilder.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace chronomender {

/// The places of values, by which a view colours them: six of the date, counter, folder, the first
/// add-on, the source name, the second and the third add-on.
inline constexpr int nameSlotCount = 12;

/// The slot of an element; `addOns` counts the add-ons that stood before it. A fourth add-on
/// repeats the third. None for a number that is no element.
std::optional<int> slotOf(RenameElement element, int addOns);

/// What each slot puts into a name. Refers to what it was made from.
class NameValues {
public:
    /// A name for display shows the ":" of folder and source name as "/".
    enum class Purpose : std::uint8_t { Disk, Display };

    NameValues(const NameFacts &facts, std::int64_t counter, const AddOnTexts &addOns,
               const NameSettings &settings, Purpose purpose);
    NameValues(const NameValues &) = delete;
    NameValues &operator=(const NameValues &) = delete;

    std::string_view operator[](int slot) const { return m_values[static_cast<std::size_t>(slot)]; }

private:
    void layOutDate(const NameFacts &facts);
    void placeDate(const TemplateOptions &options);
    void placeCounter(std::int64_t counter, const TemplateOptions &options);
    void placeNames(const NameFacts &facts, const NameSettings &settings, Purpose purpose);
    void placeAddOns(const AddOnTexts &addOns, const NameSettings &settings);

    static constexpr std::size_t dateLength = 19, counterRoom = 32;
    std::array<char, dateLength> m_date{};
    std::array<char, counterRoom> m_counter{};
    std::string m_folderName, m_sourceName; ///< where they are not those of the item
    AddOnTexts m_labels;                    ///< that stand for add-ons without a text
    std::array<std::string_view, nameSlotCount> m_values;
};

/// Calls `each(part, slot)` for the parts of a template that place something, left to right; the
/// slot is none for a run of text.
template<class Each>
void walkParts(const RenameTemplate &renameTemplate, const Each &each) {
    int addOns = 0;
    for (const TemplatePart &part : renameTemplate.stringParts) {
        const auto slot = part.element ? slotOf(*part.element, addOns) : std::nullopt;
        if (part.element == RenameElement::AddOn)
            ++addOns;
        if (slot.has_value() == part.element.has_value())
            each(part, slot);
    }
}

/// The "." and the extension, which is that of the present name, in the case that the setting says;
/// "" without one.
std::string dottedExtension(const NameFacts &facts, const NameSettings &settings);
/// How many dots in front of a name are removed, where they are: none of a name of two characters,
/// as in ".a", and all of a longer one, but that something stays.
std::size_t frontDotsToRemove(std::string_view name);
/// The text in the case that the setting says.
std::string caseChanged(std::string text, SuffixCase suffixChangeCase);

} // namespace chronomender
