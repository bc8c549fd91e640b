// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "DatesData.h"
#include "FileFormatType.h"
#include "MetadataBlocks.h"
#include "XmpData.h"

#include <string_view>

namespace chronomender {

/// Where the packet of a file of this format begins and how far a scan may go; none without one.
/// `known` is what the date walk of the same file gave.
std::optional<ByteBlock> findXmpPacket(FileWindow &window, FileFormatType format,
                                       std::string_view extension, const DatesData &known);

/// The date properties between the packet's beginning and its end, by a scan of the bytes: no XML
/// is parsed, so that each value keeps its place in the file. What was refused is added to
/// `findings`.
XmpDateInfos scanXmpDates(FileWindow &window, const ByteBlock &packet,
                          std::vector<Finding> &findings);

/// The location values of the packet, by the same scan.
XmpLocation scanXmpLocation(FileWindow &window, const ByteBlock &packet);

/// Everything that a sidecar file says.
XmpSidecar scanXmpSidecar(FileWindow &window, std::vector<Finding> &findings);

/// The form of a date text, and whether it is one: 19 to 29 characters, or 16 to 26 without
/// seconds.
XmpStampType verifiedXmpDateDataType(std::string_view text, unsigned &subtype);

} // namespace chronomender
