#pragma once

#include <cstddef>
#include <cstdint>

namespace vantle::decoder {

/// Undoes the filters of rows as a PNG stores them, each of `size` bytes behind the number of its
/// filter. `rows` gets them one behind the other, `above` is the row above the first (zeros above
/// the picture), `bytesPerPixel` is 3 or 4. False when there is no such filter. All that is read is
/// readable four bytes past its end.
bool undoPngFilters(const std::uint8_t* stored, const std::uint8_t* above, std::uint8_t* rows,
                    std::size_t rowCount, std::size_t size, int bytesPerPixel);

}  // namespace vantle::decoder
