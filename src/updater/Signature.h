#pragma once

#include <string>
#include <string_view>

#include "support/Result.h"

namespace vantle::updater {

/// Whether the owner of the key signed exactly these bytes (Ed25519). Key and signature are in
/// base64; damaged ones sign nothing.
bool isSigned(std::string_view bytes, const std::string& signature, const std::string& publicKey);

/// What is signed of a feed, whose signature stands at its end in a comment:
///
///     <!-- sparkle-signatures:
///     edSignature: BASE64
///     length: BYTES
///     -->
///
/// All before the comment is signed; behind it there is at most white space.
Result<std::string> signedPart(const std::string& feed, const std::string& publicKey);

}  // namespace vantle::updater
