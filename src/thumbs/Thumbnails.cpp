// SPDX-License-Identifier: GPL-3.0-or-later
#include "Thumbnails.h"

namespace chronomender {

struct Thumbnails::State {
    ThumbnailSettings settings;
};

Thumbnails::Thumbnails(ThumbnailSettings settings)
    : m_state(std::make_unique<State>(State{settings})) {}
Thumbnails::~Thumbnails() = default;
void Thumbnails::setChanged(Changed /*changed*/) {}
void Thumbnails::setPausedForEviction(std::function<void()> /*paused*/) {}
ThumbAnswer Thumbnails::spThumb(const MySinglePicPtr & /*pic*/, ThumbSide /*side*/) {
    return {};
}
void Thumbnails::setOnScreen(std::vector<MySinglePicPtr> /*pics*/) {}
void Thumbnails::addImagesWithoutThumb(const std::vector<MySinglePicPtr> & /*pics*/) {}
void Thumbnails::updateThumb(const MySinglePicPtr & /*pic*/) {}
void Thumbnails::forget(const std::vector<MySinglePicPtr> & /*pics*/) {}
void Thumbnails::setIsAutoBGThumbsPaused(bool /*isPaused*/) {}
bool Thumbnails::autoBGThumbGeneration() const {
    return m_state->settings.autoBGThumbGeneration;
}
Thumbnails::Progress Thumbnails::progress() const {
    return {};
}

} // namespace chronomender
