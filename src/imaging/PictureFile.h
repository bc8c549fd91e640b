// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ByteRange.h"
#include "MySingleFolderDataReader.h"
#include "PicturePatience.h"
#include "PictureSource.h"

#include <chrono>
#include <memory>
#include <span>
#include <string>

namespace chronomender {

/// The most that one picture may take. Nothing that a camera writes comes near.
inline constexpr std::uint64_t kMostPicturePixels = 400'000'000;
inline constexpr std::uint64_t kMostPictureBytes = std::uint64_t{1} << 30;
/// Pixels of a picture that is decoded as a whole, with four bytes each.
inline constexpr std::uint64_t kMostDecodedPixels = kMostPictureBytes / 4;
inline constexpr std::chrono::seconds kLongestPicture{20};

/// An open regular file with a picture in it, and what is wanted of it.
class PictureFile {
public:
    /// Null when the path is no regular file that can be read, or an empty one.
    static std::unique_ptr<PictureFile> open(const std::string &path);

    const std::string &path() const { return m_path; }
    std::uint64_t length() const { return m_window->length(); }
    std::string_view firstBytes() { return m_window->head(); }
    /// The whole file, for walks through its structure. Holds as long as this object.
    ByteRange range() { return ByteRange(*m_window); }
    FileWindow &window() { return *m_window; }
    /// As many bytes at `offset` as are there and have room; 0 at the end and on an error.
    std::size_t read(std::span<char> room, std::uint64_t offset) const;
    /// Exactly these bytes, or "".
    std::string bytes(std::uint64_t offset, std::uint64_t length) const;

private:
    PictureFile() = default;
    std::string m_path;
    MySingleFolderDataReader m_reader; // keeps the descriptor
    std::unique_ptr<FileWindow> m_window;
};

struct PictureWish {
    int side; ///< pixels of the longer side
    PictureChoice choice;
    const PicturePatience &patience;
};

constexpr std::uint64_t pixelsOf(int width, int height) {
    return width > 0 && height > 0 ? std::uint64_t(width) * std::uint64_t(height) : 0;
}

inline UprightPicture failed(PictureFailure failure) {
    return {{}, false, failure};
}
/// The picture, or, where there is none, why.
inline UprightPicture pictureOr(QImage image, bool isEmbedded, PictureFailure failure) {
    if (image.isNull())
        return failed(failure);
    return {std::move(image), isEmbedded, {}};
}

} // namespace chronomender
