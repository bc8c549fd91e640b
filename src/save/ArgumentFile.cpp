// SPDX-License-Identifier: GPL-3.0-or-later
#include "ArgumentFile.h"

#include "SystemFiles.h"

#include <QDir>
#include <QFile>
#include <QUuid>

#include <cerrno>
#include <filesystem>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace chronomender {
namespace {

using systemFiles::attributesOf;
using systemFiles::retryInterrupted;

constexpr mode_t ownerOnly = 0600;

/// The name still leads to the open file: nobody has removed or replaced it.
bool isNamed(int descriptor, const std::string &path) {
    const auto opened = attributesOf(descriptor);
    const auto named = attributesOf(AT_FDCWD, path.c_str());
    return opened && named && opened->isSameFile(*named);
}

std::string ownPath() {
    const QString name = QUuid::createUuid().toString(QUuid::WithoutBraces);
    return QFile::encodeName(QDir::temp().absoluteFilePath(name)).toStdString();
}

} // namespace

ArgumentFile::ArgumentFile(std::string path, int descriptor)
    : m_path(std::move(path)), m_descriptor(descriptor) {}

ArgumentFile::~ArgumentFile() {
    if (isNamed(m_descriptor, m_path))
        ::unlink(m_path.c_str());
    ::close(m_descriptor);
}

std::unique_ptr<ArgumentFile> ArgumentFile::open(std::string path, int furtherFlags,
                                                 FileError &error) {
    const int flags = O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | furtherFlags;
    const int descriptor = retryInterrupted([&] { return ::open(path.c_str(), flags, ownerOnly); });
    if (descriptor < 0) {
        error.code = errno;
        return nullptr;
    }
    // Behind the lock: its last holder may have removed the file between our opening and locking.
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0 || !isNamed(descriptor, path) ||
        ::ftruncate(descriptor, 0) != 0) {
        error.code = errno;
        ::close(descriptor);
        return nullptr;
    }
    return std::unique_ptr<ArgumentFile>(new ArgumentFile(std::move(path), descriptor));
}

std::unique_ptr<ArgumentFile> ArgumentFile::create(const std::string &folder, FileError &error) {
    std::error_code ignored;
    std::filesystem::create_directories(folder, ignored);
    if (auto shared = open(folder + "/.args.txt", 0, error))
        return shared;
    return open(ownPath(), O_EXCL, error);
}

bool ArgumentFile::append(std::string_view text) {
    while (!text.empty()) {
        const ssize_t count =
            retryInterrupted([&] { return ::write(m_descriptor, text.data(), text.size()); });
        if (count <= 0) {
            m_error.code = errno;
            return false;
        }
        text.remove_prefix(static_cast<std::size_t>(count));
    }
    return true;
}

} // namespace chronomender
