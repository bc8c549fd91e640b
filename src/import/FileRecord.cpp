// SPDX-License-Identifier: GPL-3.0-or-later
#include "FileRecord.h"

#include "FolderNames.h"
#include "MySingleFolderDataReader.h"
#include "SystemFiles.h"
#include "XmpFilling.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace chronomender {

namespace {

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
FileFormatType formatOf(MySingleFolderDataReader &reader, const BatchEntry &entry,
                        EmbeddedData embedded) {
    const std::string_view extension = extensionOfName(entry.name);
    if (embedded == EmbeddedData::Ignored &&
        (entry.promised != FileFormatNone || extension.empty()))
        return entry.promised;
    return fileFormatTypeForContent(reader.firstBytes(), extension).value_or(entry.promised);
}

void readStill(MySingleFolderDataReader &reader, std::string_view extension, FileRecord &record) {
    record.dates = reader.readDates(record.format, extension);
    record.xmpDates = readXmpDates(reader, record.format, record.dates);
    if (!record.dates.gpsLocation && isLocationSearchedInXmp(record.format, extension))
        record.xmpLocation = reader.readXmpLocation(record.format, record.dates);
}

void readMovie(MySingleFolderDataReader &reader, FileRecord &record) {
    record.movieHeader = reader.readMovieHeader(record.format);
    record.movieDetails = reader.readMovieDetails();
}

} // namespace

FileRecord readFileRecord(int folder, const BatchEntry &entry, EmbeddedData embedded) {
    if (entry.refusal)
        return refused(*entry.refusal);
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
    record.format = formatOf(reader, entry, embedded);
    if (record.format == FileFormatNone)
        return refused(SkipReason::NotAMedium);
    if (embedded == EmbeddedData::Ignored)
        return record;
    if (isMovieFormat(record.format))
        readMovie(reader, record);
    else
        readStill(reader, extensionOfName(entry.name), record);
    return record;
}

} // namespace chronomender
