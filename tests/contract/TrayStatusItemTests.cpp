#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QImage>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "contract/EventLoop.h"
#include "contract/PrivateBus.h"
#include "contract/StatusItemContract.h"
#include "contract/TrayService.h"
#include "platform/freedesktop/tray/TrayStatusItem.h"

namespace vantle {
namespace {

using testing::ElementsAre;

/// A tray on a bus.
struct BusTray {
    std::vector<std::string> open() {
        std::vector<std::string> titles;
        menu = tray.open();
        for (const auto& line : menu.children) {
            const bool isSeparator =
                line.properties.value(QStringLiteral("type")) == QStringLiteral("separator");
            titles.push_back(isSeparator ? "-" : label(line));
        }
        return titles;
    }
    void choose(const std::string& title) {
        for (const auto& line : menu.children)
            if (label(line) == title) tray.send(line.id, QStringLiteral("clicked"));
    }
    bool isDimmed() {
        const auto icons = qdbus_cast<BusPixmaps>(tray.property(QStringLiteral("IconPixmap")));
        unsigned strongest = 0;
        for (qsizetype i = 0; i < icons.front().pixels.size(); i += 4)
            strongest = std::max(
                strongest, static_cast<unsigned>(static_cast<uchar>(icons.front().pixels[i])));
        return strongest < 128;
    }
    void start() { tray.start(); }
    void stop() { tray.stop(); }
    bool showsItem(bool shown) {
        return runUntil([&] { return item.isShown() == shown && tray.hasItem() == shown; });
    }

    static bool runUntil(const std::function<bool()>& condition) {
        return vantle::runUntil(condition);
    }

    /// Returns the label as a tray shows it: an underscore marks the letter after it, two are one
    /// underscore.
    static std::string label(const BusMenuLayout& line) {
        QString text = line.properties.value(QStringLiteral("label")).toString();
        for (qsizetype i = text.indexOf(u'_'); i >= 0; i = text.indexOf(u'_', i + 1))
            text.remove(i, 1);
        return text.toStdString();
    }

    PrivateBus bus;
    TrayService tray{bus.connect()};
    std::vector<std::pair<Menu, QRect>> opened;
    TrayStatusItem item{
        [this](const Menu& shown, const QRect& anchor) { opened.emplace_back(shown, anchor); },
        TrayStatusItem::Click::opensOurMenu, bus.connect()};
    BusMenuLayout menu;
};

INSTANTIATE_TYPED_TEST_SUITE_P(TrayStatusItem, StatusItemContract, BusTray);

class TrayOnBusTest : public StatusItemContract<BusTray> {
protected:
    TrayOnBusTest() {
        tray.start();
        tray.item.show();
        EXPECT_TRUE(tray.showsItem(true));
    }

