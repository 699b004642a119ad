// The appearance that the portal reports, over a real bus.
#include <gtest/gtest.h>

#include <QDBusArgument>
#include <functional>
#include <memory>

#include "contract/DesktopAppearanceContract.h"
#include "contract/EventLoop.h"
#include "contract/PrivateBus.h"
#include "contract/SettingsPortal.h"
#include "platform/freedesktop/PortalAppearance.h"

namespace vantle {
namespace {

const QString appearance = QStringLiteral("org.freedesktop.appearance");

/// A portal on a bus.
struct PortalDesk {
    void choose(ColorScheme scheme) {
        EXPECT_TRUE(portal.isThere());
        portal.set(appearance, QStringLiteral("color-scheme"),
                   scheme == ColorScheme::dark ? 1U : 2U);
    }
    void connect() { backend = std::make_unique<PortalAppearance>(bus.connect()); }
    const DesktopLook& look() const { return backend->look.value(); }
    static bool runUntil(const std::function<bool()>& condition) {
        return vantle::runUntil(condition);
    }

    PrivateBus bus;
    SettingsPortal portal{bus.connect()};
    std::unique_ptr<PortalAppearance> backend;
};

INSTANTIATE_TYPED_TEST_SUITE_P(PortalAppearance, DesktopAppearanceContract, PortalDesk);

class PortalAppearanceTest : public testing::Test {
protected:
    PortalAppearanceTest() : portal(bus.connect()) {}

    QVariant rgb(double red, double green, double blue) {
        QDBusArgument structure;
        structure.beginStructure();
        structure << red << green << blue;
        structure.endStructure();
        return QVariant::fromValue(structure);
    }
    const DesktopLook& look() {
        if (!backend) backend = std::make_unique<PortalAppearance>(bus.connect());
        return backend->look.value();
    }
    void set(const char* key, const QVariant& value) {
        portal.set(appearance, QString::fromLatin1(key), value);
    }

    PrivateBus bus;
    SettingsPortal portal;
    std::unique_ptr<PortalAppearance> backend;
};

TEST_F(PortalAppearanceTest, AWithdrawnPreferenceDoesNotCount) {
    set("color-scheme", 1U);
    EXPECT_EQ(look().scheme, ColorScheme::unknown);
    EXPECT_TRUE(runUntil([this] { return look().scheme == ColorScheme::dark; }));
    set("color-scheme", 0U);
    EXPECT_TRUE(runUntil([this] { return look().scheme == ColorScheme::unknown; }));
}

TEST_F(PortalAppearanceTest, AnAccentOutsideOfTheRangeDoesNotCount) {
    set("accent-color", rgb(0.25, 0.5, 1));
    const Color blue{0.25, 0.5, 1};
    EXPECT_TRUE(runUntil([&] { return look().accent == blue; }));
    set("accent-color", rgb(-1, -1, -1));
    EXPECT_TRUE(runUntil([this] { return !look().accent; }));
    set("accent-color", QStringLiteral("blue"));
    set("color-scheme", 1U);
    EXPECT_TRUE(runUntil([this] { return look().scheme == ColorScheme::dark; }));
    EXPECT_FALSE(look().accent);
}

TEST_F(PortalAppearanceTest, EachDesktopCanRequestLessMotion) {
    const QString gnome = QStringLiteral("org.gnome.desktop.interface");
    const QString kde = QStringLiteral("org.kde.kdeglobals.KDE");
    struct UpdateCriteria {
        QString space;
        QString key;
        QVariant reduced;
        QVariant usual;
    };
    for (const auto& [space, key, reduced, usual] :
         {UpdateCriteria{appearance, QStringLiteral("reduced-motion"), 1U, 0U},
          UpdateCriteria{gnome, QStringLiteral("enable-animations"), false, true},
          UpdateCriteria{kde, QStringLiteral("AnimationDurationFactor"), QStringLiteral("0"),
                         QStringLiteral("1.5")}}) {
        EXPECT_FALSE(look().reducesMotion);
        portal.set(space, key, reduced);
        EXPECT_TRUE(runUntil([this] { return look().reducesMotion; })) << key.toStdString();
        portal.set(space, key, usual);
        EXPECT_TRUE(runUntil([this] { return !look().reducesMotion; })) << key.toStdString();
    }
}

TEST(PortalAppearance, HasNoPreferencesWithoutABus) {
    const PortalAppearance alone(QDBusConnection(QStringLiteral("none")));
    QCoreApplication::processEvents();
    EXPECT_EQ(alone.look.value(), DesktopLook{});
}

}  // namespace
}  // namespace vantle
