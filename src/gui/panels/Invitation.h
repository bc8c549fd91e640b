// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

namespace chronomender {

/// What a window without folders shows in its middle: what to do first, and that it is safe.
class Invitation : public QWidget {
    Q_OBJECT
public:
    explicit Invitation(QWidget *parent = nullptr);

Q_SIGNALS:
    /// The person wants to choose folders to add.
    void addWanted();
};

} // namespace chronomender
