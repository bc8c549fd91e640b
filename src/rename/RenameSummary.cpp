// SPDX-License-Identifier: GPL-3.0-or-later
#include "RenameSummary.h"

#include "Texts.h"

#include <QLocale>

namespace chronomender {
namespace {

std::string localised(std::size_t count) {
    return QLocale::system().toString(static_cast<qulonglong>(count)).toStdString();
}

const char *form(std::size_t count) {
    return count == 1 ? "single" : "multi";
}

} // namespace

std::string renameSummaryString(const std::vector<MySinglePicPtr> &pics) {
    std::size_t groups = 0, files = pics.size();
    for (const MySinglePicPtr &pic : pics) {
        groups += !pic->spSidecarExtensions.empty();
        files += pic->spSidecarExtensions.size();
    }
    const std::size_t singles = pics.size() - groups;
    if (groups == 0)
        return text(std::string("renameSummary_noGroups_") + form(singles), {localised(singles)});
    if (singles == 0)
        return text(std::string("renameSummary_noSingles_") + form(groups),
                    {localised(groups), localised(files)});
    const char *groupForm = groups == 1 ? "Single" : "Multi";
    return text(std::string("renameSummary_singlesAndGroups_") + form(singles) + groupForm,
                {localised(singles), localised(groups), localised(files)});
}

} // namespace chronomender
