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

/// Walks boxes as long as what the whole walk may read lasts.
class MovieBoxes {
public:
    MovieBoxes(const ByteRange &range, const ReadBudget &budget, BoxLevel level = BoxLevel::Inside)
        : m_boxes(range, level, level == BoxLevel::Inside ? kMostBoxesInside : kMostTopLevelBoxes),
          m_budget(&budget) {}

    std::optional<Box> next() { return m_budget->isSpent() ? std::nullopt : m_boxes.next(); }

private:
    BoxCursor m_boxes;
    const ReadBudget *m_budget; ///< not owned
};

/// The first box of a type inside a range; none without one.
std::optional<Box> findBox(const ByteRange &range, std::uint32_t type, const ReadBudget &budget);

/// The body of the movie box, wherever it stands between other boxes; none without one, and with
/// `mustBeginWithFtyp` none in a file that begins with another box. Reads box headers only.
std::optional<ByteRange> findMovieBox(FileWindow &window, bool mustBeginWithFtyp,
                                      const ReadBudget &budget);

/// The movie header. 64-bit times are taken while they fit 32 bits; their low halves are recorded.
/// Other versions, a box that is too small and a time scale of 0 are refused with a finding.
std::optional<MvhdData> readMVHDData(const ByteRange &body, std::vector<Finding> &findings);

} // namespace chronomender
