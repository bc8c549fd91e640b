// SPDX-License-Identifier: GPL-3.0-or-later
#include "TemplateField.h"

#include "Controls.h"
#include "TemplateNames.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QContextMenuEvent>
#include <QDataStream>
#include <QMimeData>
#include <QPainter>
#include <QScrollBar>

#include <array>

namespace chronomender {
namespace {

using Hand = PrefRenameController::Hand;

struct KeyRemoval {
    QKeySequence::StandardKey key;
    QTextCursor::MoveOperation to;
};
constexpr std::array<KeyRemoval, 4> keyRemovals{
    {{QKeySequence::Delete, QTextCursor::NextCharacter},
     {QKeySequence::DeleteStartOfWord, QTextCursor::PreviousWord},
     {QKeySequence::DeleteEndOfWord, QTextCursor::NextWord},
     {QKeySequence::DeleteEndOfLine, QTextCursor::End}}};

std::vector<TemplatePart> partsOf(const QMimeData &source) {
    std::vector<TemplatePart> parts;
    if (!source.hasFormat(QLatin1String(TemplateField::mimeType))) {
        if (source.hasText())
            parts.push_back(TemplatePart::ofText(source.text().simplified().toStdString()));
        return parts;
    }
    const QByteArray data = source.data(QLatin1String(TemplateField::mimeType));
    QDataStream stream(data);
    while (!stream.atEnd() && stream.status() == QDataStream::Ok) {
        qint32 element = 0;
        QString words;
        stream >> element >> words;
        if (element >= 1 && element <= renameElementCount)
            parts.push_back(TemplatePart::ofElement(static_cast<RenameElement>(element)));
        else if (!words.isEmpty())
            parts.push_back(TemplatePart::ofText(words.toStdString()));
    }
    return parts;
}

} // namespace

int elementSlot(RenameElement element, int occurrence) {
    constexpr std::array addOnSlots{8, 10, 11};
    if (element == RenameElement::AddOn)
        return addOnSlots[static_cast<std::size_t>(std::min(occurrence, 2))];
    return element == RenameElement::SourceName ? 9 : static_cast<int>(element) - 1;
}

QString elementLabel(RenameElement element, int occurrence) {
    static constexpr std::array<const char *, 3> suffixes{"", "b", "c"};
    std::string key = "renameStringPartGraphic_" + std::to_string(static_cast<int>(element));
    if (element == RenameElement::AddOn)
        key += suffixes[static_cast<std::size_t>(std::min(occurrence, 2))];
    return qText(key);
}

QSizeF TemplateElementObject::intrinsicSize(QTextDocument *document, int,
                                            const QTextFormat &format) {
    const QFontMetricsF metrics(document->defaultFont());
    return {metrics.horizontalAdvance(format.property(Label).toString()) + metrics.height(),
            metrics.height() + 2};
}

void TemplateElementObject::drawObject(QPainter *painter, const QRectF &area,
                                       QTextDocument *document, int, const QTextFormat &format) {
    const QPalette palette = qobject_cast<QWidget *>(document->parent())
                                 ? qobject_cast<QWidget *>(document->parent())->palette()
                                 : QApplication::palette();
    const QRectF box = area.adjusted(1, 0, -1, 0);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(palette.color(QPalette::PlaceholderText));
    painter->setBrush(tintOfSlot(format.property(Slot).toInt(), palette));
    painter->drawRoundedRect(box, box.height() / 3, box.height() / 3);
    painter->setPen(palette.color(QPalette::Text));
    painter->setFont(document->defaultFont());
    painter->drawText(box, Qt::AlignCenter, format.property(Label).toString());
    painter->restore();
}

TemplateField::TemplateField(PrefRenameController &controller, UndoManager &undo, QWidget *parent)
    : QTextEdit(parent), m_controller(controller), m_undo(undo) {
    setAcceptRichText(false);
    setUndoRedoEnabled(false);
    setTabChangesFocus(true);
    document()->documentLayout()->registerHandler(TemplateElementObject::type,
                                                  new TemplateElementObject(this));
    constexpr int lines = 3;
    setFixedHeight(lines * (fontMetrics().lineSpacing() + 2) + 2 * frameWidth() +
                   static_cast<int>(2 * document()->documentMargin()));
}

void TemplateField::render(int cursorPosition) {
    clear();
    QTextCursor cursor(document());
    int addOns = 0;
    QStringList words;
    for (const TemplatePart &part : m_controller.text().runs()) {
        if (!part.element) {
            cursor.insertText(qString(part.text), QTextCharFormat());
            words << QStringLiteral("“") + qString(part.text) + QStringLiteral("”");
            continue;
        }
        const int occurrence = *part.element == RenameElement::AddOn ? addOns++ : 0;
        QTextCharFormat format;
        format.setObjectType(TemplateElementObject::type);
        format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
        format.setProperty(TemplateElementObject::Label, elementLabel(*part.element, occurrence));
        format.setProperty(TemplateElementObject::Slot, elementSlot(*part.element, occurrence));
        cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
        words << elementLabel(*part.element, occurrence);
    }
    setAccessibleDescription(words.join(QStringLiteral(", ")));
    cursor.setPosition(std::clamp(cursorPosition, 0, document()->characterCount() - 1));
    setTextCursor(cursor);
}

TemplateField::Range TemplateField::selection() const {
    const QTextCursor cursor = textCursor();
    return {static_cast<std::size_t>(cursor.selectionStart()),
            static_cast<std::size_t>(cursor.selectionEnd())};
}

void TemplateField::finish(bool isChanged, std::size_t cursorPosition) {
    if (!isChanged)
        return;
    render(static_cast<int>(cursorPosition));
    Q_EMIT edited();
}

void TemplateField::undoStep(bool isRedo) {
    if (isRedo ? !m_undo.canRedo() : !m_undo.canUndo())
        return;
    const int cursor = textCursor().position();
    if (isRedo)
        m_undo.redo();
    else
        m_undo.undo();
    render(cursor);
    Q_EMIT edited();
}

void TemplateField::insert(RenameElement element) {
    const UndoGroup step(m_undo);
    const Range range = selection();
    if (range.begin < range.end)
        m_controller.replaceText(range, {});
    finish(m_controller.insertElement(range.begin, element, Hand::Paste), range.begin + 1);
}

void TemplateField::replaceSelection(const QString &text) {
    const Range range = selection();
    const bool isChanged = m_controller.replaceText(range, text.toStdString());
    if (!isChanged && !text.isEmpty())
        Q_EMIT refused();
    finish(isChanged, range.begin + static_cast<std::size_t>(text.size()));
}

void TemplateField::removeTo(QTextCursor::MoveOperation operation) {
    QTextCursor cursor = textCursor();
    if (!cursor.hasSelection())
        cursor.movePosition(operation, QTextCursor::KeepAnchor);
    setTextCursor(cursor);
    replaceSelection({});
}

void TemplateField::moveElementBy(int step) {
    const int position = textCursor().position();
    // The element behind the cursor, or the one in front of it.
    for (const int from : {position, position - 1}) {
        if (from < 0 || !m_controller.text().elementAt(static_cast<std::size_t>(from)))
            continue;
        const int to = step > 0 ? from + 2 : from - 1;
        const auto length = static_cast<int>(m_controller.text().length());
        if (to >= 0 && to <= length)
            finish(m_controller.moveElement(static_cast<std::size_t>(from),
                                            static_cast<std::size_t>(to)),
                   static_cast<std::size_t>(from + step));
        return;
    }
}

bool TemplateField::handleEditing(const QKeyEvent &event) {
    if (event.matches(QKeySequence::Undo) || event.matches(QKeySequence::Redo)) {
        undoStep(event.matches(QKeySequence::Redo));
        return true;
    }
    if (event.matches(QKeySequence::Cut)) {
        copy();
        replaceSelection({});
        return true;
    }
    const bool isPlain = (event.modifiers() & ~Qt::ShiftModifier) == Qt::NoModifier;
    if (event.key() == Qt::Key_Backspace && isPlain) {
        removeTo(QTextCursor::PreviousCharacter);
        return true;
    }
    for (const KeyRemoval &removal : keyRemovals)
        if (event.matches(removal.key)) {
            removeTo(removal.to);
            return true;
        }
    const bool isArrow = event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
    if (isArrow && event.modifiers().testFlag(Qt::AltModifier)) {
        moveElementBy(event.key() == Qt::Key_Right ? 1 : -1);
        return true;
    }
    const QString typed = event.text();
    const bool isCommand = event.modifiers().testFlag(Qt::ControlModifier) &&
                           !event.modifiers().testFlag(Qt::AltModifier);
    if (isCommand || typed.isEmpty() || !typed.front().isPrint())
        return false;
    replaceSelection(typed);
    return true;
}

void TemplateField::keyPressEvent(QKeyEvent *event) {
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isReturn || event->key() == Qt::Key_Escape)
        event->ignore();
    else if (event->key() == Qt::Key_Menu)
        showMenu(textCursor().position(), viewport()->mapToGlobal(cursorRect().bottomLeft()));
    else if (handleEditing(*event))
        event->accept();
    else
        passOn(event);
}

