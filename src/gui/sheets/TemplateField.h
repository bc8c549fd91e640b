// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "PrefRenameController.h"

#include <QTextEdit>
#include <QTextObjectInterface>

#include <optional>
#include <vector>

namespace chronomender {

/// The words on an element: its label, and for add-ons the one of the occurrence (0 to 2).
QString elementLabel(RenameElement element, int occurrence);
/// Which value of a name it places, 0 to 11.
int elementSlot(RenameElement element, int occurrence);

/// Draws an element as one character of a text.
class TemplateElementObject : public QObject, public QTextObjectInterface {
    Q_OBJECT
    Q_INTERFACES(QTextObjectInterface)
public:
    static constexpr int type = QTextFormat::UserObject + 1;
    enum Property { Label = QTextFormat::UserProperty + 1, Slot };

    using QObject::QObject;
    QSizeF intrinsicSize(QTextDocument *document, int position, const QTextFormat &format) override;
    void drawObject(QPainter *painter, const QRectF &area, QTextDocument *document, int position,
                    const QTextFormat &format) override;
};

/// The field in which a template is written: text, and elements as tokens. It shows what the
/// controller holds and sends it every change; the controller outlives it. Elements are moved by
/// the mouse, or by Alt and the arrow keys.
class TemplateField : public QTextEdit {
    Q_OBJECT
public:
    static constexpr const char *mimeType = "application/x-chronomender-template-parts";

    TemplateField(PrefRenameController &controller, UndoManager &undo, QWidget *parent);

    /// Shows what the controller holds now, with the cursor there.
    void render(int cursorPosition);
    void insert(RenameElement element);
    void undoStep(bool isRedo);
    static QMimeData *mimeDataOf(const std::vector<TemplatePart> &parts);

Q_SIGNALS:
    void edited();
    void refused(); ///< a character that cannot be part of a name
    void elementMenuWanted(RenameElement element, const QPoint &globalPosition);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void inputMethodEvent(QInputMethodEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    QMimeData *createMimeDataFromSelection() const override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;
    void dropEvent(QDropEvent *event) override;

private:
    using Range = PrefRenameController::Range;
    Range selection() const;
    bool handleEditing(const QKeyEvent &event);
    void passOn(QKeyEvent *event);
    void removeTo(QTextCursor::MoveOperation operation);
    void replaceSelection(const QString &text);
    void moveElementBy(int step);
    void showMenu(int position, const QPoint &globalPosition);
    std::optional<int> elementPosition(const QPoint &place) const;
    void finish(bool isChanged, std::size_t cursorPosition);

    PrefRenameController &m_controller;
    UndoManager &m_undo;
    std::optional<int> m_pressed; ///< the element that the mouse may drag
    QPoint m_pressedAt;
    bool m_isDragging = false;
};

} // namespace chronomender
