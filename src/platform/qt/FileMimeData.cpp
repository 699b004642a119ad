#include "platform/qt/FileMimeData.h"

#include <QUrl>
#include <QVariantList>
#include <utility>

namespace vantle {
namespace {

const QString transferKey = QStringLiteral("application/vnd.portal.filetransfer");
const QString addressList = QStringLiteral("text/uri-list");
// What GNOME's, Xfce's and LXDE's, and MATE's file managers ask for: whether to copy or to cut.
const QString gnomeFiles = QStringLiteral("x-special/gnome-copied-files");
const QString mateFiles = QStringLiteral("x-special/mate-copied-files");
// KDE's only asks whether it is to be cut.
const QString kdeCut = QStringLiteral("application/x-kde-cutselection");
// They ask for it with a drop, not while something is dragged over them. Nothing needs to be in it.
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
      transfer_(transfer && transfer->isThere() ? std::move(transfer) : nullptr) {}

QStringList FileMimeData::fileFormats() const {
    if (files_.empty()) return {};
    // Programs outside a sandbox take the addresses.
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
    // Qt 6.8 makes an empty list of the bytes, and one of its plugins asks for the list.
    if (type == addressList && wanted.id() == QMetaType::QVariantList) {
        *wasRead_ = *wasRead_ || !files_.empty();
        return urlList(files_);
    }
    *decidesLater_ = *decidesLater_ || type == kdeDrop;
    const QByteArray bytes = as(type);
    *wasRead_ = *wasRead_ || !bytes.isEmpty();
    return bytes;
}

QByteArray FileMimeData::as(const QString& type) const {
    if (picture_ && picture_->types().contains(type)) return picture_->as(type);
    if (!fileFormats().contains(type)) return {};
    if (type == transferKey) return transfer_->keyFor(files_);
    if (type == addressList) return joined(files_, address, "\r\n") + "\r\n";
    if (type == gnomeFiles || type == mateFiles) return "copy\n" + joined(files_, address, "\n");
    if (type == kdeDrop) return {};
    if (type == kdeCut) return QByteArray("0");
    return joined(files_, path, "\n");
}

}  // namespace vantle
