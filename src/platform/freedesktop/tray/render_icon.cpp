// Runs when the program is built and draws an icon in each size that trays and launchers use, so
// that the resident program need not draw it.
//
//   render_icon ICON.svg NAME-16.argb NAME-22.argb ...
//
// The name of each file contains the size. The file is a PNG file or contains rows of premultiplied
// pixels from top to bottom, each a 32-bit number in the byte order of this machine.

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>

namespace {

QImage drawn(QSvgRenderer& renderer, int pixels) {
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter, QRectF(0, 0, pixels, pixels));
    return image;
}

bool write(const QImage& image, const QString& path) {
    if (path.endsWith(QLatin1String(".png"))) return image.save(path);
    QFile file(path);
    return file.open(QIODevice::WriteOnly) &&
           file.write(reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()) ==
               image.sizeInBytes();
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 3) return EXIT_FAILURE;
    QSvgRenderer renderer(QString::fromLocal8Bit(argv[1]));
    if (!renderer.isValid()) return EXIT_FAILURE;
    for (int i = 2; i < argc; ++i) {
        const QString path = QString::fromLocal8Bit(argv[i]);
        const int pixels = QFileInfo(path).completeBaseName().section(QLatin1Char('-'), -1).toInt();
        if (pixels <= 0 || !write(drawn(renderer, pixels), path)) return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
