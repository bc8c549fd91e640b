// SPDX-License-Identifier: GPL-3.0-or-later
#include "JsonLine.h"

#include "Utf8Text.h"

#include <array>
#include <charconv>

namespace chronomender {
namespace {

bool isPlain(char character) {
    return character >= 0x20 && character != '"' && character != '\\';
}

void appendEscape(std::string &buffer, char character) {
    constexpr char digits[] = "0123456789abcdef";
    if (character == '"' || character == '\\')
        buffer += {'\\', character};
    else
        buffer += {'\\', 'u', '0', '0', digits[character >> 4], digits[character & 15]};
}

template<class Number>
void appendNumber(std::string &buffer, Number value) {
    std::array<char, 32> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
    buffer.append(digits.data(), end);
}

} // namespace

void appendJsonString(std::string &buffer, std::string_view text) {
    buffer += '"';
    while (!text.empty()) {
        std::size_t plain = 0;
        while (plain < text.size() && isPlain(text[plain]))
            ++plain;
        buffer += text.substr(0, plain);
        text.remove_prefix(plain);
        if (text.empty())
            break;
        const std::size_t length = utf8SequenceLength(text);
        if (length == 0)
            buffer += "\xEF\xBF\xBD";
        else if (length == 1)
            appendEscape(buffer, text[0]);
        else
            buffer += text.substr(0, length);
        text.remove_prefix(length == 0 ? 1 : length);
    }
    buffer += '"';
}

JsonLine::JsonLine(std::string &buffer) : m_buffer(buffer) {
    open('{', '}');
}

void JsonLine::comma() {
    if (m_needsComma)
        m_buffer += ',';
    m_needsComma = true;
}

void JsonLine::key(std::string_view name) {
    comma();
    m_buffer += '"';
    m_buffer += name;
    m_buffer += "\":";
}

void JsonLine::open(char opening, char closing) {
    m_buffer += opening;
    m_closings += closing;
    m_needsComma = false;
}

JsonLine &JsonLine::field(std::string_view name, std::string_view value) {
    key(name);
    appendJsonString(m_buffer, value);
    return *this;
}

JsonLine &JsonLine::field(std::string_view name, std::int64_t value) {
    key(name);
    appendNumber(m_buffer, value);
    return *this;
}

JsonLine &JsonLine::field(std::string_view name, double value) {
    key(name);
    appendNumber(m_buffer, value);
    return *this;
}

JsonLine &JsonLine::flag(std::string_view name, bool value) {
    key(name);
    m_buffer += value ? "true" : "false";
    return *this;
}

JsonLine &JsonLine::fieldIfAny(std::string_view name, std::string_view value) {
    return value.empty() ? *this : field(name, value);
}

JsonLine &JsonLine::beginObject(std::string_view name) {
    key(name);
    open('{', '}');
    return *this;
}

JsonLine &JsonLine::beginArray(std::string_view name) {
    key(name);
    open('[', ']');
    return *this;
}

JsonLine &JsonLine::beginElement() {
    comma();
    open('{', '}');
    return *this;
}

JsonLine &JsonLine::element(std::string_view value) {
    comma();
    appendJsonString(m_buffer, value);
    return *this;
}

JsonLine &JsonLine::element(std::int64_t value) {
    comma();
    appendNumber(m_buffer, value);
    return *this;
}

JsonLine &JsonLine::end() {
    m_buffer += m_closings.back();
    m_closings.pop_back();
    m_needsComma = true;
    return *this;
}

void JsonLine::finish() {
    while (!m_closings.empty())
        end();
    m_buffer += '\n';
}

} // namespace chronomender
