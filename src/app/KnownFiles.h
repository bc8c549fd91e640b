// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "MySinglePic.h"

#include <cstdint>
#include <memory>
#include <unordered_map>

namespace chronomender {

/// The files of the session by device and inode: one file is one item, whatever its names are.
/// Main thread.
class KnownFiles {
public:
    /// Takes the item in and answers none; or, when an item holds that file already, takes nothing
    /// and answers that item.
    MySinglePicPtr add(const MySinglePicPtr &pic);

private:
    struct Key {
        std::uint64_t device, inode;
        bool operator==(const Key &) const = default;
    };
    struct Hash {
        std::size_t operator()(const Key &key) const {
            return std::hash<std::uint64_t>()(key.inode * 31 + key.device);
        }
    };
    std::unordered_map<Key, std::weak_ptr<MySinglePic>, Hash> m_items;
};

} // namespace chronomender
