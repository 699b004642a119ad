#include "decoder/protocol/SealedMemory.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <utility>

namespace vantle::decoder {
namespace {

constexpr int againstChanges = F_SEAL_SHRINK | F_SEAL_GROW | F_SEAL_WRITE;

}  // namespace

FileDescriptor sealedMemory(std::span<const std::uint8_t> bytes) {
    FileDescriptor memory(memfd_create("sealed", MFD_CLOEXEC | MFD_ALLOW_SEALING));
    if (!memory) return {};
    while (!bytes.empty()) {
        const auto count = write(memory.get(), bytes.data(), bytes.size());
        if (count <= 0) return {};
        bytes = bytes.subspan(static_cast<std::size_t>(count));
    }
    return fcntl(memory.get(), F_ADD_SEALS, againstChanges | F_SEAL_SEAL) == 0 ? std::move(memory)
                                                                               : FileDescriptor();
}

bool isSealed(int memory, std::int64_t size) {
    struct stat status {};
    return (fcntl(memory, F_GET_SEALS) & againstChanges) == againstChanges &&
           fstat(memory, &status) == 0 && status.st_size == size;
}

}  // namespace vantle::decoder
