// SPDX-License-Identifier: GPL-3.0-or-later
#include "WebpWalk.h"

namespace chronomender {

MetadataBlocks findWebpBlocks(const ByteRange & /*file*/) {
    return {};
}

} // namespace chronomender
