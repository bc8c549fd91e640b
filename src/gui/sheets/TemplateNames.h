// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "NameBuilder.h"

#include <QColor>
#include <QMetaType>
#include <QStyledItemDelegate>

class QPainter;
class QPalette;
class QRect;

namespace chronomender {

/// How the parts of a name look: values stand on a tint of their own, so that a person sees what
/// became of each element of the template.
struct NameColors {
    QColor ink, tint; ///< an invalid tint: none
};
NameColors colorsOf(const StyledRun &run, const QPalette &palette, bool hasTints);
/// The tint of a slot, also for the elements of an editor.
QColor tintOfSlot(int slot, const QPalette &palette);

/// The name in one line, cut at the right with an ellipsis.
void paintStyledName(QPainter &painter, const QRect &area, const StyledName &name,
                     const QPalette &palette, bool hasTints);
/// The same for a label. A carriage return parts lines.
QString richTextOf(const StyledName &name, const QPalette &palette);

/// Draws the items of a view that have a StyledName under `role`; other items as usual.
class StyledNameDelegate : public QStyledItemDelegate {
public:
    static constexpr int role = Qt::UserRole + 1;

    using QStyledItemDelegate::QStyledItemDelegate;
    void setTinted(bool hasTints) { m_hasTints = hasTints; }
    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;

private:
    bool m_hasTints = true;
};

} // namespace chronomender

Q_DECLARE_METATYPE(chronomender::StyledName)
