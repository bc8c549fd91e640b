// SPDX-License-Identifier: GPL-3.0-or-later
#include "Texts.h"

#include <QApplication>

#include <gtest/gtest.h>

/// Widgets are tested without a screen, in English.
int main(int argc, char **argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    chronomender::loadTexts("en");
    return RUN_ALL_TESTS();
}
