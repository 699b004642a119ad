// Compares the card and the other windows with pictures that a person has checked. A picture that
// differs is left in the working folder; if it is right, VANTLE_WRITE_REFERENCES=1 makes it the new
// reference. Version 4 of Inter has letters of another form than version 3: pictures that differ
// for this reason alone have a second reference.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <QRawFont>
#include <QtEndian>
#include <algorithm>
#include <cstdlib>
#include <functional>

#include "ManualFrames.h"
#include "PreviewStage.h"
#include "Scenes.h"
#include "ScreenStage.h"
#include "Updates.h"
#include "app/StatusBarController.h"
#include "fakes/FakeApplication.h"
#include "fakes/FakeFileOpener.h"
#include "fakes/FakeStatusItem.h"
#include "fakes/SettingsOnFakes.h"
#include "menus/MenuWindow.h"
#include "panel/views/Appearance.h"
#include "panel/views/dragging/DragPile.h"
#include "platform/qt/Pixels.h"
#include "platform/qt/translations/Translations.h"
#include "screens/views/AlertWindow.h"
#include "support/Localization.h"

namespace vantle {
namespace {

// Other versions of the font libraries draw the edges of letters slightly differently. These limits
// allow that, but no mark as large as this square can appear, vanish or change its colour
// unnoticed.
constexpr int toleratedDifference = 24;
constexpr int side = 10;  // the square's side in pixels
constexpr int toleratedInSquare = 25;

struct Look {
    const char* name;
    ColorScheme scheme;
    QColor wallpaper;
};

/// The visible part of a scene, without its background.
struct Subject {
    std::string name;
    std::function<QImage()> draw;
};

QImage drawnMenu() {
    MenuWindow window;
    const Menu menu{"Share",
                    {{.title = "Mail…", .symbol = "envelope"},
                     {.title = "Telephone of somebody", .symbol = "phone"},
                     {.title = "Bluetooth…", .symbol = "radiowaves"},
                     {.kind = MenuItem::Kind::separator},
                     {.title = "Copy file", .symbol = "doc.on.doc"},
                     {.title = "Reveal", .symbol = "folder"}}};
    window.open(menu, {{20, 20, 28, 28}}, [](auto) {});
    QTest::keyClick(&window, Qt::Key_End);
    QTest::keyClick(&window, Qt::Key_Up);
    return window.grabWindow();
}

/// Returns the icon of a program: a disc of a colour.
MenuImage icon(const QColor& color) {
    constexpr int size = 40;
    QImage drawn(size, size, QImage::Format_RGBA8888_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(drawn.rect().adjusted(2, 2, -2, -2));
    painter.end();
    auto picture = std::make_shared<Image>(Image{size, size, {20, 20}, {}});
    picture->rgba.assign(drawn.constBits(), drawn.constBits() + drawn.sizeInBytes());
    return {picture, {20, 20}, {{0, 0}, {20, 20}}};
}

Menu menuWithPage() {
    return {"Capture",
            {{.title = "Open"},
             {.title = "Open With",
              .items = {{.title = "Image Viewer", .image = icon(Qt::darkGreen)},
                        {.title = "Paint", .image = icon(QColor(190, 60, 50))},
                        {.title = "A program without an icon"},
                        {.kind = MenuItem::Kind::separator},
                        {.title = "Other…"}}},
             {.kind = MenuItem::Kind::separator},
             {.title = "Copy", .keyEquivalent = "c"},
             {.title = "Move to Trash"}},
            1};
}

QImage drawnMenuWithPage() {
    MenuWindow window;
    window.open(menuWithPage(), {{20, 20, 28, 28}});
    return window.grabWindow();
}

QImage drawnMenuPage() {
    ManualFrames frames;
    MenuWindow window;
    window.open(menuWithPage(), {{20, 20, 28, 28}});
    QTest::keyClick(&window, Qt::Key_Right);
    frames.settle();
    return window.grabWindow();
}

QImage drawnStatusMenu() {
    fakes::FakeStatusItem item;
    fakes::FakeFileOpener opener;
    fakes::FakeApplication application;
    fakes::SettingsOnFakes onFakes;
    StatusBarController controller(item, opener, application, onFakes.settings);
    controller.recent = [] {
        return std::vector<CapturePointer>{
            capture("Screenshot from 2026-11-21 18-04-12", {1920, 1080}),
            capture("Portrait", {1000, 2000}), capture("Recording", {1280, 720})};
    };
    MenuWindow window;
    window.open(controller.menuNeedsUpdate(), {{20, 20, 24, 24}});
    QTest::keyClick(&window, Qt::Key_Down);
    return window.grabWindow();
}

QImage drawnAlert(const Alert& alert) {
    AlertWindow window(alert);
    window.create();
    return window.grabWindow();
}

Alert warning() {
    const auto text = [](const char* source) { return localized("AppDelegate", source); };
    return {Alert::Style::warning,
            text("Vantle needs access to your screenshot folder"),
            filled(text("macOS is blocking Vantle from reading %1. Allow Vantle under System "
                        "Settings → Privacy & Security → Files and Folders, then click Retry."),
                   {"Screenshots"}),
            {text("Open Privacy Settings"), text("Retry"), text("Later")}};
}

const Alert information{Alert::Style::informational,
                        "Vantle is running",
                        "/a/path/without/any/space/that/is/longer/than/the/line/has/room/for/it.",
                        {"OK"}};

QImage drawnSettings() {
    ScreenStage stage;
    stage.settings->dismissAfter.set(25);
    stage.settings->setScreenshotFolder(Url::file("/home/user/Pictures/Screenshots"));
    stage.openSettings();
    return stage.picture();
}

QImage drawnOnboarding(int step) {
    ScreenStage stage;
    stage.openOnboarding(step);
    return stage.picture();
}

QImage drawnUpdate(const UpdateState& state) {
    ScreenStage stage;
    stage.openUpdate(state);
    return stage.picture();
}

QImage drawnPile(DragPile::Edges edges) {
    std::vector<DraggingItem> items;
    for (int i = 0; i < 7; ++i) {
        const auto one = capture(std::string(1, static_cast<char>('a' + i)), {1600, 1000});
        const double offset = 6 * std::min(i, 4);
        items.push_back({one->url(), pixels(*one->thumbnail()).copy(),
                         QRectF(20 + offset, 20 + offset, 160, 100)});
    }
    return dragPile(items, 1, edges).picture;
}

std::vector<Subject> subjects() {
    std::vector<Subject> all;
    for (const Scene& scene : allScenes())
        all.push_back({scene.name, [scene] {
                           CardStage stage;
                           scene.set(stage);
                           return drawn(stage);
                       }});
    for (const PreviewScene& scene : previewScenes())
        all.push_back({"preview-" + scene.name, [scene] {
                           PreviewStage stage;
                           scene.set(stage);
                           return stage.picture();
                       }});
    all.push_back({"menu", drawnMenu});
    all.push_back({"menu-with-page", drawnMenuWithPage});
    all.push_back({"menu-page", drawnMenuPage});
    all.push_back({"status-menu", drawnStatusMenu});
    all.push_back({"alert-warning", [] { return drawnAlert(warning()); }});
    all.push_back({"alert-information", [] { return drawnAlert(information); }});
    all.push_back({"settings", drawnSettings});
    for (int step = 0; step < OnboardingSteps::stepCount; ++step)
        all.push_back(
            {"onboarding-" + std::to_string(step), [step] { return drawnOnboarding(step); }});
    for (const auto& [name, state] : updateStates())
        all.push_back({"update-" + name, [state = state] { return drawnUpdate(state); }});
    all.push_back({"pile", [] { return drawnPile(DragPile::Edges::soft); }});
    all.push_back({"pile-opaque", [] { return drawnPile(DragPile::Edges::opaque); }});
    return all;
}

using Picture = std::tuple<Subject, Look>;

std::string pictureName(const Picture& picture) {
    return std::get<Subject>(picture).name + "-" + std::get<Look>(picture).name;
}

bool isVisible(QRgb one, QRgb other) {
    return std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                     std::abs(qBlue(one) - qBlue(other))}) > toleratedDifference;
}

/// Returns the highest number of visibly different pixels in any square. The sizes must be equal.
int difference(const QImage& a, const QImage& b) {
    const int width = a.width() + 1;
    // Holds for each pixel how many differ to its left and above.
    std::vector<int> sums(static_cast<std::size_t>(width * (a.height() + 1)));
    const auto sum = [&](int x, int y) -> int& {
        return sums[static_cast<std::size_t>(y * width + x)];
    };
    int most = 0;
    for (int y = 1; y <= a.height(); ++y)
        for (int x = 1; x <= a.width(); ++x) {
            sum(x, y) = sum(x - 1, y) + sum(x, y - 1) - sum(x - 1, y - 1) +
                        (isVisible(a.pixel(x - 1, y - 1), b.pixel(x - 1, y - 1)) ? 1 : 0);
            const int left = std::max(0, x - side);
            const int top = std::max(0, y - side);
            most = std::max(most, sum(x, y) - sum(left, y) - sum(x, top) + sum(left, top));
        }
    return most;
}

bool isLike(const QImage& taken, const QImage& reference) {
    return taken.size() == reference.size() && difference(taken, reference) <= toleratedInSquare;
}

QFont fontOfReferences() {
    return QFont(QStringLiteral("Inter"));
}

/// Returns the major version of the font in its table "head".
int majorVersion(const QFont& font) {
    const QByteArray head = QRawFont::fromFont(font).fontTable("head");
    return head.size() < 8 ? 0 : qFromBigEndian<qint16>(head.constData() + 4);
}

QString reference(const QString& file) {
    return QStringLiteral(VANTLE_REFERENCES "/") + file;
}
QString referenceOfInter4(const QString& file) {
    return reference("inter-4/" + file);
}

QString referenceInUse(const QString& file) {
    const bool hasSecond = QFile::exists(referenceOfInter4(file));
    return hasSecond && majorVersion(fontOfReferences()) >= 4 ? referenceOfInter4(file)
                                                              : reference(file);
}

/// Writes a reference. A second one is written only if the first does not fit both versions.
bool writeReference(const QImage& taken, const QString& file) {
    if (majorVersion(fontOfReferences()) < 4) return taken.save(reference(file));
    QFile::remove(referenceOfInter4(file));
    return isLike(taken, QImage(reference(file))) || taken.save(referenceOfInter4(file));
}

class PictureTest : public testing::TestWithParam<Picture> {
protected:
    PictureTest() {
        english_.install();
        const Look& look = std::get<Look>(GetParam());
        desktop.look.set({.scheme = look.scheme, .accent = Color{0.04, 0.48, 1}});
        Appearance::follow(&desktop);
    }
    ~PictureTest() override { Appearance::follow(nullptr); }

