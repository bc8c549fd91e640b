// SPDX-License-Identifier: GPL-3.0-or-later
#include "SaveFlow.h"

#include "Texts.h"

#include <utility>

namespace chronomender {
namespace {

/// Does not keep the job alive: the controller holds it beyond the run.
AppController::Progress reporter(const std::weak_ptr<Job> &job) {
    return [job](std::size_t done, std::size_t total) {
        if (const auto alive = job.lock())
            alive->report(done, total);
    };
}

} // namespace

SaveFlow::SaveFlow(AppController &controller, Jobs &jobs, WindowQuestions &questions,
                   QObject *parent)
    : QObject(parent), m_controller(controller), m_jobs(jobs), m_questions(questions) {}

void SaveFlow::setStage(Stage stage) {
    m_stage = stage;
    Q_EMIT stageChanged();
}

std::shared_ptr<Job> SaveFlow::beginJob(JobKind kind, const char *titleKey) {
    return m_jobs.begin(kind, text(titleKey), [this] { m_controller.cancellation().request(); });
}

bool SaveFlow::start(SaveRequest request, std::optional<RenameChoices> choices) {
    if (!isIdle() || m_jobs.isRunning(JobKind::Import))
        return false;
    m_request = std::move(request);
    m_choices = std::move(choices);
    m_controller.setRenameChoices(m_choices);
    m_job = beginJob(JobKind::Check, "workPanelPreSave");
    setStage(Stage::Checking);
    m_controller.startPreProcess(m_request, reporter(m_job),
                                 [this](PreProcessResult found) { checked(std::move(found)); });
    return true;
}

void SaveFlow::checked(PreProcessResult found) {
    m_job.reset();
    if (found.wasCancelled)
        return finish(nullptr);
    if (found.problems.empty())
        return write(std::move(found));
    setStage(Stage::Asking);
    const auto waiting = std::make_shared<PreProcessResult>(std::move(found));
    m_questions.preSaveProblems(*waiting, [this, waiting](bool goesOn) {
        if (goesOn)
            write(std::move(*waiting));
        else
            finish(nullptr);
    });
}

void SaveFlow::write(PreProcessResult accepted) {
    m_job = beginJob(JobKind::Write, m_request.type == SaveProcessType::Rename ? "workPanelRename"
                                                                               : "workPanelSave");
    m_controller.setSaveStepBegins([weak = std::weak_ptr(m_job)](std::string_view titleKey) {
        if (const auto job = weak.lock())
            job->setTitle(text(titleKey));
    });
    setStage(Stage::Writing);
    m_controller.startContinueProcess(m_request, std::move(accepted), reporter(m_job),
                                      [this](const SaveRunResult &result) { finish(&result); });
}

void SaveFlow::finish(const SaveRunResult *result) {
    m_job.reset();
    m_controller.setSaveStepBegins({});
    m_controller.setRenameChoices({});
    setStage(Stage::Idle);
    Q_EMIT ended(result);
    if (result && !result->errors.empty())
        m_questions.runErrors(*result);
}

} // namespace chronomender
