// SPDX-License-Identifier: GPL-3.0-or-later
#include "Invitation.h"

#include "Controls.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace chronomender {

Invitation::Invitation(QWidget *parent) : QWidget(parent) {
    auto *title = new QLabel(qText("folders_empty"));
    QFont font = title->font();
    font.setPointSizeF(font.pointSizeF() * 1.6);
    title->setFont(font);
    auto *hint = new QLabel(qText("folders_emptyHint"));
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *add = named(new QPushButton(qText("folders_add")), "folders_add");
    connect(add, &QPushButton::clicked, this, &Invitation::addWanted);
    const int line = fontMetrics().height();
    add->setMinimumHeight(2 * line);
    add->setMinimumWidth(add->sizeHint().width() + 2 * line);
    auto *layout = new QVBoxLayout(this);
    layout->addStretch();
    for (QLabel *label : {title, hint}) {
        label->setAlignment(Qt::AlignCenter);
        label->setWordWrap(true);
        layout->addWidget(label);
    }
    layout->addSpacing(line);
    layout->addWidget(add, 0, Qt::AlignHCenter);
    layout->addStretch();
    setFocusProxy(add);
}

} // namespace chronomender
