#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QTemporaryDir>
#include <memory>
#include <string>
#include <utility>

#include "contract/ApplicationContract.h"
#include "platform/freedesktop/DBusApplication.h"

namespace vantle {
namespace {

constexpr int limit = 30'000;  // milliseconds

/// A running program, whose lines are read one by one.
class RunningProgram {
public:
    RunningProgram(const QString& program, const QStringList& arguments,
                   const QProcessEnvironment& environment) {
        process_.setProcessEnvironment(environment);
        process_.start(program, arguments);
    }
    ~RunningProgram() {
        process_.kill();
        process_.waitForFinished(limit);
    }

    /// Returns the next line on standard output, or an empty string if there is none.
    std::string line() {
        while (!process_.canReadLine() && process_.waitForReadyRead(limit)) {
        }
        return process_.readLine().trimmed().toStdString();
    }
    bool saysSomething(int milliseconds) {
        return process_.canReadLine() || process_.waitForReadyRead(milliseconds);
    }
    std::string errors() {
        process_.waitForFinished(limit);
        return process_.readAllStandardError().toStdString();
    }
    void closeInput() { process_.closeWriteChannel(); }
    void send(int signal) { ::kill(static_cast<pid_t>(process_.processId()), signal); }
    int result() {
        process_.waitForFinished(limit);
        return process_.exitStatus() == QProcess::NormalExit ? process_.exitCode() : -1;
    }

private:
    QProcess process_;
};

using Program = std::unique_ptr<RunningProgram>;

/// A private session for the copies of the program.
class Session {
public:
    Session() {
        environment_.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment_.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder_.path());
        environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                            QStringLiteral("unix:path=%1/none").arg(folder_.path()));
    }

    void startBus() {
        bus_ = std::make_unique<RunningProgram>(
            QStringLiteral("dbus-daemon"),
            QStringList{QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--print-address"),
                        QStringLiteral("--address=unix:path=%1/bus").arg(folder_.path())},
            environment_);
        address_ = QString::fromStdString(bus_->line());
        environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address_);
    }
    void takeRuntimeFolder() { environment_.remove(QStringLiteral("XDG_RUNTIME_DIR")); }

    Program startCopy(const QStringList& arguments = {}) const {
        return std::make_unique<RunningProgram>(QStringLiteral(VANTLE_APPLICATION_COPY), arguments,
                                                environment_);
    }
    const QString& address() const { return address_; }

private:
    QTemporaryDir folder_;
    QProcessEnvironment environment_ = QProcessEnvironment::systemEnvironment();
    Program bus_;
    QString address_;
};

template <bool withBus>
struct RealStart {
    static std::string start(bool anotherRuns) {
        Session session;
        if (withBus) session.startBus();
        Program before;
        if (anotherRuns) {
            before = session.startCopy();
            before->line();
        }
        const auto copy = session.startCopy();
        std::string found = copy->line();
        if (before && before->line() != "reopened without windows") return "told no copy";
        return found;
    }
};

using Starts = testing::Types<RealStart<true>, RealStart<false>>;
INSTANTIATE_TYPED_TEST_SUITE_P(DBusApplication, ApplicationContract, Starts);

enum class Meeting { onBus, inRuntimeFolder };

void PrintTo(Meeting meeting, std::ostream* stream) {
    *stream << (meeting == Meeting::onBus ? "OnBus" : "InRuntimeFolder");
}

class CopiesMeet : public testing::TestWithParam<Meeting> {
protected:
    CopiesMeet() {
        if (GetParam() == Meeting::onBus) session.startBus();
    }
    Session session;
};

INSTANTIATE_TEST_SUITE_P(DBusApplication, CopiesMeet,
                         testing::Values(Meeting::onBus, Meeting::inRuntimeFolder),
                         testing::PrintToStringParamName());

TEST_P(CopiesMeet, EachLaterCopyReopensTheFirst) {
    const auto first = session.startCopy({QStringLiteral("--window")});
    ASSERT_EQ(first->line(), "first");
    for (int i = 0; i < 2; ++i) {
        const auto later = session.startCopy();
        EXPECT_EQ(later->line(), "second");
        EXPECT_EQ(later->result(), 0);
        EXPECT_EQ(later->errors(), "");
        EXPECT_EQ(first->line(), "reopened with windows");
    }
}

