// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QProcess>
#include <QString>
#include <QTimer>

#include <functional>
#include <string>

namespace chronomender {

/// What a trial run of ExifTool came to.
struct ToolCheckResult {
    bool runs = false;
    std::string words; ///< its version, or why it does not run, for a person
};

/// Runs ExifTool only to ask for its version, without waiting for it: the last question asked is
/// the one that is answered, unless the check is destroyed before. Main thread.
class ToolCheck : public QObject {
    Q_OBJECT
public:
    using Answer = std::function<void(ToolCheckResult)>;

    explicit ToolCheck(QObject *parent = nullptr) : QObject(parent) {}
    ~ToolCheck() override;

    /// `path` is what the preference "exifToolPath" says; empty: "exiftool" on PATH.
    void check(const std::string &path, Answer answer);

private:
    void stop();

    QProcess *m_process = nullptr;
    QTimer m_patience;
};

} // namespace chronomender
