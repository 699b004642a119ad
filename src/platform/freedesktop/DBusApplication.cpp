#include "platform/freedesktop/DBusApplication.h"

#include <QDBusAbstractAdaptor>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusContext>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDrag>
#include <QGuiApplication>
#include <QVariantMap>
#include <QWindow>
#include <algorithm>
#include <cerrno>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/freedesktop/ActivationToken.h"
#include "platform/qt/DisplayServer.h"
#include "platform/qt/FrontWindow.h"
#include "support/Localization.h"
#include "support/SystemLog.h"
#include "support/Url.h"

namespace vantle {
namespace {

constexpr int answerTimeout = 3000;  // milliseconds
constexpr int causeTimeout = 5000;   // milliseconds; a launch takes less, even just after login
constexpr auto notRunning = marked("Requests", "Vantle is not running");
constexpr auto noAnswer = marked("Requests", "the running copy does not respond");

// The messages on the socket: the separator between the parts of a request, and the first character
// of an answer.
constexpr char separator = '\0';
constexpr char done = '+';
constexpr char refused = '-';

/// Returns at least one part.
std::vector<std::string> split(std::string_view message) {
    std::vector<std::string> parts;
    for (;;) {
        const auto end = std::min(message.find(separator), message.size());
        parts.emplace_back(message.substr(0, end));
        if (end == message.size()) return parts;
        message.remove_prefix(end + 1);
    }
}

bool hasVisibleWindows() {
    return std::ranges::any_of(QGuiApplication::topLevelWindows(), [](const QWindow* window) {
        return isOrdinaryWindow(*window) && window->isVisible();
    });
}

QDBusMessage ask(QDBusMessage message) {
    message.setAutoStartService(false);
    return QDBusConnection::sessionBus().call(message, QDBus::Block, answerTimeout);
}

/// Calls the bus directly, because Qt's own interface for this makes several more calls.
QDBusMessage requestName(const QString& name) {
    constexpr uint doNotQueue = 4;
    const QString bus = QStringLiteral("org.freedesktop.DBus");
    auto message = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                                  QStringLiteral("RequestName"));
    message << name << doNotQueue;
    return ask(message);
}

}  // namespace

/// The object on the bus that other copies and the desktop's launcher call.
class DBusApplication::BusObject final : public QObject, public QDBusContext {
    Q_OBJECT

public:
    explicit BusObject(DBusApplication& application);

    void activated() { application_.activated(); }
    QString perform(const ApplicationRequest& request);

private:
    DBusApplication& application_;
};

/// The interface that the desktop's launcher uses.
class LauncherAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit LauncherAdaptor(DBusApplication::BusObject& object)
        : QDBusAbstractAdaptor(&object), object_(object) {}

public slots:
    void Activate(const QVariantMap& platformData) {
        keepActivationToken(activationToken(platformData));
        object_.activated();
    }
    void Open(const QStringList& addresses, const QVariantMap&) {
        ApplicationRequest request{"show", {}};
        for (const QString& address : addresses)
            if (const auto url = Url::fromFileAddress(address.toStdString()))
                request.arguments.push_back(url->path());
        object_.perform(request);
    }
    void ActivateAction(const QString& action, const QVariantList&,
                        const QVariantMap& platformData) {
        keepActivationToken(activationToken(platformData));
        object_.perform({action.toStdString(), {}});
    }

private:
    DBusApplication::BusObject& object_;
};

/// The interface that other copies use: requests with an answer, and with arguments that need not
/// be valid text.
class RequestAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.vantle.Vantle")

public:
    explicit RequestAdaptor(DBusApplication::BusObject& object)
        : QDBusAbstractAdaptor(&object), object_(object) {}

public slots:
    QString Ask(const QString& action, const QByteArrayList& arguments) {
        ApplicationRequest request{action.toStdString(), {}};
        for (const QByteArray& argument : arguments)
            request.arguments.push_back(argument.toStdString());
        return object_.perform(request);
    }
    /// Keeps a token for the next request. Callers do not wait for a reply, because a copy of
    /// another version may not have this method.
    Q_NOREPLY void UseActivationToken(const QString& token) { keepActivationToken(token); }

