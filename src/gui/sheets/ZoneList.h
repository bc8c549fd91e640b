// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ZoneRows.h"

#include <QAbstractTableModel>
#include <QWidget>

#include <optional>
#include <string>
#include <vector>

class QLineEdit;
class QTreeView;

namespace chronomender {

/// Zones in rows: how far from UTC, where, and what daylight saving does.
class ZoneListModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { Offset, Place, Note, columnCountOfAll };

    using QAbstractTableModel::QAbstractTableModel;
    void setRows(std::vector<ZoneRow> rows);
    const ZoneRow &row(int index) const { return m_rows[static_cast<std::size_t>(index)]; }
    std::optional<int> indexOf(const std::string &zoneName) const;

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    std::vector<ZoneRow> m_rows;
};

/// A field to search in, and the list of the zones found. The arrow keys reach the list from the
/// field, so that a zone is chosen without leaving it.
class ZonePicker : public QWidget {
    Q_OBJECT
public:
    /// Without rows at first; the name is that of a text, told to screen readers.
    ZonePicker(const char *nameKey, QWidget *parent);

    /// `rows` outlives the picker. What was typed before is searched for in them.
    void setRows(const ZoneRows &rows);

    /// Name of the zone that is chosen; none for none.
    std::optional<std::string> zoneName() const;
    /// Shows a zone as chosen, without telling of it.
    void showZone(const std::string &name);
    QLineEdit *searchField() const { return m_search; }

Q_SIGNALS:
    void zoneChosen();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void search();

    const ZoneRows *m_rows = nullptr;
    std::string m_shown; ///< the zone that `showZone` told
    ZoneListModel *m_model;
    QLineEdit *m_search;
    QTreeView *m_list;
    bool m_isQuiet = false;
};

} // namespace chronomender
