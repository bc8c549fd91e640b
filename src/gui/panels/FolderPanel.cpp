// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderPanel.h"

#include "Controls.h"
#include "DroppedPaths.h"
#include "FolderRowPainter.h"
#include "PanelColors.h"
#include "WindowSession.h"

#include <QDragEnterEvent>
#include <QMimeData>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QVBoxLayout>

#include <algorithm>

namespace chronomender {
namespace {

constexpr std::chrono::milliseconds refreshDelay{80};
constexpr int leastColumns = 36; ///< two days fit beside each other

/// Parts with something to say; a line without one is left out.
void addLine(std::vector<PaintedLine> &lines, std::initializer_list<PaintedPart> parts) {
    PaintedLine line;
    std::ranges::copy_if(parts, std::back_inserter(line),
                         [](const PaintedPart &part) { return !part.words.isEmpty(); });
    if (!line.empty())
        lines.push_back(std::move(line));
}

FolderRowPicture pictureOf(const FolderRow &row, const PaintPalette &palette) {
    FolderRowPicture picture;
    picture.swatch = palette.folderColor(row.colorIndex);
    picture.name = qString(row.name);
    picture.count = qString(row.count);
    picture.isUnsaved = row.isUnsaved;
    picture.isDimmed = row.isDimmed;
    addLine(picture.lines, {{qString(row.range), palette.dimText}});
    // Of the mode is spoken where there is a shift, or where it is the rarer one.
    const bool isModeTold = !row.shift.empty() || row.mode == text("folders_single");
    addLine(picture.lines, {{qString(row.shift), palette.text},
                            {isModeTold ? qString(row.mode) : QString(), palette.dimText}});
    addLine(picture.lines, {{qString(row.zones), palette.text}});
    PaintedLine notes;
    for (const RowNote &note : row.notes)
        notes.push_back({qString(note.words), colorOf(note.tone, palette)});
    if (!notes.empty())
        picture.lines.push_back(std::move(notes));
    return picture;
}

class FolderRowDelegate : public QStyledItemDelegate {
public:
    FolderRowDelegate(const FolderListModel &model, WindowSession &session, QWidget *parent)
        : QStyledItemDelegate(parent), m_model(model), m_session(session) {}

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override {
        const PaintPalette palette = paletteOf(*option.widget, m_session);
        FolderRowPicture picture = pictureOf(m_model.row(index.row()), palette);
        picture.isSelected = option.state & QStyle::State_Selected;
        picture.hasCursor = option.state & QStyle::State_HasFocus;
        paintFolderRow(*painter, option.rect, picture, option.font, palette);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        const PaintPalette palette = paletteOf(*option.widget, m_session);
        return {1, folderRowHeight(pictureOf(m_model.row(index.row()), palette), option.font)};
    }

private:
    const FolderListModel &m_model;
    WindowSession &m_session;
};

} // namespace

FolderPanel::FolderPanel(WindowSession &session, QWidget *parent)
    : QWidget(parent),
      m_session(session),
      m_model(session),
      m_list(named(new QListView, "folders_list")),
      m_refresh(refreshDelay, [this] { refresh(); }) {
    setAcceptDrops(true);
    setMinimumWidth(fontMetrics().averageCharWidth() * leastColumns);
    m_list->setModel(&m_model);
    m_list->setItemDelegate(new FolderRowDelegate(m_model, session, m_list));
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    auto *layout = new QVBoxLayout(this);
    const int frame = std::max(2, fontMetrics().height() / 6);
    layout->setContentsMargins(frame, frame, frame, frame);
    layout->addWidget(m_list);
    setFocusProxy(m_list);
    connectSession();
    refresh();
}

void FolderPanel::connectSession() {
    const auto request = [this] { m_refresh.request(); };
    connect(&m_session, &WindowSession::foldersChanged, this, request);
    connect(&m_session, &WindowSession::listChanged, this, request);
    connect(&m_session, &WindowSession::selectionChanged, this, [this] { showSelection(); });
    connect(m_list->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { takeSelection(); });
    connect(m_list, &QWidget::customContextMenuRequested, this, [this](const QPoint &place) {
        Q_EMIT menuWanted(m_list->viewport()->mapToGlobal(place));
    });
}

void FolderPanel::refresh() {
    m_isShowingSelection = true;
    m_model.refresh();
    m_isShowingSelection = false;
    showSelection();
}

void FolderPanel::showSelection() {
    const auto &selected = m_session.selectedFolders();
    QItemSelection wanted;
    QModelIndex first;
    for (int i = 0; i < m_model.rowCount(); ++i) {
        if (std::ranges::find(selected, m_model.folder(i)) == selected.end())
            continue;
        const QModelIndex index = m_model.index(i);
        wanted.select(index, index);
        if (!first.isValid())
            first = index;
    }
    m_isShowingSelection = true;
    QItemSelectionModel &selection = *m_list->selectionModel();
    selection.select(wanted, QItemSelectionModel::ClearAndSelect);
    if (first.isValid() && !selection.isSelected(selection.currentIndex())) {
        selection.setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        m_list->scrollTo(first);
    }
    m_isShowingSelection = false;
}

void FolderPanel::takeSelection() {
    if (m_isShowingSelection)
        return;
    std::vector<MySingleFolderPtr> folders;
    for (const QModelIndex &index : m_list->selectionModel()->selectedIndexes())
        folders.push_back(m_model.folder(index.row()));
    m_session.selectFolders(folders);
    if (folders.size() == 1)
        showFirstItemOf(folders.front());
}

/// The one selected folder is always that of the main item: so the folder that was chosen shows its
/// first shot.
void FolderPanel::showFirstItemOf(const MySingleFolderPtr &folder) {
    const MySinglePicPtr main = m_session.mainPic();
    if (!main || main->spSingleRealFolder() == folder)
        return;
    m_session.select([&](MyTimelinesController &timelines) {
        TimelineStrip &strip = timelines.focusedTimeline();
        const auto found = std::ranges::find_if(strip.theSource, [&](const MySinglePicPtr &pic) {
            return pic->spSingleRealFolder() == folder;
        });
        if (found == strip.theSource.end())
            timelines.deselectAll(strip);
        else
            timelines.simpleSelectThumb(MySinglePicPtr(*found), strip);
    });
}

// ---- dropping

void FolderPanel::setDropTarget(bool isTarget) {
    m_isDropTarget = isTarget;
    update();
}

void FolderPanel::dragEnterEvent(QDragEnterEvent *event) {
    if (draggedPaths(event->mimeData()).empty())
        return;
    event->acceptProposedAction();
    setDropTarget(true);
}

void FolderPanel::dragLeaveEvent(QDragLeaveEvent *) {
    setDropTarget(false);
}

void FolderPanel::dropEvent(QDropEvent *event) {
    setDropTarget(false);
    openDropped(*event, m_session);
}

void FolderPanel::paintEvent(QPaintEvent *) {
    if (!m_isDropTarget)
        return;
    QPainter painter(this);
    const int width = std::max(2, fontMetrics().height() / 6);
    painter.setPen(QPen(paletteOf(*this, m_session).dropTarget, width));
    const double half = width / 2.0;
    painter.drawRect(QRectF(rect()).adjusted(half, half, -half, -half));
}

} // namespace chronomender
