// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstddef>
#include <string_view>
#include <vector>

namespace chronomender {

/// The text in UTF-16, with a byte order mark that it begins with: Qt would drop it unasked.
QString wideText(std::string_view utf8);

/// A UTF-8 text by the characters that a person sees: grapheme clusters of Unicode's Standard Annex
/// 29, so that a letter with its accents, a flag or an emoji with its modifiers is one. Of what is
/// no UTF-8, each byte is one. Refers to the text that it was made of.
class ComposedText {
public:
    explicit ComposedText(std::string_view text);

    /// How many characters.
    std::size_t count() const { return m_isBytewise ? m_text.size() : m_starts.size() - 1; }
    /// Where the character begins, in bytes; the length of the text for `count()`.
    std::size_t offset(std::size_t character) const {
        return m_isBytewise ? character : m_starts[character];
    }
    std::string_view at(std::size_t character) const {
        return m_text.substr(offset(character), offset(character + 1) - offset(character));
    }
    std::string_view first(std::size_t characters) const {
        return m_text.substr(0, offset(characters));
    }
    std::string_view withoutFirst(std::size_t characters) const {
        return m_text.substr(offset(characters));
    }

private:
    std::string_view m_text;
    bool m_isBytewise;
    std::vector<std::size_t> m_starts; ///< with the end; empty where each byte is one
};

} // namespace chronomender
