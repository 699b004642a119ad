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
    Seconds timeout{0};  ///< For a server that sends nothing, or hardly anything.
};

/// Returns true if an address may be fetched: by HTTPS, or, for development, by HTTP from this
/// machine. A redirection must lead to HTTPS, or from an HTTP address of this machine to another
/// one.
bool mayFetch(const std::string& address);

/// Fetches a file into memory. Trusts the system's certificates, or those in the file that the
/// environment variable SSL_CERT_FILE names. Calls `progress` now and then with the number of bytes
/// received. Messages of failures are meant for the user.
Result<std::string> fetch(const std::string& address, const FetchLimits& limits,
                          const std::function<void(std::uint64_t received)>& progress = {});

}  // namespace vantle::updater
