// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpTexts.h"

#include "ByteRange.h"

#include <optional>

namespace chronomender {

namespace {

/// Bytes around a name that belong to its look: the prefix in front, value and marks behind. A name
/// this near to the end of a block is left to the next one.
constexpr std::size_t kContext = 512;
constexpr std::string_view kBlanks = " \t\r\n";

bool isBlank(char c) {
    return kBlanks.find(c) != std::string_view::npos;
}

bool isNameCharacter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
           c == '-' || c == '.';
}

enum class Form : std::uint8_t { Attribute, Element };

struct Opening {
    Form form;
    std::size_t valueAt; ///< behind the name
    char close;
};

/// What opens the value behind a name; none where no value begins.
std::optional<Opening> openingOf(std::string_view behind) {
    if (behind.starts_with('>'))
        return Opening{Form::Element, 1, '<'};
    const std::size_t equals = behind.find_first_not_of(kBlanks);
    if (equals == std::string_view::npos || behind[equals] != '=')
        return std::nullopt;
    const std::size_t quote = behind.find_first_not_of(kBlanks, equals + 1);
    if (quote == std::string_view::npos || (behind[quote] != '"' && behind[quote] != '\''))
        return std::nullopt;
    return Opening{Form::Attribute, quote + 1, behind[quote]};
}

/// An element's name stands behind "<", an attribute's behind a blank: no closing tag, no name in
/// the middle of another.
bool beginsName(std::string_view block, std::size_t at, const XmpName &name, Form form) {
    if (name.matchedFrom > 0)
        while (at > 0 && isNameCharacter(block[at - 1]))
            --at;
    if (at == 0)
        return false;
    return form == Form::Element ? block[at - 1] == '<' : isBlank(block[at - 1]);
}

std::string_view textOf(std::string_view behind, const Opening &opening, std::size_t longest) {
    const std::string_view value = behind.substr(opening.valueAt, longest + 1);
    const std::size_t length = value.find(opening.close);
    return length == std::string_view::npos ? std::string_view() : value.substr(0, length);
}

class Scan {
public:
    Scan(FileWindow &window, const ByteBlock &packet, std::span<const XmpName> names)
        : m_window(window),
          m_begin(packet.offset),
          m_end(packet.offset + std::min(packet.length, ByteRange(window).left(packet.offset))),
          m_names(names),
          m_isFound(names.size()) {}

    XmpTextScan run() {
        std::uint64_t looked = m_begin; // everything in front of this place is done
        std::uint64_t bytes = 0;
        while (bytes < kMostXmpBytes) {
            const std::uint64_t at =
                m_window.nextData(std::max(looked, m_begin + kContext) - kContext);
            std::string_view block = m_window.block(at, at < m_end ? m_end - at : 0);
            const bool isLast = endAtMark(block) || block.size() < FileWindow::kScanBlock;
            const std::size_t until = isLast ? block.size() : block.size() - kContext;
            const auto from = static_cast<std::size_t>(std::max(looked, at) - at);
            look(block, at, from, until);
            if (isLast || m_result.texts.size() == m_names.size())
                return std::move(m_result);
            looked = at + until;
            bytes += until - from;
        }
        m_result.hasReachedLimit = true;
        return std::move(m_result);
    }

private:
    static bool endAtMark(std::string_view &block) {
        const std::size_t whole = block.size();
        for (const std::string_view mark : kXmpPacketEnds)
            block = block.substr(0, block.find(mark));
        return block.size() < whole;
    }

    /// Looks at every name whose colon stands between `from` and `until`.
    void look(std::string_view block, std::uint64_t at, std::size_t from, std::size_t until) {
        for (std::size_t colon = block.find(':', from); colon < until;
             colon = block.find(':', colon + 1))
            for (std::size_t i = 0; i < m_names.size(); ++i)
                if (!m_isFound[i])
                    take(block, at, colon, i);
    }

    void take(std::string_view block, std::uint64_t at, std::size_t colon, std::size_t index) {
        const XmpName &name = m_names[index];
        const std::string_view matched = name.name.substr(name.matchedFrom);
        const std::size_t inFront = matched.find(':');
        if (colon < inFront || !block.substr(colon - inFront).starts_with(matched))
            return;
        const std::size_t begin = colon - inFront;
        const std::string_view behind = block.substr(begin + matched.size());
        const auto opening = openingOf(behind);
        if (!opening || !beginsName(block, begin, name, opening->form))
            return;
        const std::string_view text = textOf(behind, *opening, name.longestValue);
        m_isFound[index] = true;
        m_result.texts.push_back({index,
                                  {at + begin + matched.size() + opening->valueAt,
                                   static_cast<std::uint32_t>(text.size()), Bytes(text)}});
    }

    FileWindow &m_window;
    const std::uint64_t m_begin, m_end;
    std::span<const XmpName> m_names;
    std::vector<bool> m_isFound;
    XmpTextScan m_result;
};

} // namespace

XmpTextScan scanXmpTexts(FileWindow &window, const ByteBlock &packet,
                         std::span<const XmpName> names) {
    return Scan(window, packet, names).run();
}

bool isXmpInUtf8(FileWindow &window, const ByteBlock &packet) {
    const auto begin = window.bytes(packet.offset, 2);
    if (!begin || packet.length < 2)
        return true;
    const bool hasOrderMark = *begin == "\xFE\xFF" || *begin == "\xFF\xFE";
    return !hasOrderMark && begin->find('\0') == std::string_view::npos;
}

} // namespace chronomender
