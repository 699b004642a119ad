#pragma once

#include <cstddef>
#include <cstdint>

namespace vantle::decoder {

/// It takes as many rows to be as quick as it can.
constexpr std::size_t rowsUnfilteredTogether = 8;

/// For which processor: the one that runs this, or any, which is slower.
enum class Processor { thisOne, any };

/// Undoes the filters of rows as a PNG stores them, each of `size` bytes behind the number of its
/// filter. `rows` gets them one behind the other, `above` is the row above the first (zeros above
/// the picture), `bytesPerPixel` is 3 or 4. False when there is no such filter. All that is read is
/// readable four bytes past its end.
bool undoPngFilters(const std::uint8_t* stored, const std::uint8_t* above, std::uint8_t* rows,
                    std::size_t rowCount, std::size_t size, int bytesPerPixel,
                    Processor processor = Processor::thisOne);

}  // namespace vantle::decoder
