// SPDX-License-Identifier: GPL-3.0-or-later
#include "InternalPreviews.h"

namespace chronomender {

std::optional<InternalPreview> savereadInternalJPGs(FileWindow & /*window*/) {
    return std::nullopt;
}

} // namespace chronomender
