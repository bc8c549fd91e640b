// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateText.h"

#include "DirectionSigns.h"
#include "FolderAccess.h"
#include "Texts.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

using enum RenameElement;

/// How an element is written between braces.
struct ElementName {
    std::string_view name;
    RenameElement element;
    int TemplateOptions::*option = nullptr; ///< that the name tells,
    int value = 0;                          ///< and what it tells of it
};
constexpr std::array elementNames{
    ElementName{"year", Year, &TemplateOptions::yearHasFourDigits, 1},
    ElementName{"year2", Year, &TemplateOptions::yearHasFourDigits, 0},
    ElementName{"month", Month, &TemplateOptions::monthHasTwoDigits, 1},
    ElementName{"month1", Month, &TemplateOptions::monthHasTwoDigits, 0},
    ElementName{"day", Day},
    ElementName{"hour", Hour},
    ElementName{"minute", Minute},
    ElementName{"second", Second},
    ElementName{"counter", Counter, &TemplateOptions::counterDigits,
                TemplateOptions().counterDigits},
    ElementName{"folder", FolderName},
    ElementName{"name", SourceName},
    ElementName{"addon1", AddOn},
    ElementName{"addon2", AddOn},
    ElementName{"addon3", AddOn},
};
constexpr std::string_view counterPrefix = "counter:", addOnPrefix = "addon";

/// The well-formed character that a text begins with; "" when it begins with none.
std::string_view firstCharacter(std::string_view text) {
    for (std::size_t length = 1; length <= std::min<std::size_t>(4, text.size()); ++length)
        if (isValidUtf8(text.substr(0, length)))
            return text.substr(0, length);
    return {};
}

class Parser {
public:
    explicit Parser(std::string_view text) : m_text(text) {}

    std::variant<RenameTemplate, TemplateTextError> parse() {
        while (m_place < m_text.size() && !m_error)
            m_text[m_place] == '{' || m_text[m_place] == '}' ? readBrace() : readCharacter();
        if (m_error)
            return *std::move(m_error);
        return std::move(m_template);
    }

private:
    bool fail(std::string_view key, std::string_view argument = {}) {
        m_error = TemplateTextError{m_place, text(key, {std::string(argument)})};
        return false;
    }

    void readCharacter() {
        const std::string_view character = firstCharacter(m_text.substr(m_place));
        if (character.empty())
            fail("templateTextError_notUtf8");
        else if (isRefusedInTemplates(character))
            fail("templateTextError_refusedCharacter");
        else
            append(character);
        m_place += character.size();
    }

    void readBrace() {
        const char brace = m_text[m_place];
        if (m_text.substr(m_place + 1).starts_with(brace)) {
            append(m_text.substr(m_place, 1));
            m_place += 2;
        } else if (brace == '}') {
            fail("templateTextError_braceWithoutBegin");
        } else if (const std::size_t end = m_text.find('}', m_place); end == m_text.npos) {
            fail("templateTextError_braceWithoutEnd");
        } else if (readElement(m_text.substr(m_place + 1, end - m_place - 1))) {
            m_isInText = false;
            m_place = end + 1;
        }
    }

    /// False, with an error, for a text that is no element in its place.
    bool readElement(std::string_view name) {
        if (name.empty())
            return true;
        if (name.starts_with(counterPrefix))
            return readCounter(name);
        const auto found = std::ranges::find(elementNames, name, &ElementName::name);
        if (found == elementNames.end())
            return fail("templateTextError_unknownElement", name);
        if (found->option)
            m_template.options.*found->option = found->value;
        return place(found->element, name);
    }

    bool readCounter(std::string_view name) {
        const std::string_view digits = name.substr(counterPrefix.size());
        if (digits.size() != 1 || digits[0] < '1' || digits[0] > '0' + mostCounterDigits)
            return fail("templateTextError_counterDigits", name);
        m_template.options.counterDigits = digits[0] - '1';
        return place(Counter, name);
    }

    bool place(RenameElement element, std::string_view name) {
        const auto used = std::ranges::count(m_template.stringParts, std::optional(element),
                                             &TemplatePart::element);
        if (element == AddOn) {
            const auto number = name.back() - '0';
            if (number <= used)
                return fail("templateTextError_twice", name);
            if (number > used + 1)
                return fail("templateTextError_addOnOrder", name);
        } else if (used > 0) {
            return fail("templateTextError_twice", name);
        }
        m_template.stringParts.push_back(TemplatePart::ofElement(element));
        return true;
    }

    void append(std::string_view characters) {
        if (!m_isInText)
            m_template.stringParts.push_back(TemplatePart::ofText({}));
        m_template.stringParts.back().text += characters;
        m_isInText = true;
    }

    std::string_view m_text;
    std::size_t m_place = 0;
    bool m_isInText = false; ///< the last part is a run of text that goes on
    RenameTemplate m_template;
    std::optional<TemplateTextError> m_error;
};

std::string textOfElement(RenameElement element, int addOns, const TemplateOptions &options) {
    if (element == AddOn)
        return std::string(addOnPrefix) +
               std::to_string(std::min(addOns + 1, mostOccurrences(AddOn)));
    if (element == Counter)
        return std::string(counterPrefix) +
               std::to_string(std::clamp(options.counterDigits + 1, 1, mostCounterDigits));
    for (const ElementName &each : elementNames)
        if (each.element == element &&
            (!each.option || (options.*each.option != 0) == (each.value != 0)))
            return std::string(each.name);
    return {};
}

std::string withDoubledBraces(std::string_view text) {
    std::string doubled;
    for (const char byte : text)
        doubled.append(byte == '{' || byte == '}' ? 2 : 1, byte);
    return doubled;
}

} // namespace

bool isRefusedInTemplates(std::string_view character) {
    if (character.size() == 1) {
        const auto byte = static_cast<unsigned char>(character[0]);
        return byte < 0x20 || byte == 0x7F || byte == ':' || byte == '/' || byte == '\\';
    }
    const bool isLateControl =
        character.size() == 2 && character[0] == '\xC2' && character[1] < '\xA0';
    return isLateControl || isDirectionSign(character);
}

std::variant<RenameTemplate, TemplateTextError> templateFromText(std::string_view text) {
    return Parser(text).parse();
}

std::string textOf(const RenameTemplate &renameTemplate) {
    std::string text;
    int addOns = 0;
    bool isBehindText = false;
    for (const TemplatePart &part : renameTemplate.stringParts) {
        std::string written = part.element
                                  ? textOfElement(*part.element, addOns, renameTemplate.options)
                                  : withDoubledBraces(part.text);
        if (written.empty())
            continue;
        addOns += part.element == AddOn;
        if (part.element)
            written.insert(0, 1, '{').append(1, '}');
        else if (isBehindText)
            written.insert(0, "{}");
        text += written;
        isBehindText = !part.element;
    }
    return text;
}

} // namespace chronomender
