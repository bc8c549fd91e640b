// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "Coalesced.h"
#include "NeighbourFacts.h"

#include <QWidget>

#include <array>

namespace chronomender {

class Invitation;
class PreviewCell;
class WindowSession;

/// The main item large, between the shots before and after it: they tell whether the clock is
/// right. Main thread.
class PreviewPanel : public QWidget {
    Q_OBJECT
public:
    /// The session outlives the panel.
    explicit PreviewPanel(WindowSession &session, QWidget *parent = nullptr);

Q_SIGNALS:
    /// The main item was clicked.
    void mainActivated();
    /// The person wants to choose folders to add.
    void addWanted();

protected:
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void refresh();
    void refreshPictures();
    void placeCells();
    void select(std::size_t index);

    WindowSession &m_session;
    std::array<PreviewCell *, 3> m_cells{};
    Invitation *m_invitation = nullptr; ///< shown in their place while there is no folder
    NeighbourFacts m_facts;
    bool m_isAnyPending = false; ///< a thumbnail stands in for a preview
    Coalesced m_refresh;
};

} // namespace chronomender
