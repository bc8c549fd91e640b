// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Date.h"

#include <QString>

#include <absl/time/time.h>

namespace chronomender {

// How a strip tells days and times, all in one zone, so that its items can be compared.

/// "Sun, 27 Oct 2024"
QString dayTitle(absl::CivilDay day);
/// "10:00:05"; "" for markers.
QString timeLabel(Date date, absl::TimeZone zone);

} // namespace chronomender
