// SPDX-License-Identifier: GPL-3.0-or-later
#include "Date.h"

namespace chronomender {

OptionalDate cleanDate(const OptionalDate &date) {
    if (!isCleanDate(date))
        return std::nullopt;
    return absl::FromUnixSeconds(absl::ToUnixSeconds(*date));
}

} // namespace chronomender
