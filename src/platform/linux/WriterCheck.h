#pragma once

#include "support/Url.h"

namespace vantle {

/// Whether some process holds the file open for writing, as far as this user may know. False when
/// the file cannot be looked at. Any thread.
bool hasWriter(const Url& url);

}  // namespace vantle
