// SPDX-License-Identifier: GPL-3.0-or-later
#include "Utf8Text.h"

#include "DirectionSigns.h"

#include <algorithm>
#include <cstdint>

namespace chronomender {
namespace {

struct Form {
    unsigned char firstLow, firstHigh;   ///< range of the first byte
    unsigned char secondLow, secondHigh; ///< range of the second byte
    std::size_t length;
};

// Table 3-7 of the Unicode Standard, "Well-Formed UTF-8 Byte Sequences".
constexpr Form forms[]{
    {0xC2, 0xDF, 0x80, 0xBF, 2}, {0xE0, 0xE0, 0xA0, 0xBF, 3}, {0xE1, 0xEC, 0x80, 0xBF, 3},
    {0xED, 0xED, 0x80, 0x9F, 3}, {0xEE, 0xEF, 0x80, 0xBF, 3}, {0xF0, 0xF0, 0x90, 0xBF, 4},
    {0xF1, 0xF3, 0x80, 0xBF, 4}, {0xF4, 0xF4, 0x80, 0x8F, 4},
};

unsigned char byteAt(std::string_view text, std::size_t index) {
    return static_cast<unsigned char>(text[index]);
}

bool isBetween(unsigned char byte, unsigned char low, unsigned char high) {
    return byte >= low && byte <= high;
}

bool hasForm(std::string_view text, const Form &form) {
    if (text.size() < form.length || !isBetween(byteAt(text, 1), form.secondLow, form.secondHigh))
        return false;
    for (std::size_t i = 2; i < form.length; ++i)
        if (!isBetween(byteAt(text, i), 0x80, 0xBF))
            return false;
    return true;
}

/// C0 and DEL, and the C1 controls U+0080 to U+009F, which some terminals obey as well.
bool isControl(std::string_view sequence) {
    const unsigned char first = byteAt(sequence, 0);
    return first < 0x20 || first == 0x7F ||
           (sequence.size() == 2 && first == 0xC2 && byteAt(sequence, 1) < 0xA0);
}

void appendEscaped(std::string &out, std::string_view bytes) {
    constexpr char digits[] = "0123456789ABCDEF";
    for (const char byte : bytes) {
        const auto value = static_cast<unsigned char>(byte);
        out += {'\\', 'x', digits[value >> 4], digits[value & 15]};
    }
}

} // namespace

std::size_t utf8SequenceLength(std::string_view text) {
    if (text.empty())
        return 0;
    if (byteAt(text, 0) < 0x80)
        return 1;
    for (const Form &form : forms)
        if (isBetween(byteAt(text, 0), form.firstLow, form.firstHigh))
            return hasForm(text, form) ? form.length : 0;
    return 0;
}

std::string printable(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    while (!text.empty()) {
        const std::size_t length = utf8SequenceLength(text);
        const std::string_view piece = text.substr(0, std::max<std::size_t>(length, 1));
        if (length == 0 || isControl(piece) || isDirectionSign(piece))
            appendEscaped(out, piece);
        else
            out += piece;
        text.remove_prefix(piece.size());
    }
    return out;
}

std::size_t columnCount(std::string_view text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (byte & '\xC0') != '\x80'; }));
}

std::size_t columnOfByte(const std::string &typed, std::size_t place) {
    return columnCount(printable(typed.substr(0, place)));
}

std::string pointedAt(const std::string &typed, std::size_t place) {
    constexpr std::size_t width = 100;
    const std::string line = printable(typed);
    if (columnCount(line) > width)
        return {};
    return "\n  " + line + "\n  " + std::string(columnOfByte(typed, place), ' ') + '^';
}

} // namespace chronomender
