#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <array>
#include <memory>

#include "contract/EventLoop.h"
#include "contract/UpdateEngineContract.h"
#include "platform/freedesktop/UpdateProgram.h"

namespace vantle {
namespace {

using testing::ElementsAre;

const UpdateItem item = someUpdate();

/// A program that prints the contents of a file.
struct ProgramEngine {
    ProgramEngine() { setScript("cat \"$0.reports\""); }

    void setScript(const QByteArray& script) {
        QFile file(program);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("#!/bin/sh\n" + script + "\n");
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    void willReport(const UpdateReports& reports) {
        QFile file(program + QStringLiteral(".reports"));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        for (const auto& report : reports)
            file.write(QByteArray::fromStdString(formatReport(report) + "\n"));
    }
    bool runUntilReported(const std::function<bool()>& condition) { return runUntil(condition); }

    QTemporaryDir folder;
    const QString program = folder.filePath(QStringLiteral("updater"));
    std::unique_ptr<UpdateEngine> engine = std::make_unique<UpdateProgram>(program);
};

INSTANTIATE_TYPED_TEST_SUITE_P(UpdateProgram, UpdateEngineContract, ProgramEngine);

class UpdateProgramTest : public testing::Test {
protected:
    UpdateReport checkWith(const QByteArray& script) {
        desk.setScript(script);
        std::optional<UpdateReport> last;
        desk.engine->check({.version = "1.0"}, [&](const UpdateReport& report) { last = report; });
        EXPECT_TRUE(runUntil([&] { return last.has_value(); }));
        return *last;
    }
    /// Waits until the program has written its arguments into a file, and returns them.
    std::vector<std::string> arguments() {
        QFile file(desk.program + QStringLiteral(".arguments"));
        EXPECT_TRUE(runUntil([&] { return file.size() > 0; }));
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        std::vector<std::string> lines;
        for (const auto& line : file.readAll().trimmed().split('\n'))
            lines.push_back(line.toStdString());
        return lines;
    }

