// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace chronomender {

/// A camera's words about itself as text for people: up to the first zero byte, without control
/// characters and without blanks at both ends. Bytes that are no UTF-8 are taken as Latin-1.
/// Example: "Canon \0\0" gives "Canon".
std::string cameraText(std::string_view raw);

} // namespace chronomender
