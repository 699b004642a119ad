#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "contract/DesktopServices.h"
#include "contract/EventLoop.h"
#include "contract/FileOpenerContract.h"
#include "contract/PrivateBus.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeProcessLauncher.h"
#include "platform/freedesktop/DesktopFileOpener.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

const Url file = Url::file("/folder/50% of it.png");

/// A desktop with a program that opens files and a file manager.
struct DesktopOpener {
    DesktopOpener() {
        install("xdg-open");
        qputenv("PATH", QFile::encodeName(programs.path()));
    }
    ~DesktopOpener() { qputenv("PATH", path); }

    void install(const char* name) {
        QFile program(programs.filePath(QString::fromLatin1(name)));
        EXPECT_TRUE(program.open(QFile::WriteOnly));
        program.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    std::vector<Url> opened(std::size_t count) {
        EXPECT_TRUE(runUntil([&] { return launcher.launched.size() >= count; }));
        std::vector<Url> urls;
        for (const auto& launch : launcher.launched)
            urls.push_back(Url::file(launch.arguments.back()));
        return urls;
    }
    std::vector<std::string> pages(std::size_t count) {
        EXPECT_TRUE(runUntil([&] { return launcher.launched.size() >= count; }));
        std::vector<std::string> addresses;
        for (const auto& launch : launcher.launched) addresses.push_back(launch.arguments.back());
        return addresses;
    }
    std::vector<Url> revealed(std::size_t count) {
        EXPECT_TRUE(runUntil([&] { return manager->shown.size() >= static_cast<int>(count); }));
        std::vector<Url> urls;
        for (const QString& address : manager->shown)
            urls.push_back(Url::fromFileAddress(address.toStdString()).value());
        return urls;
    }

    PrivateBus bus;
    QTemporaryDir programs;
    const QByteArray path = qgetenv("PATH");
    fakes::FakeProcessLauncher launcher;
    std::unique_ptr<FileManagerService> manager =
        std::make_unique<FileManagerService>(bus.connect());
    DesktopFileOpener opener{launcher, DesktopFileOpener::Sandbox::none, bus.connect()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(DesktopFileOpener, FileOpenerContract, DesktopOpener);

class DesktopFileOpenerTest : public testing::Test {
protected:
    DesktopOpener desktop;
    fakes::CapturedLog log;
};

TEST_F(DesktopFileOpenerTest, OpensTheFolderIfThereIsNoFileManager) {
    const PrivateBus empty;
    DesktopFileOpener opener(desktop.launcher, DesktopFileOpener::Sandbox::none, empty.connect());
    opener.reveal({file});
    EXPECT_THAT(desktop.opened(1), ElementsAre(Url::file("/folder")));
}

TEST_F(DesktopFileOpenerTest, OpensTheFolderIfThereIsNoBus) {
    DesktopFileOpener opener(desktop.launcher, DesktopFileOpener::Sandbox::none,
                             QDBusConnection(QStringLiteral("none")));
    opener.reveal({file});
    EXPECT_THAT(desktop.opened(1), ElementsAre(Url::file("/folder")));
}

TEST_F(DesktopFileOpenerTest, UsesAnotherOpenerIfTheFirstIsMissing) {
    QFile::remove(desktop.programs.filePath(QStringLiteral("xdg-open")));
    desktop.install("gio");
    desktop.opener.open(file);
    ASSERT_EQ(desktop.launcher.launched.size(), 1u);
    EXPECT_THAT(desktop.launcher.launched[0].executable, HasSubstr("/gio"));
    EXPECT_THAT(desktop.launcher.launched[0].arguments, ElementsAre("open", file.path()));
}

TEST_F(DesktopFileOpenerTest, LogsThatThereIsNoOpener) {
    QFile::remove(desktop.programs.filePath(QStringLiteral("xdg-open")));
    desktop.opener.open(file);
    EXPECT_THAT(log.lines(), ElementsAre("Vantle: cannot open /folder/50% of it.png: "
                                         "no program to open it is installed, such as xdg-open"));
}

TEST_F(DesktopFileOpenerTest, AProgramThatCannotBeStartedIsLogged) {
    desktop.launcher.failure = Failure{13, "Permission denied", ""};
    desktop.opener.open(file);
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("Permission denied")));
}

TEST_F(DesktopFileOpenerTest, ShowingNoFilesCallsNothing) {
    desktop.opener.reveal({});
    desktop.opener.reveal({file});
    EXPECT_THAT(desktop.revealed(1), ElementsAre(file));
}

/// In a sandbox, where only the portal is available.
class SandboxedFileOpenerTest : public DesktopFileOpenerTest {
protected:
    SandboxedFileOpenerTest() {
        QFile image(folder.filePath(QStringLiteral("shot.png")));
        EXPECT_TRUE(image.open(QFile::WriteOnly));
    }

    QTemporaryDir folder;
    const Url shot = Url::file(folder.filePath(QStringLiteral("shot.png")).toStdString());
    OpenPortal portal{desktop.bus.connect()};
    DesktopFileOpener opener{desktop.launcher, DesktopFileOpener::Sandbox::flatpak,
                             desktop.bus.connect()};
};

TEST_F(SandboxedFileOpenerTest, PassesTheFileItselfToThePortal) {
    opener.open(shot);
    EXPECT_TRUE(runUntil([this] { return !portal.opened.isEmpty(); }));
    EXPECT_THAT(portal.opened, ElementsAre(QString::fromStdString(shot.path())));
    opener.reveal({shot});
    EXPECT_TRUE(runUntil([this] { return !portal.openedFolders.isEmpty(); }));
    EXPECT_THAT(desktop.launcher.launched, IsEmpty());
}

TEST_F(SandboxedFileOpenerTest, OpensAPageThroughThePortal) {
    opener.openPage("https://vantle.example");
    EXPECT_TRUE(runUntil([this] { return !portal.openedPages.isEmpty(); }));
    EXPECT_THAT(portal.openedPages, ElementsAre(QStringLiteral("https://vantle.example")));
}

TEST_F(SandboxedFileOpenerTest, ARefusalIsLogged) {
    portal.refuses = true;
    opener.open(shot);
    EXPECT_TRUE(runUntil([this] { return !log.lines().empty(); }));
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("not allowed")));
}

TEST_F(SandboxedFileOpenerTest, AMissingFileIsLogged) {
    QFile::remove(QString::fromStdString(shot.path()));
    opener.open(shot);
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("No such file")));
}

}  // namespace
}  // namespace vantle
