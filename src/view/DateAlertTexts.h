// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DateAlerts.h"

#include <string>
#include <string_view>

namespace chronomender {

/// An alert in plain words: "happens twice on 27 Oct 2024 in Europe/Berlin; read as the later one".
/// What it is about, the item or the dependent file, is for the caller to name.
std::string alertText(const DateAlert &alert);
/// A stable word for programs: "repeatedTime".
std::string_view alertName(DateAlertKind kind);

} // namespace chronomender
