#pragma once

#include <QString>
#include <memory>
#include <string>

#include "platform/Application.h"
#include "platform/qt/RuntimeSocket.h"

namespace vantle {

/// The program on a desktop with a session bus: copies find each other by a name on it, under which
/// the first one answers as org.freedesktop.Application. The bus forgets a copy that dies. Without
/// a bus they find each other in the user's runtime folder.
class DBusApplication final : public Application {
public:
    /// `identifier` is the bus name, such as "org.example.Program".
    explicit DBusApplication(const std::string& identifier);
    ~DBusApplication() override;

    void setActivationPolicy(ActivationPolicy policy) override { policy_ = policy; }

    /// What ordinary windows go by when they are made: those of an accessory stay out of the
    /// taskbar.
    ActivationPolicy activationPolicy() const { return policy_; }

    bool anotherCopyIsRunning() override;
    void activateOtherCopy(const std::string& action = {}) override;
    void activate() override;
    void terminate() override;

private:
    class BusObject;

    bool anotherHoldsTheName();
    bool anotherHoldsTheRuntimeFolder();
    void reopen();
    void perform(const QString& action);

    QString identifier_;
    QString path_;
    ActivationPolicy policy_ = ActivationPolicy::accessory;
    std::unique_ptr<BusObject> object_;
    std::unique_ptr<RuntimeSocket> socket_;  ///< Only without a bus.
};

}  // namespace vantle
