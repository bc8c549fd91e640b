// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextModification.h"

#include "AsciiText.h"
#include "ComposedText.h"
#include "FolderAccess.h"

#include <QString>

#include <algorithm>

namespace chronomender {
namespace {

std::string modified(const std::string &text, const CharCount &row) {
    const ComposedText characters(text);
    const std::size_t length = characters.count();
    if (row.value <= 0)
        return text;
    const std::size_t count = std::min(static_cast<std::size_t>(row.value), length);
    const bool isAtFront = row.direction == 0, isRemoving = row.type == 0;
    if (isRemoving == isAtFront)
        return std::string(characters.withoutFirst(isAtFront ? count : length - count));
    return std::string(characters.first(isAtFront ? count : length - count));
}

/// Where the n-th occurrence begins, counted from the front or the end; occurrences may overlap.
std::optional<std::size_t> placeOf(std::string_view text, const UpToString &row) {
    if (row.value <= 0 || row.value2.empty())
        return std::nullopt;
    const bool isForward = row.direction == 0;
    std::size_t place = isForward ? text.find(row.value2) : text.rfind(row.value2);
    for (int count = 1; count < row.value && place != std::string_view::npos; ++count) {
        if (!isForward && place == 0)
            return std::nullopt;
        place = isForward ? text.find(row.value2, place + 1) : text.rfind(row.value2, place - 1);
    }
    return place == std::string_view::npos ? std::nullopt : std::optional(place);
}

std::string modified(const std::string &text, const UpToString &row) {
    const auto place = placeOf(text, row);
    if (!place)
        return text;
    const std::size_t end = *place + row.value2.size();
    const bool isRemoving = row.type == 0;
    if (row.direction == 0)
        return isRemoving ? text.substr(*place) : text.substr(0, *place);
    return isRemoving ? text.substr(0, end) : text.substr(end);
}

/// The characters of a text in Unicode's form D, in which equivalent ones are the same.
std::vector<std::string> canonicalCharacters(const ComposedText &text, bool isAscii) {
    std::vector<std::string> characters;
    characters.reserve(text.count());
    for (std::size_t i = 0; i < text.count(); ++i)
        characters.push_back(
            isAscii ? std::string(text.at(i))
                    : wideText(text.at(i)).normalized(QString::NormalizationForm_D).toStdString());
    return characters;
}

/// The characters at which occurrences begin, overlapping ones as well. Equivalent forms are the
/// same: "é" finds "e" with U+0301. An occurrence consists of whole characters, so that "e" does
/// not find the letter of a decomposed "é", whose accent would be left alone.
std::vector<std::size_t> occurrences(const ComposedText &text, const ComposedText &wanted,
                                     bool isAscii) {
    const auto all = canonicalCharacters(text, isAscii),
               part = canonicalCharacters(wanted, isAscii);
    std::vector<std::size_t> found;
    for (std::size_t at = 0; at + part.size() <= all.size(); ++at)
        if (std::equal(part.begin(), part.end(), all.begin() + static_cast<std::ptrdiff_t>(at)))
            found.push_back(at);
    return found;
}

/// Of all occurrences those that are replaced: the n-th, or as many as do not overlap.
std::vector<std::size_t> chosen(std::vector<std::size_t> found, const ReplaceWith &row,
                                std::size_t length) {
    const auto number = static_cast<std::size_t>(std::max(row.value3, 0));
    if (row.value3 < 0 || number > found.size())
        return {};
    if (number > 0)
        return {row.direction == 0 ? found[number - 1] : found[found.size() - number]};
    std::size_t end = 0;
    std::erase_if(found, [&](std::size_t place) {
        if (place < end)
            return true;
        end = place + length;
        return false;
    });
    return found;
}

std::string modified(const std::string &text, const ReplaceWith &row) {
    if (row.value.empty() || !isValidUtf8(row.value))
        return text;
    const ComposedText characters(text), wanted(row.value);
    const bool isPlain = isAscii(text) && isAscii(row.value);
    std::string result;
    std::size_t end = 0;
    for (const std::size_t place :
         chosen(occurrences(characters, wanted, isPlain), row, wanted.count())) {
        const std::size_t begin = characters.offset(place);
        result.append(text, end, begin - end).append(row.value2);
        end = characters.offset(place + wanted.count());
    }
    return result.append(text, end);
}

bool isPartOfWord(char32_t each) {
    return QChar::isLetterOrNumber(each) || QChar::isMark(each) || each == U'\'' ||
           each == U'\u2019';
}

/// Each word with a capital in front and small letters behind. A word is a run of letters and
/// digits, with their accents and apostrophes: "IMG_o'neil 3RD" becomes "Img_O'neil 3rd".
QString capitalised(const QString &text) {
    std::u32string characters = text.toLower().toStdU32String();
    bool isInWord = false;
    for (char32_t &each : characters) {
        const bool isWord = isPartOfWord(each);
        if (isWord && !isInWord)
            each = QChar::toTitleCase(each);
        isInWord = isWord;
    }
    return QString::fromStdU32String(characters);
}

/// ASCII letters from the other case into the one that begins with `first`.
std::string inCaseOf(char first, std::string text) {
    for (char &each : text)
        if (const auto number = static_cast<unsigned char>((each | 0x20) - 'a'); number < 26)
            each = static_cast<char>(first + number);
    return text;
}

std::string modified(const std::string &text, const ChangeCase &row) {
    enum { Capitalised, Lower, Upper };
    const bool isPlain = isAscii(text);
    switch (row.value) {
    case Capitalised:
        return capitalised(wideText(text)).toStdString();
    case Lower:
        return isPlain ? inCaseOf('a', text) : wideText(text).toLower().toStdString();
    case Upper:
        return isPlain ? inCaseOf('A', text) : wideText(text).toUpper().toStdString();
    default:
        return text;
    }
}

bool isEnabled(const TextModification &row) {
    return std::visit([](const auto &each) { return each.isEnabled; }, row);
}

} // namespace

bool changesAnything(const TextModifications &rows) {
    return std::ranges::any_of(rows, isEnabled);
}

std::string modifiedStringFromString(const std::string &text, const TextModification &row) {
    // What is no text in UTF-8 could not be put together again.
    if (text.empty() || !isEnabled(row) || !isValidUtf8(text))
        return text;
    return std::visit([&](const auto &each) { return modified(text, each); }, row);
}

std::string modifiedStringFromString(const std::string &text, const TextModifications &rows) {
    std::string result = text;
    for (const TextModification &row : rows)
        if (isEnabled(row))
            result = modifiedStringFromString(result, row);
    return result;
}

} // namespace chronomender
