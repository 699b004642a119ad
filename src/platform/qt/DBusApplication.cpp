#include "platform/qt/DBusApplication.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <QVariantMap>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "support/SystemLog.h"

namespace vantle {
namespace {

constexpr int answerTimeout = 3000;  // milliseconds

bool isOrdinary(const QWindow& window) {
    return window.type() == Qt::Window || window.type() == Qt::Dialog;
}

bool hasVisibleWindows() {
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), [](const QWindow* window) {
        return isOrdinary(*window) && window->isVisible();
    });
}

QDBusMessage ask(QDBusMessage message) {
    message.setAutoStartService(false);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, answerTimeout);
}

/// Asks the bus itself: Qt's own object for that costs several calls more.
QDBusMessage requestName(const QString& name) {
    constexpr uint doNotQueue = 4;
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    auto message = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                                  QStringLiteral("RequestName"));
    message << name << doNotQueue;
    return ask(message);
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

/// What other copies and the desktop's launcher talk to. There are no documents, so what is not a
/// known action means: the user opens the program.
class DBusApplication::BusObject final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit BusObject(DBusApplication& application) : application_(application) {}

public slots:
    void Activate(const QVariantMap&) { application_.reopen(); }
    void Open(const QStringList&, const QVariantMap&) { application_.reopen(); }
    void ActivateAction(const QString& action, const QVariantList&, const QVariantMap&) {
        application_.perform(action);
    }

private:
    DBusApplication& application_;
};

DBusApplication::DBusApplication(const std::string& identifier)
    : identifier_(QString::fromStdString(identifier)),
      path_(QLatin1Char('/') + QString(identifier_).replace(QLatin1Char('.'), QLatin1Char('/'))) {}

DBusApplication::~DBusApplication() = default;

bool DBusApplication::anotherCopyIsRunning() {
    if (object_) return false;
    return QDBusConnection::sessionBus().isConnected() ? anotherHoldsTheName()
                                                       : anotherHoldsTheRuntimeFolder();
}

bool DBusApplication::anotherHoldsTheName() {
    // The object stands before the name does: another copy may call as soon as it sees the name.
    auto object = std::make_unique<BusObject>(*this);
    QDBusConnection::sessionBus().registerObject(path_, object.get(),
                                                 QDBusConnection::ExportAllSlots);
    const auto reply = requestName(identifier_);
    if (reply.type() == QDBusMessage::ErrorMessage) return anotherHoldsTheRuntimeFolder();
    constexpr uint nameIsTaken = 3;
    if (reply.arguments().value(0).toUInt() == nameIsTaken) return true;
    object_ = std::move(object);
    return false;
}

bool DBusApplication::anotherHoldsTheRuntimeFolder() {
    if (!socket_)
        socket_ = std::make_unique<RuntimeSocket>(
            qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString(), [this] { reopen(); });
    const auto claim = socket_->claim();
    if (claim == RuntimeSocket::Claim::failed)
        systemLog("Vantle: no session bus; a second start cannot be detected");
    return claim == RuntimeSocket::Claim::second;
}

void DBusApplication::reopen() {
    if (onReopen) onReopen(hasVisibleWindows());
}

void DBusApplication::perform(const QString& action) {
    if (!onAction || !onAction(action.toStdString())) reopen();
}

void DBusApplication::activateOtherCopy(const std::string& action) {
    if (socket_) {
        if (!socket_->call()) systemLog("Vantle: the copy that runs does not answer");
        return;
    }
    auto message = QDBusMessage::createMethodCall(
        identifier_, path_, QStringLiteral("org.freedesktop.Application"),
        action.empty() ? QStringLiteral("Activate") : QStringLiteral("ActivateAction"));
    if (!action.empty()) message << QString::fromStdString(action) << QVariantList();
    message << platformData();
    const auto reply = ask(message);
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
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace vantle

#include "DBusApplication.moc"
