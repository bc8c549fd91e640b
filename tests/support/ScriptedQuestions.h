// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WindowQuestions.h"

#include <string>
#include <vector>

namespace chronomender {

/// Answers by itself, at once, and keeps what was asked.
class ScriptedQuestions : public WindowQuestions {
public:
    PerFolderImportOptions emptyTags;
    bool acceptsProblems = true;
    Answer confirmed = Answer::Accepted;

    std::vector<std::string> confirmations, notices;
    std::vector<PreSaveFinding> problems;
    std::vector<SaveError> errors;
    int emptyTagQuestions = 0, movieQuestions = 0;

    void emptyTagOptions(const MySingleFolderPtr &,
                         std::function<void(PerFolderImportOptions)> answer) override {
        ++emptyTagQuestions;
        answer(emptyTags);
    }
    void movieOptions(const MySingleFolderPtr &,
                      std::function<void(MovieOptions)> answer) override {
        ++movieQuestions;
        answer({});
    }
    void importOptions(const std::vector<std::string> &,
                       std::function<void(std::optional<KeyStates>)> answer) override {
        answer(KeyStates{});
    }
    void preSaveProblems(const PreProcessResult &found, std::function<void(bool)> answer) override {
        problems = found.problems;
        answer(acceptsProblems);
    }
    void runErrors(const SaveRunResult &result) override { errors = result.errors; }
    void confirm(const Confirmation &question, std::function<void(Answer)> answer) override {
        confirmations.push_back(question.message);
        answer(confirmed);
    }
    void notice(const std::string &message, const std::vector<std::string> &details) override {
        notices.push_back(message);
        notices.insert(notices.end(), details.begin(), details.end());
    }
};

} // namespace chronomender
