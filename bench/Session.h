// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"
#include "FailingFileLayer.h"

#include <memory>
#include <string>
#include <vector>

namespace chronomender::bench {

/// The command line's answer to an empty date tag; the files of the benchmarks have none.
class NoQuestions : public ImportQuestions {
public:
    MovieOptions movieOptions(const MySingleFolder &) override { return {}; }
    PerFolderImportOptions emptyTagOptions(const MySingleFolder &) override { return {}; }
};

/// A session over folders of benchmark files, in the zone that their zone stamps name.
class Session {
public:
    explicit Session(RunJournal::Durability durability = RunJournal::Durability::Synced);

    /// Adds and imports one folder; the number of items with complete dates.
    std::size_t import(const std::string &path);
    /// Shifts the folder that was imported first.
    void shift(absl::Duration shift);
    /// Both stages of a save; the number of items saved.
    std::size_t preProcess();
    std::size_t save();
    /// Renames all items; how many got a new name, with all their companions and no number.
    std::size_t rename(const RenameTemplate &renameTemplate);
    /// Bytes of the values, and checksums, that the plans of the last first stage would change.
    std::size_t bytesPlanned() const { return m_bytesPlanned; }
    /// Bytes handed to the files so far.
    std::size_t bytesWritten() const { return m_files->bytesWritten; }

    AppController &controller() { return *m_controller; }

private:
    NoQuestions m_questions;
    little::FailingFileLayer *m_files; ///< it fails at nothing, and counts; the controller's
    std::size_t m_bytesPlanned = 0;
    std::unique_ptr<AppController> m_controller;
    PreProcessResult m_preProcess;
};

/// Paths of the files of a folder.
std::vector<std::string> filesOf(const std::string &folder);

} // namespace chronomender::bench
