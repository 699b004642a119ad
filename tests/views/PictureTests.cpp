// The card as people see it, against pictures that somebody has looked at. A picture that differs
// is left in the working folder; when it is right, VANTLE_WRITE_REFERENCES=1 makes it the new one.

#include <gtest/gtest.h>

#include <QDir>
#include <QFontInfo>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "Scenes.h"
#include "panel/views/Appearance.h"

namespace vantle {
namespace {

// Letters of other versions of the font libraries differ a little at their edges.
constexpr int toleratedDifference = 24;
constexpr double toleratedPart = 0.002;

struct Look {
    const char* name;
    ColorScheme scheme;
    QColor wallpaper;
};

using Picture = std::tuple<Scene, Look>;

std::string pictureName(const Picture& picture) {
    return std::get<Scene>(picture).name + "-" + std::get<Look>(picture).name;
}

/// The part of the pixels that differ visibly.
double difference(const QImage& a, const QImage& b) {
    if (a.size() != b.size()) return 1;
    int different = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x) {
            const QRgb one = a.pixel(x, y);
            const QRgb other = b.pixel(x, y);
            const int most =
                std::max({std::abs(qRed(one) - qRed(other)), std::abs(qGreen(one) - qGreen(other)),
                          std::abs(qBlue(one) - qBlue(other))});
            if (most > toleratedDifference) ++different;
        }
    return different / static_cast<double>(a.width() * a.height());
}

class PictureTest : public testing::TestWithParam<Picture> {
protected:
    PictureTest() {
        const Look& look = std::get<Look>(GetParam());
        desktop.look.set({.scheme = look.scheme, .accent = Color{0.04, 0.48, 1}});
        Appearance::follow(&desktop);
    }
    ~PictureTest() override { Appearance::follow(nullptr); }

    QImage take() const {
        CardStage stage;
        std::get<Scene>(GetParam()).set(stage);
        const QImage panel = drawn(stage);
        QImage picture(panel.size(), QImage::Format_RGB32);
        picture.fill(std::get<Look>(GetParam()).wallpaper);
        QPainter painter(&picture);
        painter.drawImage(0, 0,
                          QImage(panel.constBits(), panel.width(), panel.height(),
                                 panel.bytesPerLine(), QImage::Format_ARGB32_Premultiplied));
        return picture;
    }

    DesktopAppearance desktop;
};

TEST_P(PictureTest, LooksAsItShould) {
    if (!QFontInfo(QFont(QStringLiteral("Inter"))).exactMatch())
        GTEST_SKIP() << "the font of the references is not installed";
    const QString file = QString::fromStdString(pictureName(GetParam()) + ".png");
    const QString path = QStringLiteral(VANTLE_REFERENCES "/") + file;
    const QImage taken = take();
    if (qEnvironmentVariableIsSet("VANTLE_WRITE_REFERENCES")) {
        ASSERT_TRUE(taken.save(path));
        return;
    }
    const QImage reference(path);
    ASSERT_FALSE(reference.isNull()) << path.toStdString();
    const double differs = difference(taken, reference);
    if (differs > toleratedPart) taken.save(file);
    EXPECT_LE(differs, toleratedPart)
        << "see " << QDir::current().filePath(file).toStdString() << " and " << path.toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Card, PictureTest,
    testing::Combine(testing::ValuesIn(allScenes()),
                     testing::Values(Look{"light", ColorScheme::light, QColor(70, 90, 140)},
                                     Look{"dark", ColorScheme::dark, QColor(200, 190, 180)})),
    [](const auto& picture) {
        std::string name = pictureName(picture.param);
        std::erase(name, '-');
        return name;
    });

TEST(PictureDifference, IsSeen) {
    QImage one(100, 100, QImage::Format_RGB32);
    one.fill(Qt::white);
    QImage other = one;
    QPainter(&other).fillRect(0, 0, 10, 10, Qt::black);
    EXPECT_EQ(difference(one, one), 0);
    EXPECT_DOUBLE_EQ(difference(one, other), 0.01);
    EXPECT_EQ(difference(one, QImage()), 1);
}

}  // namespace
}  // namespace vantle
