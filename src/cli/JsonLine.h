// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace chronomender {

/// Writes one JSON object a line to the end of a buffer. It only appends, so that ten thousand
/// lines cost a few milliseconds; keys are ours and are written as they are.
///
///     JsonLine line(buffer);
///     line.field("name", "IMG_1.JPG").beginObject("location").field("lat", 48.5).end();
///     line.finish();   // {"name":"IMG_1.JPG","location":{"lat":48.5}} and a line feed
class JsonLine {
public:
    explicit JsonLine(std::string &buffer);

    JsonLine &field(std::string_view key, std::string_view value);
    JsonLine &field(std::string_view key, const char *value) {
        return field(key, std::string_view(value));
    }
    JsonLine &field(std::string_view key, std::int64_t value);
    JsonLine &field(std::string_view key, double value);
    JsonLine &flag(std::string_view key, bool value);
    /// A text that is left out when it is empty.
    JsonLine &fieldIfAny(std::string_view key, std::string_view value);

    JsonLine &beginObject(std::string_view key);
    JsonLine &beginArray(std::string_view key);
    /// An object as an element of the open array.
    JsonLine &beginElement();
    JsonLine &element(std::string_view value);
    JsonLine &element(std::int64_t value);
    /// Closes the innermost object or array.
    JsonLine &end();
    /// Closes all that is open and the line.
    void finish();

private:
    void key(std::string_view name);
    void comma();
    void open(char opening, char closing);

    std::string &m_buffer;
    std::string m_closings;
    bool m_needsComma = false;
};

/// Appends a JSON string with its quotes. Bytes that are not UTF-8 become U+FFFD.
void appendJsonString(std::string &buffer, std::string_view text);

} // namespace chronomender
