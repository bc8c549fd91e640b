// SPDX-License-Identifier: GPL-3.0-or-later
#include "ZoneList.h"

#include "Controls.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <utility>

namespace chronomender {

void ZoneListModel::setRows(std::vector<ZoneRow> rows) {
    beginResetModel();
    m_rows = std::move(rows);
    endResetModel();
}

std::optional<int> ZoneListModel::indexOf(const std::string &zoneName) const {
    const auto found = std::ranges::find(m_rows, zoneName, &ZoneRow::name);
    return found == m_rows.end() ? std::nullopt
                                 : std::optional(static_cast<int>(found - m_rows.begin()));
}

int ZoneListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

int ZoneListModel::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : columnCountOfAll;
}

QVariant ZoneListModel::data(const QModelIndex &index, int role) const {
    const ZoneRow &zone = row(index.row());
    if (role == Qt::ToolTipRole)
        return qString(zone.name);
    if (role == Qt::AccessibleTextRole && index.column() == Offset)
        return qString(zone.name + ", " + zone.country + ' ' + offsetText(zone) + ' ' + zone.note);
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case Place:
        return qString(zone.country.empty() ? zone.name : zone.place + ", " + zone.country);
    case Offset:
        return qString(offsetText(zone));
    default:
        return qString(zone.note);
    }
}

ZonePicker::ZonePicker(const char *nameKey, QWidget *parent)
    : QWidget(parent),
      m_model(new ZoneListModel(this)),
      m_search(new QLineEdit(this)),
      m_list(new QTreeView(this)) {
    m_search->setPlaceholderText(qText("zones_searchHint"));
    m_search->setClearButtonEnabled(true);
    m_search->setAccessibleName(qText(nameKey) + QStringLiteral(": ") + qText("zones_search"));
    m_search->installEventFilter(this);
    m_list->setAccessibleName(qText(nameKey));
    m_list->setModel(m_model);
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setHeaderHidden(true);
    m_list->setAllColumnsShowFocus(true);
    m_list->setTextElideMode(Qt::ElideRight);
    QHeaderView *header = m_list->header();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(ZoneListModel::Place, QHeaderView::Stretch);
    header->setSectionResizeMode(ZoneListModel::Offset, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(ZoneListModel::Note, QHeaderView::ResizeToContents);
    const QFontMetrics metrics = fontMetrics();
    constexpr int fewestRows = 6, characters = 78;
    m_list->setMinimumHeight(fewestRows * (metrics.height() + metrics.leading() + 4));
    setMinimumWidth(characters * metrics.averageCharWidth());
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_search);
    layout->addWidget(m_list, 1);
    setFocusProxy(m_search);
    connect(m_search, &QLineEdit::textChanged, this, [this] { search(); });
    connect(m_list->selectionModel(), &QItemSelectionModel::currentRowChanged, this, [this] {
        if (!m_isQuiet && m_list->currentIndex().isValid())
            Q_EMIT zoneChosen();
    });
}

std::optional<std::string> ZonePicker::zoneName() const {
    const QModelIndex current = m_list->currentIndex();
    return current.isValid() ? std::optional(m_model->row(current.row()).name) : std::nullopt;
}

void ZonePicker::setRows(const ZoneRows &rows) {
    m_rows = &rows;
    search();
    if (!m_shown.empty() && !zoneName())
        showZone(m_shown);
}

void ZonePicker::showZone(const std::string &name) {
    m_shown = name;
    m_isQuiet = true;
    if (const auto row = m_model->indexOf(name)) {
        m_list->setCurrentIndex(m_model->index(*row, 0));
        m_list->scrollTo(m_list->currentIndex(), QAbstractItemView::PositionAtCenter);
    }
    m_isQuiet = false;
}

/// What was chosen stays chosen while it is among what was found; else the best find is chosen, as
/// a person who types a place means it.
void ZonePicker::search() {
    if (!m_rows)
        return;
    const auto chosen = zoneName();
    const QString typed = m_search->text().trimmed();
    m_isQuiet = true;
    m_model->setRows(m_rows->matching(typed.toStdString()));
    m_isQuiet = false;
    if (typed.isEmpty()) {
        if (chosen)
            showZone(*chosen);
    } else if (m_model->rowCount() > 0) {
        m_list->setCurrentIndex(m_model->index(0, 0));
    }
}

bool ZonePicker::eventFilter(QObject *watched, QEvent *event) {
    constexpr std::array listKeys{Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown};
    if (watched == m_search && event->type() == QEvent::KeyPress) {
        const auto key = static_cast<QKeyEvent *>(event)->key();
        if (std::ranges::find(listKeys, key) != listKeys.end()) {
            QCoreApplication::sendEvent(m_list, event);
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace chronomender
