// SPDX-License-Identifier: GPL-3.0-or-later
#include "XtController.h"

#include "SystemFiles.h"
#include "Texts.h"
#include "ToolArguments.h"
#include "ToolProcess.h"

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>

#include <fcntl.h>
#include <unistd.h>

namespace chronomender {
namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::string_view usualProgram = "exiftool";
constexpr milliseconds longestLook{1000};
constexpr int looksInLimit = 8;

std::optional<FileAttributes> attributesAt(const std::string &path) {
    return systemFiles::attributesOf(AT_FDCWD, path.c_str());
}

std::optional<std::uint64_t> sizeOfCopy(const std::string &path) {
    const auto copy = attributesAt(XtController::copyPath(path));
    return copy ? std::optional(copy->size) : std::nullopt;
}

/// Where the file itself is gone, its copy is all that is left of it.
void removeCopy(const std::string &path) {
    const std::string copy = XtController::copyPath(path);
    const auto attributes = attributesAt(copy);
    if (attributes && attributes->kind == FileAttributes::Kind::Regular && attributesAt(path))
        ::unlink(copy.c_str());
}

} // namespace

XtController::XtController(ToolSettings settings) : m_settings(std::move(settings)) {}

XtController::~XtController() {
    cleanup();
}

std::optional<std::string> XtController::program() const {
    std::string wanted = m_settings.program ? m_settings.program() : std::string();
    if (wanted.empty())
        wanted = usualProgram;
    QString name = QFile::decodeName(wanted.c_str());
    if (name.contains(QLatin1Char('/')))
        name = QFileInfo(name).absoluteFilePath();
    const QString found = QStandardPaths::findExecutable(name);
    return found.isEmpty() ? std::nullopt : std::optional(QFile::encodeName(found).toStdString());
}

bool XtController::startTool() {
    m_tool.reset();
    m_output.clear();
    const auto found = program();
    if (!found) {
        m_notSent = {false, {}, true};
        return false;
    }
    std::string reason;
    m_tool = ToolProcess::start(*found, m_settings.supportFolder, reason);
    if (!m_tool) {
        m_notSent = {false, text("toolAnswer_notStarted", {reason}), false};
        return false;
    }
    for (Pending &action : m_pending)
        action.isSent = false;
    sendPending();
    return true;
}

/// In order, and nothing behind an action that could not be sent whole.
void XtController::sendPending() {
    for (Pending &action : m_pending) {
        if (action.isSent || !action.lines)
            continue;
        if (!m_tool->append(*action.lines)) {
            m_notSent = {false, text("toolAnswer_notStarted", {m_tool->refusal()}), false};
            return;
        }
        action.isSent = true;
    }
}

void XtController::send(const ToolAction &action, const std::string &path, bool isPng) {
    const bool isUpToDate = std::ranges::all_of(
        m_pending, [](const Pending &earlier) { return earlier.isSent || !earlier.lines; });
    m_pending.push_back({action.type, path, argumentLines(action, path, isPng),
                         attributesAt(copyPath(path)).has_value(), false});
    if (m_pending.size() == 1 && !(m_tool && m_tool->isRunning()))
        startTool();
    else if (m_tool && isUpToDate)
        sendPending();
}

ToolOutcome XtController::postAction() {
    ToolOutcome outcome;
    if (!m_pending.front().lines)
        outcome.error = text("toolAnswer_oddPath");
    else if (m_pending.front().isSent || (startTool() && m_pending.front().isSent))
        outcome = waitForAnswer();
    else
        outcome = m_notSent;
    m_pending.pop_front();
    return outcome;
}

std::optional<ToolAnswer> XtController::nextAnswer(bool &isTimedOut) {
    const milliseconds look =
        std::clamp(m_settings.limit / looksInLimit, milliseconds(1), longestLook);
    const std::string &path = m_pending.front().path;
    auto copySize = sizeOfCopy(path);
    auto lastSign = Clock::now();
    for (;;) {
        if (auto answer = m_output.take())
            return answer;
        const std::string piece = m_tool->read(look);
        m_output.add(piece);
        const auto size = piece.empty() ? sizeOfCopy(path) : copySize;
        if (!piece.empty() || size != copySize) {
            lastSign = Clock::now();
            copySize = size;
            continue;
        }
        isTimedOut = Clock::now() - lastSign >= m_settings.limit;
        if (isTimedOut || !m_tool->isRunning())
            break;
    }
    // What it said in the meantime counts.
    m_output.add(m_tool->kill());
    return m_output.take();
}

ToolOutcome XtController::waitForAnswer() {
    bool isTimedOut = false;
    const auto answer = nextAnswer(isTimedOut);
    if (!answer)
        return giveUp(isTimedOut);
    if (!answer->didChange && !answer->error.empty())
        addError(answer->error, m_pending.front().type);
    return {answer->didChange, answer->error, false};
}

ToolOutcome XtController::giveUp(bool isTimedOut) {
    const Pending &action = m_pending.front();
    if (!action.hadCopy)
        removeCopy(action.path);
    const std::string words = m_output.lastWords();
    m_tool.reset();
    m_output.clear();
    for (Pending &other : m_pending)
        other.isSent = false;
    return {false, isTimedOut ? text("toolAnswer_timeOut") : text("toolAnswer_ended", {words}),
            false};
}

void XtController::cleanup() {
    // A tool that was told to write is not left to finish unseen.
    if (m_tool && !m_pending.empty() && m_pending.front().isSent) {
        m_output.add(m_tool->kill());
        while (!m_pending.empty() && m_output.take())
            m_pending.pop_front();
        if (!m_pending.empty())
            giveUp(false);
    }
    m_pending.clear();
    m_tool.reset();
    m_output.clear();
}

std::string XtController::copyPath(const std::string &path) {
    return path + "_exiftool_tmp";
}

std::size_t XtController::errorCollectorCount() const {
    return m_errorCollector.size();
}

std::string XtController::errorsSummaryString() const {
    std::string summary;
    for (const auto &[type, lines] : m_errorCollector) {
        summary += text("xTError_ID_" + std::to_string(static_cast<int>(type))) + '\n';
        for (const std::string &line : lines)
            summary += '\t' + line + '\n';
        summary += '\n';
    }
    return summary;
}

void XtController::addError(const std::string &line, ToolErrorType type) {
    std::vector<std::string> &lines = m_errorCollector[type];
    if (std::ranges::find(lines, line) == lines.end())
        lines.push_back(line);
}

void XtController::clearErrors() {
    m_errorCollector.clear();
}

} // namespace chronomender
