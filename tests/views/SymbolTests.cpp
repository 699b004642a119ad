#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QImage>

#include "panel/views/SymbolProvider.h"

namespace vantle {
namespace {

QImage symbol(const QString& name, int side, const QString& color = QStringLiteral("ff0000")) {
    SymbolProvider provider;
    QSize size;
    return provider.requestImage(name + QLatin1Char('/') + color + QStringLiteral("/1.5"), &size,
                                 {side, side});
}

/// Returns the part of the picture that is drawn on, from 0 to 1.
double coverage(const QImage& picture) {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) sum += qAlpha(picture.pixel(x, y)) / 255.0;
    return sum / (picture.width() * picture.height());
}

QStringList allSymbols() {
    QStringList names;
    for (const QString& file : QDir(QStringLiteral(":/symbols")).entryList())
        names << file.chopped(4);
    return names;
}

TEST(Symbols, EachUsedNameHasASymbol) {
    for (const char* name :
         {"checkmark", "checkmark.circle.fill", "doc.on.doc", "folder", "pin", "pin.circle.fill",
          "pin.fill", "square.and.arrow.up", "trash", "video.fill", "xmark"})
        EXPECT_TRUE(allSymbols().contains(QString::fromLatin1(name))) << name;
}

TEST(Symbols, AllAreDrawnOnOneGridWithOneStroke) {
    for (const QString& name : allSymbols()) {
        QFile file(QStringLiteral(":/symbols/") + name + QStringLiteral(".svg"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        const QByteArray text = file.readAll();
        EXPECT_TRUE(text.contains("viewBox=\"0 0 16 16\"")) << name.toStdString();
        EXPECT_EQ(text.count("stroke-width"), 1) << name.toStdString();
        EXPECT_TRUE(text.contains("stroke-width=\"1.5\"")) << name.toStdString();
    }
}

TEST(Symbols, AreDrawnInTheRequestedColourAtEverySize) {
    for (const QString& name : allSymbols())
        for (const int side : {16, 24, 32, 48}) {
            const QImage picture = symbol(name, side);
            ASSERT_EQ(picture.size(), QSize(side, side));
            EXPECT_GT(coverage(picture), 0.05) << name.toStdString();
            EXPECT_LT(coverage(picture), 0.75) << name.toStdString();
            for (int y = 0; y < side; ++y)
                for (int x = 0; x < side; ++x) {
                    const QColor color = picture.pixelColor(x, y);
                    ASSERT_TRUE(color.alpha() < 129 || color.rgb() == qRgb(255, 0, 0));
                }
        }
}

TEST(Symbols, NoSymbolIsCutOffAtTheGridsEdge) {
    for (const QString& name : allSymbols()) {
        const QImage picture = symbol(name, 64);
        for (int i = 0; i < 64; ++i)
            for (const QPoint point : {QPoint(i, 0), QPoint(i, 63), QPoint(0, i), QPoint(63, i)})
                ASSERT_EQ(qAlpha(picture.pixel(point)), 0) << name.toStdString();
    }
}

TEST(Symbols, FilledOnesAreHeavierThanTheirOutlines) {
    EXPECT_GT(coverage(symbol(QStringLiteral("pin.fill"), 32)),
              1.2 * coverage(symbol(QStringLiteral("pin"), 32)));
}

TEST(SymbolsDeathTest, AMissingSymbolIsAProgrammingError) {
    EXPECT_DEATH((void)symbol(QStringLiteral("none"), 16), "missing symbol: none");
}

}  // namespace
}  // namespace vantle
