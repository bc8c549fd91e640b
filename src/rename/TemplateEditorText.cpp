// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateEditorText.h"

#include "TemplateText.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

namespace chronomender {
namespace {

constexpr char16_t attachment = 0xFFFC; // U+FFFC, what stands for an element in a text field

QString decoded(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::size_t lengthOf(const TemplatePart &run) {
    return run.element ? 1 : static_cast<std::size_t>(decoded(run.text).size());
}

/// The text in front of a place and the one behind it; a surrogate pair is not cut in two.
std::pair<std::string, std::string> cut(const std::string &text, std::size_t place) {
    const QString whole = decoded(text);
    auto at = static_cast<qsizetype>(place);
    if (at < whole.size() && whole[at].isLowSurrogate())
        --at;
    return {whole.left(at).toStdString(), whole.mid(at).toStdString()};
}

void append(TemplateEditorText::Parts &runs, std::string text) {
    if (!text.empty())
        runs.push_back(TemplatePart::ofText(std::move(text)));
}

bool isRefused(char32_t character) {
    return character == attachment ||
           isRefusedInTemplates(QString::fromUcs4(&character, 1).toStdString());
}

bool isAlphanumeric(char32_t character) {
    return QChar::isLetterOrNumber(character) || QChar::isMark(character);
}

bool isPunctuationSymbolOrBlank(char32_t character) {
    return QChar::isPunct(character) || QChar::isSymbol(character) ||
           QChar::category(character) == QChar::Separator_Space;
}

} // namespace

bool isAcceptedInTemplate(std::string_view replacement) {
    const auto characters = decoded(replacement).toUcs4();
    // One sign of punctuation lets what is not refused pass: the text is looked at as a whole.
    return std::ranges::none_of(characters, isRefused) &&
           (std::ranges::all_of(characters, isAlphanumeric) ||
            std::ranges::any_of(characters, isPunctuationSymbolOrBlank));
}

TemplateEditorText::TemplateEditorText(const Parts &runs) {
    std::ranges::copy_if(runs, std::back_inserter(m_runs),
                         [](const TemplatePart &run) { return run.element || !run.text.empty(); });
}

std::size_t TemplateEditorText::length() const {
    std::size_t sum = 0;
    for (const TemplatePart &run : m_runs)
        sum += lengthOf(run);
    return sum;
}

void TemplateEditorText::parseTemplateTextAndWriteResultsTo(Parts &parts,
                                                            std::vector<RenameElement> &ids) const {
    const std::size_t count = std::min(m_runs.size(), mostParts);
    parts.assign(m_runs.begin(), m_runs.begin() + static_cast<std::ptrdiff_t>(count));
    ids.clear();
    for (const TemplatePart &part : parts)
        if (part.element)
            ids.push_back(*part.element);
}

std::optional<RenameElement> TemplateEditorText::elementAt(std::size_t position) const {
    for (const TemplatePart &run : m_runs) {
        const std::size_t length = lengthOf(run);
        if (position < length)
            return run.element;
        position -= length;
    }
    return std::nullopt;
}

std::size_t TemplateEditorText::open(Range range) {
    Parts front, back;
    std::size_t place = 0;
    for (const TemplatePart &run : m_runs) {
        const std::size_t end = place + lengthOf(run);
        if (end <= range.begin)
            front.push_back(run);
        else if (place >= range.end)
            back.push_back(run);
        else if (!run.element) {
            if (place < range.begin)
                append(front, cut(run.text, range.begin - place).first);
            if (range.end < end)
                append(back, cut(run.text, range.end - place).second);
        }
        place = end;
    }
    m_runs = std::move(front);
    const std::size_t index = m_runs.size();
    m_runs.insert(m_runs.end(), back.begin(), back.end());
    return index;
}

void TemplateEditorText::replaceText(Range range, std::string_view text) {
    // Typing inside a run must not part it: what stood around the range joins again.
    const std::size_t before = m_runs.size();
    const std::size_t index = open(range);
    const bool wasInside = m_runs.size() > before;
    const auto isText = [&](std::size_t at) { return at < m_runs.size() && !m_runs[at].element; };
    if (index > 0 && isText(index - 1)) {
        m_runs[index - 1].text += text;
        if (wasInside) {
            m_runs[index - 1].text += m_runs[index].text;
            m_runs.erase(m_runs.begin() + static_cast<std::ptrdiff_t>(index));
        }
    } else if (isText(index)) {
        m_runs[index].text.insert(0, text);
    } else if (!text.empty()) {
        m_runs.insert(m_runs.begin() + static_cast<std::ptrdiff_t>(index),
                      TemplatePart::ofText(std::string(text)));
    }
}

void TemplateEditorText::insertElement(std::size_t position, RenameElement element) {
    const auto index = static_cast<std::ptrdiff_t>(open({position, position}));
    m_runs.insert(m_runs.begin() + index, TemplatePart::ofElement(element));
}

} // namespace chronomender
