// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ImportQuestions.h"
#include "UserDefaults.h"

namespace chronomender {

/// How the movies of a folder are read. Asks once per folder, at the first QuickTime or MPEG-4
/// movie that is no half of a live photo, and keeps the answer in the folder; a preference can
/// answer instead, and whoever opened the folder may have answered already. Import thread.
class MovieAnswers {
public:
    MovieAnswers(MySingleFolder &folder, ImportQuestions &questions, const UserDefaults &defaults)
        : m_folder(folder), m_questions(questions), m_defaults(defaults) {}

    MovieOptions options();

private:
    MovieOptions answered() const;

    MySingleFolder &m_folder;
    ImportQuestions &m_questions;
    const UserDefaults &m_defaults;
};

} // namespace chronomender
