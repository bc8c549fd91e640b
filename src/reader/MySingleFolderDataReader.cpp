// SPDX-License-Identifier: GPL-3.0-or-later
#include "MySingleFolderDataReader.h"

#include "FormatWalks.h"
#include "HeaderSearch.h"
#include "MovieWalk.h"
#include "XmpScan.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

namespace chronomender {

namespace {

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

ReadCount MySingleFolderDataReader::readCount() const {
    return m_file ? m_file->window.readCount() : ReadCount();
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
    if (startOffset > 0)
        readExifAt(file, headerAt(file, startOffset), dates);
    else
        readDatesByFormat(m_file->window, format, extension, dates);
    return dates;
}

std::optional<XmpDateInfos> MySingleFolderDataReader::readXmpDates(FileFormatType format,
                                                                   DatesData &known) {
    const auto packet = m_file ? findXmpPacket(m_file->window, format, known) : std::nullopt;
    if (!packet)
        return std::nullopt;
    XmpDateInfos infos = scanXmpDates(m_file->window, *packet, known.findings);
    return infos.isEmpty() ? std::nullopt : std::optional(std::move(infos));
}

XmpLocation MySingleFolderDataReader::readXmpLocation(FileFormatType format,
                                                      const DatesData &known) {
    const auto packet = m_file ? findXmpPacket(m_file->window, format, known) : std::nullopt;
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

MovieDetails MySingleFolderDataReader::readMovieDetails() {
    return m_file ? chronomender::readMovieDetails(m_file->window) : MovieDetails();
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
