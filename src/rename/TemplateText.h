// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RenameTemplate.h"

#include <string>
#include <string_view>
#include <variant>

namespace chronomender {

// Templates as text, for command lines: "{year}_{month}_{day}_{counter:3}". Elements stand in
// braces; a brace that is meant is doubled. Between two runs of text that are parts of their own
// stands "{}". The text tells the options of the elements that it holds; others are as in a new
// template. Every template with known elements has one text, and the text makes the same parts.

struct TemplateTextError {
    std::size_t place = 0; ///< byte of the text at which it goes wrong
    std::string message;   ///< in the user's language
};
std::variant<RenameTemplate, TemplateTextError> templateFromText(std::string_view text);
/// One character (UTF-8) that cannot stand in a name which other systems and a terminal are to show
/// as it is: what parts folders, controls, and what turns the direction of writing.
bool isRefusedInTemplates(std::string_view character);
std::string textOf(const RenameTemplate &renameTemplate);

} // namespace chronomender
