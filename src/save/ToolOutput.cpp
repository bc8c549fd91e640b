// SPDX-License-Identifier: GPL-3.0-or-later
#include "ToolOutput.h"

#include <QString>

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

constexpr std::string_view endMark = "{ready}";
constexpr std::array<std::string_view, 2> changeWords = {"1 image files updated",
                                                         "1 image files created"};

std::size_t endOf(std::string_view text) {
    std::size_t at = text.find(endMark);
    while (at != text.npos && at > 0 && text[at - 1] != '\n')
        at = text.find(endMark, at + 1);
    return at;
}

template<class Use>
void forEachLine(std::string_view text, Use use) {
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        use(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
    }
}

std::string_view withoutIndent(std::string_view line) {
    return line.substr(std::min(line.find_first_not_of(' '), line.size()));
}

/// File names in it may be no UTF-8.
std::string readable(std::string_view line) {
    return QString::fromUtf8(line.data(), static_cast<qsizetype>(line.size())).toStdString();
}

ToolAnswer answerIn(std::string_view text) {
    ToolAnswer answer;
    forEachLine(text, [&answer](std::string_view line) {
        // Whole lines: a message may quote a file's name.
        if (std::ranges::find(changeWords, withoutIndent(line)) != changeWords.end())
            answer.didChange = true;
        if (line.starts_with("Error"))
            answer.error = readable(line);
    });
    return answer;
}

} // namespace

std::optional<ToolAnswer> ToolOutput::take() {
    const std::size_t end = endOf(m_text);
    if (end == m_text.npos)
        return std::nullopt;
    const ToolAnswer answer = answerIn(std::string_view(m_text).substr(0, end));
    m_text.erase(0, end + endMark.size());
    return answer;
}

std::string ToolOutput::lastWords() const {
    std::string words;
    forEachLine(m_text, [&words](std::string_view line) {
        if (!withoutIndent(line).empty())
            words = readable(withoutIndent(line));
    });
    return words;
}

} // namespace chronomender
