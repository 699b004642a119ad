#pragma once

#include <string>
#include <string_view>

#include "support/Result.h"

namespace vantle::updater {

/// Returns true if the owner of the key signed exactly these bytes (Ed25519). Key and signature are
/// in base64; returns false if either is damaged.
bool isSigned(std::string_view bytes, const std::string& signature, const std::string& publicKey);

/// Returns the signed part of a feed. The signature is in a comment at the feed's end:
///
///     <!-- sparkle-signatures:
///     edSignature: BASE64
///     length: BYTES
///     -->
///
/// Everything before the comment is signed; only white space may follow it. Fails if there is no
/// signature or if it is wrong.
Result<std::string> signedPart(const std::string& feed, const std::string& publicKey);

}  // namespace vantle::updater
