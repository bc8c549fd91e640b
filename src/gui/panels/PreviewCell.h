// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PreviewPainter.h"

#include <QAbstractButton>

#include <functional>

namespace chronomender {

/// One shot of the preview, drawn by its painter; it can be clicked. Main thread.
class PreviewCell : public QAbstractButton {
    Q_OBJECT
public:
    /// `palette` is asked at each drawing.
    PreviewCell(std::function<PaintPalette()> palette, QWidget *parent);

    void setPreview(PreviewPicture preview);
    /// Pixels of the screen that the picture's longer side can have here.
    int pixelSide() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    const QImage &scaledImage(const QSizeF &place);

    std::function<PaintPalette()> m_palette;
    PreviewPicture m_preview;
    QImage m_scaled;       ///< the picture in the size in which it is drawn
    qint64 m_scaledOf = 0; ///< cache key of the picture that it was made of
};

} // namespace chronomender
