// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MyBuildThumbOperation.h"
#include "MySinglePic.h"

#include <cstdint>
#include <deque>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace chronomender {

/// Where an item stands on the way to its thumbnail.
enum class ThumbStage : std::uint8_t {
    Idle,    ///< nobody wants one, or it is there
    Waiting, ///< wanted
    Queued,  ///< given to a worker
};

struct ThumbItem {
    std::weak_ptr<MySinglePic> pic;
    ThumbStage stage = ThumbStage::Idle;
    bool isBuilt = false;         ///< made or failed since its picture was last another one
    bool isAsked = false;         ///< stands in the list of what was drawn without
    bool isBackground = false;    ///< stands in the list of the rest
    bool isSeen = false;          ///< somebody looked at it while it waited
    std::uint32_t generation = 0; ///< another one for each file that it stood for
    /// `didBuildThumbFail`: why, until the file is another one.
    std::optional<PictureFailure> failure;
    bool didEXIFThumbFail = false; ///< the failure: its file holds no thumbnail
    /// Somebody looked at it in large, so its next thumbnail may be decoded.
    bool wasVisisbleInPreviewsWithoutThumb = false;
};

/// The items that thumbnails are made of, and the order in which: what is on screen, then what was
/// drawn without one (the last first), then the rest. Main thread.
class ThumbItems {
public:
    ThumbItem &item(const MySinglePicPtr &pic);
    ThumbItem *find(std::uint32_t sessionUniqueId);
    const ThumbItem *find(std::uint32_t sessionUniqueId) const;
    void forget(std::uint32_t sessionUniqueId);
    /// Of all items, in the order in which they came into the session.
    std::vector<std::uint32_t> ids() const;
    /// The item's picture is another one now: what is under way is of no use, and it waits again.
    void renew(ThumbItem &item);

    /// All changes of an item's stage go through here, so that they are counted.
    void setStage(ThumbItem &item, ThumbStage stage);
    void setBuilt(ThumbItem &item, bool isBuilt);
    std::size_t waitingToBeBuilt() const { return m_waitingToBeBuilt; }
    std::size_t built() const { return m_built; }

    void setOnScreen(std::vector<std::uint32_t> ids) { m_onScreen = std::move(ids); }
    const std::vector<std::uint32_t> &onScreen() const { return m_onScreen; }
    /// An item that was drawn without its thumbnail.
    void ask(std::uint32_t sessionUniqueId);
    /// An item that nobody looks at yet; `isFirst`: it was about to be made.
    void addBackground(std::uint32_t sessionUniqueId, bool isFirst);
    /// The items that only the background waited for wait no longer.
    void clearBackground();

    enum class Background : bool { No, Yes };
    /// At most `most` items that wait, in the order in which they are to be made. They leave the
    /// lists, and their stage is the caller's to change.
    std::vector<std::uint32_t> takeRound(std::size_t most, Background background);

private:
    void dropOldAsks();
    bool isWaiting(std::uint32_t sessionUniqueId) const;

    std::unordered_map<std::uint32_t, ThumbItem> m_items;
    std::vector<std::uint32_t> m_onScreen;
    std::deque<std::uint32_t> m_asked, m_background;
    std::size_t m_waitingToBeBuilt = 0, m_built = 0;
    std::uint32_t m_generations = 0;
};

} // namespace chronomender
