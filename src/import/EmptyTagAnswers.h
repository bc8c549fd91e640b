// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ImportQuestions.h"
#include "UserDefaults.h"

namespace chronomender {

/// What a folder's empty date tags are to mean. Asks once per folder, at the first such file, and
/// keeps the answer in the folder with how far its sequence of dates got. Import thread.
class EmptyTagAnswers {
public:
    EmptyTagAnswers(MySingleFolder &folder, ImportQuestions &questions,
                    const UserDefaults &defaults)
        : m_folder(folder), m_questions(questions), m_defaults(defaults) {}

    PerFolderImportOptions::EmptyTags choice() { return options().withEmptyExifFixDate; }
    /// The date for the next file of the sequence; none when the answer gives no date.
    OptionalDate nextFixedDate();

private:
    PerFolderImportOptions &options();

    MySingleFolder &m_folder;
    ImportQuestions &m_questions;
    const UserDefaults &m_defaults;
};

} // namespace chronomender
