#pragma once

#include <QDeadlineTimer>
#include <QString>
#include <memory>
#include <string>

#include "platform/Application.h"
#include "platform/freedesktop/RuntimeSocket.h"
#include "platform/qt/TaskbarPresence.h"

namespace vantle {

/// The program on a desktop with a session bus: copies find each other by a bus name, under which
/// the first copy answers as org.freedesktop.Application. The bus releases the name when that copy
/// ends. Without a bus, copies find each other in the user's runtime folder. Without a display,
/// this object can only ask another copy.
class DBusApplication final : public Application {
public:
    enum class Launch {
        byUser,
        byBus,  ///< For a call to the name; the bus delivers it when this copy owns the name.
    };

    /// `identifier` is the bus name, such as "org.example.Program".
    explicit DBusApplication(const std::string& identifier, Launch launch = Launch::byUser);
    ~DBusApplication() override;

    void setActivationPolicy(ActivationPolicy policy) override;
    std::string activationPolicyObstacle() const override;
    bool anotherCopyIsRunning() override;
    void activateOtherCopy() override;
    Result<std::string> ask(const ApplicationRequest& request) override;
    void activate() override;
    void terminate() override;

    class BusObject;

private:
    bool anotherOwnsName();
    bool anotherHoldsTheRuntimeFolder();
    RuntimeSocket& socket();
    std::string answerToSocket(const std::string& message);
    void passOnActivationToken() const;
    Result<std::string> askThroughSocket(const ApplicationRequest& request);
    void activated();
    void reopen();
    void giveUpName();
    Result<std::string> perform(const ApplicationRequest& request);

    QString identifier_;
    QString path_;
    Launch launch_;
    QDeadlineTimer launchCallDeadline_{0};  ///< When calls no longer count as the launch's cause.
    std::unique_ptr<TaskbarPresence> taskbar_;  ///< Only with a display.
    std::unique_ptr<BusObject> object_;
    std::unique_ptr<RuntimeSocket> socket_;  ///< Only without a bus.
};

}  // namespace vantle
