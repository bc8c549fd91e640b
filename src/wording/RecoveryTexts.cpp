// SPDX-License-Identifier: GPL-3.0-or-later
#include "RecoveryTexts.h"

#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>
#include <array>

namespace chronomender {
namespace {

using Result = RecoveredFile::Result;

struct RecoveryResult {
    Result result;
    std::string_view name;
};
constexpr std::array<RecoveryResult, 7> results{{
    {Result::Nothing, "nothing"},
    {Result::Completed, "completed"},
    {Result::TakenBack, "takenBack"},
    {Result::Changed, "changed"},
    {Result::Unreachable, "unreachable"},
    {Result::InUse, "inUse"},
    {Result::WriteFailed, "writeFailed"},
}};

} // namespace

std::string_view resultName(Result result) {
    return std::ranges::find(results, result, &RecoveryResult::result)->name;
}

bool hasOtherPath(const RecoveredFile &file) {
    return file.isRenamed() && file.oldPath != file.path;
}

std::string recoveryText(const RecoveredFile &file) {
    std::string line = hasOtherPath(file) ? printable(file.oldPath) + " → " : std::string();
    line += printable(file.path) + ": " + text(textKey(file));
    return file.systemText.empty() ? line : line + " (" + file.systemText + ')';
}

} // namespace chronomender
