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

/// What a save leaves alone would be dragged in vain.
bool canBeDragged(const MySinglePic &pic) {
    return isMovable(pic) && followsShift(pic) && !pic.importState.isLeftAlone;
}

/// The items that the command line names, and where they go.
class Drag {
public:
    explicit Drag(MendSession &session)
        : m_session(session), m_wish(session.line().drag), m_lookup(session.folders()) {}

    std::optional<Complaint> run() {
        auto complaint = find(m_wish.pics, m_drop.pics);
        if (!complaint)
            complaint = find(m_wish.targets, m_drop.targets);
        if (!complaint)
            complaint = checkDates();
        if (complaint)
            return complaint;
        std::ranges::sort(m_drop.pics, {}, [](const MySinglePicPtr &pic) {
            return pic->positions.indexInSource_full;
        });
        m_drop.dragType = m_wish.dragType;
        switch (m_session.controller().dropByOrder(m_drop)) {
        case DateChangeOutcome::RefusedOutOfBounds:
            return Complaint{2, text("cli_error_dragOutOfBounds")};
        case DateChangeOutcome::NothingChanged:
            complain(text("cli_drag_standsAlready"));
            break;
        case DateChangeOutcome::Done:
            m_session.controller().buildNewSource();
        }
        return std::nullopt;
    }

private:
    /// No item may be named twice: neither goes one beside itself, nor is there a gap in it.
    std::optional<Complaint> find(const std::vector<std::string> &names,
                                  std::vector<MySinglePicPtr> &pics) {
        for (const std::string &name : names) {
            auto found = m_lookup.find(name);
            if (const auto *complaint = std::get_if<Complaint>(&found))
                return *complaint;
            pics.push_back(std::get<MySinglePicPtr>(std::move(found)));
            if (!m_named.insert(pics.back()).second)
                return Complaint{2, text("cli_error_dragTwice", {printable(name)})};
        }
        return std::nullopt;
    }

    std::optional<Complaint> checkDates() const {
        for (std::size_t i = 0; i < m_drop.pics.size(); ++i)
            if (!canBeDragged(*m_drop.pics[i]))
                return Complaint{2, text("cli_error_dragNotMovable", {printable(m_wish.pics[i])})};
        for (std::size_t i = 0; i < m_drop.targets.size(); ++i)
            if (isMarker(m_drop.targets[i]->spDateTimeModified_sort()))
                return Complaint{2, text("cli_error_dragNoDate", {printable(m_wish.targets[i])})};
        return std::nullopt;
    }

    MendSession &m_session;
    const DragWish &m_wish;
    PicLookup m_lookup;
    DropByOrder m_drop;
    PicSet m_named;
};

} // namespace

int runDrag(const CommandLine &line) {
    return runAndSave(line, [](MendSession &session) { return Drag(session).run(); });
}

} // namespace chronomender
