// SPDX-License-Identifier: GPL-3.0-or-later
#include "QuestionSheet.h"

#include "Controls.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace chronomender {
namespace {

constexpr int mostColumns = 70; ///< of text, before it is broken

QLabel *wrappedLabel(const std::string &words, QWidget *parent) {
    auto *label = new QLabel(qString(words), parent);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    label->setMinimumWidth(label->fontMetrics().averageCharWidth() * mostColumns);
    return label;
}

} // namespace

QuestionSheet::QuestionSheet(const std::string &message, const std::string &information,
                             QWidget *parent)
    : QDialog(parent), m_body(new QVBoxLayout), m_buttons(new QDialogButtonBox(this)) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(qString(message));
    auto *layout = new QVBoxLayout(this);
    auto *title = wrappedLabel(message, this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    layout->addWidget(title);
    if (!information.empty())
        layout->addWidget(wrappedLabel(information, this));
    layout->addLayout(m_body, 1);
    layout->addWidget(m_buttons);
}

QPushButton *QuestionSheet::addButton(std::string_view textKey, QDialogButtonBox::ButtonRole role,
                                      std::function<void()> pressed) {
    return addButtonWithText(text(textKey), role, std::move(pressed));
}

QPushButton *QuestionSheet::addButtonWithText(const std::string &words,
                                              QDialogButtonBox::ButtonRole role,
                                              std::function<void()> pressed) {
    QPushButton *button = m_buttons->addButton(qString(words), role);
    button->setAccessibleName(button->text());
    connect(button, &QPushButton::clicked, this, [this, pressed = std::move(pressed)] {
        m_answer = pressed ? pressed : [] {};
        done(QDialog::Accepted);
    });
    return button;
}

/// The answer is given once, however the sheet was closed.
void QuestionSheet::done(int result) {
    const auto answer = std::exchange(m_answer, {});
    const auto dismissed = std::exchange(m_dismissed, {});
    QDialog::done(result);
    if (answer)
        answer();
    else if (dismissed)
        dismissed();
}

} // namespace chronomender
