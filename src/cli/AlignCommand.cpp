// SPDX-License-Identifier: GPL-3.0-or-later
#include "Commands.h"

#include "MendSession.h"
#include "Output.h"
#include "PicLookup.h"
#include "SaveRun.h"
#include "Texts.h"
#include "Utf8Text.h"

#include <algorithm>

namespace chronomender {
namespace {

/// Fewer items than this have nothing to be aligned with.
constexpr std::size_t fewestPics(AlignCommand command) {
    if (command == AlignCommand::MatchingGaps)
        return 3;
    return command < AlignCommand::CopyDigitizedOld ? 2 : 1;
}

bool isCopy(AlignCommand command) {
    return command >= AlignCommand::CopyDigitizedOld;
}

/// The selection that the command line names, and what is done to it.
class Align {
public:
    explicit Align(MendSession &session)
        : m_session(session), m_wish(session.line().align), m_lookup(session.folders()) {}

    std::optional<Complaint> run() {
        AlignSelection selection;
        if (auto complaint = select(selection))
            return complaint;
        const std::size_t fewest = fewestPics(*m_wish.command);
        if (selection.sortedSelectedThumbsArray.size() < fewest)
            return Complaint{2, text("cli_error_fewPics", {std::to_string(fewest)})};
        switch (m_session.controller().align(*m_wish.command, selection)) {
        case AlignOutcome::RefusedOutOfBounds:
            return Complaint{2, text("cli_error_alignOutOfBounds")};
        case AlignOutcome::NothingChanged:
            complain(text(isCopy(*m_wish.command) ? "cli_align_noDateToCopy"
                                                  : "cli_align_isAlignedAlready"));
            break;
        case AlignOutcome::Done:
            m_session.controller().buildNewSource();
        }
        return std::nullopt;
    }

private:
    /// In display order, with the main item, which must be one of them.
    std::optional<Complaint> select(AlignSelection &selection) {
        auto chosen = m_lookup.select(m_wish.pics, m_session.controller().source_full());
        if (const auto *complaint = std::get_if<Complaint>(&chosen))
            return *complaint;
        auto &pics = selection.sortedSelectedThumbsArray;
        pics = std::get<std::vector<MySinglePicPtr>>(std::move(chosen));
        if (!m_wish.mainPic)
            return std::nullopt;
        auto mainPic = m_lookup.find(*m_wish.mainPic);
        if (const auto *complaint = std::get_if<Complaint>(&mainPic))
            return *complaint;
        selection.picSelection = std::get<MySinglePicPtr>(std::move(mainPic));
        if (std::ranges::find(pics, selection.picSelection) == pics.end())
            return Complaint{2, text("cli_error_mainNotSelected", {printable(*m_wish.mainPic)})};
        return std::nullopt;
    }

    MendSession &m_session;
    const AlignWish &m_wish;
    PicLookup m_lookup;
};

} // namespace

int runAlign(const CommandLine &line) {
    return runAndSave(line, [](MendSession &session) { return Align(session).run(); });
}

} // namespace chronomender
