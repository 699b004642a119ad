#pragma once

#include <cstddef>
#include <cstdint>

namespace vantle::decoder {

/// undoPngFilters() reaches its full speed with this many rows.
constexpr std::size_t rowsUnfilteredTogether = 8;

/// The processor that the code is for: the current one, or any, which is slower.
enum class Processor { thisOne, any };

/// Undoes the filters of rows as a PNG stores them, each of `size` bytes after the number of its
/// filter. Writes the rows one after the other to `rows`. `above` is the row above the first (zeros
/// at the top of the picture), `bytesPerPixel` is 3 or 4. Everything that is read must be readable
/// four bytes past its end. Returns false if a filter number is not valid.
bool undoPngFilters(const std::uint8_t* stored, const std::uint8_t* above, std::uint8_t* rows,
                    std::size_t rowCount, std::size_t size, int bytesPerPixel,
                    Processor processor = Processor::thisOne);

}  // namespace vantle::decoder
