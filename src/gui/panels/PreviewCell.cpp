// SPDX-License-Identifier: GPL-3.0-or-later
#include "PreviewCell.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace chronomender {

PreviewCell::PreviewCell(std::function<PaintPalette()> palette, QWidget *parent)
    : QAbstractButton(parent), m_palette(std::move(palette)) {
    setAttribute(Qt::WA_Hover);
}

void PreviewCell::setPreview(PreviewPicture preview) {
    m_preview = std::move(preview);
    setCursor(isEnabled() && !m_preview.isMain ? Qt::PointingHandCursor : Qt::ArrowCursor);
    update();
}

int PreviewCell::pixelSide() const {
    const QSizeF place = previewImagePlace(rect(), font()).size();
    return static_cast<int>(std::max(place.width(), place.height()) * devicePixelRatioF());
}

/// Made once for a picture and a size: smooth scaling takes longer than a frame may.
const QImage &PreviewCell::scaledImage(const QSizeF &place) {
    const QImage &image = m_preview.image;
    const double ratio = devicePixelRatioF();
    const QSize size = image.size().scaled((place * ratio).toSize(), Qt::KeepAspectRatio);
    if (m_scaledOf != image.cacheKey() || m_scaled.size() != size) {
        m_scaled = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_scaled.setDevicePixelRatio(ratio);
        m_scaledOf = image.cacheKey();
    }
    return m_scaled;
}

void PreviewCell::paintEvent(QPaintEvent *) {
    PreviewPicture preview = m_preview;
    const QSizeF place = previewImagePlace(rect(), font()).size();
    if (!preview.image.isNull() && place.isValid() && !place.isEmpty())
        preview.image = scaledImage(place);
    preview.isHovered = underMouse() && isEnabled() && !preview.isMain;
    preview.hasCursor = hasFocus();
    QPainter painter(this);
    paintPreview(painter, rect(), preview, font(), m_palette());
}

void PreviewCell::enterEvent(QEnterEvent *event) {
    QAbstractButton::enterEvent(event);
    update();
}

void PreviewCell::leaveEvent(QEvent *event) {
    QAbstractButton::leaveEvent(event);
    update();
}

} // namespace chronomender
