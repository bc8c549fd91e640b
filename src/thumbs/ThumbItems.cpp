// SPDX-License-Identifier: GPL-3.0-or-later
#include "ThumbItems.h"

#include <algorithm>
#include <utility>

namespace chronomender {

namespace {

/// Somebody who scrolled past as many pictures no longer looks at the first.
constexpr std::size_t kMostAsked = 302;

bool countsAsWaiting(const ThumbItem &item) {
    return item.stage != ThumbStage::Idle && !item.isBuilt;
}

} // namespace

ThumbItem &ThumbItems::item(const MySinglePicPtr &pic) {
    const auto [found, isNew] = m_items.try_emplace(pic->sessionUniqueId);
    if (isNew) {
        found->second.pic = pic;
        found->second.generation = ++m_generations;
    }
    return found->second;
}

void ThumbItems::renew(ThumbItem &item) {
    item.generation = ++m_generations;
    item.failure.reset();
    item.didEXIFThumbFail = false;
    setBuilt(item, false);
    setStage(item, ThumbStage::Waiting);
}

ThumbItem *ThumbItems::find(std::uint32_t sessionUniqueId) {
    const auto found = m_items.find(sessionUniqueId);
    return found == m_items.end() ? nullptr : &found->second;
}

const ThumbItem *ThumbItems::find(std::uint32_t sessionUniqueId) const {
    return const_cast<ThumbItems *>(this)->find(sessionUniqueId);
}

void ThumbItems::forget(std::uint32_t sessionUniqueId) {
    ThumbItem *item = find(sessionUniqueId);
    if (!item)
        return;
    setStage(*item, ThumbStage::Idle);
    setBuilt(*item, false);
    m_items.erase(sessionUniqueId); // the lists pass over what they do not find
}

std::vector<std::uint32_t> ThumbItems::ids() const {
    std::vector<std::uint32_t> ids;
    ids.reserve(m_items.size());
    for (const auto &[id, item] : m_items)
        ids.push_back(id);
    std::ranges::sort(ids);
    return ids;
}

void ThumbItems::setStage(ThumbItem &item, ThumbStage stage) {
    const bool counted = countsAsWaiting(item);
    item.stage = stage;
    m_waitingToBeBuilt += countsAsWaiting(item);
    m_waitingToBeBuilt -= counted;
}

void ThumbItems::setBuilt(ThumbItem &item, bool isBuilt) {
    const bool counted = countsAsWaiting(item);
    m_built -= item.isBuilt;
    item.isBuilt = isBuilt;
    m_built += item.isBuilt;
    m_waitingToBeBuilt += countsAsWaiting(item);
    m_waitingToBeBuilt -= counted;
}

void ThumbItems::ask(std::uint32_t sessionUniqueId) {
    ThumbItem *item = find(sessionUniqueId);
    if (!item || std::exchange(item->isAsked, true))
        return;
    m_asked.push_back(sessionUniqueId);
    dropOldAsks();
}

void ThumbItems::dropOldAsks() {
    while (m_asked.size() > kMostAsked) {
        ThumbItem *old = find(m_asked.front());
        m_asked.pop_front();
        if (!old)
            continue;
        old->isAsked = false;
        if (old->stage == ThumbStage::Waiting && !old->isBackground)
            setStage(*old, ThumbStage::Idle);
    }
}

void ThumbItems::addBackground(std::uint32_t sessionUniqueId, bool isFirst) {
    ThumbItem *item = find(sessionUniqueId);
    if (!item || std::exchange(item->isBackground, true))
        return;
    if (isFirst)
        m_background.push_front(sessionUniqueId);
    else
        m_background.push_back(sessionUniqueId);
}

void ThumbItems::clearBackground() {
    for (const std::uint32_t id : std::exchange(m_background, {})) {
        ThumbItem *item = find(id);
        if (!item)
            continue;
        item->isBackground = false;
        if (item->stage == ThumbStage::Waiting && !item->isAsked)
            setStage(*item, ThumbStage::Idle);
    }
}

bool ThumbItems::isWaiting(std::uint32_t sessionUniqueId) const {
    const ThumbItem *item = find(sessionUniqueId);
    return item && item->stage == ThumbStage::Waiting;
}

std::vector<std::uint32_t> ThumbItems::takeRound(std::size_t most, Background background) {
    std::vector<std::uint32_t> round;
    const auto take = [&](std::uint32_t id) {
        // Small enough to be searched through: an item may stand in several lists.
        if (isWaiting(id) && std::ranges::find(round, id) == round.end())
            round.push_back(id);
    };
    for (std::size_t i = 0; i < m_onScreen.size() && round.size() < most; ++i)
        take(m_onScreen[i]);
    while (!m_asked.empty() && round.size() < most) {
        take(m_asked.back());
        if (ThumbItem *item = find(m_asked.back()))
            item->isAsked = false;
        m_asked.pop_back();
    }
    while (background == Background::Yes && !m_background.empty() && round.size() < most) {
        take(m_background.front());
        if (ThumbItem *item = find(m_background.front()))
            item->isBackground = false;
        m_background.pop_front();
    }
    return round;
}

} // namespace chronomender
