// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace chronomender {

// The two parts of a file's name. A dot in front starts a hidden name, not an extension: ".jpg" is
// a base without one.

/// The part behind the last dot, as spelled; "" for names like ".jpg", "IMG_1" or "IMG_1.".
std::string_view extensionOfName(std::string_view name);
/// The part before that dot: "IMG_1" of "IMG_1.JPG" and of "IMG_1.", ".jpg" of ".jpg".
std::string_view baseOfName(std::string_view name);

} // namespace chronomender
