// SPDX-License-Identifier: GPL-3.0-or-later
#include "MovieAnswers.h"

namespace chronomender {

MovieOptions MovieAnswers::answered() const {
    if (m_defaults.boolForKey("useMovieOptionsQTValuesWithoutShowingSheet"))
        return {m_defaults.boolForKey("isMDTADateEnabled"),
                m_defaults.boolForKey("isMVHDTimezoneCorrectionEnabled")};
    return m_questions.movieOptions(m_folder);
}

MovieOptions MovieAnswers::options() {
    if (!m_folder.areMovieOptionsSettled) {
        const MovieOptions answer = answered();
        m_folder.isQuicktimeMDTADateEnabled = answer.isMDTADateEnabled;
        m_folder.isQuicktimeMVHDTimezoneCorrectionEnabled = answer.isMVHDTimezoneCorrectionEnabled;
        m_folder.areMovieOptionsSettled = true;
    }
    return {m_folder.isQuicktimeMDTADateEnabled, m_folder.isQuicktimeMVHDTimezoneCorrectionEnabled};
}

} // namespace chronomender
