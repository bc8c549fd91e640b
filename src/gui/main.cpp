// SPDX-License-Identifier: GPL-3.0-or-later
#include "Appearance.h"
#include "Controls.h"
#include "MainWindow.h"

#include <QApplication>
#include <QFileInfo>

#include <cstdio>
#include <string>
#include <vector>

using namespace chronomender;

namespace {

struct Arguments {
    std::string language;
    std::vector<std::string> paths;
    bool isVersionWanted = false, isHelpWanted = false;
};

Arguments argumentsOf(const QStringList &words) {
    Arguments arguments;
    for (qsizetype i = 1; i < words.size(); ++i) {
        const QString &word = words[i];
        if (word == QLatin1String("--language") && i + 1 < words.size())
            arguments.language = words[++i].toStdString();
        else if (word == QLatin1String("--version"))
            arguments.isVersionWanted = true;
        else if (word == QLatin1String("--help") || word == QLatin1String("-h"))
            arguments.isHelpWanted = true;
        else
            arguments.paths.push_back(QFileInfo(word).absoluteFilePath().toStdString());
    }
    return arguments;
}

} // namespace

int main(int argc, char **argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("chronomender"));
    QApplication::setApplicationDisplayName(QStringLiteral("chronoMender"));
    QApplication::setApplicationVersion(QStringLiteral(CHRONOMENDER_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("chronomender"));
    const Arguments arguments = argumentsOf(QApplication::arguments());
    loadTexts(arguments.language);
    if (arguments.isVersionWanted || arguments.isHelpWanted) {
        std::puts(arguments.isHelpWanted ? text("window_help").c_str() : CHRONOMENDER_VERSION);
        return 0;
    }
    QApplication::setWindowIcon(applicationIcon());

    AppServices services = systemServices();
    services.runName = "chronomender";
    applyAppearance(static_cast<Appearance>(services.defaults->integerForKey("appearance")));
    MainWindow window(std::move(services));
    window.show();
    window.session().start();
    if (!arguments.paths.empty())
        window.session().openPaths(arguments.paths);
    return QApplication::exec();
}
