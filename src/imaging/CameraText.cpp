// SPDX-License-Identifier: GPL-3.0-or-later
#include "CameraText.h"

#include "FolderAccess.h"

namespace chronomender {

namespace {

std::string utf8FromLatin1(std::string_view text) {
    std::string utf8;
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x80) {
            utf8 += c;
        } else {
            utf8 += static_cast<char>(0xC0 | (byte >> 6));
            utf8 += static_cast<char>(0x80 | (byte & 0x3F));
        }
    }
    return utf8;
}

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20 || c == 0x7F;
}

} // namespace

std::string cameraText(std::string_view raw) {
    std::string text(raw.substr(0, raw.find('\0')));
    for (char &c : text)
        c = isControl(c) ? ' ' : c;
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return {};
    text = text.substr(first, text.find_last_not_of(' ') - first + 1);
    return isValidUtf8(text) ? text : utf8FromLatin1(text);
}

} // namespace chronomender