    std::vector<int> ids() {
        std::vector<int> found;
        for (const auto& line : tray.tray.open().children) found.push_back(line.id);
        return found;
    }
};

TEST_F(TrayOnBusTest, DescribesItself) {
    EXPECT_EQ(tray.tray.property(QStringLiteral("Id")), QStringLiteral("ProgramItem"));
    EXPECT_EQ(tray.tray.property(QStringLiteral("Title")), QStringLiteral("Program"));
    EXPECT_EQ(tray.tray.property(QStringLiteral("Status")), QStringLiteral("Active"));
    EXPECT_EQ(tray.tray.property(QStringLiteral("ItemIsMenu")), false);
}

TEST_F(TrayOnBusTest, HasAnIconOfEverySize) {
    const auto icons = qdbus_cast<BusPixmaps>(tray.tray.property(QStringLiteral("IconPixmap")));
    std::vector<int> sizes;
    for (const auto& icon : icons) {
        sizes.push_back(icon.width);
        EXPECT_EQ(icon.pixels.size(), icon.width * icon.height * 4);
        EXPECT_GT(icon.pixels.count('\xff'), icon.width) << "it is empty";
    }
    EXPECT_THAT(sizes, ElementsAre(16, 22, 24, 32, 48));
}

TEST_F(TrayOnBusTest, AClickOpensOurMenu) {
    for (const auto* method : {"Activate", "SecondaryActivate", "ContextMenu"})
        tray.tray.call(QStringLiteral("/StatusNotifierItem"),
                       QStringLiteral("org.kde.StatusNotifierItem"), QString::fromLatin1(method),
                       {100, 200});
    ASSERT_EQ(tray.opened.size(), 3u);
    EXPECT_EQ(tray.opened[0].second.topLeft(), QPoint(100, 200));
    EXPECT_EQ(tray.opened[0].first.items.size(), 3u);
}

TEST_F(TrayOnBusTest, AClickOnADenseScreenOpensTheMenuOnThatScreen) {
    tray.tray.call(QStringLiteral("/StatusNotifierItem"),
                   QStringLiteral("org.kde.StatusNotifierItem"), QStringLiteral("Activate"),
                   {1440 + 200, 100 + 400});
    ASSERT_EQ(tray.opened.size(), 1u);
    EXPECT_EQ(tray.opened[0].second.topLeft(), QPoint(1440 + 100, 100 + 200));
}

TEST_F(TrayOnBusTest, AnEqualLineKeepsItsNumberAndNoNumberIsReused) {
    const auto before = ids();
    lines.insert(lines.begin() + 1, {.title = "New"});
    const auto after = ids();
    ASSERT_EQ(after.size(), 4u);
    EXPECT_EQ(after[0], before[0]);
    EXPECT_THAT(before, testing::Not(testing::Contains(after[1])));
    EXPECT_EQ(after[2], before[1]);
    EXPECT_EQ(after[3], before[2]);
    lines.erase(lines.begin() + 1);
    EXPECT_EQ(ids(), before);
    lines[0].title = "Changed";
    EXPECT_THAT(after, testing::Not(testing::Contains(ids()[0])));
}

TEST_F(TrayOnBusTest, ASubmenuIsOneOfTheTray) {
    int chosen = 0;
    lines.insert(lines.begin(), {.title = "More",
                                 .items = {{.title = "Inner", .action = [&chosen] { ++chosen; }},
                                           {.title = "B"}}});
    const auto layout = tray.tray.open();
    ASSERT_EQ(layout.children.size(), 4);
    const BusMenuLayout& more = layout.children[0];
    EXPECT_EQ(more.properties[QStringLiteral("children-display")], QStringLiteral("submenu"));
    EXPECT_FALSE(layout.children[1].properties.contains(QStringLiteral("children-display")));
    ASSERT_EQ(more.children.size(), 2);
    EXPECT_EQ(BusTray::label(more.children[0]), "Inner");
    tray.tray.send(more.children[0].id, QStringLiteral("clicked"));
    EXPECT_TRUE(runUntil([&] { return chosen == 1; }));
}

TEST_F(TrayOnBusTest, ALineOfASubmenuKeepsItsNumber) {
    lines[0] = {.title = "More", .items = {{.title = "A"}, {.title = "B"}}};
    const BusMenuLayout before = tray.tray.open().children[0];
    lines[0].items.insert(lines[0].items.begin() + 1, {.title = "New"});
    const BusMenuLayout after = tray.tray.open().children[0];
    EXPECT_EQ(after.id, before.id);
    ASSERT_EQ(after.children.size(), 3);
    EXPECT_EQ(after.children[0].id, before.children[0].id);
    EXPECT_EQ(after.children[2].id, before.children[1].id);
    lines[0].items.clear();
    EXPECT_NE(tray.tray.open().children[0].id, before.id) << "trays keep the way of drawing a line";
}

TEST_F(TrayOnBusTest, ATrayMayAskForOneLevelOrForOneSubmenu) {
    lines[0] = {.title = "More", .items = {{.title = "A"}}};
    const int more = ids()[0];
    const auto layoutOf = [this](int parent, int depth) {
        const auto reply =
            tray.tray.callMenu(QStringLiteral("GetLayout"), {parent, depth, QStringList()});
        return qdbus_cast<BusMenuLayout>(reply.arguments().value(1));
    };
    EXPECT_TRUE(layoutOf(0, 1).children[0].children.isEmpty());
    ASSERT_EQ(layoutOf(more, -1).children.size(), 1);
    EXPECT_TRUE(layoutOf(more, 0).children.isEmpty());
}

TEST_F(TrayOnBusTest, RemainingLinesKeepTheirOrderEvenAmongSeparators) {
    const MenuItem rule{.kind = MenuItem::Kind::separator};
    lines = {{.title = "None"}, rule, {.title = "Settings"}, rule, {.title = "Quit"}};
    const auto before = ids();
    lines = {{.title = "Newest"},   rule, {.title = "Folder"}, rule,
             {.title = "Settings"}, rule, {.title = "Quit"}};
    const auto after = ids();
    ASSERT_EQ(after.size(), 7u);
    EXPECT_THAT(std::vector(after.begin() + 3, after.end()),
                testing::ElementsAre(before[1], before[2], before[3], before[4]));
}

TEST_F(TrayOnBusTest, UsesAnActivationTokenOfTheTray) {
    const auto reply = tray.tray.call(
        QStringLiteral("/StatusNotifierItem"), QStringLiteral("org.kde.StatusNotifierItem"),
        QStringLiteral("ProvideXdgActivationToken"), {QStringLiteral("token")});
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage);
}

TEST_F(TrayOnBusTest, AnOpenMenuDoesNotChange) {
    const auto before = ids();
    tray.tray.send(0, QStringLiteral("opened"));
    lines.clear();
    tray.item.menuChanged();
    EXPECT_EQ(tray.tray.layout().children.size(), 3);
    tray.tray.send(before[2], QStringLiteral("clicked"));
    EXPECT_TRUE(runUntil([&] { return timesChosen == 1; }));
    tray.tray.send(0, QStringLiteral("closed"));
    tray.item.menuChanged();
    EXPECT_TRUE(tray.tray.layout().children.isEmpty());
}

TEST_F(TrayOnBusTest, ChangesWhileTheMenuIsOpenAreReportedWhenItCloses) {
    EXPECT_EQ(ids().size(), 3u);
    tray.tray.send(0, QStringLiteral("opened"));
    lines.clear();
    tray.item.menuChanged();
    const int before = tray.tray.layoutUpdates();
    tray.tray.send(0, QStringLiteral("closed"));
    EXPECT_TRUE(runUntil([&] { return tray.tray.layoutUpdates() > before; }));
    EXPECT_TRUE(tray.tray.layout().children.isEmpty());
}

TEST_F(TrayOnBusTest, ATrayThatDiesWithTheMenuOpenDoesNotKeepIt) {
    EXPECT_EQ(ids().size(), 3u);
    TrayService other(tray.bus.connect());
    other.share(tray.tray);
    other.send(0, QStringLiteral("opened"));
    lines.clear();
    tray.item.menuChanged();
    EXPECT_EQ(tray.tray.layout().children.size(), 3);
    other.die();
    EXPECT_TRUE(runUntil([&] { return tray.tray.layout().children.isEmpty(); }));
}

TEST_F(TrayOnBusTest, ATrayThatDoesNotReportOpeningTheMenuHasTheLatestOne) {
    EXPECT_EQ(tray.tray.layout().children.size(), 3);
    lines.clear();
    tray.item.menuChanged();
    EXPECT_TRUE(tray.tray.layout().children.isEmpty());
}

TEST_F(TrayOnBusTest, LinesCarryKeysAndPictures) {
    auto image = std::make_shared<Image>();
    image->pixelsWide = image->pixelsHigh = 1;
    image->size = {100, 100};
    image->rgba = {255, 0, 0, 255};
    lines = {{.title = "Quit",
              .keyEquivalent = "q",
              .image = MenuImage{image, {36, 24}, {{6, 0}, {24, 24}}}}};
    const auto layout = tray.tray.open();
    const auto line = layout.children.at(0).properties;
    EXPECT_EQ(qdbus_cast<BusShortcut>(line[QStringLiteral("shortcut")]),
              (BusShortcut{{QStringLiteral("Control"), QStringLiteral("q")}}));
    const QImage icon = QImage::fromData(line[QStringLiteral("icon-data")].toByteArray());
    EXPECT_EQ(icon.size(), QSize(72, 48));
    EXPECT_EQ(icon.pixelColor(36, 24), QColor(Qt::red));
    EXPECT_EQ(icon.pixelColor(6, 24).alpha(), 0);
}

TEST_F(TrayOnBusTest, TheShortcutOfTheSettingsHasTheNameThatTraysUse) {
    lines = {{.title = "Settings…", .keyEquivalent = ","}};
    const auto line = tray.tray.open().children.at(0).properties;
    EXPECT_EQ(qdbus_cast<BusShortcut>(line[QStringLiteral("shortcut")]),
              (BusShortcut{{QStringLiteral("Control"), QStringLiteral("comma")}}));
}

TEST_F(TrayOnBusTest, AnUnknownLineIsHarmless) {
    tray.tray.send(4711, QStringLiteral("clicked"));
    const auto one =
        tray.tray.callMenu(QStringLiteral("GetProperty"), {4711, QStringLiteral("label")});
    EXPECT_EQ(one.type(), QDBusMessage::ReplyMessage);
    const auto several = tray.tray.callMenu(
        QStringLiteral("GetGroupProperties"),
        {QVariant::fromValue(QList<int>{0, 4711}), QStringList{QStringLiteral("label")}});
    EXPECT_EQ(qdbus_cast<BusMenuPropertiesList>(several.arguments().value(0)).size(), 1);
    const auto shown = tray.tray.callMenu(QStringLiteral("AboutToShowGroup"),
                                          {QVariant::fromValue(QList<int>{4711})});
    EXPECT_EQ(qdbus_cast<QList<int>>(shown.arguments().value(1)), QList<int>{4711});
    EXPECT_EQ(tray.tray.layout().children.size(), 3);
}

TEST_F(TrayOnBusTest, ThereIsNoIconWithoutATrayHost) {
    tray.tray.setHost(false);
    EXPECT_TRUE(runUntil([&] { return !tray.item.isShown(); }));
    EXPECT_EQ(tray.item.trayKind(), "none");
    tray.tray.setHost(true);
    EXPECT_TRUE(runUntil([&] { return tray.item.isShown(); }));
    EXPECT_EQ(tray.item.trayKind(), "D-Bus");
}

TEST(TrayWithoutHostTest, ARegisteredItemIsNotShownWithoutAHost) {
    BusTray tray;
    EXPECT_TRUE(tray.item.setImage("photo.on.rectangle.angled", "Program"));
    tray.tray.setHost(false);
    tray.start();
    tray.item.show();
    ASSERT_TRUE(runUntil([&] { return tray.tray.hasItem(); }));
    // Calls are answered in order: after this answer, the item has also learned that there is no
    // host.
    EXPECT_EQ(tray.tray.property(QStringLiteral("Status")), QStringLiteral("Active"));
    EXPECT_FALSE(tray.item.isShown());
}

TEST(TrayStatusItemTest, ThereIsNoItemWithoutABus) {
    TrayStatusItem item([](const auto&, const auto&) {}, TrayStatusItem::Click::opensOurMenu,
                        QDBusConnection(QStringLiteral("none")));
    item.show();
    EXPECT_FALSE(item.isShown());
    item.setAppearsDisabled(true);
    item.menuChanged();
}

}  // namespace
}  // namespace vantle