/// Returns what the running copy answers to another one.
std::string answerOf(const Session& session, const QStringList& request) {
    const auto asking = session.startCopy(QStringList{QStringLiteral("--action")} + request);
    std::string answer = asking->line();
    EXPECT_EQ(asking->result(), 0);
    EXPECT_EQ(asking->errors(), "");
    return answer;
}

TEST_P(CopiesMeet, ALaterCopyGetsAnAnswerFromTheFirst) {
    const auto first = session.startCopy();
    ASSERT_EQ(first->line(), "first");
    EXPECT_EQ(answerOf(session, {QStringLiteral("pause")}), "done pause");
    EXPECT_EQ(first->line(), "asked for pause");
    EXPECT_EQ(answerOf(session, {QStringLiteral("show"), QStringLiteral("/a b.png"),
                                 QStringLiteral("/ä.png")}),
              "done show");
    EXPECT_EQ(first->line(), "asked for show /a b.png /ä.png");
    EXPECT_EQ(answerOf(session, {QStringLiteral("forbidden")}), "refused: it is forbidden");
}

TEST_P(CopiesMeet, ReportsThatNoOtherCopyRuns) {
    EXPECT_EQ(answerOf(session, {QStringLiteral("pause")}), "refused: Vantle is not running");
    // Asking did not make the asking copy one that others find.
    EXPECT_EQ(session.startCopy()->line(), "first");
}

TEST_P(CopiesMeet, ACopyThatHangsDoesNotBlockARequest) {
    const auto hanging = session.startCopy();
    ASSERT_EQ(hanging->line(), "first");
    hanging->send(SIGSTOP);
    EXPECT_EQ(answerOf(session, {QStringLiteral("pause")}),
              "refused: the running copy does not respond");
}

TEST_P(CopiesMeet, AKilledCopyDoesNotPreventTheNextStart) {
    const auto killed = session.startCopy();
    ASSERT_EQ(killed->line(), "first");
    killed->send(SIGKILL);
    ASSERT_EQ(killed->result(), -1);
    const auto next = session.startCopy();
    EXPECT_EQ(next->line(), "first");
    const auto later = session.startCopy();
    EXPECT_EQ(later->line(), "second");
    EXPECT_EQ(next->line(), "reopened without windows");
}

TEST_P(CopiesMeet, ACopyThatEndedDoesNotPreventTheNextStart) {
    const auto ended = session.startCopy();
    ASSERT_EQ(ended->line(), "first");
    ended->closeInput();
    EXPECT_EQ(ended->line(), "ended");
    EXPECT_EQ(ended->result(), 0);
    EXPECT_EQ(session.startCopy()->line(), "first");
}

TEST_P(CopiesMeet, ACopyThatHangsDoesNotBlockTheNextStart) {
    const auto hanging = session.startCopy();
    ASSERT_EQ(hanging->line(), "first");
    hanging->send(SIGSTOP);
    const auto next = session.startCopy();
    EXPECT_EQ(next->line(), "second");
    EXPECT_EQ(next->result(), 0);
}

TEST(DBusApplicationTest, StartsWithAMessageIfThereIsNoBusAndNoRuntimeFolder) {
    Session session;
    session.takeRuntimeFolder();
    const auto copy = session.startCopy();
    EXPECT_EQ(copy->line(), "first");
    copy->closeInput();
    EXPECT_THAT(copy->errors(),
                testing::HasSubstr(
                    "Vantle: there is no session bus, so a second start cannot be detected\n"));
}

TEST(DBusApplicationTest, ASignalEndsItCleanly) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        const Session session;
        const auto copy = session.startCopy();
        ASSERT_EQ(copy->line(), "first");
        copy->send(signal);
        // The thread sanitizer holds a signal back until the next system call; a second signal
        // causes one.
        constexpr int timeout = 5'000;
        if (!copy->saysSomething(timeout)) copy->send(signal);
        EXPECT_EQ(copy->line(), "ended");
        EXPECT_EQ(copy->result(), 0);
    }
}

/// Calls a method of the first copy, as a launcher would.
QDBusMessage call(const Session& session, const QString& method, const QVariantList& arguments,
                  const QString& interface = QStringLiteral("org.freedesktop.Application")) {
    const QString name = QStringLiteral("tests");
    auto bus = QDBusConnection::connectToBus(session.address(), name);
    auto message =
        QDBusMessage::createMethodCall(QStringLiteral("org.vantle.Vantle"),
                                       QStringLiteral("/org/vantle/Vantle"), interface, method);
    message.setArguments(arguments);
    const auto reply = bus.call(message, QDBus::Block, limit);
    QDBusConnection::disconnectFromBus(name);
    return reply;
}

