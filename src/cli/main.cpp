// SPDX-License-Identifier: GPL-3.0-or-later
#include "CommandLine.h"
#include "Commands.h"
#include "Output.h"
#include "Texts.h"

#include <QCoreApplication>

#include <string>
#include <vector>

using namespace chronomender;

namespace {

int run(const CommandLine &line) {
    switch (line.command) {
    case Command::List:
        return runList(line);
    case Command::Info:
        return runInfo(line);
    case Command::Align:
        return runAlign(line);
    case Command::Drag:
        return runDrag(line);
    case Command::Rename:
        return runRename(line);
    case Command::Resume:
        return runResume(line);
    case Command::Save:
        break;
    }
    return runSave(line);
}

} // namespace

int main(int argc, char **argv) {
    // Taken before the application object, which removes what it believes to be its own.
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    int ownArgumentCount = 1;
    const QCoreApplication application(ownArgumentCount, argv);
    loadTexts(languageArgument(arguments));
    const ParsedCommandLine parsed = parseCommandLine(arguments);
    if (const auto *end = std::get_if<ParseEnd>(&parsed)) {
        writeOutput(end->output);
        writeError(end->errors);
        return end->exitCode;
    }
    return run(std::get<CommandLine>(parsed));
}
