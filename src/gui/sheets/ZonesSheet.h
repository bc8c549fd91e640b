// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "WindowSession.h"
#include "WorkThread.h"
#include "WorldClock.h"
#include "ZoneRows.h"

#include <QDialog>

#include <cstdint>

class QButtonGroup;
class QGridLayout;
class QGroupBox;
class QLabel;
class QPushButton;
class QVBoxLayout;

namespace chronomender {

class ZonePicker;

/// The zones of the selected folders, or of the selected items: which one the camera's clock meant,
/// and which one the files are to say. Four clocks show at once what a choice does to the first and
/// the last item; nothing changes before it is applied, which is one step that can be undone.
/// What differs among the folders stays as it is while nothing is chosen for it.
class ZonesSheet : public QDialog {
    Q_OBJECT
public:
    enum class Subject : std::uint8_t { SelectedFolders, SelectedItems };
    /// `session` outlives the sheet, which deletes itself when it is closed.
    ZonesSheet(WindowSession &session, Subject subject, QWidget *parent);

    /// What would be applied now.
    ZoneWish wish() const;

private:
    enum Choice { SameAsCamera, OwnStamps, System, Named };
    /// One side: its choices, and the list for a zone.
    struct Side {
        QButtonGroup *choices = nullptr;
        ZonePicker *picker = nullptr;
        Combined<ZoneChoice> present;
    };
    QGroupBox *makeSide(const char *titleKey, const std::vector<Choice> &choices, Side &side);
    std::optional<ZoneChoice> wishOf(const Side &side) const;
    std::optional<ZoneChoice> choiceOf(const Side &side) const;
    void showPresent(Side &side);
    QGroupBox *makeClocks();
    void refresh();
    void apply();

    WindowSession &m_session;
    ZoneSubject m_subject;
    ClockItems m_items;
    ZoneRows m_rows; ///< without rows until the worker has made them
    Side m_source, m_target;
    QGridLayout *m_clocks = nullptr;
    std::vector<QLabel *> m_zoneNames;          ///< one for each clock
    std::vector<std::vector<QLabel *>> m_clock; ///< for each clock one for each item
    QPushButton *m_apply = nullptr;
    WorkThread m_worker; ///< last: it ends before what it uses
};

} // namespace chronomender
