// SPDX-License-Identifier: GPL-3.0-or-later
#include "TextModification.h"

namespace chronomender {

std::string modifiedStringFromString(const std::string &text, const TextModification &) {
    return text;
}

std::string modifiedStringFromString(const std::string &text, const TextModifications &) {
    return text;
}

} // namespace chronomender
