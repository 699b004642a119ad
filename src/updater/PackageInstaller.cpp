#include "updater/PackageInstaller.h"

#include <systemd/sd-bus.h>

#include <cerrno>
#include <string>

#include "support/Localization.h"
#include "support/SystemFailure.h"

namespace vantle::updater {
namespace {

constexpr auto service = "org.freedesktop.PackageKit";
constexpr auto transactionInterface = "org.freedesktop.PackageKit.Transaction";
constexpr auto ownerRule =
    "type='signal',sender='org.freedesktop.DBus',member='NameOwnerChanged',"
    "arg0='org.freedesktop.PackageKit'";
constexpr std::uint32_t succeeded = 1;  // "success" among its exit codes

struct Transaction {
    bool hasEnded = false;
    bool hasSucceeded = false;
    std::string message;
};

Failure failureOf(const std::string& message) {
    return {0,
            filled(localized("Updater", "The system could not install the package: %1"), {message}),
            {}};
}

Failure failureOf(const sd_bus_error& error, int code) {
    return failureOf(error.message ? error.message : systemFailure(code).message);
}

int finished(sd_bus_message* signal, void* context, sd_bus_error*) {
    auto& transaction = *static_cast<Transaction*>(context);
    std::uint32_t exit = 0;
    if (sd_bus_message_read(signal, "u", &exit) >= 0) transaction.hasSucceeded = exit == succeeded;
    transaction.hasEnded = true;
    return 0;
}

int failed(sd_bus_message* signal, void* context, sd_bus_error*) {
    std::uint32_t code = 0;
    const char* details = "";
    if (sd_bus_message_read(signal, "us", &code, &details) >= 0)
        static_cast<Transaction*>(context)->message = details;
    return 0;
}

/// Ends the transaction if the service has ended.
int ownerChanged(sd_bus_message* signal, void* context, sd_bus_error*) {
    const char *name = "", *before = "", *after = "";
    if (sd_bus_message_read(signal, "sss", &name, &before, &after) >= 0 && *after == '\0')
        static_cast<Transaction*>(context)->hasEnded = true;
    return 0;
}

class SystemBus {
public:
    SystemBus() { result_ = sd_bus_open_system(&bus_); }
    ~SystemBus() {
        sd_bus_error_free(&error_);
        sd_bus_flush_close_unref(bus_);
    }
    SystemBus(const SystemBus&) = delete;
    SystemBus& operator=(const SystemBus&) = delete;

    Result<std::string> createTransaction() {
        if (result_ < 0) return failureOf(error_, -result_);
        sd_bus_message* answer = nullptr;
        const char* path = nullptr;
        result_ = sd_bus_call_method(bus_, service, "/org/freedesktop/PackageKit", service,
                                     "CreateTransaction", &error_, &answer, "");
        if (result_ >= 0) result_ = sd_bus_message_read(answer, "o", &path);
        std::string copy = path ? path : "";
        sd_bus_message_unref(answer);
        if (result_ < 0) return failureOf(error_, -result_);
        return copy;
    }

    Outcome install(const std::string& path, const std::string& file) {
        Transaction transaction;
        listen(path, "Finished", finished, transaction);
        listen(path, "ErrorCode", failed, transaction);
        if (result_ >= 0)
            result_ = sd_bus_add_match(bus_, nullptr, ownerRule, ownerChanged, &transaction);
        // Allows the service to ask the user.
        call(path, "SetHints", "as", 1, "interactive=true");
        // The distribution has not signed our package, so the flag that requires its signature is
        // not set.
        call(path, "InstallFiles", "tas", std::uint64_t{0}, 1, file.c_str());
        if (result_ < 0) return failureOf(error_, -result_);
        while (!transaction.hasEnded) {
            result_ = sd_bus_process(bus_, nullptr);
            if (result_ == 0) result_ = sd_bus_wait(bus_, UINT64_MAX);
            if (result_ < 0 && result_ != -EINTR) return failureOf(error_, -result_);
        }
        if (transaction.hasSucceeded) return {};
        return failureOf(transaction.message.empty() ? localized("Updater", "it gave no reason.")
                                                     : transaction.message);
    }

private:
    void listen(const std::string& path, const char* signal, sd_bus_message_handler_t handler,
                Transaction& transaction) {
        if (result_ >= 0)
            result_ = sd_bus_match_signal(bus_, nullptr, service, path.c_str(),
                                          transactionInterface, signal, handler, &transaction);
    }
    template <typename... Arguments>
    void call(const std::string& path, const char* method, const char* types,
              Arguments... arguments) {
        if (result_ >= 0)
            result_ = sd_bus_call_method(bus_, service, path.c_str(), transactionInterface, method,
                                         &error_, nullptr, types, arguments...);
    }

    sd_bus* bus_ = nullptr;
    sd_bus_error error_ = SD_BUS_ERROR_NULL;
    int result_ = 0;
};

}  // namespace

Outcome installPackage(const std::filesystem::path& package) {
    SystemBus bus;
    const auto transaction = bus.createTransaction();
    if (!transaction) return transaction.failure();
    return bus.install(transaction.value(), package);
}

}  // namespace vantle::updater