    QImage take() const {
        const QImage subject = std::get<Subject>(GetParam()).draw();
        QImage picture(subject.size(), QImage::Format_RGB32);
        picture.fill(std::get<Look>(GetParam()).wallpaper);
        QPainter painter(&picture);
        painter.drawImage(0, 0,
                          QImage(subject.constBits(), subject.width(), subject.height(),
                                 subject.bytesPerLine(), QImage::Format_ARGB32_Premultiplied));
        return picture;
    }

    DesktopAppearance desktop;

private:
    /// The texts as a user of this system reads them.
    Translations english_{QStringLiteral(VANTLE_TRANSLATIONS), {QStringLiteral("en")}};
};

TEST_P(PictureTest, LooksLikeTheReference) {
    if (!QFontInfo(fontOfReferences()).exactMatch())
        GTEST_SKIP() << "the font of the references is not installed";
    const QString file = QString::fromStdString(pictureName(GetParam()) + ".png");
    const QImage taken = take();
    if (qEnvironmentVariableIsSet("VANTLE_WRITE_REFERENCES")) {
        ASSERT_TRUE(writeReference(taken, file));
        return;
    }
    const QString path = referenceInUse(file);
    ASSERT_TRUE(QFile::exists(path)) << path.toStdString();
    const bool isRight = isLike(taken, QImage(path));
    if (!isRight) taken.save(file);
    EXPECT_TRUE(isRight) << "see " << QDir::current().filePath(file).toStdString() << " and "
                         << path.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Card, PictureTest,
    testing::Combine(testing::ValuesIn(subjects()),
                     testing::Values(Look{"light", ColorScheme::light, QColor(70, 90, 140)},
                                     Look{"dark", ColorScheme::dark, QColor(200, 190, 180)})),
    [](const auto& picture) {
        std::string name = pictureName(picture.param);
        std::erase(name, '-');
        return name;
    });

TEST(PictureDifference, IsVisible) {
    QImage one(100, 100, QImage::Format_RGB32);
    one.fill(Qt::white);
    EXPECT_TRUE(isLike(one, one));
    EXPECT_FALSE(isLike(one, QImage()));
    for (const QPoint& corner : {QPoint(0, 0), QPoint(47, 13), QPoint(90, 90)}) {
        QImage other = one;
        QPainter(&other).fillRect(QRect(corner, QSize(side, side)), QColor(225, 255, 255));
        EXPECT_EQ(difference(one, other), side * side);
        EXPECT_FALSE(isLike(one, other));
    }
}

}  // namespace
}  // namespace vantle