    const QByteArray writeArguments =
        "printf '%s\\n' \"$@\" > \"$0.part\"; mv \"$0.part\" \"$0.arguments\"";
    ProgramEngine desk;
};

TEST_F(UpdateProgramTest, AMissingProgramIsAFailure) {
    UpdateProgram engine(QStringLiteral("/nowhere/updater"));
    std::optional<UpdateReport> last;
    engine.check({.version = "1.0"}, [&](const UpdateReport& report) { last = report; });
    EXPECT_EQ(last, std::nullopt);
    ASSERT_TRUE(runUntil([&] { return last.has_value(); }));
    EXPECT_TRUE(std::holds_alternative<report::Failed>(*last));
}

TEST_F(UpdateProgramTest, EndingWithoutALastReportIsAFailure) {
    for (const auto* script : {"exit 0", "exit 3", "kill -KILL $$", "echo nonsense",
                               "echo ready now", "printf ready", "head -c 3000000 /dev/zero"})
        EXPECT_TRUE(std::holds_alternative<report::Failed>(checkWith(script))) << script;
}

TEST_F(UpdateProgramTest, IgnoresLinesThatAreNoReports) {
    EXPECT_EQ(checkWith("echo nonsense; echo; echo ready; echo ready; echo 'nothing\tx'"),
              UpdateReport(report::Ready{}));
}

TEST_F(UpdateProgramTest, PassesAllArgumentsOfACheck) {
    checkWith(writeArguments);
    EXPECT_THAT(arguments(),
                ElementsAre("check", "--version=1.0", "--channel=", "--newest-feed=0"));
}

TEST_F(UpdateProgramTest, PassesAnotherFeedEvenAnEmptyOne) {
    desk.setScript(writeArguments);
    bool hasEnded = false;
    desk.engine->check({.feed = "", .version = "1.0", .channel = "beta", .newestFeed = 7},
                       [&](const UpdateReport&) { hasEnded = true; });
    ASSERT_TRUE(runUntil([&] { return hasEnded; }));
    EXPECT_THAT(arguments(), ElementsAre("check", "--version=1.0", "--channel=beta",
                                         "--newest-feed=7", "--feed="));
}

TEST_F(UpdateProgramTest, PreparesTheUpdateThatWasFound) {
    desk.setScript(writeArguments);
    desk.engine->prepare(item, [](const UpdateReport&) {});
    EXPECT_THAT(arguments(),
                ElementsAre("prepare", "--version=1.2", "--address=https://vantle.example/a b",
                            "--length=7", "--signature=a+/=", "--page=https://vantle.example"));
}

TEST_F(UpdateProgramTest, TheRelaunchGoesOnWithoutThisProcess) {
    desk.setScript("printf r > /proc/self/fd/${4#--tell=}\n" + writeArguments);
    ASSERT_EQ(desk.engine->relaunch(item), std::nullopt);
    desk.engine.reset();
    EXPECT_THAT(arguments(),
                ElementsAre("relaunch", "--version=1.2", "--process=" + std::to_string(getpid()),
                            testing::StartsWith("--tell=")));
}

TEST_F(UpdateProgramTest, ARelaunchThatCannotBeginIsAFailure) {
    UpdateProgram engine(QStringLiteral("/nowhere/updater"));
    EXPECT_TRUE(engine.relaunch(item).has_value());
}

TEST_F(UpdateProgramTest, ARelaunchWithoutAnAnswerIsAFailure) {
    desk.setScript("exit 0");
    const auto failure = desk.engine->relaunch(item);
    ASSERT_TRUE(failure.has_value());
    EXPECT_EQ(failure->message, "The update program does not respond.");
}

TEST_F(UpdateProgramTest, RunningWorkEndsWithIt) {
    desk.setScript("echo $$ > \"$0.part\"; mv \"$0.part\" \"$0.arguments\"; exec sleep 600");
    desk.engine->check({.version = "1.0"}, [](const UpdateReport&) { FAIL(); });
    const pid_t process = std::stoi(arguments().at(0));
    desk.engine.reset();
    EXPECT_TRUE(runUntil([&] { return kill(process, 0) != 0; }));
}

TEST_F(UpdateProgramTest, AStartOnTrialIsConfirmedWithAByte) {
    std::array<int, 2> ends{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
    qputenv("VANTLE_UPDATE_READY", QByteArray::number(ends[1]));
    UpdateProgram engine(desk.program);
    EXPECT_TRUE(engine.isStartConfirmationPending());
    EXPECT_FALSE(qEnvironmentVariableIsSet("VANTLE_UPDATE_READY"));
    EXPECT_NE(fcntl(ends[1], F_GETFD) & FD_CLOEXEC, 0);
    engine.confirmStart();
    EXPECT_FALSE(engine.isStartConfirmationPending());
    std::array<char, 2> bytes{};
    EXPECT_EQ(read(ends[0], bytes.data(), bytes.size()), 1);
    close(ends[0]);
}

TEST_F(UpdateProgramTest, AnOrderlyEndConfirmsTheStart) {
    std::array<int, 2> ends{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
    qputenv("VANTLE_UPDATE_READY", QByteArray::number(ends[1]));
    { const UpdateProgram engine(desk.program); }
    char byte = 0;
    EXPECT_EQ(read(ends[0], &byte, 1), 1);
    close(ends[0]);
}

TEST_F(UpdateProgramTest, ConfirmingAStartAfterTheUpdaterHasGoneIsHarmless) {
    std::array<int, 2> ends{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0);
    qputenv("VANTLE_UPDATE_READY", QByteArray::number(ends[1]));
    UpdateProgram engine(desk.program);
    close(ends[0]);
    engine.confirmStart();
    EXPECT_FALSE(engine.isStartConfirmationPending());
}

TEST_F(UpdateProgramTest, InvalidVariablesAreNoTrial) {
    for (const auto* value : {"", "x", "99999", "-1", "2"}) {
        qputenv("VANTLE_UPDATE_READY", value);
        EXPECT_FALSE(UpdateProgram(desk.program).isStartConfirmationPending()) << value;
    }
    qputenv("VANTLE_UPDATE_OUTCOME", "ready");
    EXPECT_EQ(UpdateProgram(desk.program).rolledBack(), std::nullopt);
}

TEST_F(UpdateProgramTest, RemovesTheOutcomeFromTheEnvironment) {
    const report::RolledBack back{"1.2", "It crashed."};
    qputenv("VANTLE_UPDATE_OUTCOME", QByteArray::fromStdString(formatReport(back)));
    EXPECT_EQ(UpdateProgram(desk.program).rolledBack(), back);
    EXPECT_FALSE(qEnvironmentVariableIsSet("VANTLE_UPDATE_OUTCOME"));
}

}  // namespace
}  // namespace vantle
