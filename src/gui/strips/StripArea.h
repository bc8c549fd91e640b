// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "StripView.h"

class QLabel;

namespace chronomender {

/// The strips of a window: the timeline, and below it a second view of it or the shelf, where
/// there is one. The strip that has the keyboard is the session's strip with the focus.
class StripArea : public QWidget {
    Q_OBJECT
public:
    /// The session outlives the area.
    explicit StripArea(WindowSession &session, QWidget *parent = nullptr);
    ~StripArea() override;

    StripView &firstView() { return *m_first; }
    /// Null with one strip.
    StripView *secondView() { return m_second; }
    /// Of the session's strip with the focus.
    StripView &focusedView();
    StripShared &shared() { return m_shared; }

    void focusStrip() { focusedView().setFocus(Qt::OtherFocusReason); }
    void beginMoveWithArrows() { focusedView().beginMoveWithArrows(); }
    int thumbSize() const { return m_shared.thumbSize; }
    void setThumbSize(int size);
    void enlargeThumbs(int steps);
    /// Preferences, fonts or colours are others now.
    void refreshLook();

Q_SIGNALS:
    /// For the main item and all that is selected with it.
    void menuWanted(const QPoint &globalPosition);
    void activated();

private:
    void connectView(StripView *view);
    void followStrips();
    void followFocus();
    void tellOnScreen();

    StripShared m_shared;
    StripView *m_first;
    QLabel *m_title;
    StripView *m_second = nullptr;
    bool m_hasLabels = true;
};

} // namespace chronomender
