// SPDX-License-Identifier: GPL-3.0-or-later
#include "CompoundMenuTag.h"
#include "LittleWindow.h"
#include "RenameSheet.h"
#include "RenameSheetRows.h"
#include "TemplateEditor.h"
#include "TemplateStore.h"
#include "TemplateText.h"
#include "TextModificationSheet.h"
#include "Texts.h"

#include <QApplication>
#include <QCheckBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTest>

#include <filesystem>
#include <set>

namespace chronomender {
namespace {

using little::LittleWindow;
using enum RenameElement;

class RenameSheetTest : public ::testing::Test {
protected:
    LittleWindow window;

    RenameSheetTest() {
        for (const char *name : {"a.jpg", "b.jpg", "c.jpg"})
            window.photo("canon", name,
                         std::string("2024:07:0") + std::to_string(name[0] % 16) + " 10:00:00");
    }
    void useTemplate(std::vector<TemplatePart> parts) {
        storeRenameTemplates({{{1, 1, 1}, std::move(parts)}}, window.session.defaults());
    }
    template<class Sheet>
    static QPointer<Sheet> openSheet() {
        QPointer<Sheet> found;
        for (QWidget *each : QApplication::topLevelWidgets())
            if (auto *sheet = qobject_cast<Sheet *>(each); sheet && sheet->isVisible())
                found = sheet;
        return found;
    }
    QPointer<RenameSheet> open(RenameSheetRequest request) {
        RenameSheet::openFor(request, window.session, nullptr);
        return openSheet<RenameSheet>();
    }
    static QPushButton *button(const QWidget *sheet, const char *key) {
        for (QPushButton *each : sheet->findChildren<QPushButton *>())
            if (each->accessibleName() == QString::fromStdString(text(key)))
                return each;
        ADD_FAILURE() << key;
        return nullptr;
    }
    static std::string column(const QWidget *sheet, int column) {
        std::string names;
        const auto *rows = sheet->findChild<RenameSheetRows *>();
        for (int row = 0; row < rows->rowCount(); ++row)
            names += rows->index(row, column).data().toString().toStdString() + ' ';
        return names;
    }
    std::set<std::string> onDisk() const {
        std::set<std::string> names;
        for (const auto &entry : std::filesystem::directory_iterator(window.disk.path("canon")))
            names.insert(entry.path().filename());
        return names;
    }
};

TEST_F(RenameSheetTest, ShowsChecksAndRenames) {
    useTemplate({TemplatePart::ofText("x"), TemplatePart::ofElement(Day)});
    window.open({"canon"});
    window.disk.write("canon/x02.jpg", "somebody's");
    const QPointer<RenameSheet> sheet = open(RenameSheetRequest::RenameCurrent);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(column(sheet, RenameSheetRows::New), "x01.jpg x02.jpg x03.jpg ");
    button(sheet, "rename_check")->click();
    EXPECT_FALSE(button(sheet, "rename_start")->isEnabled()) << "while the names are checked";
    const auto *next = button(sheet, "rename_next");
    ASSERT_TRUE(LittleWindow::waitFor([&] { return next->isEnabled(); }));
    EXPECT_EQ(column(sheet, RenameSheetRows::New), "x01.jpg x02 2.jpg x03.jpg ");
    EXPECT_EQ(column(sheet, RenameSheetRows::Note),
              " " + text("rename_noteNumber", {"x02.jpg"}) + "  ");
    QTest::keyClick(sheet, Qt::Key_Return);
    ASSERT_TRUE(LittleWindow::waitFor(
        [&] { return sheet.isNull() && window.session.saveFlow().isIdle(); }));
    EXPECT_EQ(onDisk(), (std::set<std::string>{"x01.jpg", "x02 2.jpg", "x02.jpg", "x03.jpg"}));
}

TEST_F(RenameSheetTest, SavesFirstWhereChangesWait) {
    useTemplate({TemplatePart::ofElement(Hour), TemplatePart::ofElement(Counter)});
    window.open({"canon"});
    window.session.edit([&](AppController &app) {
        app.shiftFolder(*window.session.folders().front(), absl::Hours(1));
    });
    window.questions.confirmed = Answer::Cancelled;
    EXPECT_FALSE(open(RenameSheetRequest::RenameCurrent));
    EXPECT_EQ(window.questions.confirmations.size(), 1U);
    window.questions.confirmed = Answer::Accepted;
    const QPointer<RenameSheet> sheet = open(RenameSheetRequest::RenameCurrent);
    ASSERT_TRUE(sheet);
    EXPECT_EQ(column(sheet, RenameSheetRows::New), "1101.jpg 1102.jpg 1103.jpg ");
    button(sheet, "rename_start")->click();
    ASSERT_TRUE(LittleWindow::waitFor([&] { return window.session.saveFlow().isIdle(); }));
    EXPECT_EQ(onDisk(), (std::set<std::string>{"1101.jpg", "1102.jpg", "1103.jpg"}));
    EXPECT_FALSE(window.session.hasUnsavedChanges());
}

TEST_F(RenameSheetTest, ClosesOnlyWhenACheckHasEnded) {
    useTemplate({TemplatePart::ofElement(Counter)});
    window.open({"canon"});
    const QPointer<RenameSheet> sheet = open(RenameSheetRequest::RenameAll);
    button(sheet, "rename_check")->click();
    sheet->reject();
    EXPECT_TRUE(sheet && sheet->isVisible());
    EXPECT_TRUE(LittleWindow::waitFor([&] { return sheet.isNull(); }));
    EXPECT_FALSE(window.session.jobs().isAnyRunning());
    EXPECT_FALSE(window.session.controller().cancellation().isRequested());
}

TEST_F(RenameSheetTest, FollowsItsChoices) {
    useTemplate({TemplatePart::ofElement(AddOn), TemplatePart::ofElement(SourceName),
                 TemplatePart::ofElement(Counter)});
    window.open({"canon"});
    const QPointer<RenameSheet> sheet = open(RenameSheetRequest::RenameCurrent);
    for (QLineEdit *field : sheet->findChildren<QLineEdit *>())
        if (field->isVisible() && field->accessibleName() == QStringLiteral("Text 1"))
            QTest::keyClicks(field, QStringLiteral("Oslo"));
    EXPECT_EQ(column(sheet, RenameSheetRows::New), "Osloa01.jpg Oslob02.jpg Osloc03.jpg ");
    auto *changes = new TextModificationSheet(window.session, ModificationTag::File, sheet);
    for (QCheckBox *box : changes->findChildren<QCheckBox *>())
        if (box->text() == QString::fromStdString(text("rename_rowChangeCase")))
            box->click();
    EXPECT_EQ(modificationsForTag(ModificationTag::File, window.session.defaults()).size(), 4U);
    EXPECT_TRUE(
        changesAnything(modificationsForTag(ModificationTag::File, window.session.defaults())));
    sheet->reject();
}

TEST_F(RenameSheetTest, WritesATemplateByKeyboardAlone) {
    window.open({"canon"});
    RenameSheetController samples(RenameSheetRequest::RenameAll, window.session.renameSheetViews(),
                                  window.session.defaults(), window.session.zones());
    const QPointer<TemplateEditor> editor(
        new TemplateEditor(window.session, samples, true, nullptr));
    editor->open();
    auto *field = editor->findChild<TemplateField *>();
    auto *palette = editor->findChild<QListWidget *>();
    QTest::keyClicks(field, QStringLiteral("ab:c"));
    EXPECT_EQ(field->toPlainText(), QStringLiteral("abc")) << "a colon is no part of a name";
    EXPECT_FALSE(button(editor, "rename_templateSave")->isEnabled());
    palette->setCurrentRow(6); // the counter
    QTest::keyClick(palette, Qt::Key_Return);
    ASSERT_TRUE(editor && editor->isVisible()) << "Enter inserts, and saves nothing";
    EXPECT_TRUE(button(editor, "rename_templateSave")->isEnabled());
    QTest::keyClick(field, Qt::Key_Left, Qt::AltModifier);
    QTest::keyClick(field, Qt::Key_Home);
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClick(field, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(field, Qt::Key_End);
    QTest::keyClick(field, Qt::Key_Backspace);
    QTest::keyClick(field, Qt::Key_Return);
    EXPECT_TRUE(LittleWindow::waitFor([&] { return editor.isNull(); }));
    const auto saved = selectedTemplate(window.session.defaults());
    ASSERT_TRUE(saved);
    EXPECT_EQ(saved->stringParts,
              (std::vector{TemplatePart::ofText("ab"), TemplatePart::ofElement(Counter)}));
}

TEST_F(RenameSheetTest, TakesElementsFromClipboardAndDrop) {
    useTemplate({TemplatePart::ofText("a"), TemplatePart::ofElement(Day)});
    UndoManager undo;
    PrefRenameController controller(window.session.defaults(), undo);
    controller.templateModify();
    TemplateField field(controller, undo, nullptr);
    field.render(0);
    const auto written = [&] {
        std::string words;
        for (const TemplatePart &part : controller.text().runs())
            words += part.element ? "{" + std::to_string(static_cast<int>(*part.element)) + "}"
                                  : part.text;
        return words + '|' + std::to_string(field.toPlainText().size());
    };
    field.selectAll();
    QTest::keyClick(&field, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(written(), "|0");
    field.paste();
    EXPECT_EQ(written(), "a{3}|2");
    const auto drop = [&field](const QMimeData *dropped) {
        QDragEnterEvent enter({}, Qt::CopyAction, dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(field.viewport(), &enter);
        QDropEvent event({}, Qt::CopyAction, dropped, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(field.viewport(), &event);
    };
    const std::unique_ptr<QMimeData> dragged(
        TemplateField::mimeDataOf({TemplatePart::ofElement(Counter), TemplatePart::ofText("b")}));
    drop(dragged.get());
    EXPECT_EQ(written(), "{7}ba{3}|4");
    field.undoStep(false);
    EXPECT_EQ(written(), "a{3}|2") << "a drop is one step";
    QMimeData path;
    path.setText(QStringLiteral("a/b"));
    drop(&path);
    EXPECT_EQ(written(), "a{3}|2");
}

} // namespace
} // namespace chronomender
