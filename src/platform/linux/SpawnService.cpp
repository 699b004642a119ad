#include "platform/linux/SpawnService.h"

#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include "decoder/protocol/Messages.h"
#include "support/SystemFailure.h"

namespace vantle {
namespace {

using decoder::decoderSocket;

/// Gives the new process the socket, the standard streams, and default signal handling.
class SpawnSettings {
public:
    explicit SpawnSettings(int socket) {
        posix_spawn_file_actions_init(&files_);
        posix_spawn_file_actions_adddup2(&files_, socket, decoderSocket);
        posix_spawn_file_actions_addclosefrom_np(&files_, decoderSocket + 1);
        posix_spawnattr_init(&attributes_);
        sigset_t none;
        sigset_t all;
        sigemptyset(&none);
        sigfillset(&all);
        posix_spawnattr_setsigmask(&attributes_, &none);
        posix_spawnattr_setsigdefault(&attributes_, &all);
        // A process group of its own keeps Ctrl-C in the terminal from ending the program.
        posix_spawnattr_setpgroup(&attributes_, 0);
        posix_spawnattr_setflags(
            &attributes_, POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETPGROUP);
    }
    ~SpawnSettings() {
        posix_spawn_file_actions_destroy(&files_);
        posix_spawnattr_destroy(&attributes_);
    }
    SpawnSettings(const SpawnSettings&) = delete;
    SpawnSettings& operator=(const SpawnSettings&) = delete;

    const posix_spawn_file_actions_t* files() const { return &files_; }
    const posix_spawnattr_t* attributes() const { return &attributes_; }

private:
    posix_spawn_file_actions_t files_{};
    posix_spawnattr_t attributes_{};
};

/// Returns the texts in the form that programs are started with.
std::vector<char*> pointers(const std::vector<std::string>& texts) {
    std::vector<char*> all;
    for (const auto& text : texts) all.push_back(const_cast<char*>(text.c_str()));
    all.push_back(nullptr);
    return all;
}

}  // namespace

Result<pid_t> spawnService(const std::string& program, const std::vector<std::string>& arguments,
                           int socket, const std::vector<std::string>& variables) {
    const SpawnSettings settings(socket);
    std::vector<char*> all = pointers(arguments);
    all.insert(all.begin(), const_cast<char*>(program.c_str()));
    std::vector<char*> surroundings = pointers(variables);
    // If a name comes twice, the first one counts.
    for (char** variable = environ; *variable; ++variable)
        surroundings.insert(surroundings.end() - 1, *variable);
    pid_t process = 0;
    const int error = posix_spawn(&process, program.c_str(), settings.files(),
                                  settings.attributes(), all.data(), surroundings.data());
    if (error != 0) return systemFailure(error, program);
    return process;
}

}  // namespace vantle
