// gallery FOLDER [LANGUAGE]
//
// Writes sheets of pictures at the scale in QT_SCALE_FACTOR: each scene of the card, light and
// dark, over a light and a dark wallpaper; the preview of each kind of capture, the steps of the
// onboarding and the settings, light and dark.
#include <QFont>
#include <QGuiApplication>
#include <QLinearGradient>
#include <QPainter>
#include <cstdio>

#include "PreviewStage.h"
#include "Scenes.h"
#include "ScreenStage.h"
#include "Updates.h"
#include "panel/views/Appearance.h"
#include "platform/qt/translations/Translations.h"

namespace {

using namespace vantle;

// The part of the panel to show, in points.
constexpr QRect part(100, 20, 700, 310);

enum class Wallpaper { light, dark };

const char* name(Wallpaper wallpaper) {
    return wallpaper == Wallpaper::light ? "light" : "dark";
}

/// Returns a soft landscape, with edges that show how far the plate is translucent.
QImage paper(Wallpaper wallpaper, const QSize& size) {
    QImage picture(size, QImage::Format_RGB32);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, size.width(), size.height());
    const bool isLight = wallpaper == Wallpaper::light;
    sky.setColorAt(0, isLight ? QColor(250, 244, 236) : QColor(20, 24, 44));
    sky.setColorAt(1, isLight ? QColor(205, 222, 240) : QColor(48, 36, 70));
    painter.fillRect(picture.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isLight ? QColor(240, 200, 170) : QColor(70, 90, 140));
    painter.drawEllipse(QPointF(size.width() * 0.62, size.height() * 0.4), size.height() * 0.28,
                        size.height() * 0.28);
    painter.setBrush(isLight ? QColor(255, 255, 255) : QColor(12, 14, 24));
    painter.drawRect(QRectF(0, size.height() * 0.72, size.width(), size.height() * 0.3));
    return picture;
}

/// Returns `wallpaper` with a window above it, whose pixel at `offset` lies in its upper left
/// corner.
QImage onPaper(const QImage& window, const QPoint& offset, const QImage& wallpaper) {
    QImage picture = wallpaper;
    QPainter painter(&picture);
    painter.drawImage(-offset, QImage(window.constBits(), window.width(), window.height(),
                                      window.bytesPerLine(), QImage::Format_ARGB32_Premultiplied));
    return picture;
}

/// Returns pictures of one size in rows.
QImage arranged(const std::vector<QImage>& pictures, int columns) {
    const QSize cell = pictures.front().size();
    const int count = static_cast<int>(pictures.size());
    const int rows = (count + columns - 1) / columns;
    QImage sheet(cell.width() * columns, cell.height() * rows, QImage::Format_RGB32);
    sheet.fill(Qt::gray);
    QPainter painter(&sheet);
    for (int i = 0; i < count; ++i)
        painter.drawImage(i % columns * cell.width(), i / columns * cell.height(),
                          pictures[static_cast<std::size_t>(i)]);
    return sheet;
}

QImage cards(Wallpaper wallpaper, double scale) {
    const QImage background = paper(wallpaper, part.size() * scale);
    const QPoint offset(qRound(part.x() * scale), qRound(part.y() * scale));
    std::vector<QImage> pictures;
    for (const Scene& scene : allScenes()) {
        CardStage stage;
        scene.set(stage);
        pictures.push_back(onPaper(drawn(stage), offset, background));
    }
    return arranged(pictures, 3);
}

QImage previews(Wallpaper wallpaper) {
    std::vector<QImage> pictures;
    for (const PreviewScene& scene : previewScenes()) {
        PreviewStage stage;
        scene.set(stage);
        QImage picture = stage.picture();
        picture.setDevicePixelRatio(1);
        pictures.push_back(onPaper(picture, {}, paper(wallpaper, picture.size())));
    }
    return arranged(pictures, 3);
}

std::vector<QImage> screens() {
    std::vector<QImage> all;
    for (int step = 0; step < OnboardingSteps::stepCount; ++step) {
        ScreenStage stage;
        stage.openOnboarding(step);
        all.push_back(stage.picture());
    }
    ScreenStage stage;
    stage.settings->dismissAfter.set(25);
    stage.openSettings();
    all.push_back(stage.picture());
    return all;
}

/// Returns the screens side by side.
QImage screenSheet(double scale) {
    const auto all = screens();
    const int gap = qRound(20 * scale);
    int width = gap;
    for (const QImage& screen : all) width += screen.width() + gap;
    QImage picture(width, all.front().height() + 2 * gap, QImage::Format_RGB32);
    picture.fill(Qt::gray);
    QPainter painter(&picture);
    int x = gap;
    for (QImage screen : all) {
        screen.setDevicePixelRatio(1);
        painter.drawImage(x, gap, screen);
        x += screen.width() + gap;
    }
    return picture;
}

QImage offer() {
    ScreenStage stage;
    stage.openUpdate({.stage = UpdateState::Stage::found, .item = offeredItem()});
    return stage.picture();
}

void write(const QImage& picture, const QString& path) {
    if (!picture.save(path)) qFatal("%s cannot be written", qUtf8Printable(path));
}

}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication application(argc, argv);
    if (argc < 2 || argc > 3) {
        std::fputs("Usage: gallery FOLDER [LANGUAGE]\n", stderr);
        return 2;
    }
    Translations translations(Translations::folderOfProgram(), {argc == 3 ? argv[2] : "en"});
    translations.install();
    QFont font(QStringLiteral("Inter"));
    font.setPixelSize(13);
    QGuiApplication::setFont(font);
    const QString folder = QString::fromLocal8Bit(argv[1]);
    const double scale = application.devicePixelRatio();
    DesktopAppearance desktop;
    Appearance::follow(&desktop);
    for (const auto& [scheme, look] :
         {std::pair{ColorScheme::light, "light"}, std::pair{ColorScheme::dark, "dark"}}) {
        desktop.look.set({.scheme = scheme});
        const QLatin1String looks(look);
        for (const Wallpaper wallpaper : {Wallpaper::light, Wallpaper::dark})
            write(cards(wallpaper, scale), QStringLiteral("%1/card-%2-on-%3@%4x.png")
                                               .arg(folder, looks, QLatin1String(name(wallpaper)))
                                               .arg(scale));
        const auto own = scheme == ColorScheme::dark ? Wallpaper::dark : Wallpaper::light;
        write(previews(own), QStringLiteral("%1/preview-%2@%3x.png").arg(folder, looks).arg(scale));
        write(screenSheet(scale),
              QStringLiteral("%1/screens-%2@%3x.png").arg(folder, looks).arg(scale));
        write(offer(), QStringLiteral("%1/update-%2@%3x.png").arg(folder, looks).arg(scale));
    }
    return 0;
}
