#include "platform/qt/FileMimeData.h"

#include <QUrl>
#include <QVariantList>
#include <utility>

namespace vantle {
namespace {

const QString transferKey = QStringLiteral("application/vnd.portal.filetransfer");
const QString addressList = QStringLiteral("text/uri-list");
// File managers of GNOME, Xfce and LXDE, and of MATE, read here whether to copy or to cut.
const QString gnomeFiles = QStringLiteral("x-special/gnome-copied-files");
const QString mateFiles = QStringLiteral("x-special/mate-copied-files");
// KDE's file managers read here only whether to cut.
const QString kdeCut = QStringLiteral("application/x-kde-cutselection");
// KDE's file managers request this with a drop, not while the pointer only passes over them. It may
// be empty.
const QString kdeDrop = QStringLiteral("application/x-kio-metadata");
const QString plainText = QStringLiteral("text/plain");

QByteArray joined(const std::vector<Url>& files, std::string (*describe)(const Url&),
                  const char* between) {
    QByteArray all;
    for (const Url& file : files) {
        if (!all.isEmpty()) all += between;
        all += QByteArray::fromStdString(describe(file));
    }
    return all;
}

std::string address(const Url& file) {
    return file.address();
}

std::string path(const Url& file) {
    return file.path();
}

QVariantList urlList(const std::vector<Url>& files) {
    QVariantList all;
    for (const Url& file : files)
        all << QUrl::fromEncoded(QByteArray::fromStdString(file.address()));
    return all;
}

}  // namespace

FileMimeData::FileMimeData(std::vector<Url> files, std::shared_ptr<const PictureContents> picture,
                           Use use, std::shared_ptr<const FileTransfer> transfer)
    : files_(std::move(files)),
      picture_(std::move(picture)),
      use_(use),
      transfer_(transfer && transfer->isAvailable() ? std::move(transfer) : nullptr) {}

QStringList FileMimeData::fileFormats() const {
    if (files_.empty()) return {};
    // Programs outside a sandbox use the addresses.
    QStringList formats = transfer_ ? QStringList{transferKey} : QStringList();
    formats << addressList;
    if (use_ == Use::drag) formats << kdeDrop;
    if (use_ == Use::clipboard) formats << gnomeFiles << mateFiles << kdeCut << plainText;
    return formats;
}

QStringList FileMimeData::formats() const {
    return (picture_ ? picture_->types() : QStringList()) + fileFormats();
}

QVariant FileMimeData::retrieveData(const QString& type, QMetaType wanted) const {
    // Qt 6.8 converts the bytes to an empty list, and one of its plugins requests the list.
    if (type == addressList && wanted.id() == QMetaType::QVariantList) {
        *wasRead_ = *wasRead_ || !files_.empty();
        return urlList(files_);
    }
    *decidesLater_ = *decidesLater_ || type == kdeDrop;
    const QByteArray bytes = bytesAs(type);
    *wasRead_ = *wasRead_ || !bytes.isEmpty();
    return bytes;
}

QByteArray FileMimeData::bytesAs(const QString& type) const {
    if (picture_ && picture_->types().contains(type)) return picture_->bytesAs(type);
    if (!fileFormats().contains(type)) return {};
    if (type == transferKey) return transfer_->keyFor(files_);
    if (type == addressList) return joined(files_, address, "\r\n") + "\r\n";
    if (type == gnomeFiles || type == mateFiles) return "copy\n" + joined(files_, address, "\n");
    if (type == kdeDrop) return {};
    if (type == kdeCut) return QByteArray("0");
    return joined(files_, path, "\n");
}

}  // namespace vantle
