// SPDX-License-Identifier: GPL-3.0-or-later
#include "Texts.h"
#include "UndoManager.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

class UndoManagerTest : public testing::Test {
protected:
    using Cell = std::shared_ptr<std::string>;

    /// An undoable setter: the inverse registers the forward form again.
    void setValue(const Cell &target, const std::string &value) {
        undo.recordAffected(target);
        undo.registerUndo(target, [this, weak = std::weak_ptr(target), old = *target](auto &) {
            setValue(weak.lock(), old);
        });
        *target = value;
    }
    void set(const std::string &value) { setValue(cell, value); }

    UndoManager undo;
    Cell cell = std::make_shared<std::string>(), other = std::make_shared<std::string>();
};

TEST_F(UndoManagerTest, UndoAndRedoGoBackAndForthAndANewCommandEndsTheRedo) {
    set("a");
    set("b");
    undo.undo();
    EXPECT_EQ(*cell, "a");
    undo.undo();
    EXPECT_EQ(*cell, "");
    EXPECT_FALSE(undo.canUndo());
    undo.undo(); // nothing left: nothing happens
    undo.redo();
    undo.redo();
    EXPECT_EQ(*cell, "b");
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    set("c");
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(*cell, "a");
}

TEST_F(UndoManagerTest, AGroupIsOneStepTakenBackInReverseOrder) {
    {
        const UndoGroup outer(undo);
        set("a");
        {
            const UndoGroup inner(undo);
            set("b");
        }
        set("c");
        undo.setActionName("dragInSingleMode");
        undo.undo(); // not inside an open group
        EXPECT_EQ(*cell, "c");
    }
    {
        const UndoGroup empty(undo); // leaves no trace
        undo.setActionName("lost");
    }
    undo.endGroup(); // one too many
    EXPECT_EQ(undo.undoActionName(), "dragInSingleMode");
    for (int round = 0; round < 2; ++round) {
        undo.undo();
        EXPECT_EQ(*cell, "");
        EXPECT_FALSE(undo.canUndo());
        EXPECT_EQ(undo.redoActionName(), "dragInSingleMode");
        undo.redo();
        EXPECT_EQ(*cell, "c");
    }
    undo.setActionName("undoDateChangeText"); // finds the last step
    EXPECT_EQ(undo.undoActionName(), "undoDateChangeText");
}

TEST_F(UndoManagerTest, TellsWhatTheLastUndoOrRedoTouched) {
    set("a");
    EXPECT_FALSE(undo.lastAffectedObject<std::string>()) << "a command is not an undo";
    setValue(other, "x");
    undo.undo();
    EXPECT_EQ(undo.lastAffectedObject<std::string>(), other);
    EXPECT_FALSE(undo.lastAffectedObject<int>());
    undo.undo();
    EXPECT_EQ(undo.lastAffectedObject<std::string>(), cell);
    undo.redo();
    undo.redo();
    other.reset();
    EXPECT_FALSE(undo.lastAffectedObject<std::string>()) << "it is not kept alive";
}

TEST_F(UndoManagerTest, MenuTitlesNameTheStepInTheUsersLanguage) {
    loadTexts("de");
    EXPECT_EQ(undo.undoMenuItemTitle(), "Rückgängig");
    set("a");
    undo.setActionName("dragInSingleMode");
    EXPECT_EQ(undo.undoMenuItemTitle(), "Rückgängig: " + text("dragInSingleMode"));
    undo.undo();
    loadTexts("en");
    EXPECT_EQ(undo.redoMenuItemTitle(), "Redo Move Items in Time");
}

TEST_F(UndoManagerTest, StepsOfTargetsThatAreGoneArePassedOver) {
    set("a");
    setValue(other, "x");
    other.reset();
    undo.undo();
    EXPECT_EQ(*cell, "") << "one undo takes back the last step that still can be";
    EXPECT_TRUE(undo.canRedo());
}

TEST_F(UndoManagerTest, RemovingATargetDropsItsRecordsAndTheStepsThatAreThenEmpty) {
    set("a");
    {
        const UndoGroup group(undo);
        set("b");
        setValue(other, "x");
    }
    setValue(other, "y");
    undo.undo(); // leaves a redo step of the other
    undo.removeAllActionsWithTargets({other.get(), this});
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(*cell, "a");
    EXPECT_EQ(*other, "x");
    undo.removeAllActions();
    EXPECT_FALSE(undo.canUndo() || undo.canRedo());
}

TEST_F(UndoManagerTest, ATargetRemovedWhileItsStepRunsIsNotTouchedAnyMore) {
    {
        const UndoGroup group(undo);
        setValue(other, "x");
        undo.registerUndo(cell, [this](std::string &) {
            undo.removeAllActionsWithTarget(other.get());
            EXPECT_TRUE(undo.isUndoing());
        });
    }
    undo.undo();
    EXPECT_EQ(*other, "x");
    EXPECT_FALSE(undo.isUndoing());
}

} // namespace
} // namespace chronomender
