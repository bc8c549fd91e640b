// SPDX-License-Identifier: GPL-3.0-or-later
#include "DateAlertTexts.h"

namespace chronomender {

std::string alertText(const DateAlert &) {
    return {};
}

std::string_view alertName(DateAlertKind) {
    return {};
}

} // namespace chronomender
