// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateText.h"

namespace chronomender {

std::variant<RenameTemplate, TemplateTextError> templateFromText(std::string_view) {
    return TemplateTextError{};
}

std::string textOf(const RenameTemplate &) {
    return {};
}

} // namespace chronomender
