// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string_view>
#include <sys/mman.h>
#include <unistd.h>

namespace chronomender::little {

/// A file without a name that lives in memory, for code that reads through a descriptor.
class MemoryFile {
public:
    explicit MemoryFile(std::string_view bytes = {})
        : m_descriptor(::memfd_create("little", MFD_CLOEXEC)) {
        fill(bytes);
    }
    ~MemoryFile() { ::close(m_descriptor); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    int descriptor() const { return m_descriptor; }

    /// Puts `bytes` in place of all that was there; false when the system refuses.
    bool fill(std::string_view bytes) {
        return ::ftruncate(m_descriptor, static_cast<off_t>(bytes.size())) == 0 &&
               ::pwrite(m_descriptor, bytes.data(), bytes.size(), 0) ==
                   static_cast<ssize_t>(bytes.size());
    }
    /// Makes the file longer by a hole.
    bool stretch(off_t length) { return ::ftruncate(m_descriptor, length) == 0; }

private:
    int m_descriptor;
};

} // namespace chronomender::little
