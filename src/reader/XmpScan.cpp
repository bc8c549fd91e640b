// SPDX-License-Identifier: GPL-3.0-or-later
#include "XmpScan.h"

namespace chronomender {

std::optional<ByteBlock> findXmpPacket(FileWindow & /*window*/, FileFormatType /*format*/,
                                       std::string_view /*extension*/,
                                       const DatesData & /*known*/) {
    return std::nullopt;
}

XmpDateInfos scanXmpDates(FileWindow & /*window*/, const ByteBlock & /*packet*/,
                          std::vector<Finding> & /*findings*/) {
    return {};
}

XmpLocation scanXmpLocation(FileWindow & /*window*/, const ByteBlock & /*packet*/) {
    return {};
}

XmpSidecar scanXmpSidecar(FileWindow & /*window*/, std::vector<Finding> & /*findings*/) {
    return {};
}

XmpStampType verifiedXmpDateDataType(std::string_view /*text*/, unsigned & /*subtype*/) {
    return XmpStampType::Invalid;
}

} // namespace chronomender
