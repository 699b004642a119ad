#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace vantle::decoder {

/// Gives up every right of this process but to compute and to use the descriptors that it has: no
/// file system (Landlock), no other system calls than those of a list (seccomp: no network, no new
/// processes, no new programs), limits on memory, processor time, output and descriptors. There is
/// no way back. Threads that exist already keep their rights: to be called before any is made.
///
/// The files at `readable`, which are the system's own, can still be opened for reading.
///
/// Gives the guards that this system does not have, as Guard values added up; all others hold.
/// Where the file system guard is missing, opening files is not on the list of system calls either.
std::uint32_t confine(std::span<const std::string> readable = {});

/// The parts of it. False where the system does not have the guard.
bool giveUpFileSystem(std::span<const std::string> readable);
enum class FileOpening { guarded, refused };
bool giveUpSystemCalls(FileOpening opening);
void limitResources();

}  // namespace vantle::decoder
