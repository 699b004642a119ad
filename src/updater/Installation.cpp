#include "updater/Installation.h"

#include <sys/stat.h>
#include <sys/utsname.h>
#include <unistd.h>

#include "support/ProgramFile.h"
#include "updater/InstalledTree.h"

namespace vantle::updater {
namespace {

namespace fs = std::filesystem;

bool canBeReplaced(const fs::path& tree) {
    const fs::path parent = tree.parent_path();
    struct stat own {};
    struct stat above {};
    return lstat(tree.c_str(), &own) == 0 && stat(parent.c_str(), &above) == 0 &&
           S_ISDIR(own.st_mode) && own.st_uid == geteuid() && own.st_dev == above.st_dev &&
           access(parent.c_str(), W_OK | X_OK) == 0;
}

}  // namespace

Installation installationWithProgram(const fs::path& executable) {
    Installation installation{.tree = executable.parent_path().parent_path()};
    const std::string kind = releaseOf(installation.tree)["installation"];
    if (kind == "package")
        installation.kind = UpdateItem::Installation::package;
    else if (kind == "tree" && canBeReplaced(installation.tree))
        installation.kind = UpdateItem::Installation::tree;
    return installation;
}

Installation ownInstallation() {
    return installationWithProgram(programFile());
}

std::string platformName(UpdateItem::Installation kind) {
    utsname system{};
    uname(&system);
    const std::string name = std::string("linux-") + system.machine;
    return kind == UpdateItem::Installation::package ? name + "-deb" : name;
}

}  // namespace vantle::updater
