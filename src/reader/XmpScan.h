// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "DatesData.h"
#include "FileFormatType.h"
#include "MetadataBlocks.h"
#include "XmpData.h"
#include "XmpValues.h"

#include <string_view>

namespace chronomender {

/// Where the packet of a file of this format begins and how far a scan may go: to the end that its
/// container states, never further. None without one.
/// `known` is what the date walk of the same file gave.
std::optional<ByteBlock> findXmpPacket(FileWindow &window, FileFormatType format,
                                       const DatesData &known);

/// The date properties between the packet's beginning and its end, by a scan of the bytes: no XML
/// is parsed, so that each value keeps its place in the file. What was refused is added to
/// `findings`.
XmpDateInfos scanXmpDates(FileWindow &window, const ByteBlock &packet,
                          std::vector<Finding> &findings);

/// The location values of the packet, by the same scan; only texts that can be read as such.
XmpLocation scanXmpLocation(FileWindow &window, const ByteBlock &packet);

/// Everything that a sidecar file says: the scan begins at its first "<x:xmpmeta". The files that
/// it names stand in "photoshop:SidecarForExtension" (an extension), "crs:RawFileName" and
/// "xmpMM:DerivedFrom" (names).
XmpSidecar scanXmpSidecar(FileWindow &window, std::vector<Finding> &findings);

} // namespace chronomender
