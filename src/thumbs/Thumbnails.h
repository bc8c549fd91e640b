// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MyBuildThumbOperation.h"
#include "MySinglePic.h"
#include "ThumbEntry.h"

#include <QImage>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string_view>
#include <vector>

namespace chronomender {

enum class ThumbState : std::uint8_t {
    Ready,
    Pending,     ///< it is being made; a smaller one may stand in meanwhile
    Unsupported, ///< there will be none
};

struct ThumbAnswer {
    ThumbState state = ThumbState::Pending;
    QImage image; ///< upright; null where there is none (yet)
    /// The picture is that small by itself: to be shown in its own size, not scaled up.
    bool isMiniFallBack = false;
    std::string_view reasonKey = {}; ///< Unsupported: text key of why
};

struct ThumbnailSettings {
    std::size_t decodedBytes = 256U << 20U;     ///< bound of the decoded pictures
    std::size_t compressedBytes = 1024U << 20U; ///< bound of what they can be made again from
    bool vqsFspUsesHigherResScrollingAtTheCostOfMuchRam = false; ///< Maxi is kept
    bool autoBGThumbGeneration = true; ///< items that nobody looks at yet get theirs, too
    bool autoThumbMode = false;        ///< photos get what is embedded in their files, no more
    int threads = 0;                   ///< 0: one for each processor
    RawJpgDisplayType rawJpgDisplayType = RawJpgDisplayType::Master;

    bool operator==(const ThumbnailSettings &) const = default;
};

/// The thumbnails of a session's items: made on workers in the order of what is on screen, kept
/// decoded and compressed within bounds. Files are only read. Main thread, with an event loop.
class Thumbnails {
public:
    using Changed = std::function<void(const std::vector<std::uint32_t> &sessionUniqueIds)>;

    explicit Thumbnails(ThumbnailSettings settings);
    ~Thumbnails();
    Thumbnails(const Thumbnails &) = delete;
    Thumbnails &operator=(const Thumbnails &) = delete;

    const ThumbnailSettings &settings() const;
    /// Makes anew what looks different by them, and nothing else; bounds and threads stay those of
    /// the beginning. A background that was stopped stays off until its own setting changes.
    void setSettings(const ThumbnailSettings &settings);

    /// Called on the main thread, with many items at once: their answers are others now.
    void setChanged(Changed changed);
    /// Called when background generation stopped for the session, as compressed bytes were lost.
    void setPausedForEviction(std::function<void()> paused);

    /// The largest picture up to `side` that is at hand. Where there is none yet, it is asked for.
    /// Cheap: neither decodes nor looks at a file.
    ThumbAnswer spThumb(const MySinglePicPtr &pic, ThumbSide side = ThumbSide::Normal);
    /// The size of the largest picture that is kept; 200 × 200 for an item without a thumbnail.
    QSize validatedThumbSize(const MySinglePicPtr &pic) const;

    /// What is on screen now, most wanted first: made before everything else.
    void setOnScreen(const std::vector<MySinglePicPtr> &pics);
    /// Items whose thumbnails are made when nothing on screen waits.
    void addImagesWithoutThumb(const std::vector<MySinglePicPtr> &pics);
    /// The file is another one now: its thumbnail is made again.
    void updateThumb(const MySinglePicPtr &pic);
    /// Somebody looked at it in large: where its file holds no thumbnail, one is made now.
    void setVisibleInPreviews(const MySinglePicPtr &pic);
    /// Items that left the session.
    void forget(const std::vector<MySinglePicPtr> &pics);

    /// Nothing is begun while a save writes or a user asked for quiet.
    void setIsAutoBGThumbsPaused(bool isPaused);
    /// Whether the background gets its thumbnails: wanted, and not stopped.
    bool autoBGThumbGeneration() const;
    /// From now on only what is on screen gets its thumbnails.
    void stopBackgroundGeneration();

    /// How many items wait for a thumbnail, and how many were made or failed.
    struct Progress {
        std::size_t waiting = 0, finished = 0;
    };
    Progress progress() const;

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace chronomender
