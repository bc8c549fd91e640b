// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace chronomender {

/// A UTF-8 text by the characters that a person sees: grapheme clusters of Unicode's Standard Annex
/// 29, so that a letter with its accents, a flag or an emoji with its modifiers is one. Refers to
/// the text that it was made of.
class ComposedText {
public:
    explicit ComposedText(std::string_view text);

    /// How many characters.
    std::size_t count() const { return m_isAscii ? m_text.size() : m_starts.size() - 1; }
    /// Where the character begins, in bytes; the length of the text for `count()`.
    std::size_t offset(std::size_t character) const {
        return m_isAscii ? character : m_starts[character];
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
    bool m_isAscii;
    std::vector<std::size_t> m_starts; ///< with the end; empty in ASCII, where nothing is composed
};

} // namespace chronomender
