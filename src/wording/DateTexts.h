// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <absl/time/time.h>

#include <string>

namespace chronomender {

/// "2024-10-27T10:00:00Z", with a fraction where the instant has one ("…:00.25Z"). Empty for
/// markers.
std::string utcText(Date date);
/// "2024-10-27T12:00:00+02:00" in the zone, with a fraction where there is one. Empty for markers.
std::string localText(Date date, const absl::TimeZone &zone);
/// "2024-10-27 12:00:00 +02:00" for people, with milliseconds where there are any. Empty for
/// markers.
std::string readableText(Date date, const absl::TimeZone &zone);

} // namespace chronomender
