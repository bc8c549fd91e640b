// SPDX-License-Identifier: GPL-3.0-or-later
#include "ToolCheck.h"

#include "Texts.h"

#include <QRegularExpression>

#include <chrono>
#include <utility>

namespace chronomender {
namespace {

constexpr std::chrono::seconds longestWait{10};

ToolCheckResult resultOf(QProcess &process) {
    static const QRegularExpression version(QStringLiteral("^\\d+\\.\\d+"));
    const QString said = QString::fromUtf8(process.readAllStandardOutput()).trimmed();
    const bool isVersion = process.exitStatus() == QProcess::NormalExit &&
                           process.exitCode() == 0 && version.match(said).hasMatch();
    if (!isVersion)
        return {false, text("prefs_toolOther")};
    return {true, text("prefs_toolRuns", {said.toStdString()})};
}

} // namespace

ToolCheck::~ToolCheck() {
    stop();
}

void ToolCheck::stop() {
    m_patience.stop();
    m_patience.disconnect();
    if (!m_process)
        return;
    m_process->disconnect();
    m_process->kill();
    // A killed process is reaped by its object, once it is gone.
    QObject::connect(m_process, &QProcess::finished, m_process, &QObject::deleteLater);
    m_process->setParent(nullptr);
    if (m_process->state() == QProcess::NotRunning)
        m_process->deleteLater();
    m_process = nullptr;
}

void ToolCheck::check(const std::string &path, Answer answer) {
    stop();
    m_process = new QProcess(this);
    QProcess *process = m_process;
    const auto finish = [this, answer = std::move(answer)](ToolCheckResult result) {
        stop();
        answer(std::move(result));
    };
    connect(process, &QProcess::finished, this, [process, finish] { finish(resultOf(*process)); });
    connect(process, &QProcess::errorOccurred, this, [finish](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish({false, text("prefs_toolMissing")});
    });
    connect(&m_patience, &QTimer::timeout, this, [finish] {
        finish({false, text("prefs_toolSilent")});
    });
    m_patience.setSingleShot(true);
    m_patience.start(longestWait);
    process->setStandardErrorFile(QProcess::nullDevice());
    process->start(path.empty() ? QStringLiteral("exiftool") : QString::fromStdString(path),
                   {QStringLiteral("-ver")});
}

} // namespace chronomender
