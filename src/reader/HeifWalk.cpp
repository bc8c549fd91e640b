// SPDX-License-Identifier: GPL-3.0-or-later
#include "HeifWalk.h"

namespace chronomender {

MetadataBlocks findHeifBlocks(const ByteRange & /*file*/) {
    return {};
}

} // namespace chronomender
