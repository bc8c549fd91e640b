// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace chronomender {

// Tags and value lengths of Exif (CIPA DC-008, 4.6) and TIFF that tell when and with what a picture
// was taken.

inline constexpr std::uint16_t kTagEmbeddedJpeg = 46; ///< Panasonic raw: a JPEG with its own Exif
inline constexpr std::uint16_t kTagMake = 271;
inline constexpr std::uint16_t kTagModel = 272;
inline constexpr std::uint16_t kTagDateTime = 306;
inline constexpr std::uint16_t kTagExifDirectory = 34665;
inline constexpr std::uint16_t kTagGpsDirectory = 34853;
inline constexpr std::uint16_t kTagDateTimeOriginal = 36867;
inline constexpr std::uint16_t kTagDateTimeDigitized = 36868;
inline constexpr std::uint16_t kTagOffsetTime = 36880;
inline constexpr std::uint16_t kTagOffsetTimeOriginal = 36881;
inline constexpr std::uint16_t kTagOffsetTimeDigitized = 36882;
inline constexpr std::uint16_t kTagMakerNote = 37500;
inline constexpr std::uint16_t kTagSubSecTimeOriginal = 37521;
inline constexpr std::uint16_t kTagCustomRendered = 41985;
inline constexpr std::uint16_t kTagDngVersion = 50706;

inline constexpr std::size_t kStampLength = 19;         ///< "2024:05:06 07:08:09"
inline constexpr std::size_t kShortestStampLength = 17; ///< "2024:05:06 07:08:"
inline constexpr std::size_t kStoredStampLength = 20;   ///< with the zero byte behind
inline constexpr std::size_t kZoneStampLength = 6;      ///< "+02:00"
inline constexpr std::size_t kStoredZoneStampLength = 7;
inline constexpr std::size_t kLongestCameraText = 128;

// The maker note of Apple cameras: a header, "MM", and a directory of TIFF's form. Its offsets are
// relative to the note's first byte.
inline constexpr std::string_view kAppleMake = "Apple";
inline constexpr std::string_view kAppleNoteHeader{"Apple iOS\0", 10};
inline constexpr std::uint32_t kAppleNoteDirectoryAt = 14;
inline constexpr std::uint16_t kAppleTagContentIdentifier = 17;
inline constexpr std::size_t kLongestContentIdentifier = 64;

} // namespace chronomender
