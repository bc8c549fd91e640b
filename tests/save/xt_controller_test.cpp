// SPDX-License-Identifier: GPL-3.0-or-later
#include "FakeSession.h"
#include "LittlePng.h"
#include "ToolArguments.h"
#include "ToolWitness.h"
#include "XtController.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace chronomender {
namespace {

using namespace little;
using std::filesystem::exists;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class XtControllerTest : public testing::Test {
protected:
    /// A tool that does with a file what the file's name says.
    ToolSettings standIn(std::chrono::milliseconds limit = std::chrono::seconds(30)) const {
        return {support, [] { return std::string(CHRONOMENDER_STANDIN_TOOL); }, limit};
    }
    std::string file(const std::string &name) const { return session.disk.write(name, "bytes"); }
    static void send(XtController &tool, const std::string &path) {
        tool.send({ToolErrorType::CompleteDateTags, {"-Tag=1"}}, path, false);
    }
    ToolOutcome answerFor(const std::string &name) {
        send(tool, file(name));
        return tool.postAction();
    }

    FakeSession session;
    std::string support = session.disk.path("support");
    XtController tool{standIn()};
};

TEST_F(XtControllerTest, judgesTheWholeOfAnAnswerWhateverPiecesItComesIn) {
    const struct {
        const char *name;
        bool didChange;
        const char *error;
        std::size_t collected;
    } answers[]{
        {"slices.jpg", true, "", 0},
        {"errs.jpg", false, "Error: no good", 1},
        {"errsAndWrites.jpg", true, "Error: odd", 0},
        {"warns.jpg", false, "", 0},
        {"creates.xmp", true, "", 0},
        {"plain.jpg", true, "", 0},
    };
    for (const auto &answer : answers)
        send(tool, file(answer.name));
    for (const auto &answer : answers) {
        const ToolOutcome outcome = tool.postAction();
        EXPECT_EQ(outcome.didChange, answer.didChange) << answer.name;
        EXPECT_EQ(outcome.error, answer.error) << answer.name;
        EXPECT_EQ(tool.errorCollectorCount(), answer.collected) << answer.name;
        tool.clearErrors();
    }
    EXPECT_EQ(fileContent(session.disk.path("plain.jpg")), "bytes+");
}

TEST_F(XtControllerTest, aToolThatDiesIsReplacedAndTheOthersAreSentAgain) {
    for (const char *name : {"dies.jpg", "diesAfterRename.jpg"}) {
        const std::string dying = file(name), later = file("later.jpg");
        send(tool, dying);
        send(tool, later);
        send(tool, file("errs.jpg"));
        const ToolOutcome outcome = tool.postAction();
        EXPECT_FALSE(outcome.didChange);
        const std::string words = std::string(name) == "dies.jpg" ? "Out of memory!" : "";
        EXPECT_EQ(outcome.error, text("toolAnswer_ended", {words})) << name;
        EXPECT_FALSE(exists(XtController::copyPath(dying))) << name;
        EXPECT_TRUE(tool.postAction().didChange) << name;
        EXPECT_EQ(fileContent(later), "bytes+") << "written once";
        EXPECT_EQ(tool.postAction().error, "Error: no good") << name;
    }
}

TEST_F(XtControllerTest, aToolThatNeverAnswersIsGivenUpAndItsCopyRemoved) {
    XtController impatient(standIn(std::chrono::milliseconds(200)));
    for (const bool stoodThere : {false, true}) {
        const std::string path = file("hangs.jpg"), copy = XtController::copyPath(path);
        if (stoodThere)
            file("hangs.jpg_exiftool_tmp");
        send(impatient, path);
        const ToolOutcome outcome = impatient.postAction();
        EXPECT_FALSE(outcome.didChange || outcome.isMissing);
        EXPECT_EQ(outcome.error, text("toolAnswer_timeOut"));
        EXPECT_EQ(exists(copy), stoodThere);
        EXPECT_EQ(fileContent(path), "bytes");
    }
}

TEST_F(XtControllerTest, aGrowingCopyIsASignOfLife) {
    XtController patient(standIn(std::chrono::milliseconds(500)));
    send(patient, file("grows.jpg"));
    EXPECT_TRUE(patient.postAction().didChange);
    EXPECT_EQ(fileContent(session.disk.path("grows.jpg")), "bytes++++++++");
}

TEST_F(XtControllerTest, endedWithAnActionUnderWayItLeavesNoCopy) {
    send(tool, file("hangs.jpg"));
    const std::string copy = session.disk.path("hangs.jpg_exiftool_tmp");
    while (!exists(copy))
        std::this_thread::yield();
    tool.cleanup();
    EXPECT_FALSE(exists(copy));
}

TEST_F(XtControllerTest, twoAtOnceHaveTheirOwnArgumentFilesAndLeaveNone) {
    const std::string shared = support + "/.args.txt";
    XtController second(standIn());
    EXPECT_THAT(answerFor("tellsArguments.jpg").error, EndsWith(" -stay_open true -@ " + shared));
    send(second, file("tellsArguments.jpg"));
    const std::string told = second.postAction().error;
    EXPECT_THAT(told, Not(HasSubstr(".args.txt")));
    second.cleanup();
    EXPECT_FALSE(exists(told.substr(told.rfind(' ') + 1)));
    EXPECT_TRUE(exists(shared));
    tool.cleanup();
    EXPECT_FALSE(exists(shared));
    EXPECT_THAT(answerFor("tellsArguments.jpg").error, EndsWith(shared)) << "after a new start";
}

TEST_F(XtControllerTest, aProgramThatIsMissingOrNoneSaysSo) {
    ToolSettings settings = standIn();
    settings.program = [this] { return session.disk.path("nowhere"); };
    XtController missing(settings);
    send(missing, file("a.jpg"));
    EXPECT_TRUE(missing.postAction().isMissing);
    const std::string broken = session.disk.write("broken", "no program");
    std::filesystem::permissions(broken, std::filesystem::perms::owner_all);
    settings.program = [broken] { return broken; };
    XtController unable(settings);
    send(unable, file("a.jpg"));
    const ToolOutcome outcome = unable.postAction();
    EXPECT_FALSE(outcome.isMissing || outcome.didChange);
    EXPECT_NE(outcome.error, "");
}

TEST_F(XtControllerTest, theSummaryNamesEachLineOnceUnderItsKind) {
    for (const char *line : {"Error: b", "Error: a", "Error: b"})
        tool.addError(line, ToolErrorType::ExtendShortXmp);
    tool.addError("Error: c", ToolErrorType::CompleteDateTags);
    EXPECT_EQ(tool.errorsSummaryString(), text("xTError_ID_6") + "\n\tError: c\n\n" +
                                              text("xTError_ID_7") +
                                              "\n\tError: b\n\tError: a\n\n");
}

class RealTool : public XtControllerTest {
protected:
    void SetUp() override {
        if (!real.program())
            GTEST_SKIP() << "there is no exiftool on this machine";
    }
    void sendTags(const std::string &path, bool isPng = false) {
        real.send({ToolErrorType::CompleteDateTags,
                   {"-ExifIFD:DateTimeOriginal=2024:05:06 07:08:09",
                    "-ExifIFD:OffsetTimeOriginal=+02:00"}},
                  path, isPng);
    }
    static constexpr auto dateTags = "-DateTimeOriginal -OffsetTimeOriginal";
    static constexpr const char *said = "2024:05:06 07:08:09\n+02:00\n";
    XtController real{{support}};
};

TEST_F(RealTool, addsTagsUnderAnyNameThatAFileCanHave) {
    const std::string bare = jpegPhoto({}).bytes;
    const std::string png = session.disk.write("a.png", pngPhoto({}).bytes);
    std::vector<std::string> paths;
    for (const char *name :
         {"plain.jpg", " begins.jpg", "ends.jpg ", "#hash.jpg", "-minus.jpg", "a%b.jpg", "*.jpg",
          "line\nfeed.jpg", "back\\n\"quoted\".jpg", "$cost@home.jpg ", "\xff\xfe.jpg", "pipe|"})
        paths.push_back(session.disk.write(name, bare));
    const std::string decoy = session.disk.write("feed.jpg", bare);
    for (const std::string &path : paths)
        sendTags(path);
    sendTags(png, true);
    for (const std::string &path : paths) {
        EXPECT_TRUE(real.postAction().didChange) << path;
        EXPECT_EQ(witness(path, dateTags), said) << path;
    }
    EXPECT_TRUE(real.postAction().didChange);
    EXPECT_EQ(witness(png, dateTags), said);
    EXPECT_EQ(fileContent(decoy), bare);
}

TEST_F(RealTool, refusesWhatItCouldMistakeForAnotherFile) {
    const std::string bare = jpegPhoto({}).bytes;
    for (const char *name : {"line\n$feed.jpg", "@return\r", "a\n{ready}\n.jpg"}) {
        const std::string path = session.disk.write(name, bare);
        sendTags(path);
        EXPECT_EQ(real.postAction().error, text("toolAnswer_oddPath")) << name;
        EXPECT_EQ(fileContent(path), bare);
    }
    EXPECT_EQ(argumentLines({{}, {"-Tag=1\n-Other=2"}}, "/a.jpg", false), std::nullopt);
}

TEST_F(RealTool, doesNotReadTheUsersOwnConfiguration) {
    session.disk.write(".ExifTool_config", "print \"Error: configured\\n\"; 1;");
    const std::string path = session.disk.write("a.jpg", jpegPhoto({}).bytes);
    const std::string home = std::getenv("HOME") ? std::getenv("HOME") : "";
    ::setenv("HOME", session.disk.path().c_str(), 1);
    ::setenv("PERL_UNICODE", "SD", 1);
    sendTags(path);
    const ToolOutcome outcome = real.postAction();
    ::unsetenv("PERL_UNICODE");
    ::setenv("HOME", home.c_str(), 1);
    EXPECT_TRUE(outcome.didChange);
    EXPECT_EQ(outcome.error, "");
}

} // namespace
} // namespace chronomender
