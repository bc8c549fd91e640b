// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "RunJournal.h"

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace chronomender {

// The bytes of a run's record: frames, one behind the other. A frame is a mark, the length and the
// CRC-32 of what follows (four bytes each, the lowest first), and one CBOR array (RFC 8949). A
// frame is complete or counts as never written: no file is touched before its frame is on disk.

/// More than a run can need; a longer record is not written, and not read.
constexpr std::size_t largestRecord = std::size_t{64} << 20;
/// The same for what one frame holds, which is taken apart in memory.
constexpr std::size_t largestFrame = std::size_t{16} << 20;

/// The folder is an absolute path, and each name stays inside it. Nothing else is read from a
/// record, so nothing else may be written.
bool isSound(const MoveIntent &move);

/// Units that are about to be written, in frames of a sensible size; none when they are too much.
std::optional<std::string> batchFrames(std::span<const UnitIntent> units, Date begun);
/// The same in one frame. A folder stands in it once.
std::string batchFrame(std::span<const UnitIntent> units, Date begun);
/// Of all units recorded so far, only those with these indices are still unsettled.
std::string leftFrame(std::span<const std::size_t> indices);
/// From here on a recovery has been writing as well.
std::string resumedFrame(Date begun);

struct RecordedUnit {
    UnitIntent unit;
    Date begun; ///< the first write came behind that
};
struct Record {
    std::vector<RecordedUnit> unsettled;
    std::vector<Date> resumed; ///< when each recovery so far began
    std::size_t end = 0;       ///< bytes of the frames that are whole
};
/// Reads up to the first frame that is not whole or makes no sense; never fails.
Record readRecord(std::string_view bytes);

} // namespace chronomender
