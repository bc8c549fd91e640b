// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"

#include "FileLayer.h"
#include "JsonLine.h"
#include "Output.h"
#include "RecoveryTexts.h"
#include "SupportFolders.h"
#include "Texts.h"

#include <algorithm>

namespace chronomender {
namespace {

/// What a run put right, and what it could not.
struct Resumed {
    std::vector<RecoveredFile> files;
    std::size_t left = 0, forgotten = 0;

    int exitCode() const { return left > 0 ? exitItemFailed : exitDone; }
};

Resumed resume(const CommandLine &line) {
    Resumed resumed;
    resumed.files = RunJournal::recover(supportFolder(), *makeSystemFileLayer(),
                                        line.isTakingBack ? RecoveryDirection::TakeBack
                                                          : RecoveryDirection::Finish);
    resumed.left = static_cast<std::size_t>(
        std::ranges::count_if(resumed.files, isLeft, &RecoveredFile::result));
    if (line.isForgetting) {
        resumed.forgotten = RunJournal::forget(supportFolder());
        resumed.left = 0;
    }
    return resumed;
}

std::string jsonLines(const Resumed &resumed) {
    std::string buffer;
    for (const RecoveredFile &file : resumed.files)
        JsonLine(buffer)
            .field("path", file.path)
            .fieldIfAny("oldPath", hasOtherPath(file) ? file.oldPath : std::string())
            .field("result", resultName(file.result))
            .fieldIfAny("detail", file.systemText)
            .finish();
    JsonLine(buffer)
        .beginObject("summary")
        .field("files", static_cast<std::int64_t>(resumed.files.size()))
        .field("left", static_cast<std::int64_t>(resumed.left))
        .field("forgotten", static_cast<std::int64_t>(resumed.forgotten))
        .field("exitCode", static_cast<std::int64_t>(resumed.exitCode()))
        .finish();
    return buffer;
}

std::string resumedText(const Resumed &resumed) {
    std::string out;
    for (const RecoveredFile &file : resumed.files)
        out += recoveryText(file) + '\n';
    if (resumed.files.empty() && resumed.forgotten == 0)
        out += text("cli_resume_nothing") + '\n';
    if (resumed.forgotten > 0)
        out += text("cli_resume_forgotten", {std::to_string(resumed.forgotten)}) + '\n';
    if (resumed.left > 0)
        out += text("cli_resume_left", {std::to_string(resumed.left)}) + '\n';
    return out;
}

} // namespace

int runResume(const CommandLine &line) {
    const Resumed resumed = resume(line);
    const WriteResult written =
        writeOutput(line.isJson ? jsonLines(resumed) : resumedText(resumed));
    return codeAfterWriting(written, resumed.exitCode());
}

} // namespace chronomender
