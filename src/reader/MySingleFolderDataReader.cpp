// SPDX-License-Identifier: GPL-3.0-or-later
#include "MySingleFolderDataReader.h"

#include "ExifWalk.h"
#include "FileWindow.h"
#include "HeaderSearch.h"
#include "JpegWalk.h"
#include "MovieWalk.h"
#include "XmpScan.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <strings.h>
#include <sys/stat.h>
#include <unistd.h>

namespace chronomender {

namespace {

/// How the TIFF header of a format is found.
enum class Walk : std::uint8_t {
    None,        ///< the format has no walk, or keeps no Exif dates
    JpegMarkers, ///< by marker segments; nothing found is final
    FileStart,   ///< only at the start of the file
    Scan,        ///< at the start, else anywhere
};

struct FormatWalk {
    FileFormatType format;
    Walk walk;
};

// The scan is for raw and unknown formats only: in others a header found by chance would be wrong.
constexpr std::array kFormatWalks{
    FormatWalk{FileFormatJpeg, Walk::JpegMarkers},
    FormatWalk{FileFormatTiff, Walk::FileStart},
    FormatWalk{FileFormatRaw, Walk::Scan},
    FormatWalk{FileFormatNone, Walk::Scan},
};

/// A raw file that is a box structure and has no TIFF header to be scanned for.
bool isBoxedRaw(FileFormatType format, std::string_view extension) {
    constexpr std::string_view kBoxedRawExtension = "cr3";
    return format == FileFormatRaw && extension.size() == kBoxedRawExtension.size() &&
           ::strncasecmp(extension.data(), kBoxedRawExtension.data(), extension.size()) == 0;
}

Walk walkFor(FileFormatType format, std::string_view extension) {
    if (isBoxedRaw(format, extension))
        return Walk::None;
    const auto found = std::ranges::find(kFormatWalks, format, &FormatWalk::format);
    return found == kFormatWalks.end() ? Walk::None : found->walk;
}

std::optional<TiffHeader> findHeader(FileWindow &window, Walk walk, DatesData &dates) {
    const ByteRange file(window);
    switch (walk) {
    case Walk::None:
        return std::nullopt;
    case Walk::JpegMarkers: {
        const JpgOffsets offsets = readJpgHeader(file);
        dates.jpgXmpOffset = offsets.xmp;
        return offsets.tiff;
    }
    case Walk::FileStart:
        return headerAtFileStart(file);
    case Walk::Scan: {
        const HeaderScan scan = scanForHeader(window);
        if (scan.hasReachedLimit)
            dates.findings.push_back({"TIFFHeader", kMostScannedBytes, FindingReason::ScanLimit});
        return scan.header;
    }
    }
    return std::nullopt;
}

std::string_view extensionOf(std::string_view path) {
    const std::string_view name = path.substr(path.find_last_of('/') + 1);
    const std::size_t dot = name.find_last_of('.');
    return dot == std::string_view::npos ? std::string_view() : name.substr(dot + 1);
}

} // namespace

class MySingleFolderDataReader::File {
public:
    File(int descriptor, const struct stat &status)
        : window(descriptor, static_cast<std::uint64_t>(status.st_size),
                 status.st_blocks * kStatBlock < status.st_size),
          m_descriptor(descriptor) {}
    ~File() {
        if (m_isOwned)
            ::close(m_descriptor);
    }
    File(const File &) = delete;
    File &operator=(const File &) = delete;

    int descriptor() const { return m_descriptor; }
    /// From here on the descriptor is closed with the file.
    void own() { m_isOwned = true; }

    FileWindow window;

private:
    static constexpr off_t kStatBlock = 512;

    int m_descriptor;
    bool m_isOwned = false;
};

MySingleFolderDataReader::MySingleFolderDataReader() = default;
MySingleFolderDataReader::~MySingleFolderDataReader() = default;

bool MySingleFolderDataReader::open(const std::string &path) {
    closeFile();
    // Not blocking, so that a pipe without a writer is refused below instead of waited for.
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    if (descriptor < 0)
        return false;
    if (!borrow(descriptor)) {
        const int error = errno;
        ::close(descriptor);
        errno = error;
        return false;
    }
    m_file->own();
    return true;
}

bool MySingleFolderDataReader::borrow(int descriptor) {
    closeFile();
    struct stat status {};
    if (::fstat(descriptor, &status) != 0)
        return false;
    if (!S_ISREG(status.st_mode)) {
        errno = S_ISDIR(status.st_mode) ? EISDIR : EINVAL;
        return false;
    }
    m_file = std::make_unique<File>(descriptor, status);
    return true;
}

void MySingleFolderDataReader::closeFile() {
    m_file.reset();
}

int MySingleFolderDataReader::descriptor() const {
    return m_file ? m_file->descriptor() : -1;
}

std::uint64_t MySingleFolderDataReader::fileLength() const {
    return m_file ? m_file->window.length() : 0;
}

std::string_view MySingleFolderDataReader::firstBytes() {
    return m_file ? m_file->window.head() : std::string_view();
}

DatesData MySingleFolderDataReader::readDates(FileFormatType format, std::string_view extension,
                                              std::uint64_t startOffset) {
    DatesData dates;
    if (!m_file)
        return dates;
    const ByteRange file(m_file->window);
    const auto header = startOffset > 0
                            ? headerAt(file, startOffset)
                            : findHeader(m_file->window, walkFor(format, extension), dates);
    if (header)
        readExif(file, *header, dates);
    return dates;
}

std::optional<XmpDateInfos> MySingleFolderDataReader::readXmpDates(FileFormatType format,
                                                                   std::string_view extension,
                                                                   DatesData &known) {
    const auto packet =
        m_file ? findXmpPacket(m_file->window, format, extension, known) : std::nullopt;
    if (!packet)
        return std::nullopt;
    XmpDateInfos infos = scanXmpDates(m_file->window, *packet, known.findings);
    return infos.isEmpty() ? std::nullopt : std::optional(std::move(infos));
}

XmpLocation MySingleFolderDataReader::readXmpLocation(FileFormatType format,
                                                      std::string_view extension,
                                                      const DatesData &known) {
    const auto packet =
        m_file ? findXmpPacket(m_file->window, format, extension, known) : std::nullopt;
    return packet ? scanXmpLocation(m_file->window, *packet) : XmpLocation();
}

XmpSidecar MySingleFolderDataReader::readXmpSidecar(std::vector<Finding> &findings) {
    return m_file ? scanXmpSidecar(m_file->window, findings) : XmpSidecar();
}

std::optional<MovieHeader> MySingleFolderDataReader::readMovieHeader(FileFormatType format) {
    if (!m_file)
        return std::nullopt;
    // An older QuickTime movie may begin with any atom.
    return format == FileFormatOtherMovie
               ? readRiffHeader(m_file->window)
               : readQuicktimeHeader(m_file->window, format != FileFormatQuickTime);
}

MovieDetails MySingleFolderDataReader::readMovieDetails(FileFormatType format) {
    return m_file && format != FileFormatOtherMovie ? chronomender::readMovieDetails(m_file->window)
                                                    : MovieDetails();
}

std::optional<InternalPreview> MySingleFolderDataReader::readInternalPreview() {
    return m_file ? savereadInternalJPGs(m_file->window) : std::nullopt;
}

std::optional<DatesData> MySingleFolderDataReader::savereadDatesAtPath(const std::string &path,
                                                                       FileFormatType format,
                                                                       std::uint64_t startOffset) {
    if (!open(path))
        return std::nullopt;
    DatesData dates = readDates(format, extensionOf(path), startOffset);
    closeFile();
    return dates;
}

} // namespace chronomender
