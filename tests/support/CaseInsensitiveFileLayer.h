// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FailingFileLayer.h"

#include <QString>

#include <filesystem>

namespace chronomender::little {

/// A file layer for which "A.JPG" and "a.jpg" are one name, whatever the file system below says.
class CaseInsensitiveFileLayer : public FailingFileLayer {
public:
    std::unique_ptr<OpenFile> open(const std::string &path, OpenMode mode,
                                   FileError *error) override {
        return FailingFileLayer::open(resolved(path), mode, error);
    }
    std::optional<FileAttributes> attributes(const std::string &path) override {
        return FailingFileLayer::attributes(resolved(path));
    }

protected:
    bool rename(const std::string &from, const std::string &to, FileError *error) override {
        const std::string taken = resolved(to);
        const bool isFree = !FailingFileLayer::attributes(taken);
        return FailingFileLayer::rename(resolved(from), isFree ? to : taken, error);
    }

private:
    /// The path as its last name is spelled on disk.
    static std::string resolved(const std::string &path) {
        namespace fs = std::filesystem;
        const fs::path wanted(path);
        for (const auto &entry : fs::directory_iterator(wanted.parent_path()))
            if (folded(entry.path().filename()) == folded(wanted.filename()))
                return entry.path();
        return path;
    }
    static QString folded(const std::filesystem::path &name) {
        return QString::fromStdString(name.string())
            .normalized(QString::NormalizationForm_D)
            .toCaseFolded();
    }
};

} // namespace chronomender::little
