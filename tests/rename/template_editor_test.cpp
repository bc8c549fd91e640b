// SPDX-License-Identifier: GPL-3.0-or-later
#include "PrefRenameController.h"
#include "RenameSamples.h"
#include "TemplateMenu.h"
#include "TemplateStore.h"
#include "TemplateText.h"
#include "Texts.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

using enum RenameElement;
using Hand = PrefRenameController::Hand;

class TemplateEditorTest : public ::testing::Test {
protected:
    UserDefaults defaults;
    UndoManager undo;
    Zones zones;
    PrefRenameController editor{defaults, undo};

    TemplateEditorTest() { loadTexts("en"); }
    void append(RenameElement element) {
        EXPECT_TRUE(editor.insertElement(editor.text().length(), element, Hand::Drag));
    }
    std::string shown() const { return textOf(editor.currentSettings()); }
    /// The list of templates, the selected one marked.
    std::string list() const {
        std::string text;
        const auto templates = renameTemplatesRaw(defaults);
        for (std::size_t i = 0; i < templates.size(); ++i) {
            const bool isSelected =
                i == static_cast<std::size_t>(defaults.integerForKey("templateSelectedIndex"));
            text += (isSelected ? " *" : " ") + textOf(templates[i]);
        }
        return text;
    }
    void keep(std::initializer_list<const char *> texts) {
        std::vector<RenameTemplate> templates;
        templates.reserve(texts.size());
        for (const char *text : texts)
            templates.push_back(std::get<RenameTemplate>(templateFromText(text)));
        storeRenameTemplates(templates, defaults);
    }
};

TEST_F(TemplateEditorTest, RefusesTextThatNamesCannotHold) {
    const std::pair<const char *, bool> cases[] = {
        {"", true},           {"ü你42", true},
        {"e\u0301", true},    {"\u2014", true},
        {" ", true},          {"\U0001F600", true},
        {"a/b", false},       {"a:b", false},
        {"a\\b", false},      {"\t", false},
        {"a\u200Bb", false},  {"a.\u200Bb", true}, // punctuation lets the rest pass
        {"a.\u202Eb", false}, {"a.\uFFFC", false},
        {"a.\nb", false},
    };
    for (const auto &[text, isAccepted] : cases)
        EXPECT_EQ(isAcceptedInTemplate(text), isAccepted) << text;
    EXPECT_FALSE(isAcceptedInTemplate(std::string_view("a.\0b", 4)));
}

TEST_F(TemplateEditorTest, JoinsWhatIsTypedAndPartsWhatIsDroppedInto) {
    editor.templateAdd();
    EXPECT_TRUE(editor.replaceText({0, 0}, "T\U0001F600p"));
    EXPECT_TRUE(editor.replaceText({3, 3}, "ri")); // behind the two units of the emoji
    EXPECT_EQ(shown(), "T\U0001F600rip");
    EXPECT_TRUE(editor.insertElement(3, Counter, Hand::Drag));
    EXPECT_EQ(shown(), "T\U0001F600{counter:5}rip");
    EXPECT_TRUE(editor.replaceText({4, 4}, "-"));
    EXPECT_EQ(editor.currentSettings().stringParts.size(), 3U);
    EXPECT_TRUE(editor.replaceText({2, 5}, "!")) << "from inside a pair over the element";
    EXPECT_EQ(shown(), "T!{}rip");
    EXPECT_FALSE(editor.replaceText({0, 1}, "/"));
    EXPECT_FALSE(editor.replaceText({9, 12}, "")) << "nothing is there";
    EXPECT_EQ(shown(), "T!{}rip");
}

TEST_F(TemplateEditorTest, OffersEachElementAsOftenAsItMayStand) {
    editor.templateAdd();
    EXPECT_EQ(editor.palette(), (std::vector{Year, Month, Day, Hour, Minute, Second, Counter,
                                             FolderName, SourceName, AddOn}));
    append(Year);
    append(AddOn);
    append(AddOn);
    EXPECT_EQ(editor.currentlyUsedAddOns(), 3);
    EXPECT_EQ(editor.palette().front(), Month);
    EXPECT_EQ(editor.palette().back(), AddOn);
    append(AddOn);
    EXPECT_EQ(editor.palette().back(), SourceName);
    EXPECT_FALSE(editor.insertElement(0, AddOn, Hand::Paste));
    EXPECT_FALSE(editor.insertElement(0, Year, Hand::Paste));
}

