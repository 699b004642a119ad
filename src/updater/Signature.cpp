#include "updater/Signature.h"

#include <sodium.h>

#include <array>
#include <optional>
#include <regex>

#include "support/Localization.h"

namespace vantle::updater {
namespace {

constexpr std::string_view commentStart = "<!-- sparkle-signatures:";

template <std::size_t size>
std::optional<std::array<unsigned char, size>> fromBase64(const std::string& text) {
    std::array<unsigned char, size> bytes{};
    std::size_t length = 0;
    const int failed = sodium_base642bin(bytes.data(), size, text.data(), text.size(), nullptr,
                                         &length, nullptr, sodium_base64_VARIANT_ORIGINAL);
    if (failed != 0 || length != size) return std::nullopt;
    return bytes;
}

}  // namespace

bool isSigned(std::string_view bytes, const std::string& signature, const std::string& publicKey) {
    if (sodium_init() < 0) return false;
    const auto key = fromBase64<crypto_sign_PUBLICKEYBYTES>(publicKey);
    const auto sign = fromBase64<crypto_sign_BYTES>(signature);
    return key && sign &&
           crypto_sign_verify_detached(sign->data(),
                                       reinterpret_cast<const unsigned char*>(bytes.data()),
                                       bytes.size(), key->data()) == 0;
}

Result<std::string> signedPart(const std::string& feed, const std::string& publicKey) {
    static const std::regex form(
        "<!-- sparkle-signatures:\\s*edSignature: ([A-Za-z0-9+/=]{88})\\s*length: "
        "([0-9]{1,9})\\s*-->\\s*");
    const auto at = feed.rfind(commentStart);
    std::smatch match;
    // The expression is applied only to the end of the feed, so that it never processes a long
    // hostile text.
    constexpr std::size_t maximum = 512;
    const std::string comment =
        at != std::string::npos && feed.size() - at <= maximum ? feed.substr(at) : "";
    if (!std::regex_match(comment, match, form))
        return Failure{
            0, localized("Updater", "The update feed is not signed, so it was refused."), {}};
    std::string part = feed.substr(0, at);
    if (std::stoul(match[2]) != at || !isSigned(part, match[1], publicKey))
        return Failure{
            0,
            localized("Updater",
                      "The signature of the update feed is wrong, so the feed was refused."),
            {}};
    return part;
}

}  // namespace vantle::updater
