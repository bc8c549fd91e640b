// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StripLayout.h"
#include "WindowSession.h"

#include <memory>

namespace chronomender {

/// A drag of thumbnails to other dates, as a pointer or arrow keys lead it over a strip that shows
/// the outcome live. What is pointed at stays where it is while the dragged items find their new
/// places around it: the strip's `scrollX` moves along.
///
/// Nothing is changed before `commit`. When the list was built anew meanwhile, `listChanged` aims
/// at the same item again. Main thread.
class StripDrag {
public:
    /// Null when nothing of it can be moved. The session outlives the drag, and is told of it.
    static std::unique_ptr<StripDrag> begin(WindowSession &session, const MySinglePicPtr &pic,
                                            TimelineStrip &strip);
    ~StripDrag();
    StripDrag(const StripDrag &) = delete;
    StripDrag &operator=(const StripDrag &) = delete;

    /// The pointer is at x of the strip as it is shown. Over items that are dragged themselves the
    /// target stays what it is.
    void pointTo(double x);
    /// The pointer is beside the strip: all items are where they began.
    void pointNowhere();
    /// So many places further, four for each item that stays: the gap in front of it, a second
    /// before it, onto it, a second after it. The main item stays in sight.
    void step(int places);
    void stepToEnd(bool isLast);
    static constexpr int placesOfItem = 4;
    void listChanged();

    /// Ends the drag with its dates, the main item staying in sight where it is. Without a target
    /// nothing is changed.
    void commit();
    /// Ends it without them; the strip shows what it showed at the start.
    void cancel();

    const TimelineStrip *strip() const { return m_strip; }
    const MySinglePicPtr &main() const { return m_main; }
    /// Of the main item in the list as it is shown.
    std::int64_t mainIndex() const { return shownIndex(*m_main); }
    bool hasTarget() const { return m_live.target.dragType != DragType::None; }
    /// As layouts show it. Its target is that of the strip that the drag goes over.
    const ShownDrag &live() const { return m_live; }
    /// "27 Oct 2024, 10:00:05", and "1 h later".
    QString proposedDate() const;
    QString shift() const;
    /// All of that in words, with where it is: "…, a second before IMG_2.JPG".
    QString spoken() const;

private:
    StripDrag(WindowSession &session, const MySinglePicPtr &pic, TimelineStrip &strip,
              std::unique_ptr<DateDrag> drag);

    /// Where the drag aims at, independent of the list: beside or onto an item that stays.
    struct Aim {
        MySinglePicPtr pic;
        int place = 0; ///< 0 to 4: from the gap in front of it to the gap behind it
    };

    TimelineStrip *presentStrip();
    void scrollTo(double scrollX);
    std::optional<Aim> aimAtPointer(const TimelineStrip &strip, double x) const;
    DragTarget target(const TimelineStrip &strip, const Aim &aim) const;
    DragTarget shownTarget(const TimelineStrip &strip, const Aim &aim) const;
    std::int64_t shownIndex(const MySinglePic &pic) const;
    bool isTargetItem(const MySinglePicPtr &pic) const;
    std::vector<MySinglePicPtr> targetItems(const TimelineStrip &strip) const;
    void stepTo(const std::vector<MySinglePicPtr> &items, std::int64_t place);
    /// `anchor` keeps its place in the view.
    void moveTo(TimelineStrip &strip, const Aim &aim, const MySinglePicPtr &anchor);

    WindowSession &m_session;
    MySinglePicPtr m_main;
    TimelineStrip *m_strip;
    double m_scrollAtStart;
    std::unique_ptr<DateDrag> m_drag;
    std::optional<Aim> m_aim;
    ShownDrag m_live;
};

} // namespace chronomender
