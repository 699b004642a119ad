#include "platform/linux/CanberraSoundPlayer.h"

#include <canberra.h>
#include <dlfcn.h>

#include <atomic>
#include <string>
#include <system_error>
#include <thread>
#include <utility>

#include "support/Localization.h"
#include "support/SystemLog.h"

namespace vantle {

/// The loaded library. Only the thread that claimed it may call anything but claim() and release().
class CanberraSoundPlayer::Service {
public:
    explicit Service(Url folder) : folder_(std::move(folder)) {}
    ~Service() {
        if (context_) library_.destroy(context_);
    }
    Service(const Service&) = delete;
    Service& operator=(const Service&) = delete;

    /// Returns false while another thread holds it.
    bool claim() { return !isClaimed_.exchange(true); }
    void release() { isClaimed_ = false; }

    /// `description` is for users whose desktop shows sounds instead of playing them.
    void play(const std::string& name, const std::string& description) {
        const char* failure = open();
        if (!failure) failure = start(name, description);
        if (failure && !std::exchange(hasLogged_, true))
            systemLog("Vantle: cannot play the sound " + name + ": " + failure);
    }

private:
    struct Library {
        decltype(&ca_context_create) create = nullptr;
        decltype(&ca_context_destroy) destroy = nullptr;
        decltype(&ca_context_change_props) changeProperties = nullptr;
        decltype(&ca_context_play) play = nullptr;
        decltype(&ca_strerror) errorText = nullptr;
    };

    const char* open() {
        if (context_) return nullptr;
        if (!library_.errorText && !load()) return "libcanberra is not installed";
        if (const int error = library_.create(&context_); error != CA_SUCCESS)
            return library_.errorText(error);
        library_.changeProperties(context_, CA_PROP_APPLICATION_NAME, "Vantle",
                                  CA_PROP_APPLICATION_ID, "org.vantle.Vantle", nullptr);
        return nullptr;
    }

    bool load() {
        void* handle = dlopen("libcanberra.so.0", RTLD_NOW | RTLD_LOCAL);
        if (!handle) return false;
        const auto find = [handle](auto& function, const char* name) {
            function =
                reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(handle, name));
            return function != nullptr;
        };
        return find(library_.create, "ca_context_create") &&
               find(library_.destroy, "ca_context_destroy") &&
               find(library_.changeProperties, "ca_context_change_props") &&
               find(library_.play, "ca_context_play") && find(library_.errorText, "ca_strerror");
    }

    /// Plays the theme's sound of that name or, if it has none, the program's own. Returns null or
    /// the reason why it cannot.
    const char* start(const std::string& name, const std::string& description) {
        const std::string file = folder_.appending(name + ".wav").path();
        const int error = library_.play(
            context_, 0, CA_PROP_EVENT_ID, name.c_str(), CA_PROP_MEDIA_FILENAME, file.c_str(),
            CA_PROP_EVENT_DESCRIPTION, description.c_str(), CA_PROP_MEDIA_ROLE, "event", nullptr);
        // CA_ERROR_DISABLED means that the user has switched such sounds off.
        return error == CA_SUCCESS || error == CA_ERROR_DISABLED ? nullptr
                                                                 : library_.errorText(error);
    }

    const Url folder_;
    std::atomic<bool> isClaimed_ = false;
    Library library_;
    ca_context* context_ = nullptr;
    bool hasLogged_ = false;
};

CanberraSoundPlayer::CanberraSoundPlayer(const Url& folder)
    : service_(std::make_shared<Service>(folder)) {}

void CanberraSoundPlayer::play(std::string_view name) {
    if (!service_->claim()) return;
    try {
        // Connecting to the sound server can take arbitrarily long.
        std::thread([service = service_, name = std::string(name),
                     description = localized("SoundPlayer", "New capture")] {
            service->play(name, description);
            service->release();
        }).detach();
    } catch (const std::system_error& error) {
        systemLog("Vantle: cannot play a sound: " + std::string(error.what()));
        service_->release();
    }
}

}  // namespace vantle
