// SPDX-License-Identifier: GPL-3.0-or-later
#include "KnownFiles.h"

namespace chronomender {

MySinglePicPtr KnownFiles::add(const MySinglePicPtr &pic) {
    const SinglePicAttributes &attributes = pic->singlePicAttributes;
    std::weak_ptr<MySinglePic> &place = m_items[{attributes.fileDevice, attributes.fileInode}];
    if (MySinglePicPtr holder = place.lock())
        return holder;
    place = pic;
    return nullptr;
}

} // namespace chronomender
