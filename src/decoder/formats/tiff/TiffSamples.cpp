#include "decoder/formats/tiff/TiffSamples.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "decoder/reduction/Alpha.h"

namespace vantle::decoder {
namespace {

/// The bits of a 16-bit floating-point number.
struct Half {
    std::uint16_t bits;
};

template <typename Number>
std::uint8_t eightBits(Number value) {
    // NaN is not greater than 0, so it becomes 0.
    const Number within = value > 0 ? std::min(value, Number{1}) : Number{0};
    return static_cast<std::uint8_t>(within * 255 + Number{0.5});
}

std::uint8_t eightBits(std::uint16_t value) {
    return static_cast<std::uint8_t>((value * 255U + 32'895U) >> 16);
}

std::uint8_t eightBits(std::uint32_t value) {
    return eightBits(static_cast<std::uint16_t>(value >> 16));
}

std::uint8_t eightBits(Half value) {
    constexpr std::uint32_t infinity = 0x7c00;
    constexpr float widerExponent = 0x1p112F;
    // The bits of negative numbers and of NaN are greater than those of infinity.
    const bool isNothing = value.bits > infinity;
    const auto wide = std::bit_cast<float>(static_cast<std::uint32_t>(value.bits) << 13);
    return isNothing ? std::uint8_t{0} : eightBits(wide * widerExponent);
}

template <typename Number>
void narrowAll(const std::uint8_t* stored, std::uint8_t* samples, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
        Number sample{};
        std::memcpy(&sample, stored + i * sizeof sample, sizeof sample);
        samples[i] = eightBits(sample);
    }
}

void unpackBits(const std::uint8_t* stored, std::uint8_t* samples, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        samples[i] = (stored[i / 8] >> (7 - i % 8)) & 1 ? 255 : 0;
}

bool hasSupportedSamples(const TiffHeader& header) {
    constexpr std::uint16_t maximumSamples = 16;
    if (header.samplesPerPixel < 1 || header.samplesPerPixel > maximumSamples) return false;
    switch (header.bitsPerSample) {
        case 1:
            return header.sampleFormat == SAMPLEFORMAT_UINT && header.samplesPerPixel == 1;
        case 8:
            return header.sampleFormat == SAMPLEFORMAT_UINT;
        case 16:
        case 32:
            return header.sampleFormat == SAMPLEFORMAT_UINT ||
                   header.sampleFormat == SAMPLEFORMAT_IEEEFP;
        case 64:
            return header.sampleFormat == SAMPLEFORMAT_IEEEFP;
        default:
            return false;
    }
}

}  // namespace

TiffSamples::TiffSamples(const TiffHeader& header)
    : bits_(header.bitsPerSample),
      isFloatingPoint_(header.sampleFormat == SAMPLEFORMAT_IEEEFP),
      isInverted_(header.photometric == PHOTOMETRIC_MINISWHITE),
      perPixel_(header.samplesPerPixel),
      count_(static_cast<std::size_t>(header.size.width) * header.samplesPerPixel) {}

std::optional<TiffSamples> TiffSamples::of(const TiffHeader& header) {
    if (!hasSupportedSamples(header)) return std::nullopt;
    TiffSamples samples(header);
    if (!samples.chooseSamples(header)) return std::nullopt;
    if (!samples.choosesAllSamples()) samples.narrowed_.resize(samples.count_);
    return samples;
}

bool TiffSamples::chooseSamples(const TiffHeader& header) {
    const bool isStraight = header.extraSample == EXTRASAMPLE_UNASSALPHA;
    const bool isTranslucent = isStraight || header.extraSample == EXTRASAMPLE_ASSOCALPHA;
    const auto translucent = isStraight ? PixelLayout::rgba : PixelLayout::premultipliedRgba;
    chosen_ = {0, 1, 2, 3};
    switch (header.photometric) {
        case PHOTOMETRIC_MINISWHITE:
        case PHOTOMETRIC_MINISBLACK:
            if (perPixel_ > 1 && isTranslucent) chosen_ = {0, 0, 0, 1};
            layout_ = perPixel_ > 1 && isTranslucent ? translucent : PixelLayout::gray;
            // Inverted gray with alpha is not supported, because no program writes it: narrow()
            // would invert the alpha as well.
            return !(isInverted_ && perPixel_ > 1);
        case PHOTOMETRIC_RGB:
            // Programs that write a fourth sample without describing it mean an alpha.
            layout_ = perPixel_ > 3 ? translucent : PixelLayout::rgb;
            return perPixel_ >= 3;
        case PHOTOMETRIC_SEPARATED:
            layout_ = PixelLayout::cmyk;
            if (perPixel_ > 4 && isTranslucent) inkAlpha_ = 4;
            isInkMultiplied_ = !isStraight;
            return perPixel_ >= 4 && header.inkSet == INKSET_CMYK;
        default:
            return false;
    }
}

bool TiffSamples::choosesAllSamples() const {
    return perPixel_ == static_cast<std::size_t>(channelCount(layout_));
}

void TiffSamples::convert(const std::uint8_t* stored, std::uint8_t* row) {
    if (choosesAllSamples()) {
        narrow(stored, row);
        return;
    }
    narrow(stored, narrowed_.data());
    const auto channels = static_cast<std::size_t>(channelCount(layout_));
    std::uint8_t* out = row;
    for (std::size_t pixel = 0; pixel < count_; pixel += perPixel_)
        for (std::size_t channel = 0; channel < channels; ++channel)
            *out++ = narrowed_[pixel + chosen_[channel]];
    if (inkAlpha_ && !isInkMultiplied_) multiplyInk(row);
}

void TiffSamples::writeInkAlpha(std::uint8_t* row) const {
    for (std::size_t pixel = 0; pixel < count_; pixel += perPixel_)
        *row++ = narrowed_[pixel + *inkAlpha_];
}

void TiffSamples::narrow(const std::uint8_t* stored, std::uint8_t* samples) const {
    if (bits_ == 1) unpackBits(stored, samples, count_);
    if (bits_ == 8) std::memcpy(samples, stored, count_);
    if (bits_ == 16 && isFloatingPoint_) narrowAll<Half>(stored, samples, count_);
    if (bits_ == 16 && !isFloatingPoint_) narrowAll<std::uint16_t>(stored, samples, count_);
    if (bits_ == 32 && isFloatingPoint_) narrowAll<float>(stored, samples, count_);
    if (bits_ == 32 && !isFloatingPoint_) narrowAll<std::uint32_t>(stored, samples, count_);
    if (bits_ == 64) narrowAll<double>(stored, samples, count_);
    if (isInverted_)
        for (std::size_t i = 0; i < count_; ++i)
            samples[i] = static_cast<std::uint8_t>(~samples[i]);
}

void TiffSamples::multiplyInk(std::uint8_t* row) const {
    for (std::size_t pixel = 0; pixel < count_; pixel += perPixel_, row += 4)
        for (std::size_t ink = 0; ink < 4; ++ink)
            row[ink] = multipliedByAlpha(row[ink], narrowed_[pixel + *inkAlpha_]);
}

}  // namespace vantle::decoder
