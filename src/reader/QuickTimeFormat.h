// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "BoxCursor.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace chronomender {

// Boxes of a movie: ISO/IEC 14496-12, and the QuickTime File Format for metadata, user data and
// timed metadata. Positions are counted from a box's body, the first byte behind its header.

inline constexpr std::uint32_t kBoxFtyp = boxType("ftyp"), kBoxMoov = boxType("moov"),
                               kBoxMvhd = boxType("mvhd"), kBoxTrak = boxType("trak"),
                               kBoxTkhd = boxType("tkhd"), kBoxEdts = boxType("edts"),
                               kBoxElst = boxType("elst"), kBoxMdia = boxType("mdia"),
                               kBoxHdlr = boxType("hdlr"), kBoxMinf = boxType("minf"),
                               kBoxStbl = boxType("stbl"), kBoxStsd = boxType("stsd"),
                               kBoxMebx = boxType("mebx"), kBoxKeyd = boxType("keyd"),
                               kBoxMeta = boxType("meta"), kBoxKeys = boxType("keys"),
                               kBoxIlst = boxType("ilst"), kBoxData = boxType("data"),
                               kBoxUdta = boxType("udta");

/// User data whose type begins with the copyright sign.
inline constexpr std::uint32_t kBoxXyz = boxType("\xA9xyz"), kBoxMak = boxType("\xA9mak"),
                               kBoxMod = boxType("\xA9mod");

inline constexpr std::uint32_t kHandlerVideo = boxType("vide"), kHandlerMeta = boxType("meta");

/// `mvhd` (8.2.2) in its two versions. Times and durations are 32 or 64 bits wide.
struct MvhdLayout {
    std::size_t creation, modification, timeWidth, timeScale, duration, length;
};
inline constexpr MvhdLayout kMvhdVersion0{4, 8, 4, 12, 16, 100};
inline constexpr MvhdLayout kMvhdVersion1{4, 12, 8, 20, 24, 112};
inline constexpr std::size_t kMvhdTimeLength = 4; ///< what is recorded of a time

/// `tkhd` (8.3.2): width and height are 16.16 numbers at the end of the box.
inline constexpr std::size_t kTkhdLengths[]{84, 96}; ///< by version
inline constexpr std::size_t kTkhdSizeLength = 8;

inline constexpr std::size_t kHandlerTypeAt = 8; ///< `hdlr` (8.4.3)
/// Version and flags, which begin every full box, and the count that often follows.
inline constexpr std::size_t kFullBoxStart = 4, kCountedBoxStart = 8;
inline constexpr std::size_t kSampleEntryStart = 8; ///< `stsd` (8.5.2): reserved, data reference
inline constexpr std::size_t kKeydNamespaceLength = 4;
inline constexpr std::size_t kDataValueAt = 8; ///< `data`: type indicator and locale in front

/// `elst` (8.6.6): the lengths of an entry, by version.
inline constexpr std::size_t kEditLengths[]{12, 20};

/// Text of user data: 16-bit length, 16-bit language, the text.
inline constexpr std::size_t kUserTextAt = 4;

inline constexpr std::string_view kKeyCreationDate = "com.apple.quicktime.creationdate";
inline constexpr std::string_view kKeyLocation = "com.apple.quicktime.location.ISO6709";
inline constexpr std::string_view kKeyAccuracy = "com.apple.quicktime.location.accuracy.horizontal";
inline constexpr std::string_view kKeyMake = "com.apple.quicktime.make";
inline constexpr std::string_view kKeyModel = "com.apple.quicktime.model";
inline constexpr std::string_view kKeyContentIdentifier = "com.apple.quicktime.content.identifier";
inline constexpr std::string_view kKeyLivePhotoInfo = "com.apple.quicktime.live-photo-info";
inline constexpr std::string_view kKeyStillImageTime = "com.apple.quicktime.still-image-time";

// Far more than any camera writes.
inline constexpr unsigned kMostTopLevelBoxes = 96;
inline constexpr unsigned kMostBoxesInside = 256;
inline constexpr std::size_t kMostTracks = 32;
inline constexpr std::size_t kMostEdits = 16;
inline constexpr std::size_t kLongestMovieText = 256;

} // namespace chronomender