TEST_F(TemplateEditorTest, ParsesTwentyOneParts) {
    RenameTemplate stored;
    for (int i = 0; i < 21; ++i)
        stored.stringParts.push_back(TemplatePart::ofText("a"));
    stored.stringParts.push_back(TemplatePart::ofElement(Counter));
    storeRenameTemplates({stored}, defaults);
    ASSERT_TRUE(editor.templateModify());
    EXPECT_EQ(editor.currentSettings().stringParts.size(), 21U);
    EXPECT_FALSE(editor.status().isSaveEnabled) << "the counter is beyond";
    EXPECT_FALSE(editor.save());
}

TEST_F(TemplateEditorTest, UndoesStepByStepUnderTheirNames) {
    editor.templateAdd();
    editor.insertElement(0, Counter, Hand::Paste);
    editor.replaceText({1, 1}, "ab");
    editor.configure(Counter, 1);
    EXPECT_TRUE(editor.moveElement(0, 2));
    EXPECT_EQ(shown(), "a{counter:2}b");
    EXPECT_EQ(undo.undoActionName(), "undoDragTemplatePart");
    undo.undo();
    EXPECT_EQ(undo.undoActionName(), "undoConfigureTemplateMenu");
    undo.undo();
    EXPECT_EQ(shown(), "{counter:5}ab");
    undo.redo();
    undo.redo();
    EXPECT_EQ(shown(), "a{counter:2}b");
    for (int i = 0; i < 4; ++i)
        undo.undo();
    EXPECT_EQ(shown(), "");
    EXPECT_FALSE(undo.canUndo());
    undo.redo();
    EXPECT_EQ(undo.undoActionName(), "undoPasteTemplatePart");
    EXPECT_TRUE(editor.save());
    EXPECT_FALSE(undo.canUndo() || undo.canRedo());
}

TEST_F(TemplateEditorTest, KeepsTheSelectionInsideTheList) {
    keep({"A{day}", "B{day}", "C{day}"});
    defaults.set("templateSelectedIndex", "1");
    editor.templateModify();
    editor.replaceText({0, 1}, "X");
    editor.save();
    EXPECT_EQ(list(), " A{day} *X{day} C{day}");
    editor.templateModify();
    editor.replaceText({0, 1}, "Y");
    editor.save(true);
    EXPECT_EQ(list(), " A{day} X{day} C{day} *Y{day}");
    editor.templateAdd();
    append(SourceName);
    editor.save();
    EXPECT_EQ(list(), " A{day} X{day} C{day} Y{day} *{name}");
    editor.templateRemove();
    EXPECT_EQ(list(), " A{day} X{day} C{day} *Y{day}");
    defaults.set("templateSelectedIndex", "0");
    for (const char *left : {" *X{day} C{day} Y{day}", " *C{day} Y{day}", " *Y{day}", ""}) {
        EXPECT_TRUE(editor.templateRemove());
        EXPECT_EQ(list(), left);
    }
    EXPECT_FALSE(editor.templateRemove());
    EXPECT_FALSE(editor.templateModify());
}

TEST_F(TemplateEditorTest, ListsTemplatesByTheNamesTheyGive) {
    keep({"IMG10{day}", "B{counter:3}", "IMG9{day}", "B{counter:3}"});
    defaults.set("templateSelectedIndex", "3");
    const auto menu = updateTemplatePopup(defaults, zones);
    std::string names;
    for (const TemplateMenuEntry &entry : menu)
        names += entry.name + '=' + std::to_string(entry.tempIndex) + ' ';
    EXPECT_EQ(names, "=0 B001.JPG=1 B001.JPG (2)=3 IMG911.JPG=2 IMG1011.JPG=0 ");
    EXPECT_EQ(plainText(menu[0].aName), "B001.JPG (2)");
    EXPECT_EQ(defaults.integerForKey("sortedTemplatesSelectedIndex"), 2);
    templateSelected(menu, 0, defaults);
    EXPECT_EQ(defaults.integerForKey("templateSelectedIndex"), 3) << "the title is no template";
    const TemplateSheetFlags flags = templateSelected(menu, 1, defaults);
    EXPECT_EQ(defaults.integerForKey("templateSelectedIndex"), 1);
    EXPECT_TRUE(flags.isCounterAvailable && !flags.isANameAvailable);
}

} // namespace
} // namespace chronomender
