// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace chronomender {

/// Loads the texts of a language ("en", "de"; anything else, or "", takes the user's locale and
/// falls back on English). Called once at start, on the main thread, after the application object
/// exists.
void loadTexts(std::string_view language = {});

/// The text of a key in the loaded language, with "%1", "%2"… replaced by the arguments in turn. A
/// key without a text comes back as it is (and is a test failure). Safe on all threads after
/// loadTexts.
std::string text(std::string_view key, std::initializer_list<std::string> arguments = {});

} // namespace chronomender
