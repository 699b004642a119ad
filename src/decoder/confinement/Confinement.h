#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace vantle::decoder {

struct ResourceLimits {
    std::int64_t memory = std::int64_t{2} << 30;  ///< In bytes.
    /// Enough for a burst of the largest pictures. A decoder that uses it up is replaced by a new
    /// one.
    std::int64_t processorSeconds = 60;
};

/// Leaves this process only the rights to compute and to use the descriptors that it has: no file
/// system (Landlock), only the system calls on a list (seccomp: no network, no new processes, no
/// new programs), and limits on memory, processor time, output and descriptors. This cannot be
/// undone. Threads that already exist keep their rights, so it must be called before any are
/// started.
///
/// The files at `readable`, which belong to the system, can still be opened for reading.
///
/// Returns the guards that this system does not have, as a sum of Guard values; all others are in
/// force. If the file system guard is missing, the list of system calls excludes opening files.
std::uint32_t confine(std::span<const std::string> readable = {}, ResourceLimits limits = {});

/// The parts of confine(). They return false if the system does not have the guard.
bool giveUpFileSystem(std::span<const std::string> readable);
enum class FileOpening { guarded, refused };
bool giveUpSystemCalls(FileOpening opening);
void limitResources(ResourceLimits limits);

}  // namespace vantle::decoder
