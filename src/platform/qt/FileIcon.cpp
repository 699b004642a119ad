#include "platform/qt/FileIcon.h"

#include <QFile>
#include <QIcon>
#include <QMimeDatabase>

namespace vantle {

QImage fileIcon(const Url& url, const QSize& pixels) {
    const QString name = QFile::decodeName(QByteArray::fromStdString(url.path()));
    const QMimeType type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension);
    const QIcon general = QIcon::fromTheme(type.genericIconName());
    return QIcon::fromTheme(type.iconName(), general).pixmap(pixels).toImage();
}

}  // namespace vantle
