// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "QuickTimeFormat.h"

namespace chronomender {

/// What `mvhd` says.
struct MvhdData {
    LocatedBytes creation, modification; ///< 4 bytes each: seconds since 1904
    std::uint32_t timeScale = 0;         ///< units a second, above 0
    double duration = -1;                ///< seconds; -1 unknown
};

/// The body of the movie box, wherever it stands between other boxes; none without one, and with
/// `mustBeginWithFtyp` none in a file that begins with another box. Reads box headers only.
std::optional<ByteRange> findMovieBox(FileWindow &window, bool mustBeginWithFtyp);

/// The movie header. 64-bit times are taken while they fit 32 bits; their low halves are recorded.
/// Other versions, a box that is too small and a time scale of 0 are refused with a finding.
std::optional<MvhdData> readMVHDData(const ByteRange &body, std::vector<Finding> &findings);

} // namespace chronomender
