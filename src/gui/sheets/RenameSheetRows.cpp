// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSheetRows.h"

#include "Controls.h"
#include "PaintPalette.h"
#include "RenameSamples.h"
#include "TemplateNames.h"

#include <QGuiApplication>
#include <QPalette>

#include <utility>

namespace chronomender {

RenameSheetRows::RenameSheetRows(RenameSheetController &controller, QObject *parent)
    : QAbstractTableModel(parent), m_controller(controller) {
    refresh();
}

void RenameSheetRows::refresh() {
    beginResetModel();
    m_check.reset();
    RenameSheetItems &items = m_controller.items();
    m_pics = items.currentPicsToSample();
    m_renamed.reset();
    if (const int type = items.restrictRenameType(); type != 0) {
        const auto &renamed = items.currentPicsToSampleWithRestrictType(type);
        m_renamed.emplace();
        for (const MySinglePicPtr &each : renamed)
            m_renamed->insert(each.get());
    }
    endResetModel();
}

void RenameSheetRows::setCheck(std::optional<RenameCheck> check) {
    m_check = std::move(check);
    if (!m_pics.empty())
        Q_EMIT dataChanged(index(0, New), index(rowCount() - 1, Note));
}

std::optional<int> RenameSheetRows::nextMarked(int row) const {
    const int count = rowCount();
    for (int step = 1; step <= count; ++step) {
        const int next = (row + step + count) % count;
        const CheckedName *checked = checkedName(next);
        if (checked && checked->mark != CheckedName::Mark::Fine)
            return next;
    }
    return std::nullopt;
}

const MySinglePic &RenameSheetRows::pic(int row) const {
    return *m_pics[static_cast<std::size_t>(row)];
}

const CheckedName *RenameSheetRows::checkedName(int row) const {
    return m_check ? m_check->nameOf(pic(row)) : nullptr;
}

bool RenameSheetRows::isRenamed(int row) const {
    return !m_renamed || m_renamed->contains(&pic(row));
}

int RenameSheetRows::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_pics.size());
}

int RenameSheetRows::columnCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : columnCountOfAll;
}

QVariant RenameSheetRows::newName(int row, int role) const {
    if (!isRenamed(row))
        return {};
    const CheckedName *checked = checkedName(row);
    if (checked && checked->mark == CheckedName::Mark::Numbered)
        return role == Qt::DisplayRole ? QVariant(qString(checked->name)) : QVariant();
    const StyledName name = m_controller.sampleTextForImage(pic(row));
    if (role == Qt::DisplayRole)
        return qString(plainText(name));
    return QVariant::fromValue(name);
}

QVariant RenameSheetRows::data(const QModelIndex &index, int role) const {
    const int row = index.row();
    const bool isNew = index.column() == New;
    if (isNew && (role == Qt::DisplayRole || role == StyledNameDelegate::role))
        return newName(row, role);
    if (role == Qt::DisplayRole || role == Qt::ToolTipRole) {
        if (index.column() == Present)
            return qString(pic(row).spName);
        const CheckedName *checked = checkedName(row);
        return checked ? qString(checked->note) : QString();
    }
    if (role == Qt::ForegroundRole) {
        const CheckedName *checked = checkedName(row);
        const auto colors = paintPalette(QGuiApplication::palette(), {});
        if (checked && checked->mark != CheckedName::Mark::Fine && index.column() != Present)
            return checked->mark == CheckedName::Mark::Refused ? colors.danger : colors.warning;
        if (!isRenamed(row))
            return colors.dimText;
    }
    return {};
}

QVariant RenameSheetRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    constexpr std::array<const char *, columnCountOfAll> keys{
        "rename_columnPresent", "rename_columnNew", "rename_columnNote"};
    return qText(keys[static_cast<std::size_t>(section)]);
}

} // namespace chronomender
