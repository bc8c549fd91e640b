// SPDX-License-Identifier: GPL-3.0-or-later
#include "PictureFile.h"

#include <cerrno>
#include <unistd.h>

namespace chronomender {

std::unique_ptr<PictureFile> PictureFile::open(const std::string &path) {
    std::unique_ptr<PictureFile> file(new PictureFile);
    if (!file->m_reader.open(path) || file->m_reader.fileLength() == 0)
        return nullptr;
    file->m_path = path;
    file->m_window = std::make_unique<FileWindow>(file->m_reader.descriptor(),
                                                  file->m_reader.fileLength(), false);
    return file;
}

std::size_t PictureFile::read(std::span<char> room, std::uint64_t offset) const {
    std::size_t done = 0;
    while (done < room.size()) {
        const ssize_t count = ::pread(m_reader.descriptor(), room.data() + done, room.size() - done,
                                      static_cast<off_t>(offset + done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            break;
        done += static_cast<std::size_t>(count);
    }
    return done;
}

std::string PictureFile::bytes(std::uint64_t offset, std::uint64_t length) const {
    if (offset > this->length() || length > this->length() - offset || length > kMostPictureBytes)
        return {};
    std::string bytes(static_cast<std::size_t>(length), '\0');
    return read(bytes, offset) == bytes.size() ? bytes : std::string();
}

} // namespace chronomender
