// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ImportQuestions.h"
#include "KeyStates.h"
#include "SaveDriver.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace chronomender {

/// A question with two ways out, or a notice with one.
struct Confirmation {
    std::string message;          ///< the question, in one sentence
    std::string information;      ///< what it means; may be empty
    std::string acceptText;       ///< of the button that says yes
    std::string discardText = {}; ///< of a third button, between the two; "": there is none
    bool isDestructive = false;   ///< yes loses something: it is not the default
};
enum class Answer : std::uint8_t { Cancelled, Accepted, Discarded };

/// What a person is asked. A window shows sheets, a test answers by itself. Every question returns
/// at once, and its answer is given exactly once, later or at once, on the main thread: also when
/// the person only closes the sheet. Main thread.
class WindowQuestions {
public:
    virtual ~WindowQuestions() = default;

    /// How the empty date tags of a folder's files are to be read.
    virtual void emptyTagOptions(const MySingleFolderPtr &folder,
                                 std::function<void(PerFolderImportOptions)> answer) = 0;
    virtual void movieOptions(const MySingleFolderPtr &folder,
                              std::function<void(MovieOptions)> answer) = 0;
    /// The choices of one import; none: it is not wanted.
    virtual void importOptions(const std::vector<std::string> &paths,
                               std::function<void(std::optional<KeyStates>)> answer) = 0;
    /// Problems that a save found before it wrote anything. True: the save goes on.
    virtual void preSaveProblems(const PreProcessResult &found,
                                 std::function<void(bool)> answer) = 0;
    virtual void runErrors(const SaveRunResult &result) = 0;
    virtual void confirm(const Confirmation &question, std::function<void(Answer)> answer) = 0;
    /// Something to be read, with lines of detail (paths and reasons); nothing is asked.
    virtual void notice(const std::string &message, const std::vector<std::string> &details) = 0;
};

} // namespace chronomender
