// SPDX-License-Identifier: GPL-3.0-or-later
#include "EmptyTagAnswers.h"

namespace chronomender {

PerFolderImportOptions &EmptyTagAnswers::options() {
    auto &kept = m_folder.perFolderImportOptions;
    if (!kept)
        kept = m_defaults.boolForKey("skipEmptyTagImportOptions")
                   ? PerFolderImportOptions{}
                   : m_questions.emptyTagOptions(m_folder);
    return *kept;
}

OptionalDate EmptyTagAnswers::nextFixedDate() {
    PerFolderImportOptions &kept = options();
    if (!kept.prefFixDateDate)
        return std::nullopt;
    const Date date = shifted(*kept.prefFixDateDate, kept.intervalStepper);
    kept.intervalStepper += kept.step;
    return date;
}

} // namespace chronomender
