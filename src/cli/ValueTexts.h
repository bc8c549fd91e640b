// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "SinglePicAttributes.h"

#include <string>
#include <string_view>

namespace chronomender {

/// "323032…": two digits for each byte.
std::string hexText(const Bytes &bytes);

/// A recorded value as a person would read it: the characters of a stamp up to its first zero byte,
/// "48/1 51/1 2430/100" of rationals, the number of an altitude reference.
std::string valueText(std::string_view key, const Bytes &bytes,
                      const SinglePicAttributes &attributes);

} // namespace chronomender
