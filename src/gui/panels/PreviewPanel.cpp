// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreviewPanel.h"

#include "Controls.h"
#include "Invitation.h"
#include "PairPicture.h"
#include "PanelColors.h"
#include "PreviewCell.h"
#include "WindowSession.h"

#include <algorithm>

namespace chronomender {
namespace {

constexpr std::size_t mainCell = static_cast<std::size_t>(Neighbour::Main);
constexpr std::array<const char *, 3> cellNames{"preview_before", "preview_main", "preview_after"};
/// Pictures are asked for in few sizes, so that a window that changes its own makes none anew.
constexpr std::array<int, 4> pictureSides{512, 1024, 1536, 2560};

int sideFor(int pixels) {
    const auto *const found = std::ranges::lower_bound(pictureSides, pixels);
    return found == pictureSides.end() ? pictureSides.back() : *found;
}

/// A thumbnail stands in while the preview is being made.
QImage imageOf(const PreviewAnswer &answer, const MySinglePicPtr &pic, Thumbnails &thumbnails) {
    return answer.state == ThumbState::Pending && answer.image.isNull()
               ? thumbnails.spThumb(pic).image
               : answer.image;
}

QString placeholderOf(const PreviewAnswer &answer) {
    if (answer.state == ThumbState::Unsupported && !answer.reasonKey.empty())
        return qText(answer.reasonKey);
    return answer.state == ThumbState::Pending ? qText("preview_pending") : QString();
}

PreviewPicture emptyPicture(std::size_t index, bool isAnythingShown) {
    PreviewPicture picture;
    if (index == mainCell)
        picture.placeholder = qText("preview_nothing");
    else if (isAnythingShown)
        picture.placeholder = qText("preview_none");
    return picture;
}

} // namespace

PreviewPanel::PreviewPanel(WindowSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_invitation(new Invitation(this)),
      m_refresh({}, [this] { refresh(); }) {
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        m_cells[i] = new PreviewCell([this] { return paletteOf(*this, m_session); }, this);
        connect(m_cells[i], &QAbstractButton::clicked, this, [this, i] { select(i); });
    }
    connect(m_invitation, &Invitation::addWanted, this, &PreviewPanel::addWanted);
    setMinimumSize(fontMetrics().height() * 20, fontMetrics().height() * 10);
    const auto request = [this] { m_refresh.request(); };
    connect(&session, &WindowSession::selectionChanged, this, request);
    connect(&session, &WindowSession::listChanged, this, request);
    connect(&session, &WindowSession::foldersChanged, this, request);
    connect(&session, &WindowSession::dateDragMoved, this, request);
    connect(&session, &WindowSession::previewsChanged, this, [this] { refreshPictures(); });
    connect(&session, &WindowSession::thumbsChanged, this, [this] {
        if (m_isAnyPending)
            m_refresh.request();
    });
    refresh();
}

void PreviewPanel::resizeEvent(QResizeEvent *) {
    placeCells();
    m_refresh.request();
}

void PreviewPanel::showEvent(QShowEvent *) {
    m_refresh.request();
}

void PreviewPanel::placeCells() {
    const std::array<QRectF, 3> places = previewPlaces(size(), font());
    for (std::size_t i = 0; i < m_cells.size(); ++i)
        m_cells[i]->setGeometry(places[i].toRect());
    m_invitation->setGeometry(rect());
}

void PreviewPanel::refresh() {
    const bool isInviting = m_session.folders().empty();
    m_invitation->setVisible(isInviting);
    for (PreviewCell *cell : m_cells)
        cell->setVisible(!isInviting);
    m_facts = neighbourFacts(m_session.timelines().focusedTimeline(), m_session.mainPic(),
                             m_session.zones(), m_session.dateDrag());
    for (std::size_t i = 0; i < m_cells.size(); ++i) {
        const NeighbourFact &fact = m_facts[i];
        PreviewCell &cell = *m_cells[i];
        cell.setEnabled(fact.pic != nullptr);
        cell.setFocusPolicy(fact.pic ? Qt::StrongFocus : Qt::NoFocus);
        const QString words = qString(fact.words());
        cell.setAccessibleName(qText(cellNames[i]) +
                               (words.isEmpty() ? QString() : QStringLiteral(": ") + words));
        cell.setToolTip(fact.pic ? words : QString());
    }
    refreshPictures();
}

/// The main one first: what is asked for last is made first.
void PreviewPanel::refreshPictures() {
    const PaintPalette palette = paletteOf(*this, m_session);
    m_isAnyPending = false;
    for (const std::size_t i : {std::size_t{0}, m_cells.size() - 1, mainCell}) {
        const NeighbourFact &fact = m_facts[i];
        if (!fact.pic) {
            m_cells[i]->setPreview(emptyPicture(i, m_facts[mainCell].pic != nullptr));
            continue;
        }
        const PreviewAnswer answer =
            pictureOfPair(fact.pic, [&, side = sideFor(m_cells[i]->pixelSide())](const auto &pic) {
                PreviewAnswer found = m_session.previews().preview(pic, side);
                if (found.state != ThumbState::Pending)
                    m_session.thumbnails().setVisibleInPreviews(pic);
                return found;
            });
        m_isAnyPending = m_isAnyPending || answer.state == ThumbState::Pending;
        PreviewPicture picture;
        picture.image = imageOf(answer, fact.pic, m_session.thumbnails());
        picture.placeholder = placeholderOf(answer);
        picture.folder = palette.folderColor(fact.colorIndex);
        picture.name = qString(fact.name);
        picture.date = qString(fact.date);
        picture.distance = qString(fact.distance);
        picture.isMain = i == mainCell;
        m_cells[i]->setPreview(std::move(picture));
    }
}

void PreviewPanel::select(std::size_t index) {
    const MySinglePicPtr pic = m_facts[index].pic;
    if (index == mainCell) {
        Q_EMIT mainActivated();
        return;
    }
    if (!pic)
        return;
    m_session.select([&](MyTimelinesController &timelines) {
        timelines.simpleSelectThumb(pic, timelines.focusedTimeline());
    });
}

} // namespace chronomender
