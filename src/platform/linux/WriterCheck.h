#pragma once

#include <cstdint>
#include <optional>

#include "support/Url.h"

namespace vantle {

/// Whether some process holds the file open for writing, as far as this user may know. False when
/// the file cannot be looked at. Any thread.
bool hasWriter(const Url& url);

/// Whether a file has a writer, by the failure of a read lease on it (fcntl(2), F_SETLEASE; 0 for
/// none) and the kind of its file system (statfs(2), f_type). Absent where a lease does not tell:
/// the kernel gives none for files of others and in FUSE, and clients of NFSv4 and SMB answer
/// EAGAIN also when the server has not delegated the file to them.
std::optional<bool> hasWriterByLease(int failure, std::uint32_t fileSystem);

}  // namespace vantle
