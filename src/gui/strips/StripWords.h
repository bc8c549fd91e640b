// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "CellMarks.h"
#include "WindowSession.h"

#include <QString>

namespace chronomender {

/// What a screen reader says of a thumbnail: "IMG_1.JPG, canon, 27 Oct 2024, 10:00:05, selected,
/// unsaved".
QString spokenItem(const WindowSession &session, const MySinglePic &pic, Date date, bool isSelected,
                   CellMarks marks);
/// What the pointer shows of it: its name with those of its companions, its date, what its signs
/// mean, and why there is no picture.
QString itemToolTip(const WindowSession &session, const MySinglePic &pic, CellMarks marks,
                    std::string_view reasonKey);
/// The kind of a file for people: "CR3".
QString kindText(const MySinglePic &pic);
/// Why a strip without items has none.
QString emptyStripText(const WindowSession &session, const TimelineStrip &strip);

} // namespace chronomender
