// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "FileLayer.h"

#include <atomic>
#include <cerrno>
#include <functional>
#include <memory>
#include <string>

namespace chronomender::little {

/// The system's file layer, which counts what passes through and can be told to fail. Calls are
/// counted over all files together, from 1; a failure set for call 0 never comes.
class FailingFileLayer : public FileLayer {
public:
    // ---- what passed
    std::atomic<int> opens{0}, updateOpens{0}, reads{0}, writes{0}, dateSettings{0},
        attributeReads{0};
    std::atomic<std::size_t> bytesWritten{0};
    int renames = 0;
    int touches() const { return opens + reads + writes + dateSettings + attributeReads; }

    // ---- what is to go wrong
    int failingWrite = 0;      ///< this write …
    int failingWritesFrom = 0; ///< … or this one and all behind it
    std::size_t tornBytes = 0; ///< bytes of a failing write that reach the file
    int failingDateSetting = 0;
    int updateOpenError = 0; ///< errno of every opening for update
    int failingRenamesFrom = 0, lastFailingRename = 1'000'000, renameError = 0;
    std::function<void(const std::string &from, const std::string &to)> beforeRename;
    /// The program dies at this call, of whatever kind: it and all behind it do nothing, but that
    /// the write that it dies at leaves `tornBytes`.
    int diesAtCall = 0;
    std::atomic<int> calls{0};
    std::function<void(const std::string &path)> beforeUpdateOpen;

    std::unique_ptr<OpenFile> open(const std::string &path, OpenMode mode,
                                   FileError *error) override {
        ++opens;
        if (isDead()) {
            if (error)
                error->code = EIO;
            return nullptr;
        }
        if (mode == OpenMode::Update) {
            ++updateOpens;
            if (beforeUpdateOpen)
                beforeUpdateOpen(path);
            if (updateOpenError != 0) {
                if (error)
                    error->code = updateOpenError;
                return nullptr;
            }
        }
        auto file = m_system->open(path, mode, error);
        return file ? std::make_unique<File>(*this, std::move(file)) : nullptr;
    }
    std::optional<FileAttributes> attributes(const std::string &path) override {
        ++attributeReads;
        return isDead() ? std::nullopt : m_system->attributes(path);
    }
    bool renameExclusively(const std::string &from, const std::string &to,
                           FileError *error) override {
        ++renames;
        if (beforeRename)
            beforeRename(from, to);
        const bool isFailing =
            renameError != 0 && renames >= failingRenamesFrom && renames <= lastFailingRename;
        if (isFailing && error)
            error->code = renameError;
        return !isFailing && !isDead() && rename(from, to, error);
    }
    bool touchDirectory(const std::string &path) override {
        return !isDead() && m_system->touchDirectory(path);
    }

protected:
    virtual bool rename(const std::string &from, const std::string &to, FileError *error) {
        return m_system->renameExclusively(from, to, error);
    }

private:
    bool isDead() { return ++calls >= diesAtCall && diesAtCall != 0; }

    class File : public OpenFile {
    public:
        File(FailingFileLayer &layer, std::unique_ptr<OpenFile> file)
            : m_layer(layer), m_file(std::move(file)) {}

        std::optional<std::size_t> pread(std::span<char> room, std::uint64_t offset) override {
            ++m_layer.reads;
            if (!m_layer.isDead())
                return m_file->pread(room, offset);
            fail(EIO);
            return std::nullopt;
        }
        bool pwrite(std::string_view bytes, std::uint64_t offset) override {
            const int call = ++m_layer.writes;
            m_layer.bytesWritten += bytes.size();
            const int from = m_layer.failingWritesFrom;
            const bool isLast = m_layer.calls + 1 == m_layer.diesAtCall;
            const bool isFailing = call == m_layer.failingWrite || (from != 0 && call >= from);
            if ((isLast || isFailing) && m_layer.tornBytes > 0)
                m_file->pwrite(bytes.substr(0, m_layer.tornBytes), offset);
            if (m_layer.isDead() || isFailing)
                return fail(EIO);
            return m_file->pwrite(bytes, offset);
        }
        std::optional<FileAttributes> attributes() override {
            ++m_layer.attributeReads;
            if (!m_layer.isDead())
                return m_file->attributes();
            fail(EIO);
            return std::nullopt;
        }
        bool setModificationDate(Date date) override {
            const int call = ++m_layer.dateSettings;
            if (m_layer.isDead())
                return fail(EIO);
            return call == m_layer.failingDateSetting ? fail(EPERM)
                                                      : m_file->setModificationDate(date);
        }
        bool sync() override { return m_layer.isDead() ? fail(EIO) : m_file->sync(); }
        bool syncFileSystem() override {
            return m_layer.isDead() ? fail(EIO) : m_file->syncFileSystem();
        }
        LockResult lockExclusively() override {
            return m_layer.isDead() ? LockResult::NotSupported : m_file->lockExclusively();
        }
        FileError lastError() const override {
            return m_error.code != 0 ? m_error : m_file->lastError();
        }
        int descriptor() const override { return m_file->descriptor(); }

    private:
        bool fail(int code) {
            m_error.code = code;
            return false;
        }
        FailingFileLayer &m_layer;
        std::unique_ptr<OpenFile> m_file;
        FileError m_error;
    };

    std::unique_ptr<FileLayer> m_system = makeSystemFileLayer();
};

} // namespace chronomender::little
