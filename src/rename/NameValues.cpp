// SPDX-License-Identifier: GPL-3.0-or-later
#include "NameValues.h"

#include "AsciiText.h"
#include "NameParts.h"
#include "Texts.h"

#include <QString>

#include <algorithm>
#include <charconv>
#include <cstring>

namespace chronomender {
namespace {

constexpr int folderSlot = 7, sourceSlot = 9;
constexpr std::array<int, 3> addOnSlots{8, 10, 11};
constexpr std::array<std::string_view, 3> addOnLabelKeys{
    "renameStringPartGraphic_9", "renameStringPartGraphic_9b", "renameStringPartGraphic_9c"};

// Dates are laid out as "yyyy-MM-ddTHH:mm:ss", and every field is taken from there by its place.
constexpr std::string_view noDate = "0000-00-00 00:00:00";
constexpr std::string_view dateThatCannotBeWritten = "2001-03-25 10:55:58";
constexpr std::size_t monthPlace = 5, fieldLength = 2, yearLength = 4;

void writeNumber(char *place, std::size_t digits, int number) {
    for (; digits > 0; --digits, number /= 10)
        place[digits - 1] = static_cast<char>('0' + number % 10);
}

/// Years that four digits cannot tell have no place in a name.
bool isWritable(const absl::CivilSecond &second) {
    return second.year() >= 1 && second.year() <= 9999;
}

std::string withSlashes(std::string_view name) {
    std::string shown(name);
    std::ranges::replace(shown, ':', '/');
    return shown;
}

} // namespace

std::optional<int> slotOf(RenameElement element, int addOns) {
    const int number = static_cast<int>(element);
    if (number < 1 || number > renameElementCount)
        return std::nullopt;
    return element == RenameElement::AddOn
               ? addOnSlots[static_cast<std::size_t>(std::min(addOns, 2))]
               : number - 1;
}

NameValues::NameValues(const NameFacts &facts, std::int64_t counter, const AddOnTexts &addOns,
                       const NameSettings &settings, Purpose purpose) {
    layOutDate(facts);
    placeDate(settings.renameTemplate.options);
    placeCounter(counter, settings.renameTemplate.options);
    placeNames(facts, settings, purpose);
    placeAddOns(addOns, settings);
}

void NameValues::layOutDate(const NameFacts &facts) {
    std::ranges::copy(noDate, m_date.begin());
    if (isMarker(facts.date))
        return;
    const absl::CivilSecond second = absl::ToCivilSecond(facts.date, facts.zone);
    if (!isWritable(second)) {
        std::ranges::copy(dateThatCannotBeWritten, m_date.begin());
        return;
    }
    writeNumber(m_date.data(), yearLength, static_cast<int>(second.year()));
    char *place = m_date.data() + monthPlace;
    for (const int field :
         {second.month(), second.day(), second.hour(), second.minute(), second.second()}) {
        writeNumber(place, fieldLength, field);
        place += fieldLength + 1;
    }
}

void NameValues::placeDate(const TemplateOptions &options) {
    const std::string_view date(m_date.data(), m_date.size());
    m_values[0] = options.yearHasFourDigits ? date.substr(0, yearLength) : date.substr(2, 2);
    for (std::size_t slot = 1; slot < 6; ++slot)
        m_values[slot] = date.substr(monthPlace + (slot - 1) * (fieldLength + 1), fieldLength);
    if (!options.monthHasTwoDigits) {
        constexpr std::string_view months = "0123456789ABC";
        const int month = (m_values[1][0] - '0') * 10 + (m_values[1][1] - '0');
        m_values[1] = months.substr(static_cast<std::size_t>(month), 1);
    }
}

void NameValues::placeCounter(std::int64_t counter, const TemplateOptions &options) {
    std::array<char, counterRoom> number;
    const auto end = std::to_chars(number.begin(), number.end(), counter).ptr;
    const auto length = static_cast<std::size_t>(end - number.data());
    const auto fewest =
        static_cast<std::size_t>(std::clamp(options.counterDigits, 0, mostCounterDigits - 1) + 1);
    const std::size_t zeros = fewest - std::min(fewest, length);
    std::fill_n(m_counter.begin(), zeros, '0');
    std::copy_n(number.begin(), length, m_counter.begin() + static_cast<std::ptrdiff_t>(zeros));
    m_values[6] = {m_counter.data(), zeros + length};
}

void NameValues::placeNames(const NameFacts &facts, const NameSettings &settings, Purpose purpose) {
    std::string_view &folder = m_values[folderSlot], &source = m_values[sourceSlot];
    folder = facts.folderName;
    source = baseOfName(facts.sourceName);
    const auto modify = [&](std::string_view &name, const TextModifications &rows,
                            std::string &changed) {
        if (settings.sheetMode == SheetMode::Name && changesAnything(rows))
            name = changed = modifiedStringFromString(std::string(name), rows);
        if (purpose == Purpose::Display && name.find(':') != std::string_view::npos)
            name = changed = withSlashes(name);
    };
    modify(folder, settings.folderModifications, m_folderName);
    modify(source, settings.fileModifications, m_sourceName);
}

void NameValues::placeAddOns(const AddOnTexts &addOns, const NameSettings &settings) {
    for (std::size_t i = 0; i < addOns.size(); ++i) {
        std::string_view &value = m_values[static_cast<std::size_t>(addOnSlots[i])];
        value = addOns[i];
        if (value.empty() && settings.sheetMode != SheetMode::Name)
            value = m_labels[i] = '<' + text(addOnLabelKeys[i]) + '>';
    }
}

std::string dottedExtension(const NameFacts &facts, const NameSettings &settings) {
    const std::string_view extension = extensionOfName(facts.spName);
    if (extension.empty())
        return {};
    std::string dotted(1, '.');
    return dotted.append(caseChanged(std::string(extension), settings.suffixChangeCase));
}

std::size_t frontDotsToRemove(std::string_view name) {
    constexpr std::size_t fewestCharacters = 3;
    if (!name.starts_with('.'))
        return 0;
    const auto isFirstByte = [](char byte) { return (byte & 0xC0) != 0x80; };
    const auto length = static_cast<std::size_t>(std::ranges::count_if(name, isFirstByte));
    const std::size_t dots = std::min(name.find_first_not_of('.'), name.size());
    return length < fewestCharacters ? 0 : std::min(dots, length - 1);
}

std::string caseChanged(std::string text, SuffixCase suffixChangeCase) {
    if (suffixChangeCase != SuffixCase::Upper && suffixChangeCase != SuffixCase::Lower)
        return text;
    ChangeCase row{true, suffixChangeCase == SuffixCase::Upper ? 2 : 1};
    return modifiedStringFromString(text, TextModification(row));
}

} // namespace chronomender
