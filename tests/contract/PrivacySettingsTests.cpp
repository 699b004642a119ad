#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "contract/DesktopServices.h"
#include "contract/EventLoop.h"
#include "contract/PrivacySettingsContract.h"
#include "contract/PrivateBus.h"
#include "fakes/FakeFileOpener.h"
#include "platform/freedesktop/DesktopPrivacySettings.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using Sandbox = DesktopFileOpener::Sandbox;

/// The part of GNOME's settings that shows a page.
class SettingsService final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit SettingsService(QDBusConnection bus) {
        bus.registerObject(QStringLiteral("/org/gnome/Settings"), this,
                           QDBusConnection::ExportAllSlots);
        bus.registerService(QStringLiteral("org.gnome.Settings"));
    }

    QString page;
    QVariantList arguments;

public slots:
    void ActivateAction(const QString& action, const QVariantList& parameters, const QVariantMap&) {
        if (action != QStringLiteral("launch-panel")) return;
        const auto argument = parameters.value(0).value<QDBusArgument>();
        argument.beginStructure();
        argument >> page >> arguments;
        argument.endStructure();
    }
};

/// A file manager that shows the permissions of folders.
struct PermissionsOfFolders {
    bool waitUntilShown(const Url& folder) const {
        const QStringList expected{QString::fromStdString(folder.address())};
        return runUntil([&] { return manager.properties == expected; });
    }

    PrivateBus bus;
    FileManagerService manager{bus.connect()};
    fakes::FakeFileOpener opener;
    DesktopPrivacySettings settings{"org.example.Program", opener, Sandbox::none, bus.connect()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(DesktopPrivacySettings, PrivacySettingsContract,
                               PermissionsOfFolders);

class PrivacySettingsTest : public testing::Test {
protected:
    void open(Sandbox sandbox) {
        settings = std::make_unique<DesktopPrivacySettings>("org.example.Program", opener, sandbox,
                                                            bus.connect());
        settings->open(folder);
    }

    const Url folder = Url::file("/home/user/My Shots");
    PrivateBus bus;
    fakes::FakeFileOpener opener;
    std::unique_ptr<DesktopPrivacySettings> settings;
};

TEST_F(PrivacySettingsTest, TheFileManagerShowsThePermissionsOfTheFolder) {
    const FileManagerService manager(bus.connect());
    open(Sandbox::none);
    ASSERT_TRUE(runUntil([&] { return !manager.properties.isEmpty(); }));
    EXPECT_EQ(manager.properties, QStringList{QStringLiteral("file:///home/user/My%20Shots")});
    EXPECT_THAT(opener.revealed, testing::IsEmpty());
}

TEST_F(PrivacySettingsTest, WithoutAFileManagerThatAnswersTheFolderIsShown) {
    open(Sandbox::none);
    EXPECT_TRUE(runUntil([&] { return !opener.revealed.empty(); }));
    EXPECT_THAT(opener.revealed, ElementsAre(folder));
}

TEST_F(PrivacySettingsTest, AProgramInASandboxHasItsOwnPage) {
    const FileManagerService manager(bus.connect());
    const SettingsService gnome(bus.connect());
    open(Sandbox::flatpak);
    ASSERT_TRUE(runUntil([&] { return !gnome.page.isEmpty(); }));
    EXPECT_EQ(gnome.page, QStringLiteral("applications"));
    EXPECT_EQ(gnome.arguments, QVariantList{QStringLiteral("org.example.Program")});
    EXPECT_THAT(manager.properties, testing::IsEmpty());
}

TEST_F(PrivacySettingsTest, ASandboxOnAnotherDesktopShowsThePermissions) {
    const FileManagerService manager(bus.connect());
    open(Sandbox::flatpak);
    EXPECT_TRUE(runUntil([&] { return !manager.properties.isEmpty(); }));
}

}  // namespace
}  // namespace vantle

#include "PrivacySettingsTests.moc"
