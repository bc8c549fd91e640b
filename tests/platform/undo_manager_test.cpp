// SPDX-License-Identifier: GPL-3.0-or-later
#include "UndoManager.h"

#include <gtest/gtest.h>

namespace chronomender {
namespace {

/// A value with an undoable setter: the inverse registers the forward form again.
struct Cell {
    std::string value;
};

void setValue(UndoManager &undo, const std::shared_ptr<Cell> &cell, const std::string &value) {
    undo.registerUndo(cell, [&undo, weak = std::weak_ptr(cell), old = cell->value](Cell &) {
        setValue(undo, weak.lock(), old);
    });
    cell->value = value;
}

class UndoManagerTest : public testing::Test {
protected:
    void set(const std::string &value) { setValue(undo, cell, value); }

    UndoManager undo;
    std::shared_ptr<Cell> cell = std::make_shared<Cell>();
    std::shared_ptr<Cell> other = std::make_shared<Cell>();
};

TEST_F(UndoManagerTest, UndoAndRedoGoBackAndForthAndANewCommandEndsTheRedo) {
    set("a");
    set("b");
    undo.undo();
    EXPECT_EQ(cell->value, "a");
    undo.undo();
    EXPECT_EQ(cell->value, "");
    EXPECT_FALSE(undo.canUndo());
    undo.undo(); // nothing left: nothing happens
    undo.redo();
    undo.redo();
    EXPECT_EQ(cell->value, "b");
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    set("c");
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(cell->value, "a");
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
        EXPECT_EQ(cell->value, "c");
    }
    EXPECT_EQ(undo.undoActionName(), "dragInSingleMode");
    undo.undo();
    EXPECT_EQ(cell->value, "");
    EXPECT_FALSE(undo.canUndo());
    EXPECT_EQ(undo.redoActionName(), "dragInSingleMode");
    undo.redo();
    EXPECT_EQ(cell->value, "c");
    undo.undo();
    EXPECT_EQ(cell->value, "");
}

TEST_F(UndoManagerTest, AnEmptyGroupLeavesNoTraceAndANameFindsTheLastStep) {
    set("a");
    {
        const UndoGroup group(undo);
        undo.setActionName("lost");
    }
    undo.endGroup(); // one too many
    EXPECT_EQ(undo.undoActionName(), "");
    undo.setActionName("undoDateChangeText");
    EXPECT_EQ(undo.undoActionName(), "undoDateChangeText");
    undo.undo();
    EXPECT_FALSE(undo.canUndo());
}

TEST_F(UndoManagerTest, StepsOfTargetsThatAreGoneArePassedOver) {
    set("a");
    setValue(undo, other, "x");
    other.reset();
    undo.undo();
    EXPECT_EQ(cell->value, "") << "one undo takes back the last step that still can be";
    EXPECT_TRUE(undo.canRedo());
}

TEST_F(UndoManagerTest, RemovingATargetDropsItsRecordsAndTheStepsThatAreThenEmpty) {
    set("a");
    {
        const UndoGroup group(undo);
        set("b");
        setValue(undo, other, "x");
    }
    setValue(undo, other, "y");
    undo.undo(); // leaves a redo step of the other
    undo.removeAllActionsWithTarget(other.get());
    EXPECT_FALSE(undo.canRedo());
    undo.undo();
    EXPECT_EQ(cell->value, "a");
    EXPECT_EQ(other->value, "x");
    undo.removeAllActions();
    EXPECT_FALSE(undo.canUndo() || undo.canRedo());
}

TEST_F(UndoManagerTest, ATargetRemovedWhileItsStepRunsIsNotTouchedAnyMore) {
    {
        const UndoGroup group(undo);
        setValue(undo, other, "x");
        undo.registerUndo(cell, [this](Cell &) {
            undo.removeAllActionsWithTarget(other.get());
            EXPECT_TRUE(undo.isUndoing());
        });
    }
    undo.undo();
    EXPECT_EQ(other->value, "x");
    EXPECT_FALSE(undo.isUndoing());
}

} // namespace
} // namespace chronomender
