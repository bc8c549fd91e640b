// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "LittlePhoto.h"
#include "TemporaryFolder.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <fcntl.h>
#include <iterator>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace chronomender {

using Json = nlohmann::json;
using Arguments = std::vector<std::string>;

inline Arguments joined(Arguments first, const Arguments &more) {
    first.insert(first.end(), more.begin(), more.end());
    return first;
}

/// Arguments without blanks inside, as a shell would split them.
inline Arguments words(const std::string &line) {
    std::istringstream stream(line);
    return {std::istream_iterator<std::string>(stream), {}};
}

struct RunResult {
    int exitCode = -1;
    std::string output, errors;

    /// The lines of a run with --json; a line that is no JSON throws and so fails the test.
    std::vector<Json> lines() const {
        std::vector<Json> parsed;
        std::istringstream stream(output);
        for (std::string line; std::getline(stream, line);)
            parsed.push_back(Json::parse(line));
        return parsed;
    }
};

/// A program started with its output in files, in a world of its own: UTC, English, no preferences.
class StartedProgram {
public:
    enum class User { Same, Nobody };

    StartedProgram(const std::string &program, const Arguments &arguments,
                   const std::string &workFolder, User user = User::Same)
        : m_output(workFolder + "/output"), m_errors(workFolder + "/errors") {
        m_process = ::fork();
        if (m_process == 0)
            become(program, arguments, workFolder, user);
    }
    /// The present process becomes the program.
    [[noreturn]] static void become(const std::string &program, const Arguments &arguments,
                                    const std::string &workFolder, User user = User::Same) {
        Arguments all = joined({program}, arguments);
        std::vector<char *> pointers;
        for (std::string &argument : all)
            pointers.push_back(argument.data());
        pointers.push_back(nullptr);
        constexpr int flags = O_WRONLY | O_CREAT | O_TRUNC;
        ::dup2(::open((workFolder + "/output").c_str(), flags, 0600), STDOUT_FILENO);
        ::dup2(::open((workFolder + "/errors").c_str(), flags, 0600), STDERR_FILENO);
        ::setenv("CHRONOMENDER_HOME", (workFolder + "/home").c_str(), 1);
        ::setenv("TZ", "UTC", 1);
        ::setenv("LC_ALL", "C.UTF-8", 1);
        constexpr uid_t nobody = 65534;
        if (user == User::Nobody && (::setgid(nobody) != 0 || ::setuid(nobody) != 0))
            ::_exit(127);
        ::execvp(pointers[0], pointers.data());
        ::_exit(127);
    }

    void signal(int number) const { ::kill(m_process, number); }

    RunResult wait() const {
        int status = 0;
        ::waitpid(m_process, &status, 0);
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status),
                little::fileContent(m_output), little::fileContent(m_errors)};
    }

private:
    std::string m_output, m_errors;
    pid_t m_process = -1;
};

/// Folders of little photos, and `mend` run over them.
class MendTest : public ::testing::Test {
protected:
    const little::TemporaryFolder &disk() const { return m_disk; }
    std::string path(const std::string &name) const { return m_disk.path(name); }
    const std::string &workFolder() const { return m_work.path(); }

    /// A JPEG whose three stamps are the same, without zones.
    std::string writePhoto(const std::string &name, const std::string &stamp) {
        little::PhotoFields fields;
        fields.original = fields.digitized = fields.modified = stamp;
        return write(name, fields);
    }
    /// A JPEG whose three stamps have a zone stamp each.
    std::string writeZonedPhoto(const std::string &name, const std::string &stamp,
                                const std::string &zone) {
        little::PhotoFields fields;
        fields.original = fields.digitized = fields.modified = stamp;
        fields.zoneOriginal = fields.zoneDigitized = fields.zoneModified = zone;
        return write(name, fields);
    }
    std::string write(const std::string &name, const little::PhotoFields &fields) {
        return m_disk.write(name, little::jpegPhoto(fields).bytes);
    }

    StartedProgram start(const Arguments &arguments) const {
        return {MEND_PATH, arguments, m_work.path()};
    }
    RunResult mend(const Arguments &arguments) const { return start(arguments).wait(); }

    /// Runs without the rights of a superuser, who may do everything; all is open to that user but
    /// the paths in `closed`. Exit code 127: the user cannot reach the program.
    RunResult mendAsNobody(const Arguments &arguments, const Arguments &closed,
                           std::filesystem::perms left = std::filesystem::perms::none) const {
        namespace fs = std::filesystem;
        const bool isSuperuser = ::geteuid() == 0;
        fs::permissions(workFolder(), fs::perms::all);
        fs::permissions(disk().path(), fs::perms::all);
        for (const auto &entry : fs::recursive_directory_iterator(disk().path()))
            if (isSuperuser && ::chown(entry.path().c_str(), 65534, 65534) != 0)
                return {127, {}, {}};
        for (const std::string &file : closed)
            fs::permissions(file, left);
        const auto user = isSuperuser ? StartedProgram::User::Nobody : StartedProgram::User::Same;
        const RunResult run = StartedProgram(MEND_PATH, arguments, workFolder(), user).wait();
        for (const std::string &file : closed)
            fs::permissions(file, fs::perms::owner_all);
        return run;
    }

    static std::vector<std::string> namesOf(const std::vector<Json> &lines) {
        std::vector<std::string> names;
        for (const Json &line : lines)
            names.push_back(line.at("name"));
        return names;
    }

private:
    little::TemporaryFolder m_disk, m_work;
};

} // namespace chronomender
