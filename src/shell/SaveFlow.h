// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "AppController.h"
#include "Jobs.h"
#include "WindowQuestions.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace chronomender {

/// A save or a rename as a window runs it: stage one, then the question about the problems that it
/// found, then stage two, then the errors. One at a time. Main thread.
class SaveFlow : public QObject {
    Q_OBJECT
public:
    enum class Stage : std::uint8_t {
        Idle,
        Checking, ///< every file is proved and every date calculated; nothing is written
        Asking,   ///< problems wait for the person's answer
        Writing,
    };

    /// The references outlive the flow.
    SaveFlow(AppController &controller, Jobs &jobs, WindowQuestions &questions,
             QObject *parent = nullptr);

    Stage stage() const { return m_stage; }
    bool isIdle() const { return m_stage == Stage::Idle; }
    /// `choices` is what a rename goes by, in place of the preferences. False while another run is
    /// under way, or a folder is being read.
    bool start(SaveRequest request, std::optional<RenameChoices> choices = {});
    /// The last run from its first stage on, as it was asked for.
    bool startAgain() { return start(m_request, m_choices); }
    /// The last run gives names, or will.
    bool renames() const { return m_request.type != SaveProcessType::Save; }

Q_SIGNALS:
    void stageChanged();
    /// The run is over; null when nothing was written as the person did not agree or cancelled
    /// stage one. The result lives for the length of the call.
    void ended(const chronomender::SaveRunResult *result);

private:
    void checked(PreProcessResult found);
    void write(PreProcessResult accepted);
    void finish(const SaveRunResult *result);
    void setStage(Stage stage);
    std::shared_ptr<Job> beginJob(JobKind kind, const char *titleKey);

    AppController &m_controller;
    Jobs &m_jobs;
    WindowQuestions &m_questions;
    Stage m_stage = Stage::Idle;
    SaveRequest m_request;
    std::optional<RenameChoices> m_choices;
    std::shared_ptr<Job> m_job;
};

} // namespace chronomender
