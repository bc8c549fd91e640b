// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>

namespace chronomender {

/// The form of "com.apple.quicktime.creationdate" that can be written in place:
/// "2024-05-06T07:08:09Z", "…+0200" or "…+02:00". The numbers are not judged.
bool isValidQtCreationDateData(std::string_view data);

/// Looks like an ISO 6709 text: begins with a sign, ends with a slash or a digit.
bool isValidQtLocationData(std::string_view data);

} // namespace chronomender
