#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "support/Result.h"

namespace vantle {

/// Starts a program that serves this one over a socket, which it gets as descriptor
/// `decoder::decoderSocket`. It inherits the standard streams and no other descriptor, has default
/// signal handling, and is not ended by Ctrl-C in the terminal. `variables` ("NAME=value") are
/// added to its environment. Returns its number; the caller has to wait for it.
Result<pid_t> spawnService(const std::string& program, const std::vector<std::string>& arguments,
                           int socket, const std::vector<std::string>& variables = {});

}  // namespace vantle
