// SPDX-License-Identifier: GPL-3.0-or-later
#include "SheetQuestions.h"

#include "ImportSheets.h"
#include "ProblemGroups.h"
#include "QuestionSheet.h"
#include "RunSheets.h"
#include "Texts.h"
#include "WindowSession.h"

#include <QPushButton>

namespace chronomender {

void SheetQuestions::emptyTagOptions(const MySingleFolderPtr &folder,
                                     std::function<void(PerFolderImportOptions)> answer) {
    openEmptyTagsSheet(folder, *m_session, m_window, answer);
}

void SheetQuestions::movieOptions(const MySingleFolderPtr &folder,
                                  std::function<void(MovieOptions)> answer) {
    openMovieOptionsSheet(folder, *m_session, m_window, answer);
}

void SheetQuestions::importOptions(const std::vector<std::string> &paths,
                                   std::function<void(std::optional<KeyStates>)> answer) {
    openImportOptionsSheet(paths, *m_session, m_window, answer);
}

/// Keeping each stamp's offset is a correction of its own, undoable; the save then looks again.
void SheetQuestions::preSaveProblems(const PreProcessResult &found,
                                     std::function<void(bool)> answer) {
    auto keepZones = [session = m_session, pics = itemsWithRewrittenZones(found.problems)] {
        const ZoneWish own{{}, ZoneChoice::marker(ZoneChoice::Kind::Own)};
        session->edit([&](AppController &controller) { controller.setZones(pics, own); });
        session->saveFlow().startAgain();
    };
    openPreSaveSheet(found, m_session->saveFlow().renames(), m_window,
                     [answer, keepZones](PreSaveAnswer given) {
                         answer(given == PreSaveAnswer::Save);
                         if (given == PreSaveAnswer::KeepZones)
                             keepZones();
                     });
}

void SheetQuestions::runErrors(const SaveRunResult &result) {
    openRunErrorsSheet(result, m_window);
}

void SheetQuestions::confirm(const Confirmation &question, std::function<void(Answer)> answer) {
    auto *sheet = new QuestionSheet(question.message, question.information, m_window);
    const auto answers = [answer](Answer given) { return [=] { answer(given); }; };
    QPushButton *accept = sheet->addButtonWithText(
        question.acceptText, QDialogButtonBox::AcceptRole, answers(Answer::Accepted));
    if (!question.discardText.empty())
        sheet->addButtonWithText(question.discardText, QDialogButtonBox::DestructiveRole,
                                 answers(Answer::Discarded));
    QPushButton *cancel =
        sheet->addButton("sheet_cancel", QDialogButtonBox::RejectRole, answers(Answer::Cancelled));
    QPushButton *standard = question.isDestructive ? cancel : accept;
    standard->setDefault(true);
    standard->setFocus();
    sheet->setDismissed(answers(Answer::Cancelled));
    sheet->open();
}

void SheetQuestions::notice(const std::string &message, const std::vector<std::string> &details) {
    openTextSheet(message, {}, details, m_window);
}

} // namespace chronomender