private:
    DBusApplication::BusObject& object_;
};

DBusApplication::BusObject::BusObject(DBusApplication& application) : application_(application) {
    // The adaptors are children of this object, which deletes them.
    new LauncherAdaptor(*this);
    new RequestAdaptor(*this);
}

QString DBusApplication::BusObject::perform(const ApplicationRequest& request) {
    application_.launchCallDeadline_ = QDeadlineTimer(0);
    const auto answer = application_.perform(request);
    // The token was meant for this request only.
    takeActivationToken();
    if (answer) return QString::fromStdString(answer.value());
    const std::string& reason = answer.failure().message;
    systemLog("Vantle: " + request.action + ": " + reason);
    sendErrorReply(QDBusError::Failed, QString::fromStdString(reason));
    return {};
}

DBusApplication::DBusApplication(const std::string& identifier, Launch launch)
    : identifier_(QString::fromStdString(identifier)),
      path_(QLatin1Char('/') + QString(identifier_).replace(QLatin1Char('.'), QLatin1Char('/'))),
      launch_(launch) {
    // Registering the types here creates Qt's list of types before the thread that reads the bus,
    // so the list is destroyed later. That thread still runs while the program ends and would
    // complain about missing types.
    qRegisterMetaType<QDBusObjectPath>();
    qDBusRegisterMetaType<QByteArrayList>();
    if (qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        taskbar_ = std::make_unique<TaskbarPresence>();
}

DBusApplication::~DBusApplication() {
    giveUpName();
}

/// Releases the bus name early, so that calls reach the next copy while this process is still
/// ending.
void DBusApplication::giveUpName() {
    if (object_) QDBusConnection::sessionBus().interface()->unregisterService(identifier_);
}

void DBusApplication::setActivationPolicy(ActivationPolicy policy) {
    if (taskbar_) taskbar_->setPresent(policy == ActivationPolicy::regular);
}

std::string DBusApplication::activationPolicyObstacle() const {
    return DisplayServer::current().taskbarObstacle();
}

bool DBusApplication::anotherCopyIsRunning() {
    if (object_) return false;
    return QDBusConnection::sessionBus().isConnected() ? anotherOwnsName()
                                                       : anotherHoldsTheRuntimeFolder();
}

bool DBusApplication::anotherOwnsName() {
    // The object is registered before the name: another copy may call as soon as it sees the name.
    auto object = std::make_unique<BusObject>(*this);
    QDBusConnection::sessionBus().registerObject(path_, object.get(),
                                                 QDBusConnection::ExportAdaptors);
    const auto reply = requestName(identifier_);
    if (reply.type() == QDBusMessage::ErrorMessage) return anotherHoldsTheRuntimeFolder();
    constexpr uint nameIsTaken = 3;
    if (reply.arguments().value(0).toUInt() == nameIsTaken) return true;
    if (launch_ == Launch::byBus) launchCallDeadline_.setRemainingTime(causeTimeout);
    object_ = std::move(object);
    return false;
}

bool DBusApplication::anotherHoldsTheRuntimeFolder() {
    const auto claim = socket().claim();
    if (claim == RuntimeSocket::Claim::failed)
        systemLog("Vantle: there is no session bus, so a second start cannot be detected");
    return claim == RuntimeSocket::Claim::second;
}

RuntimeSocket& DBusApplication::socket() {
    if (!socket_)
        socket_ = std::make_unique<RuntimeSocket>(
            qEnvironmentVariable("XDG_RUNTIME_DIR").toStdString(),
            [this](const std::string& message) { return answerToSocket(message); });
    return *socket_;
}

std::string DBusApplication::answerToSocket(const std::string& message) {
    const auto parts = split(message);
    if (parts.front().empty()) {
        reopen();
        return std::string(1, done);
    }
    const auto answer = perform({parts.front(), {parts.begin() + 1, parts.end()}});
    return answer ? done + answer.value() : refused + answer.failure().message;
}

Result<std::string> DBusApplication::askThroughSocket(const ApplicationRequest& request) {
    std::string message = request.action;
    for (const auto& argument : request.arguments) message += separator + argument;
    const auto answer = socket().call(message);
    if (!answer)
        return Failure{
            answer.failure().code,
            localized("Requests", answer.failure().code == ESRCH ? notRunning : noAnswer), ""};
    if (answer.value().starts_with(done)) return answer.value().substr(1);
    return Failure{0, answer.value().substr(std::min<std::size_t>(1, answer.value().size())), ""};
}

/// Does not reopen for the call that launched this copy: the user wanted the program to start, and
/// it has started.
void DBusApplication::activated() {
    const auto cause = std::exchange(launchCallDeadline_, QDeadlineTimer(0));
    if (cause.hasExpired()) reopen();
}

void DBusApplication::reopen() {
    if (onReopen) onReopen(hasVisibleWindows());
}

Result<std::string> DBusApplication::perform(const ApplicationRequest& request) {
    if (onRequest) return onRequest(request);
    return Failure{ENOTSUP, localized("Requests", "Vantle is not ready yet"), ""};
}

void DBusApplication::activateOtherCopy() {
    // The bus delivers the call that launched this copy to the other one.
    if (launch_ == Launch::byBus) return;
    if (socket_) {
        if (const auto told = askThroughSocket({}); !told)
            systemLog("Vantle: " + told.failure().message);
        return;
    }
    auto message = QDBusMessage::createMethodCall(identifier_, path_,
                                                  QStringLiteral("org.freedesktop.Application"),
                                                  QStringLiteral("Activate"));
    message << platformDataOfThisStart();
    const auto reply = vantle::ask(message);
    if (reply.type() == QDBusMessage::ErrorMessage)
        systemLog("Vantle: " + std::string(noAnswer) + ": " + reply.errorMessage().toStdString());
}

/// Passes the desktop's token for this process on, so that the other copy may take the focus.
void DBusApplication::passOnActivationToken() const {
    const QString token = activationToken(platformDataOfThisStart());
    if (token.isEmpty()) return;
    auto message =
        QDBusMessage::createMethodCall(identifier_, path_, QStringLiteral("org.vantle.Vantle"),
                                       QStringLiteral("UseActivationToken"));
    message << token;
    message.setAutoStartService(false);
    QDBusConnection::sessionBus().send(message);
}

Result<std::string> DBusApplication::ask(const ApplicationRequest& request) {
    if (socket_ || !QDBusConnection::sessionBus().isConnected()) return askThroughSocket(request);
    passOnActivationToken();
    QByteArrayList arguments;
    for (const auto& argument : request.arguments) arguments << QByteArray::fromStdString(argument);
    auto message = QDBusMessage::createMethodCall(
        identifier_, path_, QStringLiteral("org.vantle.Vantle"), QStringLiteral("Ask"));
    message << QString::fromStdString(request.action) << QVariant::fromValue(arguments);
    const auto reply = vantle::ask(message);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return reply.arguments().value(0).toString().toStdString();
    const QDBusError error(reply);
    if (error.type() == QDBusError::ServiceUnknown ||
        error.name() == QStringLiteral("org.freedesktop.DBus.Error.NameHasNoOwner"))
        return Failure{ESRCH, localized("Requests", notRunning), ""};
    if (error.type() == QDBusError::Failed) return Failure{0, error.message().toStdString(), ""};
    return Failure{ETIMEDOUT, localized("Requests", noAnswer), ""};
}

void DBusApplication::activate() {
    bringLastToFront();
}

void DBusApplication::terminate() {
    giveUpName();
    // Qt crashes if the compositor reports on a drag that no longer exists.
    QDrag::cancel();
    QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
}

}  // namespace vantle

#include "DBusApplication.moc"
