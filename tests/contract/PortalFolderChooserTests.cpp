#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>

#include "contract/EventLoop.h"
#include "contract/FileChooserPortal.h"
#include "contract/FolderChooserContract.h"
#include "contract/PrivateBus.h"
#include "fakes/CapturedLog.h"
#include "platform/freedesktop/PortalFolderChooser.h"
#include "platform/qt/QtScheduler.h"

namespace vantle {
namespace {

const FolderRequest request = someFolderRequest();

struct PortalDesk {
    bool isOpen() const { return !portal.handle.isEmpty(); }
    void answer(const std::optional<Url>& folder) {
        const QString address = folder ? QString::fromStdString(folder->address()) : QString();
        portal.respond(folder ? 0 : 1, {{QStringLiteral("uris"), QStringList{address}}});
    }
    static bool runUntil(const std::function<bool()>& condition) {
        return vantle::runUntil(condition);
    }

    PrivateBus bus;
    FileChooserPortal portal{bus.connect()};
    PortalFolderChooser chooser{nullptr, bus.connect()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(PortalFolderChooser, FolderChooserContract, PortalDesk);

class PortalFolderChooserTest : public testing::Test {
protected:
    void choose() { chooser.choose(request, answer.taker()); }
    bool isAnswered() {
        return runUntil([this] { return answer.count > 0; });
    }

    PrivateBus bus;
    std::optional<FileChooserPortal> portal{bus.connect()};
    QtScheduler scheduler;
    fakes::FakeFolderChooser* next = new fakes::FakeFolderChooser(scheduler);
    PortalFolderChooser chooser{std::unique_ptr<FolderChooser>(next), bus.connect()};
    FolderAnswer answer;
};

TEST_F(PortalFolderChooserTest, ThePortalGetsTheRequest) {
    choose();
    ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
    EXPECT_EQ(portal->title, QStringLiteral("Choose it."));
    EXPECT_EQ(portal->options[QStringLiteral("accept_label")], QStringLiteral("Use This Folder"));
    EXPECT_EQ(portal->options[QStringLiteral("directory")], true);
    EXPECT_EQ(portal->options[QStringLiteral("current_folder")].toByteArray(),
              QByteArray("/home/user/My Shots\0", 20));
}

TEST_F(PortalFolderChooserTest, APortalThatCannotStartInAFolderIsNotUsed) {
    portal->version = 3;
    choose();
    ASSERT_TRUE(runUntil([&] { return next->isOpen(); }));
    EXPECT_EQ(next->requests.front().directory, request.directory);
    next->close(Url::file("/data"));
    EXPECT_EQ(answer.folder, Url::file("/data"));
    EXPECT_TRUE(portal->handle.isEmpty());
}

TEST_F(PortalFolderChooserTest, UsesTheNextChooserWithoutAPortal) {
    portal.reset();
    choose();
    EXPECT_TRUE(runUntil([&] { return next->isOpen(); }));
}

TEST_F(PortalFolderChooserTest, ARefusalOfThePortalIsLoggedAndReturnsNothing) {
    fakes::CapturedLog log;
    portal->refuses = true;
    choose();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer.folder, std::nullopt);
    EXPECT_THAT(log.lines(), testing::ElementsAre(testing::HasSubstr("not today")));
}

TEST_F(PortalFolderChooserTest, ReturnsNothingIfThePortalEnds) {
    choose();
    ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
    portal.reset();
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer.folder, std::nullopt);
}

TEST_F(PortalFolderChooserTest, ReturnsNothingForAnAddressThatIsNoFile) {
    fakes::CapturedLog log;
    choose();
    ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
    portal->respond(0, {{QStringLiteral("uris"), QStringList{QStringLiteral("sftp://host/x")}}});
    ASSERT_TRUE(isAnswered());
    EXPECT_EQ(answer.folder, std::nullopt);
}

TEST_F(PortalFolderChooserTest, ItCanBeOpenedAgain) {
    for (const auto* path : {"/first", "/second"}) {
        portal->handle.clear();
        answer = {};
        choose();
        ASSERT_TRUE(runUntil([&] { return !portal->handle.isEmpty(); }));
        const QString address = QStringLiteral("file://") + QLatin1String(path);
        portal->respond(0, {{QStringLiteral("uris"), QStringList{address}}});
        ASSERT_TRUE(isAnswered());
        EXPECT_EQ(answer.folder, Url::file(path));
    }
}

}  // namespace
}  // namespace vantle
