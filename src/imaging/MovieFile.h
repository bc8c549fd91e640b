// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PicturePatience.h"

extern "C" {
#include <libavformat/avformat.h>
}

#include <memory>
#include <string>

namespace chronomender {

struct CloseMovie {
    void operator()(AVFormatContext *movie) const { avformat_close_input(&movie); }
};
using Movie = std::unique_ptr<AVFormatContext, CloseMovie>;

/// A movie of one of the containers that cameras write; null for anything else. Nothing but this
/// regular file is opened, whatever it says. `patience` outlives the movie, and every read of it
/// ends with an error once that is over.
Movie openMovie(const std::string &path, const PicturePatience &patience);

} // namespace chronomender
