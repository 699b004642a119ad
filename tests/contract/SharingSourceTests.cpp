// Finds the programs that accept files, over a real bus.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <filesystem>
#include <functional>
#include <optional>

#include "contract/EventLoop.h"
#include "contract/PrivateBus.h"
#include "contract/SharingServices.h"
#include "contract/SharingSourceContract.h"
#include "contract/TemporaryFolder.h"
#include "contract/TextFile.h"
#include "fakes/CapturedLog.h"
#include "fakes/FakeEnvironment.h"
#include "fakes/FakeProcessLauncher.h"
#include "platform/freedesktop/sharing/BluetoothSharing.h"
#include "platform/freedesktop/sharing/GsConnectSharing.h"
#include "platform/freedesktop/sharing/KdeConnectSharing.h"
#include "platform/freedesktop/sharing/MailSharing.h"
#include "platform/freedesktop/sharing/SharingSources.h"

namespace vantle {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// A desktop of its own, with a bus and a folder of programs.
struct SharingDesktop {
    SharingDesktop() {
        qputenv("PATH", QByteArray::fromStdString((place / "bin").path()));
        std::filesystem::create_directory((place / "bin").path());
    }
    ~SharingDesktop() { qputenv("PATH", path); }
    SharingDesktop(const SharingDesktop&) = delete;
    SharingDesktop& operator=(const SharingDesktop&) = delete;

    void install(const char* program) const {
        const Url url = (place / "bin").appending(program);
        writeText(url, "#!/bin/sh\n");
        std::filesystem::permissions(url.path(), std::filesystem::perms::owner_all);
    }

    // The contract needs these two on each desktop.
    static bool runUntil(const std::function<bool()>& condition) {
        return vantle::runUntil(condition);
    }
    std::size_t programsStarted() const { return launcher.launched.size(); }

    TemporaryFolder place;
    const QByteArray path = qgetenv("PATH");
    PrivateBus bus;
    fakes::FakeProcessLauncher launcher;
};

struct PhoneOfKde : SharingDesktop {
    void addTarget() {
        service.emplace(bus.connect());
        service->daemon.names = {{QStringLiteral("b1"), QStringLiteral("Phone")}};
    }

    std::optional<KdeConnectService> service;
    KdeConnectSharing source{bus.connect()};
};

struct PhoneOfGnome : SharingDesktop {
    void addTarget() {
        manager.objects[QDBusObjectPath(QStringLiteral("/phone"))]
                       [QStringLiteral("org.gnome.Shell.Extensions.GSConnect.Device")] = {
            {QStringLiteral("Name"), QStringLiteral("Phone")},
            {QStringLiteral("Connected"), true},
            {QStringLiteral("Paired"), true}};
    }

    ObjectManager manager{bus.connect(), "org.gnome.Shell.Extensions.GSConnect",
                          "/org/gnome/Shell/Extensions/GSConnect"};
    GsConnectSharing source{bus.connect()};
};

struct BluetoothAdapter : SharingDesktop {
    void addTarget() {
        install("bluetooth-sendto");
        plugIn();
    }
    void plugIn() {
        manager.objects[QDBusObjectPath(QStringLiteral("/org/bluez/hci0"))]
                       [QStringLiteral("org.bluez.Adapter1")] = {};
    }

    ObjectManager manager{bus.connect(), "org.bluez", "/"};
    BluetoothSharing source{launcher, bus.connect()};
};

struct MailProgram : SharingDesktop {
    MailProgram() {
        std::filesystem::create_directories((place / "data/applications").path());
        environment["XDG_CONFIG_HOME"] = (place / "configuration").path();
        environment["XDG_CONFIG_DIRS"] = (place / "none").path();
        environment["XDG_DATA_HOME"] = (place / "none").path();
        environment["XDG_DATA_DIRS"] = (place / "none").path() + ":" + (place / "data").path();
    }
    void addTarget() {
        install("xdg-email");
        installMailProgram();
    }
    void installMailProgram() const {
        writeText(place / "data/applications/mimeinfo.cache",
                  "[MIME Cache]\ntext/plain=editor.desktop;\n"
                  "x-scheme-handler/mailto=mail.desktop;\n");
    }

