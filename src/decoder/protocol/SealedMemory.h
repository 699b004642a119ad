#pragma once

#include <cstdint>
#include <span>

#include "support/FileDescriptor.h"

namespace vantle::decoder {

/// Returns memory that holds a copy of the bytes and that nobody can change any more; an empty
/// descriptor if there is not enough memory.
FileDescriptor sealedMemory(std::span<const std::uint8_t> bytes);

/// Returns true if this is memory of exactly `size` bytes that nobody can change any more.
bool isSealed(int memory, std::int64_t size);

}  // namespace vantle::decoder
