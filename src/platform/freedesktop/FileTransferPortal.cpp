#include "platform/freedesktop/FileTransferPortal.h"

#include <fcntl.h>

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusUnixFileDescriptor>
#include <algorithm>

#include "platform/freedesktop/BusCall.h"
#include "support/FileDescriptor.h"

namespace vantle {
namespace {

using Descriptors = QList<QDBusUnixFileDescriptor>;

const QString service = QStringLiteral("org.freedesktop.portal.Documents");
constexpr int timeout = 1000;  // milliseconds; another program waits for the answer
// The limit of the bus for descriptors in one message.
constexpr std::size_t maximumAtOnce = 16;

QDBusMessage call(const char* method) {
    return QDBusMessage::createMethodCall(
        service, QStringLiteral("/org/freedesktop/portal/documents"),
        QStringLiteral("org.freedesktop.portal.FileTransfer"), QString::fromLatin1(method));
}

Descriptors opened(const std::vector<Url>& files, std::size_t from) {
    Descriptors descriptors;
    for (std::size_t i = from; i < std::min(files.size(), from + maximumAtOnce); ++i) {
        const FileDescriptor file(open(files[i].path().c_str(), O_PATH | O_CLOEXEC));
        if (file) descriptors << QDBusUnixFileDescriptor(file.get());
    }
    return descriptors;
}

}  // namespace

bool FileTransferPortal::isAvailable() const {
    return bus_.isConnected() && bus_.interface()->isServiceRegistered(service);
}

QByteArray FileTransferPortal::keyFor(const std::vector<Url>& files) const {
    qDBusRegisterMetaType<Descriptors>();
    auto start = call("StartTransfer");
    // Without this the key would work only once, but a program may paste more than once.
    start << QVariantMap{{QStringLiteral("autostop"), false}};
    const QDBusMessage started = bus_.call(start, QDBus::Block, timeout);
    if (isError(started)) return {};
    const QString key = started.arguments().value(0).toString();
    for (std::size_t i = 0; i < files.size(); i += maximumAtOnce) {
        auto add = call("AddFiles");
        add << key << QVariant::fromValue(opened(files, i)) << QVariantMap();
        if (isError(bus_.call(add, QDBus::Block, timeout))) return {};
    }
    return key.toUtf8();
}

}  // namespace vantle
