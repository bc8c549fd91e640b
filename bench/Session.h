// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"

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
    Session();

    /// Adds and imports one folder; the number of items with complete dates.
    std::size_t import(const std::string &path);
    /// Shifts the folder that was imported first.
    void shift(absl::Duration shift);
    /// Both stages of a save; the number of items saved.
    std::size_t preProcess();
    std::size_t save();

    AppController &controller() { return *m_controller; }

private:
    NoQuestions m_questions;
    std::unique_ptr<AppController> m_controller;
    PreProcessResult m_preProcess;
};

/// Paths of the files of a folder.
std::vector<std::string> filesOf(const std::string &folder);

/// Bytes that this process handed to write calls so far (/proc/self/io).
std::size_t bytesWritten();

} // namespace chronomender::bench
