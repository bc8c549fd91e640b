// SPDX-License-Identifier: GPL-3.0-or-later
#include "Marking.h"

namespace chronomender {
namespace {

constexpr std::string_view ratingKey = "filter_rating";

constexpr const char *actionName(Rating rating) {
    switch (rating) {
    case Rating::Keeper:
        return "mark_keeper";
    case Rating::Rejected:
        return "mark_rejected";
    case Rating::None:
        break;
    }
    return "mark_none";
}

} // namespace

Marking::Marking(UndoManager &undo,
                 std::function<void(std::string_view)> filterRelevantChangeWasMade)
    : m_undo(undo), m_filterRelevantChangeWasMade(std::move(filterRelevantChangeWasMade)) {}

std::size_t Marking::setRating(const std::vector<MySinglePicPtr> &pics, Rating rating) {
    const bool isKeeper = rating == Rating::Keeper, isRejected = rating == Rating::Rejected;
    PicSet seen;
    std::vector<MarkedPic> changing;
    for (const MySinglePicPtr &pic : pics) {
        const MySinglePicPtr master = pic->bundleMasterImage();
        const MySinglePicPtr &marked = master ? master : pic;
        const Marks &now = marked->marks;
        if ((now.isKeeper != isKeeper || now.isRejected != isRejected) &&
            seen.insert(marked).second)
            changing.push_back({marked, isKeeper, isRejected});
    }
    if (changing.empty())
        return 0;
    const UndoGroup group(m_undo);
    apply(changing);
    m_undo.setActionName(actionName(rating));
    return changing.size();
}

void Marking::apply(const std::vector<MarkedPic> &wanted) {
    std::vector<MarkedPic> before;
    for (const MarkedPic &each : wanted) {
        const MySinglePicPtr pic = each.pic.lock();
        if (!pic)
            continue;
        before.push_back({pic, pic->marks.isKeeper, pic->marks.isRejected});
        pic->marks.isKeeper = each.isKeeper;
        pic->marks.isRejected = each.isRejected;
        m_undo.recordAffected(pic);
    }
    m_undo.registerUndo(m_undoTarget,
                        [before](const UndoTarget &target) { target.marking->apply(before); });
    m_filterRelevantChangeWasMade(ratingKey);
}

} // namespace chronomender
