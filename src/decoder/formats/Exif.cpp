#include "decoder/formats/Exif.h"

#include "decoder/formats/InputFile.h"

namespace vantle::decoder {
namespace {

/// Reads numbers in the byte order that the data begin with. Numbers past the end are 0.
class Numbers {
public:
    explicit Numbers(std::span<const std::uint8_t> data)
        : data_(data), isLittle_(text(data).starts_with("II*")) {}

    bool areExif() const {
        using namespace std::string_view_literals;
        return text(data_).starts_with("II*\0"sv) || text(data_).starts_with("MM\0*"sv);
    }

    std::uint32_t at(std::size_t offset, std::size_t size) const {
        if (offset > data_.size() || size > data_.size() - offset) return 0;
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | data_[offset + (isLittle_ ? size - 1 - i : i)];
        return value;
    }

    /// Returns the first of two numbers divided by the second; 0 if the second is 0.
    double ratioAt(std::size_t offset) const {
        const std::uint32_t divisor = at(offset + 4, 4);
        return divisor == 0 ? 0 : static_cast<double>(at(offset, 4)) / divisor;
    }

private:
    std::span<const std::uint8_t> data_;
    bool isLittle_;
};

}  // namespace

Exif readExif(std::span<const std::uint8_t> data) {
    constexpr std::size_t entrySize = 12;
    constexpr std::uint32_t centimetres = 3;
    const Numbers numbers(data);
    Exif exif;
    if (!numbers.areExif()) return exif;
    double across = 0;
    double down = 0;
    std::uint32_t unit = 2;
    const std::size_t directory = numbers.at(4, 4);
    const std::uint32_t count = numbers.at(directory, 2);
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t entry = directory + 2 + i * entrySize;
        if (entry + entrySize > data.size()) break;
        switch (numbers.at(entry, 2)) {
            case 0x0112:
                exif.orientation = orientationNumbered(numbers.at(entry + 8, 2));
                break;
            case 0x011a:
                across = numbers.ratioAt(numbers.at(entry + 8, 4));
                break;
            case 0x011b:
                down = numbers.ratioAt(numbers.at(entry + 8, 4));
                break;
            case 0x0128:
                unit = numbers.at(entry + 8, 2);
                break;
            default:
                break;
        }
    }
    if (across > 0 && down > 0)
        exif.resolution =
            Resolution::of(across, down, unit == centimetres ? Resolution::centimetresPerInch : 1);
    return exif;
}

}  // namespace vantle::decoder
