#include "applications/Launch.h"

#include <gio/gdesktopappinfo.h>

#include "applications/Execution.h"
#include "applications/Gio.h"

namespace vantle::applications {
namespace {

/// A launch context that passes on a token of the caller: the type of a class of GLib.
struct TokenContext {
    GAppLaunchContext parent;
    char* token;
};

char* copyToken(GAppLaunchContext* context, GAppInfo*, GList*) {
    const char* token = reinterpret_cast<TokenContext*>(context)->token;
    return token && *token ? g_strdup(token) : nullptr;
}

void freeToken(GObject* object) {
    g_free(reinterpret_cast<TokenContext*>(object)->token);
    G_OBJECT_CLASS(g_type_class_peek(G_TYPE_APP_LAUNCH_CONTEXT))->finalize(object);
}

void initializeClass(void* type, void*) {
    G_APP_LAUNCH_CONTEXT_CLASS(type)->get_startup_notify_id = copyToken;
    G_OBJECT_CLASS(type)->finalize = freeToken;
}

GType tokenContextType() {
    static const GType type = g_type_register_static_simple(
        G_TYPE_APP_LAUNCH_CONTEXT, "VantleTokenContext", sizeof(GAppLaunchContextClass),
        initializeClass, sizeof(TokenContext), nullptr, GTypeFlags{});
    return type;
}

Owned<GAppLaunchContext> makeContext(const std::string& token) {
    auto* context = static_cast<GAppLaunchContext*>(g_object_new(tokenContextType(), nullptr));
    reinterpret_cast<TokenContext*>(context)->token = g_strdup(token.c_str());
    // GLib itself passes the token only to programs that say in their desktop files that they use
    // it, and only under the older of its two names.
    if (!token.empty()) {
        g_app_launch_context_setenv(context, "XDG_ACTIVATION_TOKEN", token.c_str());
        g_app_launch_context_setenv(context, "DESKTOP_STARTUP_ID", token.c_str());
    }
    return Owned<GAppLaunchContext>(context);
}

GList* addressesOf(const std::vector<std::string>& files) {
    GList* addresses = nullptr;
    for (auto file = files.rbegin(); file != files.rend(); ++file)
        addresses = g_list_prepend(addresses, g_filename_to_uri(file->c_str(), nullptr, nullptr));
    return addresses;
}

struct Waiting {
    GMainLoop* loop;
    std::string reason;
    bool isExecuted = true;
};

/// Called when a process has been started.
void started(GAppLaunchContext*, GAppInfo*, GVariant* platformData, void* data) {
    gint32 process = 0;
    if (g_variant_lookup(platformData, "pid", "i", &process))
        static_cast<Waiting*>(data)->isExecuted &= becameProgram(process);
}

void launched(GObject* application, GAsyncResult* result, void* data) {
    auto& waiting = *static_cast<Waiting*>(data);
    GError* error = nullptr;
    if (!g_app_info_launch_uris_finish(G_APP_INFO(application), result, &error))
        waiting.reason = error ? error->message : "unknown reason";
    const OwnedError failure(error);
    g_main_loop_quit(waiting.loop);
}

}  // namespace

std::optional<Launched> launch(const std::string& identifier, const std::vector<std::string>& files,
                               const std::string& token) {
    const Owned<GDesktopAppInfo> application(g_desktop_app_info_new(identifier.c_str()));
    if (!application) return std::nullopt;
    adoptProcesses();
    const auto context = makeContext(token);
    GList* addresses = addressesOf(files);
    Waiting waiting{g_main_loop_new(nullptr, FALSE), {}};
    g_signal_connect(context.get(), "launched", G_CALLBACK(started), &waiting);
    g_app_info_launch_uris_async(G_APP_INFO(application.get()), addresses, context.get(), nullptr,
                                 launched, &waiting);
    g_main_loop_run(waiting.loop);
    g_main_loop_unref(waiting.loop);
    g_list_free_full(addresses, g_free);
    return Launched{waiting.isExecuted && waiting.reason.empty(), waiting.reason};
}

}  // namespace vantle::applications