    fakes::FakeEnvironment environment;
    MailSharing source{launcher, environment, bus.connect()};
};

INSTANTIATE_TYPED_TEST_SUITE_P(KdeConnectSharing, SharingSourceContract, PhoneOfKde);
INSTANTIATE_TYPED_TEST_SUITE_P(GsConnectSharing, SharingSourceContract, PhoneOfGnome);
INSTANTIATE_TYPED_TEST_SUITE_P(BluetoothSharing, SharingSourceContract, BluetoothAdapter);
INSTANTIATE_TYPED_TEST_SUITE_P(MailSharing, SharingSourceContract, MailProgram);

/// Tests what one source does on its desktop.
template <typename Desktop>
class SharingSourceTestOn : public testing::Test, protected Desktop {
protected:
    SharingSourceTestOn() { writeText(file, "picture"); }

    static std::vector<SharingOffer> find(SharingSource& source) {
        std::optional<std::vector<SharingOffer>> offers;
        source.find([&](auto found) { offers = std::move(found); });
        EXPECT_TRUE(runUntil([&] { return offers.has_value(); }));
        return offers.value_or(std::vector<SharingOffer>{});
    }
    static std::vector<std::string> titles(const std::vector<SharingOffer>& offers) {
        std::vector<std::string> titles;
        for (const auto& offer : offers) titles.push_back(offer.title);
        return titles;
    }

