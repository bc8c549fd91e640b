// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QDialogButtonBox>

#include <functional>
#include <string>
#include <string_view>

class QVBoxLayout;
class QPushButton;

namespace chronomender {

/// A window-modal sheet: a message in bold, what it means, a body, and buttons. It deletes itself
/// when it is closed.
class QuestionSheet : public QDialog {
    Q_OBJECT
public:
    QuestionSheet(const std::string &message, const std::string &information, QWidget *parent);

    /// Where the body goes.
    QVBoxLayout *body() { return m_body; }
    /// The button closes the sheet and then calls `pressed`.
    QPushButton *addButton(std::string_view textKey, QDialogButtonBox::ButtonRole role,
                           std::function<void()> pressed = {});
    QPushButton *addButtonWithText(const std::string &text, QDialogButtonBox::ButtonRole role,
                                   std::function<void()> pressed = {});
    /// Called when the sheet was closed without any of its buttons.
    void setDismissed(std::function<void()> dismissed) { m_dismissed = std::move(dismissed); }

    void done(int result) override;

private:
    QVBoxLayout *m_body;
    QDialogButtonBox *m_buttons;
    std::function<void()> m_answer, m_dismissed;
};

} // namespace chronomender
