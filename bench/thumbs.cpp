// SPDX-License-Identifier: GPL-3.0-or-later
//
// thumbs_bench FOLDER: makes the thumbnails of all files of a folder as the window does in the
// background, and ends with 1 when one of them failed. Prints the milliseconds until the first and
// until the last was there.

#include "MainThread.h"
#include "MySingleFolder.h"
#include "PropertyDictionary.h"
#include "Thumbnails.h"

#include <QElapsedTimer>
#include <QGuiApplication>

#include <cstdio>
#include <filesystem>

int main(int argc, char **argv) {
    using namespace chronomender;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    mainThread::initialise();
    initialiseImaging();
    const std::string root = argc == 2 ? argv[1] : ".";
    const auto folder = MySingleFolder::initWithFolder(root, nullptr, EditMode::Together);
    std::vector<MySinglePicPtr> pics;
    for (const auto &file : std::filesystem::directory_iterator(root))
        pics.push_back(
            MySinglePic::create(file.path().filename(), folder, SpTypeExifOriginal, Date()));

    Thumbnails thumbnails({});
    QElapsedTimer timer;
    timer.start();
    qint64 first = 0;
    thumbnails.setChanged([&](const std::vector<std::uint32_t> &) {
        first = first ? first : timer.elapsed();
        if (thumbnails.progress().waiting == 0)
            QCoreApplication::quit();
    });
    thumbnails.addImagesWithoutThumb(pics);
    QCoreApplication::exec();
    std::size_t ready = 0;
    for (const MySinglePicPtr &pic : pics)
        ready += thumbnails.spThumb(pic).state == ThumbState::Ready;
    std::printf("%zu of %zu: first %lld ms, all %lld ms\n", ready, pics.size(),
                static_cast<long long>(first), static_cast<long long>(timer.elapsed()));
    return ready == pics.size() ? 0 : 1;
}
