#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "support/Date.h"
#include "support/Result.h"

namespace vantle::updater {

struct FetchLimits {
    std::uint64_t bytes = 0;
    Seconds total{0};
    Seconds timeout{0};  ///< With a server that sends nothing, or hardly anything.
};

/// Whether an address may be fetched: by HTTPS, or by HTTP from this machine itself, for
/// development. A redirection leads to HTTPS, or from such an address to another one.
bool mayFetch(const std::string& address);

/// Fetches a file into memory. Certificates are those of the system, or of the file that the
/// environment names in SSL_CERT_FILE. `progress` is told how many bytes are there, now and then.
/// Messages are for a person.
Result<std::string> fetch(const std::string& address, const FetchLimits& limits,
                          const std::function<void(std::uint64_t received)>& progress = {});

}  // namespace vantle::updater
