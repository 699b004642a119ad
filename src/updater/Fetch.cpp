#include "updater/Fetch.h"

#include <arpa/inet.h>
#include <curl/curl.h>

#include <cstdlib>
#include <memory>

#include "support/Localization.h"
#include "support/Version.h"

namespace vantle::updater {
namespace {

constexpr int maximumRedirections = 5;
constexpr long slowest = 1024;  // bytes per second
constexpr Seconds progressInterval{0.1};

struct Transfer {
    const FetchLimits& limits;
    const std::function<void(std::uint64_t)>& progress;
    std::string bytes;
    bool isTooLong = false;
    std::chrono::steady_clock::time_point told{};
};

Failure failureOf(std::string message) {
    return {0, std::move(message), {}};
}

/// Returns a part of an address, in lower case if case does not matter; empty if it has no such
/// part.
std::string partOf(const std::string& address, CURLUPart part) {
    const std::unique_ptr<CURLU, decltype(&curl_url_cleanup)> url(curl_url(), curl_url_cleanup);
    char* text = nullptr;
    if (curl_url_set(url.get(), CURLUPART_URL, address.c_str(), 0) != CURLUE_OK ||
        curl_url_get(url.get(), part, &text, 0) != CURLUE_OK)
        return {};
    const std::unique_ptr<char, decltype(&curl_free)> owner(text, curl_free);
    return text;
}

bool isLoopback(const std::string& host) {
    in_addr address{};
    if (inet_pton(AF_INET, host.c_str(), &address) == 1)
        return (ntohl(address.s_addr) >> 24) == IN_LOOPBACKNET;
    return host == "[::1]" || host == "localhost";
}

bool isSecure(const std::string& address) {
    return partOf(address, CURLUPART_SCHEME) == "https";
}

Failure notAllowed(const std::string& address) {
    return failureOf(filled(
        localized("Updater",
                  "Updates are downloaded only over HTTPS, so the address \"%1\" was refused."),
        {address}));
}

std::size_t take(char* data, std::size_t, std::size_t size, void* context) {
    auto& transfer = *static_cast<Transfer*>(context);
    if (size > transfer.limits.bytes - transfer.bytes.size()) {
        transfer.isTooLong = true;
        return 0;
    }
    transfer.bytes.append(data, size);
    const auto now = std::chrono::steady_clock::now();
    if (transfer.progress && now - transfer.told >= progressInterval) {
        transfer.told = now;
        transfer.progress(transfer.bytes.size());
    }
    return size;
}

void prepare(CURL* curl, const std::string& address, Transfer& transfer) {
    const auto set = [curl](CURLoption option, auto value) {
        curl_easy_setopt(curl, option, value);
    };
    const auto milliseconds = [](Seconds time) { return static_cast<long>(time.count() * 1000); };
    set(CURLOPT_URL, address.c_str());
    set(CURLOPT_PROTOCOLS_STR, "http,https");
    set(CURLOPT_USERAGENT, ("Vantle/" + std::string(version)).c_str());
    set(CURLOPT_NOSIGNAL, 1L);
    set(CURLOPT_CONNECTTIMEOUT_MS, milliseconds(transfer.limits.timeout));
    set(CURLOPT_TIMEOUT_MS, milliseconds(transfer.limits.total));
    set(CURLOPT_LOW_SPEED_LIMIT, slowest);
    set(CURLOPT_LOW_SPEED_TIME, static_cast<long>(transfer.limits.timeout.count()));
    set(CURLOPT_WRITEFUNCTION, take);
    set(CURLOPT_WRITEDATA, &transfer);
    if (const char* certificates = std::getenv("SSL_CERT_FILE")) set(CURLOPT_CAINFO, certificates);
}

Failure failureFrom(CURLcode code, const Transfer& transfer) {
    if (transfer.isTooLong)
        return failureOf(filled(
            localized("Updater", "The server sent more than the expected maximum of %1 bytes."),
            {std::to_string(transfer.limits.bytes)}));
    if (code == CURLE_OPERATION_TIMEDOUT)
        return failureOf(
            localized("Updater", "The server is too slow or does not respond. Try again later."));
    if (code == CURLE_PARTIAL_FILE)
        return failureOf(
            localized("Updater", "The connection was lost during the download. Try again."));
    return failureOf(filled(localized("Updater", "The server could not be reached: %1."),
                            {curl_easy_strerror(code)}));
}

}  // namespace

bool mayFetch(const std::string& address) {
    return isSecure(address) || (partOf(address, CURLUPART_SCHEME) == "http" &&
                                 isLoopback(partOf(address, CURLUPART_HOST)));
}

Result<std::string> fetch(const std::string& address, const FetchLimits& limits,
                          const std::function<void(std::uint64_t received)>& progress) {
    const std::unique_ptr<CURL, decltype(&curl_easy_cleanup)> curl(curl_easy_init(),
                                                                   curl_easy_cleanup);
    if (!mayFetch(address)) return notAllowed(address);
    std::string next = address;
    for (int redirections = 0; redirections <= maximumRedirections; ++redirections) {
        Transfer transfer{limits, progress};
        prepare(curl.get(), next, transfer);
        if (const auto code = curl_easy_perform(curl.get()); code != CURLE_OK)
            return failureFrom(code, transfer);
        // Redirections are followed here, because the library would check only the scheme.
        const char* redirection = nullptr;
        curl_easy_getinfo(curl.get(), CURLINFO_REDIRECT_URL, &redirection);
        long status = 0;
        curl_easy_getinfo(curl.get(), CURLINFO_RESPONSE_CODE, &status);
        if (!redirection) {
            if (status != 200)
                return failureOf(filled(localized("Updater", "The server reported error %1."),
                                        {std::to_string(status)}));
            return std::move(transfer.bytes);
        }
        // A server on the web must not redirect to services of this machine.
        const bool isSafe = isSecure(redirection) || (mayFetch(redirection) && !isSecure(next));
        if (!isSafe) return notAllowed(redirection);
        next = redirection;
    }
    return failureOf(localized("Updater", "The server redirected too many times."));
}

}  // namespace vantle::updater
