#include "applications/Listing.h"

#include <gio/gdesktopappinfo.h>

#include <algorithm>
#include <functional>
#include <set>
#include <utility>

#include "applications/Gio.h"

namespace vantle::applications {
namespace {

using Application = Owned<GAppInfo>;

/// Returns the type of the file as the desktop's file manager determines it; empty if the file
/// cannot be examined.
std::string typeOf(const std::string& path) {
    const Owned<GFile> file(g_file_new_for_path(path.c_str()));
    GError* error = nullptr;
    const Owned<GFileInfo> info(g_file_query_info(file.get(),
                                                  G_FILE_ATTRIBUTE_STANDARD_CONTENT_TYPE,
                                                  G_FILE_QUERY_INFO_NONE, nullptr, &error));
    const OwnedError failure(error);
    const char* type = info ? g_file_info_get_content_type(info.get()) : nullptr;
    return type ? type : std::string();
}

/// Returns the types of the files, each once, in their order.
std::vector<std::string> typesOf(const std::vector<std::string>& files) {
    std::vector<std::string> types;
    for (const auto& file : files) {
        std::string type = typeOf(file);
        if (std::ranges::find(types, type) == types.end()) types.push_back(std::move(type));
    }
    return types;
}

/// Returns the programs for a type in the desktop's order.
std::vector<Application> applicationsFor(const std::string& type) {
    std::vector<Application> applications;
    GList* list = g_app_info_get_all_for_type(type.c_str());
    for (GList* item = list; item; item = item->next)
        applications.emplace_back(static_cast<GAppInfo*>(item->data));
    g_list_free(list);
    return applications;
}

std::string identifierOf(const Application& application) {
    const char* identifier = application ? g_app_info_get_id(application.get()) : nullptr;
    return identifier ? identifier : std::string();
}

/// Returns the identifier of the program that is the default for all types; empty if there is none.
std::string commonDefault(const std::vector<std::string>& types) {
    std::set<std::string> defaults;
    for (const auto& type : types)
        defaults.insert(
            identifierOf(Application(g_app_info_get_default_for_type(type.c_str(), FALSE))));
    return defaults.size() == 1 ? *defaults.begin() : std::string();
}

std::string iconOf(const Application& application) {
    GIcon* icon = g_app_info_get_icon(application.get());
    if (icon && G_IS_FILE_ICON(icon)) {
        const OwnedText path(g_file_get_path(g_file_icon_get_file(G_FILE_ICON(icon))));
        return path ? path.get() : std::string();
    }
    const char* const* names =
        icon && G_IS_THEMED_ICON(icon) ? g_themed_icon_get_names(G_THEMED_ICON(icon)) : nullptr;
    return names && names[0] ? names[0] : std::string();
}

/// Returns false for a program that is only for other desktops. A program that is hidden from menus
/// can still open files.
bool isForThisDesktop(const Application& application) {
    return !G_IS_DESKTOP_APP_INFO(application.get()) ||
           g_desktop_app_info_get_show_in(G_DESKTOP_APP_INFO(application.get()), nullptr);
}

/// Keeps only the programs that are for the type, too.
void keepThoseFor(const std::string& type, std::vector<Program>& programs) {
    std::set<std::string> identifiers;
    for (const auto& application : applicationsFor(type))
        identifiers.insert(identifierOf(application));
    std::erase_if(programs, [&identifiers](const Program& program) {
        return !identifiers.contains(program.identifier);
    });
}

}  // namespace

std::vector<Program> programsFor(const std::vector<std::string>& files) {
    const auto types = typesOf(files);
    if (types.empty() || std::ranges::find(types, "") != types.end()) return {};
    const std::string standard = commonDefault(types);
    std::vector<Program> programs;
    for (const auto& application : applicationsFor(types.front())) {
        const std::string identifier = identifierOf(application);
        const bool isDefault = identifier == standard;
        if (identifier.empty() || (!isDefault && !isForThisDesktop(application))) continue;
        programs.push_back(
            {identifier, g_app_info_get_name(application.get()), iconOf(application), isDefault});
    }
    for (const auto& type : types) keepThoseFor(type, programs);
    std::stable_partition(programs.begin(), programs.end(), std::mem_fn(&Program::isDefault));
    return programs;
}

}  // namespace vantle::applications
