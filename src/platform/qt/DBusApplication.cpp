#include "platform/qt/DBusApplication.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QVariantMap>
#include <QWindow>

#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr auto interfaceName = "org.freedesktop.Application";
constexpr int answerTimeout = 5000;  // milliseconds

bool isOrdinary(const QWindow& window) {
    return window.type() == Qt::Window || window.type() == Qt::Dialog;
}

bool hasVisibleWindows() {
    for (const QWindow* window : QGuiApplication::topLevelWindows())
        if (isOrdinary(*window) && window->isVisible()) return true;
    return false;
}

/// What lets the other copy take the focus: the desktop gave it to this one with its start.
QVariantMap platformData() {
    QVariantMap data;
    for (const auto& [variable, key] : {std::pair{"XDG_ACTIVATION_TOKEN", "activation-token"},
                                        std::pair{"DESKTOP_STARTUP_ID", "desktop-startup-id"}})
        if (qEnvironmentVariableIsSet(variable))
            data.insert(QString::fromLatin1(key), qEnvironmentVariable(variable));
    return data;
}

}  // namespace

/// What other copies and the desktop's launcher talk to.
class DBusApplication::BusObject final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit BusObject(DBusApplication& application) : application_(application) {}

public slots:
    void Activate(const QVariantMap&) { application_.reopen(); }
    void Open(const QStringList&, const QVariantMap&) { application_.reopen(); }
    void ActivateAction(const QString&, const QVariantList&, const QVariantMap&) {
        application_.reopen();
    }

private:
    DBusApplication& application_;
};

DBusApplication::DBusApplication(const std::string& identifier)
    : identifier_(QString::fromStdString(identifier)),
      path_(QLatin1Char('/') + QString(identifier_).replace(QLatin1Char('.'), QLatin1Char('/'))) {}

DBusApplication::~DBusApplication() = default;

bool DBusApplication::anotherCopyIsRunning() {
    auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return anotherHoldsTheRuntimeFolder();
    // The object stands before the name is there for others to call.
    object_ = std::make_unique<BusObject>(*this);
    bus.registerObject(path_, object_.get(), QDBusConnection::ExportAllSlots);
    const auto reply =
        bus.interface()->registerService(identifier_, QDBusConnectionInterface::DontQueueService,
                                         QDBusConnectionInterface::DontAllowReplacement);
    return reply.value() != QDBusConnectionInterface::ServiceRegistered;
}

bool DBusApplication::anotherHoldsTheRuntimeFolder() {
    socket_ = std::make_unique<RuntimeSocket>(qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString(),
                                              [this] { reopen(); });
    const auto claim = socket_->claim();
    if (claim == RuntimeSocket::Claim::failed)
        systemLog("Vantle: no session bus and no runtime folder; a second start goes unnoticed");
    return claim == RuntimeSocket::Claim::second;
}

void DBusApplication::reopen() {
    if (onReopen) onReopen(hasVisibleWindows());
}

void DBusApplication::activateOtherCopy() {
    if (socket_) {
        if (!socket_->call()) systemLog("Vantle: the copy that runs does not answer");
        return;
    }
    auto message = QDBusMessage::createMethodCall(
        identifier_, path_, QString::fromLatin1(interfaceName), QStringLiteral("Activate"));
    message << platformData();
    const auto reply = QDBusConnection::sessionBus().call(message, QDBus::Block, answerTimeout);
    if (reply.type() == QDBusMessage::ErrorMessage)
        systemLog("Vantle: the copy that runs does not answer: " +
                  reply.errorMessage().toStdString());
}

void DBusApplication::activate() {
    for (QWindow* window : QGuiApplication::topLevelWindows()) {
        if (!isOrdinary(*window) || !window->isVisible()) continue;
        window->raise();
        window->requestActivate();
    }
}

void DBusApplication::terminate() {
    QMetaObject::invokeMethod(qGuiApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace vantle

#include "DBusApplication.moc"
