// SPDX-License-Identifier: GPL-3.0-or-later
#include "FolderListModel.h"

#include "Controls.h"
#include "WindowSession.h"

namespace chronomender {

FolderListModel::FolderListModel(WindowSession &session, QObject *parent)
    : QAbstractListModel(parent), m_session(session) {
    refresh();
}

std::vector<FolderRow>
FolderListModel::rowsOf(const std::vector<MySingleFolderPtr> &folders) const {
    const FilterContext context = filterContext(m_session.zones(), m_session.defaults());
    std::vector<FolderRow> rows;
    rows.reserve(folders.size());
    for (const MySingleFolderPtr &folder : folders)
        rows.push_back(folderRow(*folder, context, m_session.isBeingRead(*folder)));
    return rows;
}

bool FolderListModel::refresh() {
    std::vector<FolderRow> rows = rowsOf(m_session.folders());
    if (m_folders != m_session.folders()) {
        beginResetModel();
        m_folders = m_session.folders();
        m_rows = std::move(rows);
        endResetModel();
        return true;
    }
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i] == m_rows[i])
            continue;
        m_rows[i] = std::move(rows[i]);
        const QModelIndex changed = index(static_cast<int>(i));
        Q_EMIT dataChanged(changed, changed);
    }
    return false;
}

int FolderListModel::rowCount(const QModelIndex &parent) const {
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant FolderListModel::data(const QModelIndex &index, int role) const {
    if (!index.isValid() || index.row() >= rowCount())
        return {};
    const FolderRow &row = this->row(index.row());
    switch (role) {
    case Qt::DisplayRole: // what typing a name looks for
        return qString(row.name);
    case Qt::AccessibleTextRole:
        return qString(row.words());
    case Qt::ToolTipRole:
        return qString(row.path + '\n' + row.words());
    default:
        return {};
    }
}

} // namespace chronomender
