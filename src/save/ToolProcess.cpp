// SPDX-License-Identifier: GPL-3.0-or-later
#include "ToolProcess.h"

#include <QFile>
#include <QProcessEnvironment>

#include <csignal>

#include <sys/prctl.h>
#include <unistd.h>

namespace chronomender {
namespace {

constexpr int millisecondsToEnd = 500;

/// These change how the tool's interpreter reads and writes files.
constexpr const char *interpreterSettings[] = {"PERL_UNICODE", "PERL5OPT", "PERLIO"};

QProcessEnvironment plainEnvironment() {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : interpreterSettings)
        environment.remove(QString::fromLatin1(name));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    return environment;
}

/// In the child, before the program: it must not outlive us, and a Ctrl-C of the terminal is ours
/// to answer.
void bindTo(pid_t parent) {
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    if (::getppid() != parent)
        ::_exit(1);
    ::setpgid(0, 0);
}

/// The empty configuration must be named first; without it the tool runs a user's own.
QStringList argumentsFor(const std::string &argumentFile) {
    return {QStringLiteral("-config"),    QString(),
            QStringLiteral("-stay_open"), QStringLiteral("true"),
            QStringLiteral("-@"),         QFile::decodeName(argumentFile.c_str())};
}

} // namespace

ToolProcess::ToolProcess(std::unique_ptr<ArgumentFile> arguments)
    : m_arguments(std::move(arguments)) {}

bool ToolProcess::launch(const std::string &program) {
    m_process.setProcessChannelMode(QProcess::MergedChannels);
    m_process.setStandardInputFile(QProcess::nullDevice());
    m_process.setProcessEnvironment(plainEnvironment());
    m_process.setChildProcessModifier([parent = ::getpid()] { bindTo(parent); });
    m_process.start(QFile::decodeName(program.c_str()), argumentsFor(m_arguments->path()),
                    QIODevice::ReadOnly);
    return m_process.waitForStarted();
}

std::unique_ptr<ToolProcess> ToolProcess::start(const std::string &program,
                                                const std::string &supportFolder,
                                                std::string &reason) {
    FileError error;
    auto arguments = ArgumentFile::create(supportFolder, error);
    if (!arguments) {
        reason = error.text();
        return nullptr;
    }
    std::unique_ptr<ToolProcess> tool(new ToolProcess(std::move(arguments)));
    if (tool->launch(program))
        return tool;
    reason = tool->m_process.errorString().toStdString();
    return nullptr;
}

ToolProcess::~ToolProcess() {
    if (isRunning()) {
        append("\n-stay_open\nfalse\n");
        m_process.terminate();
        if (!m_process.waitForFinished(millisecondsToEnd))
            kill();
    }
}

bool ToolProcess::isRunning() {
    return m_process.state() != QProcess::NotRunning && !m_process.waitForFinished(0) &&
           m_process.state() != QProcess::NotRunning;
}

bool ToolProcess::append(std::string_view lines) {
    const bool isWhole = m_arguments->append(lines);
    // A tool that has read everything sleeps before it looks again; this signal wakes it.
    if (m_process.processId() > 0)
        ::kill(static_cast<pid_t>(m_process.processId()), SIGCONT);
    return isWhole;
}

std::string ToolProcess::read(std::chrono::milliseconds atMost) {
    if (m_process.bytesAvailable() == 0)
        m_process.waitForReadyRead(static_cast<int>(atMost.count()));
    return m_process.readAll().toStdString();
}

std::string ToolProcess::kill() {
    m_process.kill();
    m_process.waitForFinished();
    return m_process.readAll().toStdString();
}

} // namespace chronomender
