// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittleItem.h"
#include "LittlePicture.h"
#include "MainThread.h"
#include "PropertyDictionary.h"
#include "TemporaryFolder.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

#include <gtest/gtest.h>

namespace chronomender {

/// Items over files of their own, and an event loop.
class ThumbsTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "thumbs_tests";
        static char *arguments[] = {name, nullptr};
        if (!QCoreApplication::instance())
            static const QCoreApplication application(count, arguments);
        initialiseImaging();
    }
    ThumbsTest() { mainThread::initialise(); }

    MySinglePicPtr add(const std::string &name, const std::string &bytes) {
        m_disk.write(name, bytes);
        return little::addItem(m_folder, SpTypeExifOriginal, little::utc(2024, 5, 6), name);
    }
    MySinglePicPtr addPhoto(const std::string &name, int width = 300, int height = 200) {
        return add(name, little::pictureFile(little::fourQuarters(width, height), "jpeg"));
    }
    std::vector<MySinglePicPtr> addPhotos(int count) {
        std::vector<MySinglePicPtr> pics;
        for (int i = 0; i < count; ++i)
            pics.push_back(addPhoto(std::to_string(i) + ".jpg"));
        return pics;
    }

    /// Serves events until something holds; false when it never did.
    template<class Condition>
    static bool until(Condition holds) {
        const QDeadlineTimer end(std::chrono::seconds(20));
        while (!holds() && !end.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        return holds();
    }

    little::TemporaryFolder m_disk;
    MySingleFolderPtr m_folder =
        MySingleFolder::initWithFolder(m_disk.path(), nullptr, EditMode::Together);
};

} // namespace chronomender
