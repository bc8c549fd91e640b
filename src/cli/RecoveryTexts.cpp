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
    bool isLeft;
};
constexpr std::array<RecoveryResult, 7> results{{
    {Result::Nothing, "nothing", false},
    {Result::Completed, "completed", false},
    {Result::TakenBack, "takenBack", false},
    {Result::Changed, "changed", false},
    {Result::Unreachable, "unreachable", true},
    {Result::InUse, "inUse", true},
    {Result::WriteFailed, "writeFailed", true},
}};

const RecoveryResult &descriptionOf(Result result) {
    return *std::ranges::find(results, result, &RecoveryResult::result);
}

} // namespace

std::string_view resultName(Result result) {
    return descriptionOf(result).name;
}

bool isLeft(Result result) {
    return descriptionOf(result).isLeft;
}

std::string recoveryText(const RecoveredFile &file) {
    const std::string line = printable(file.path) + ": " + text(textKey(file.result));
    return file.systemText.empty() ? line : line + " (" + file.systemText + ')';
}

} // namespace chronomender
