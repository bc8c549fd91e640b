// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "DatesData.h"
#include "FileFormatType.h"
#include "FileWindow.h"
#include "InternalPreviews.h"
#include "MovieData.h"
#include "XmpData.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace chronomender {

/// Finds every date and location in one file, with the place of its bytes.
///
/// It never trusts the file: each read is bounded by the file's length, counts and depths are
/// capped, and what cannot be read is absent. It never writes, never throws, and reports by absence
/// only; the list of findings says what was refused. One reader serves one file, on any thread.
///
///     MySingleFolderDataReader reader;
///     if (reader.open("/photos/IMG_1.JPG")) {
///         auto format = fileFormatTypeForContent(reader.firstBytes(),
///         "JPG").value_or(FileFormatNone); DatesData dates = reader.readDates(format, "JPG");
///     }
class MySingleFolderDataReader {
public:
    MySingleFolderDataReader();
    ~MySingleFolderDataReader();
    MySingleFolderDataReader(const MySingleFolderDataReader &) = delete;
    MySingleFolderDataReader &operator=(const MySingleFolderDataReader &) = delete;

    /// Opens the file read-only; false when that fails (errno tells why). A directory, a device or
    /// a pipe is refused.
    bool open(const std::string &path);
    /// Reads through a descriptor that somebody else owns and keeps open; refuses what `open` does.
    /// The descriptor's read position is not used, but may be moved in a sparse file.
    bool borrow(int descriptor);
    void closeFile();

    /// The open descriptor, or -1.
    int descriptor() const;
    std::uint64_t fileLength() const;
    /// What was read from the file since it was opened.
    ReadCount readCount() const;
    /// The first bytes of the file, at most 16 KiB; empty for an empty file. The view holds until
    /// the file is closed.
    std::string_view firstBytes();

    /// Dates and location of the opened file. `extension` (without the dot, any case) matters for
    /// raw files only. `startOffset` is a place where a TIFF header is known to stand, or 0.
    DatesData readDates(FileFormatType format, std::string_view extension,
                        std::uint64_t startOffset = 0);

    /// XMP dates of the opened file; `known` is what `readDates` gave for it. None without any.
    std::optional<XmpDateInfos> readXmpDates(FileFormatType format, DatesData &known);
    XmpLocation readXmpLocation(FileFormatType format, const DatesData &known);
    /// Everything an XMP sidecar says.
    XmpSidecar readXmpSidecar(std::vector<Finding> &findings);

    /// Dates and places of a movie, by format: atoms for QuickTime and MPEG-4, RIFF for the others.
    /// None when the file has none that could be read.
    std::optional<MovieHeader> readMovieHeader(FileFormatType format);
    MovieDetails readMovieDetails();

    /// The preview inside a raw file; none without one.
    std::optional<InternalPreview> readInternalPreview();

    /// Opens, reads and closes; none when the file cannot be opened.
    std::optional<DatesData> savereadDatesAtPath(const std::string &path, FileFormatType format,
                                                 std::uint64_t startOffset = 0);

private:
    class File;
    std::unique_ptr<File> m_file;
};

} // namespace chronomender
