// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

namespace chronomender::bench {

/// The visible list of a trip in memory (see addTrip) and its strip. Every figure leaves the trip
/// as it was, and comes with the count that it is about: 0 when its result was wrong.
class Timelines {
public:
    struct Figure {
        std::chrono::duration<double> time{}; ///< of one build, step or query
        std::size_t count = 0;
    };

    explicit Timelines(std::size_t itemCount);
    ~Timelines();
    /// One trip of each size, made when first asked for.
    static Timelines &ofSize(std::size_t itemCount);

    /// The list of a session that was not sorted before.
    Figure firstBuild();
    /// Again, after the clock of the first folder was corrected by some seconds.
    Figure fullRebuild();
    /// The filters alone, from the whole list to a part: names that hold "7", items with any alert.
    Figure refilterByText();
    Figure refilterByState();
    /// One step of a drag of the first folder to a place between two others.
    Figure dragStep();
    /// Which thumbnails a view of a strip shows.
    Figure visibleRange();

private:
    Figure refilter(const char *predicate, std::size_t expected);
    struct Trip;
    std::unique_ptr<Trip> m_trip;
};

} // namespace chronomender::bench
