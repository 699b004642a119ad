#pragma once

#include <optional>
#include <string>
#include <vector>

namespace vantle::applications {

struct Launched {
    bool isSuccess = false;
    std::string reason;  ///< Why it has failed, if that is known.
};

/// Opens the files with the program of the desktop file `identifier`, in the way that the desktop
/// file says: by a command line, over the message bus or in a terminal. The program gets `token`,
/// with which its window may come to the front; it may be empty. Returns when the program has
/// started or has failed to; returns nothing if it is not installed.
std::optional<Launched> launch(const std::string& identifier, const std::vector<std::string>& files,
                               const std::string& token);

}  // namespace vantle::applications
