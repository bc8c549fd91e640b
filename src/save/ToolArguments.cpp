// SPDX-License-Identifier: GPL-3.0-or-later
#include "ToolArguments.h"

#include <filesystem>
#include <string_view>

namespace chronomender {
namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";
constexpr std::string_view lineBreaks = "\r\n";

struct Escape {
    char character;
    std::string_view text;
};
constexpr Escape escapes[] = {{'\\', "\\\\"}, {'"', "\\\""}, {'\n', "\\n"},
                              {'\r', "\\r"},  {'\t', "\\t"}, {'\f', "\\f"}};

std::string escaped(std::string_view path) {
    std::string line = "#[CSTR]";
    for (const char character : path) {
        std::string_view text(&character, 1);
        for (const Escape &escape : escapes)
            if (escape.character == character)
                text = escape.text;
        line += text;
    }
    return line;
}

/// A plain line loses its leading blanks and its trailing line breaks; beginning with "#" it is a
/// comment, with "-" an option.
bool needsEscape(std::string_view path) {
    return path.find('\n') != path.npos || blanks.find(path.front()) != blanks.npos ||
           blanks.find(path.back()) != blanks.npos || path.front() == '#' || path.front() == '-';
}

/// The tool turns these into a backslash and the character, escaped or not.
bool isSpoiltByEscape(std::string_view path) {
    return path.find_first_of("$@") != path.npos;
}

/// The tool repeats the path in its messages, where a line of the name could pass for an answer.
bool couldPassForAnswer(std::string_view path) {
    return path.find("\n{ready") != path.npos;
}

std::optional<std::string> pathLine(const std::string &path) {
    // What begins with "-" is an option for the tool in either form.
    const std::string whole =
        path.starts_with('/') ? path : std::filesystem::absolute(path).string();
    if (whole.empty() || whole.find('\0') != whole.npos || couldPassForAnswer(whole))
        return std::nullopt;
    if (!needsEscape(whole))
        return whole;
    if (!isSpoiltByEscape(whole))
        return escaped(whole);
    const bool isPlainEnough =
        whole.find('\n') == whole.npos && lineBreaks.find(whole.back()) == lineBreaks.npos;
    return isPlainEnough ? std::optional(whole) : std::nullopt;
}

} // namespace

std::optional<std::string> argumentLines(const ToolAction &action, const std::string &path,
                                         bool isPng) {
    const std::optional<std::string> file = pathLine(path);
    if (!file)
        return std::nullopt;
    std::string text;
    for (const std::string &line : action.lines) {
        if (line.find_first_of(lineBreaks) != line.npos)
            return std::nullopt;
        text += line + '\n';
    }
    text += "-overwrite_original\n-F\n-m\n";
    if (isPng)
        text += "-fast\n";
    return text + *file + "\n\n-execute\n";
}

} // namespace chronomender
