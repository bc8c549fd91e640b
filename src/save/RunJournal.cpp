// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunJournal.h"

namespace chronomender {

std::string_view textKey(RecoveredFile::Result) {
    return {};
}

RunJournal::RunJournal(std::string supportFolder, Durability durability)
    : m_folder(std::move(supportFolder)), m_durability(durability) {}

RunJournal::~RunJournal() = default;

bool RunJournal::begin(std::span<const UnitIntent>, FileError *) {
    return true;
}

void RunJournal::settle(std::span<const std::size_t>) {}

std::vector<RecoveredFile> RunJournal::recover(const std::string &, FileLayer &) {
    return {};
}

bool RunJournal::hasUnfinished(const std::string &) {
    return false;
}

std::size_t RunJournal::forget(const std::string &) {
    return 0;
}

} // namespace chronomender
