// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileRecord.h"

#include "FolderNames.h"
#include "MySingleFolderDataReader.h"
#include "SystemFiles.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace chronomender {

namespace {

constexpr std::array readFormats{FileFormatJpeg, FileFormatTiff, FileFormatRaw};
/// The raw format that is a box structure and has no TIFF header of its own.
constexpr std::string_view boxedRawExtension = "cr3";
class Descriptor {
public:
    /// Never waits for a pipe's other end and never follows a link.
    Descriptor(int folder, const std::string &name)
        : m_descriptor(systemFiles::retryInterrupted([&] {
              return ::openat(folder, name.c_str(),
                              O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
          })) {}
    ~Descriptor() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Descriptor(const Descriptor &) = delete;
    Descriptor &operator=(const Descriptor &) = delete;
    int get() const { return m_descriptor; }

private:
    int m_descriptor;
};

FileRecord refused(SkipReason reason) {
    FileRecord record;
    record.refusal = reason;
    return record;
}

/// Content wins over the extension wherever it answers.
FileFormatType formatOf(std::string_view firstBytes, const BatchEntry &entry) {
    return fileFormatTypeForContent(firstBytes, extensionOfName(entry.name))
        .value_or(entry.promised);
}

} // namespace

bool isFormatRead(FileFormatType format, std::string_view extension) {
    const bool isBoxedRaw = format == FileFormatRaw && isExtension(extension, boxedRawExtension);
    return !isBoxedRaw && std::ranges::find(readFormats, format) != readFormats.end();
}

FileRecord readFileRecord(int folder, const BatchEntry &entry, EmbeddedData embedded) {
    if (entry.refusal)
        return refused(*entry.refusal);
    const std::string_view extension = extensionOfName(entry.name);
    const Descriptor file(folder, entry.name);
    if (file.get() < 0)
        return refused(errno == ELOOP ? SkipReason::SymbolicLink : SkipReason::Unreadable);
    const auto attributes = systemFiles::attributesOf(file.get());
    MySingleFolderDataReader reader;
    if (!attributes || !reader.borrow(file.get()))
        return refused(SkipReason::Unreadable);
    if (attributes->size == 0)
        return refused(SkipReason::Empty);

    FileRecord record;
    record.attributes = *attributes;
    record.format = formatOf(reader.firstBytes(), entry);
    if (record.format == FileFormatNone)
        return refused(SkipReason::NotAMedium);
    if (!isFormatRead(record.format, extension))
        return refused(SkipReason::NotYetSupported);
    if (embedded == EmbeddedData::Read)
        record.dates = reader.readDates(record.format, extension);
    return record;
}

} // namespace chronomender