QDBusMessage click(const Session& session) {
    return call(session, QStringLiteral("Activate"), {QVariantMap{}});
}

/// Starts a copy as the bus does.
Program startForCall(const Session& session) {
    auto copy = session.startCopy({QStringLiteral("--for-call")});
    EXPECT_EQ(copy->line(), "first");
    return copy;
}

TEST(DBusApplicationTest, TheClickThatStartsItDoesNotReopenIt) {
    Session session;
    session.startBus();
    const auto copy = startForCall(session);
    EXPECT_EQ(click(session).type(), QDBusMessage::ReplyMessage);
    constexpr int timeout = 300;
    EXPECT_FALSE(copy->saysSomething(timeout));
    click(session);
    EXPECT_EQ(copy->line(), "reopened without windows");
}

TEST(DBusApplicationTest, ItIsReopenedAfterTheActionThatStartedIt) {
    Session session;
    session.startBus();
    const auto copy = startForCall(session);
    call(session, QStringLiteral("ActivateAction"),
         {QStringLiteral("pause"), QVariantList{}, QVariantMap{}});
    EXPECT_EQ(copy->line(), "asked for pause");
    click(session);
    EXPECT_EQ(copy->line(), "reopened without windows");
}

TEST(DBusApplicationTest, AClickLongAfterALaunchWithoutOneReopensIt) {
    Session session;
    session.startBus();
    const auto copy = startForCall(session);
    constexpr int longer = 5'100;
    EXPECT_FALSE(copy->saysSomething(longer));
    click(session);
    EXPECT_EQ(copy->line(), "reopened without windows");
}

TEST(DBusApplicationTest, ACopyThatTheBusStartedInVainLeavesTheCallToTheBus) {
    Session session;
    session.startBus();
    const auto first = session.startCopy();
    ASSERT_EQ(first->line(), "first");
    const auto later = session.startCopy({QStringLiteral("--for-call")});
    EXPECT_EQ(later->line(), "second");
    EXPECT_EQ(later->result(), 0);
    constexpr int timeout = 300;
    EXPECT_FALSE(first->saysSomething(timeout));
}

TEST(DBusApplicationTest, ALauncherGetsAnAnswer) {
    Session session;
    session.startBus();
    const auto copy = session.startCopy();
    ASSERT_EQ(copy->line(), "first");
    const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("1")}};
    const QString address = QStringLiteral("file:///tmp/a%20b.png");
    const std::array<std::tuple<QString, QVariantList, const char*>, 3> calls{
        {{QStringLiteral("Activate"), {data}, "reopened without windows"},
         {QStringLiteral("Open"), {QStringList{address}, data}, "asked for show /tmp/a b.png"},
         {QStringLiteral("ActivateAction"),
          {QStringLiteral("settings"), QVariantList{}, data},
          "asked for settings"}}};
    for (const auto& [method, arguments, outcome] : calls) {
        const auto reply = call(session, method, arguments);
        EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
        EXPECT_EQ(copy->line(), outcome);
    }
}

TEST(DBusApplicationTest, ALauncherGetsTheReasonForAFailure) {
    Session session;
    session.startBus();
    const auto copy = session.startCopy();
    ASSERT_EQ(copy->line(), "first");
    const auto reply = call(session, QStringLiteral("ActivateAction"),
                            {QStringLiteral("forbidden"), QVariantList{}, QVariantMap{}});
    EXPECT_EQ(reply.errorMessage().toStdString(), "it is forbidden");
}

TEST(DBusApplicationTest, ItDescribesItsMethodsAsTheDesktopExpectsThem) {
    Session session;
    session.startBus();
    const auto copy = session.startCopy();
    ASSERT_EQ(copy->line(), "first");
    const auto reply = call(session, QStringLiteral("Introspect"), {},
                            QStringLiteral("org.freedesktop.DBus.Introspectable"));
    const std::string description = reply.arguments().value(0).toString().toStdString();
    EXPECT_THAT(description,
                testing::HasSubstr("<interface name=\"org.freedesktop.Application\">"));
    for (const auto* method : {"Activate", "Open", "ActivateAction"})
        EXPECT_THAT(description,
                    testing::HasSubstr("<method name=\"" + std::string(method) + "\">"));
    EXPECT_THAT(description, testing::Not(testing::HasSubstr("reopen")));
    EXPECT_THAT(description, testing::HasSubstr("type=\"a{sv}\""));
}

}  // namespace
}  // namespace vantle
