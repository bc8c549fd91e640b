// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WindowQuestions.h"

class QWidget;

namespace chronomender {

class WindowSession;

/// Asks by sheets over a window. Main thread.
class SheetQuestions : public WindowQuestions {
public:
    /// Before the session has questions: it and the window come to be after this.
    void setWindow(QWidget *window, WindowSession *session) {
        m_window = window;
        m_session = session;
    }

    void emptyTagOptions(const MySingleFolderPtr &folder,
                         std::function<void(PerFolderImportOptions)> answer) override;
    void movieOptions(const MySingleFolderPtr &folder,
                      std::function<void(MovieOptions)> answer) override;
    void importOptions(const std::vector<std::string> &paths,
                       std::function<void(std::optional<KeyStates>)> answer) override;
    void preSaveProblems(const PreProcessResult &found, std::function<void(bool)> answer) override;
    void runErrors(const SaveRunResult &result) override;
    void confirm(const Confirmation &question, std::function<void(Answer)> answer) override;
    void notice(const std::string &message, const std::vector<std::string> &details) override;

private:
    QWidget *m_window = nullptr;
    WindowSession *m_session = nullptr;
};

} // namespace chronomender