/// The field's own keys move the cursor. One that edits on some desktop has no effect.
void TemplateField::passOn(QKeyEvent *event) {
    QTextEdit::keyPressEvent(event);
    if (document()->characterCount() - 1 != static_cast<int>(m_controller.text().length()))
        render(textCursor().position());
}

void TemplateField::inputMethodEvent(QInputMethodEvent *event) {
    const QString committed = event->commitString();
    if (!committed.isEmpty()) {
        replaceSelection(committed);
        event->setCommitString({});
    }
    QTextEdit::inputMethodEvent(event);
}

std::optional<int> TemplateField::elementPosition(const QPoint &place) const {
    const int position = document()->documentLayout()->hitTest(
        place + QPointF(horizontalScrollBar()->value(), verticalScrollBar()->value()),
        Qt::ExactHit);
    for (const int each : {position, position - 1})
        if (each >= 0 && m_controller.text().elementAt(static_cast<std::size_t>(each)))
            return each;
    return std::nullopt;
}

void TemplateField::mousePressEvent(QMouseEvent *event) {
    m_isDragging = false;
    m_pressedAt = event->pos();
    m_pressed = event->button() == Qt::LeftButton ? elementPosition(event->pos()) : std::nullopt;
    // A drag of selected text would change the document behind the controller's back.
    QTextCursor cursor = textCursor();
    if (cursor.hasSelection() && event->button() == Qt::LeftButton &&
        !event->modifiers().testFlag(Qt::ShiftModifier)) {
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    QTextEdit::mousePressEvent(event);
}

void TemplateField::mouseMoveEvent(QMouseEvent *event) {
    if (!m_pressed)
        return QTextEdit::mouseMoveEvent(event);
    const int distance = (event->pos() - m_pressedAt).manhattanLength();
    m_isDragging = m_isDragging || distance >= QApplication::startDragDistance();
    if (m_isDragging)
        setTextCursor(cursorForPosition(event->pos()));
}

void TemplateField::mouseReleaseEvent(QMouseEvent *event) {
    QTextEdit::mouseReleaseEvent(event);
    if (m_pressed && m_isDragging) {
        const int to = cursorForPosition(event->pos()).position();
        finish(m_controller.moveElement(static_cast<std::size_t>(*m_pressed),
                                        static_cast<std::size_t>(to)),
               static_cast<std::size_t>(to));
    }
    m_pressed.reset();
    m_isDragging = false;
}

void TemplateField::showMenu(int position, const QPoint &globalPosition) {
    for (const int each : {position, position - 1})
        if (each >= 0)
            if (const auto element =
                    m_controller.text().elementAt(static_cast<std::size_t>(each))) {
                Q_EMIT elementMenuWanted(*element, globalPosition);
                return;
            }
}

void TemplateField::contextMenuEvent(QContextMenuEvent *event) {
    const auto position = elementPosition(event->pos());
    if (position)
        showMenu(*position, event->globalPos());
    event->accept();
}

QMimeData *TemplateField::mimeDataOf(const std::vector<TemplatePart> &parts) {
    QByteArray data;
    QDataStream stream(&data, QIODevice::WriteOnly);
    QString plain;
    for (const TemplatePart &part : parts) {
        stream << static_cast<qint32>(part.element ? static_cast<int>(*part.element) : 0)
               << qString(part.text);
        plain += qString(part.text);
    }
    auto *mime = new QMimeData;
    mime->setData(QLatin1String(mimeType), data);
    mime->setText(plain);
    return mime;
}

QMimeData *TemplateField::createMimeDataFromSelection() const {
    TemplateEditorText part = m_controller.text();
    const Range range = selection();
    part.replaceText({range.end, part.length()}, {});
    part.replaceText({0, range.begin}, {});
    return mimeDataOf(part.runs());
}

bool TemplateField::canInsertFromMimeData(const QMimeData *source) const {
    return source->hasText() || source->hasFormat(QLatin1String(mimeType));
}

void TemplateField::insertFromMimeData(const QMimeData *source) {
    const UndoGroup step(m_undo);
    Range range = selection();
    bool isChanged = range.begin < range.end && m_controller.replaceText(range, {});
    bool isRefused = false;
    for (const TemplatePart &part : partsOf(*source)) {
        const std::size_t before = m_controller.text().length();
        const bool isDone =
            part.element ? m_controller.insertElement(range.begin, *part.element, Hand::Paste)
                         : m_controller.replaceText({range.begin, range.begin}, part.text);
        isChanged |= isDone;
        isRefused |= !isDone && !part.element;
        range.begin += m_controller.text().length() - before;
    }
    if (isRefused)
        Q_EMIT refused();
    finish(isChanged, range.begin);
}

void TemplateField::dropEvent(QDropEvent *event) {
    // It ends in insertFromMimeData, with the cursor where something was dropped.
    QTextEdit::dropEvent(event);
    setFocus();
}

} // namespace chronomender