    const Url file = this->place / "a shot.png";
    fakes::CapturedLog log;
};

using SharingSourceTest = SharingSourceTestOn<SharingDesktop>;
using BluetoothSharingTest = SharingSourceTestOn<BluetoothAdapter>;
using MailSharingTest = SharingSourceTestOn<MailProgram>;

TEST_F(SharingSourceTest, OffersNothingWithoutABus) {
    const QDBusConnection none(QStringLiteral("none"));
    KdeConnectSharing kde(none);
    GsConnectSharing gnome(none);
    EXPECT_THAT(find(kde), IsEmpty());
    EXPECT_THAT(find(gnome), IsEmpty());
}

TEST_F(SharingSourceTest, KdeConnectOffersItsDevicesByName) {
    KdeConnectService service(bus.connect());
    service.daemon.names = {{QStringLiteral("b1"), QStringLiteral("Phone")},
                            {QStringLiteral("c2"), QStringLiteral("Table & Top")}};
    KdeConnectSharing source(bus.connect());
    const auto offers = find(source);
    EXPECT_THAT(titles(offers), ElementsAre("Phone", "Table & Top"));
    offers[0].perform({file});
    EXPECT_TRUE(runUntil([&] { return !service.device.received.isEmpty(); }));
    EXPECT_THAT(service.device.received, ElementsAre(QString::fromStdString(file.address())));
}

TEST_F(SharingSourceTest, ADeviceThatVanishedIsLogged) {
    KdeConnectService service(bus.connect());
    service.daemon.names = {{QStringLiteral("gone"), QStringLiteral("Phone")}};
    KdeConnectSharing source(bus.connect());
    find(source)[0].perform({file});
    EXPECT_TRUE(runUntil([&] { return !log.lines().empty(); }));
    EXPECT_THAT(log.lines(), ElementsAre(HasSubstr("Vantle: cannot send to the device: ")));
}

TEST_F(SharingSourceTest, GsConnectOffersDevicesThatArePairedAndConnected) {
    QDBusConnection connection = bus.connect();
    GsConnectDevice phone;
    connection.registerObject(QStringLiteral("/phone"), &phone, QDBusConnection::ExportAllSlots);
    ObjectManager manager(connection, "org.gnome.Shell.Extensions.GSConnect",
                          "/org/gnome/Shell/Extensions/GSConnect");
    const auto device = [&](const char* objectPath, const char* name, bool connected, bool paired) {
        manager.objects[QDBusObjectPath(QString::fromLatin1(objectPath))]
                       [QStringLiteral("org.gnome.Shell.Extensions.GSConnect.Device")] = {
            {QStringLiteral("Name"), QString::fromLatin1(name)},
            {QStringLiteral("Connected"), connected},
            {QStringLiteral("Paired"), paired}};
    };
    device("/phone", "Phone", true, true);
    device("/stranger", "Stranger", true, false);
    device("/away", "Away", false, true);
    GsConnectSharing source(bus.connect());
    const auto offers = find(source);
    EXPECT_THAT(titles(offers), ElementsAre("Phone"));
    offers[0].perform({file});
    EXPECT_TRUE(runUntil([&] { return !phone.received.isEmpty(); }));
    EXPECT_THAT(phone.received, ElementsAre(QString::fromStdString(file.address())));
}

TEST_F(BluetoothSharingTest, NeedsAnAdapterAndAProgram) {
    EXPECT_THAT(find(source), IsEmpty());
    install("bluetooth-sendto");
    EXPECT_THAT(find(source), IsEmpty());
    plugIn();
    EXPECT_THAT(titles(find(source)), ElementsAre("Bluetooth…"));
}

TEST_F(BluetoothSharingTest, StartsWhatTheDesktopHas) {
    plugIn();
    install("bluedevil-sendfile");
    find(source)[0].perform({file});
    ASSERT_EQ(launcher.launched.size(), 1u);
    EXPECT_THAT(launcher.launched[0].arguments, ElementsAre("--files", file.path()));
    install("blueman-sendto");
    find(source)[0].perform({file});
    EXPECT_THAT(launcher.launched[1].executable, HasSubstr("/blueman-sendto"));
    EXPECT_THAT(launcher.launched[1].arguments, ElementsAre(file.path()));
}

TEST_F(MailSharingTest, NeedsAProgramThatTakesMailAddresses) {
    install("xdg-email");
    EXPECT_THAT(find(source), IsEmpty());
    installMailProgram();
    EXPECT_THAT(titles(find(source)), ElementsAre("Mail…"));
}

TEST_F(MailSharingTest, NeedsThePortalOrTheDesktopsMailCommand) {
    installMailProgram();
    EXPECT_THAT(find(source), IsEmpty());
}

TEST_F(MailSharingTest, TheUsersOwnChoiceCountsAsWell) {
    install("xdg-email");
    std::filesystem::create_directory((place / "configuration").path());
    writeText(place / "configuration/mimeapps.list",
              "[Default Applications]\nx-scheme-handler/mailto=mine.desktop\n");
    EXPECT_THAT(titles(find(source)), ElementsAre("Mail…"));
}

TEST_F(MailSharingTest, AttachesTheFileWithTheDesktopsProgram) {
    install("xdg-email");
    installMailProgram();
    find(source)[0].perform({file});
    ASSERT_EQ(launcher.launched.size(), 1u);
    EXPECT_THAT(launcher.launched[0].executable, HasSubstr("/xdg-email"));
    EXPECT_THAT(launcher.launched[0].arguments, ElementsAre("--attach", file.path()));
}

TEST_F(MailSharingTest, AttachesTheFileThroughThePortalIfThereIsOne) {
    const EmailPortal portal(bus.connect());
    install("xdg-email");
    installMailProgram();
    find(source)[0].perform({file});
    EXPECT_TRUE(runUntil([&] { return !portal.attached.isEmpty(); }));
    EXPECT_THAT(portal.attached, ElementsAre("picture"));
    EXPECT_THAT(launcher.launched, IsEmpty());
}

TEST(SharingSourcesTest, ReturnsTheOffersInOrderAfterAllAnswers) {
    fakes::FakeSharingSource::Script one{.offers = {{"first", "", {}}}, .isQuick = false};
    fakes::FakeSharingSource::Script two{.offers = {{"second", "", {}}}, .isQuick = false};
    std::vector<std::unique_ptr<SharingSource>> list;
    list.push_back(std::make_unique<fakes::FakeSharingSource>(one));
    list.push_back(std::make_unique<fakes::FakeSharingSource>(two));
    SharingSources sources(std::move(list));
    std::vector<std::string> titles;
    sources.find([&](const auto& offers) {
        for (const auto& offer : offers) titles.push_back(offer.title);
    });
    two.answer();
    EXPECT_THAT(titles, IsEmpty());
    one.answer();
    EXPECT_THAT(titles, ElementsAre("first", "second"));
}

TEST(SharingSourcesTest, ReturnsNothingWithoutSources) {
    bool isTold = false;
    SharingSources({}).find([&](const auto& offers) { isTold = offers.empty(); });
    EXPECT_TRUE(isTold);
}

}  // namespace
}  // namespace vantle
