// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

namespace chronomender {

/// The support folder "chronoMender" in the user's data directory (logs, journals, sessions) and
/// the file of the user's preferences in the configuration directory. CHRONOMENDER_HOME moves both
/// under one folder. Folders are made on first use by whoever writes there.
std::string supportFolder();
std::string userDefaultsPath();

} // namespace chronomender
