#pragma once

#include <cstdint>
#include <optional>

#include "support/Url.h"

namespace vantle {

/// Returns true if a process holds the file open for writing, as far as this user can see. Returns
/// false if the file cannot be opened. Any thread.
bool hasWriter(const Url& url);

/// Returns whether a file has a writer, given the error of a read lease on it (fcntl(2),
/// F_SETLEASE; 0 for none) and the kind of its file system (statfs(2), f_type). Returns nothing if
/// the lease does not show it: the kernel grants none for files of other users and on FUSE, and
/// clients of NFSv4 and SMB also answer EAGAIN if the server has not delegated the file to them.
std::optional<bool> hasWriterByLease(int failure, std::uint32_t fileSystem);

}  // namespace vantle
