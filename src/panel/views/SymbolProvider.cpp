#include "panel/views/SymbolProvider.h"

#include <QFile>
#include <QPainter>
#include <QStringList>
#include <QSvgRenderer>

namespace vantle {
namespace {

constexpr auto folder = ":/symbols/";
/// The attribute as it is written in every file.
constexpr auto strokeAttribute = "stroke-width=\"1.5\"";

QByteArray symbol(const QString& name, const QString& stroke) {
    QFile file(QLatin1String(folder) + name + QLatin1String(".svg"));
    if (!file.open(QIODevice::ReadOnly)) qFatal("missing symbol: %s", qUtf8Printable(name));
    return file.readAll().replace(strokeAttribute, "stroke-width=\"" + stroke.toLatin1() + '"');
}

}  // namespace

QImage SymbolProvider::requestImage(const QString& id, QSize* size, const QSize& requestedSize) {
    const QStringList parts = id.split(QLatin1Char('/'));
    QSvgRenderer renderer(symbol(parts.value(0), parts.value(2)));
    QImage picture(requestedSize.isValid() ? requestedSize : renderer.defaultSize(),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(picture.rect(), QColor(QLatin1Char('#') + parts.value(1)));
    *size = picture.size();
    return picture;
}

}  // namespace vantle
