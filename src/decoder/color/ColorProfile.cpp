#include "decoder/color/ColorProfile.h"

#include <lcms2.h>

#include <memory>

#include "decoder/reduction/Alpha.h"

namespace vantle::decoder {
namespace {

struct ProfileCloser {
    void operator()(void* profile) const { cmsCloseProfile(profile); }
};
using Profile = std::unique_ptr<void, ProfileCloser>;

struct TransformDeleter {
    void operator()(void* transform) const { cmsDeleteTransform(transform); }
};
using Transform = std::unique_ptr<void, TransformDeleter>;

Profile opened(std::span<const std::uint8_t> bytes) {
    if (bytes.empty()) return nullptr;
    return Profile(cmsOpenProfileFromMem(bytes.data(), static_cast<cmsUInt32Number>(bytes.size())));
}

/// Returns null if the profile is empty, damaged or not for this colour space.
Transform transform(std::span<const std::uint8_t> bytes, cmsColorSpaceSignature space,
                    cmsUInt32Number samples) {
    const Profile source = opened(bytes);
    if (!source || cmsGetColorSpace(source.get()) != space) return nullptr;
    const Profile screen(cmsCreate_sRGBProfile());
    return Transform(cmsCreateTransform(source.get(), samples, screen.get(), TYPE_RGBA_8,
                                        INTENT_PERCEPTUAL, cmsFLAGS_COPY_ALPHA));
}

std::size_t pixelCount(const Picture& picture) {
    return picture.rgba.size() / 4;
}

void apply(void* transform, Picture& picture) {
    cmsDoTransform(transform, picture.rgba.data(), picture.rgba.data(),
                   static_cast<cmsUInt32Number>(pixelCount(picture)));
}

void makeOpaque(Picture& picture) {
    for (std::size_t i = 3; i < picture.rgba.size(); i += 4) picture.rgba[i] = 255;
}

void convertInkWithoutProfile(Picture& picture) {
    for (std::size_t i = 0; i < picture.rgba.size(); i += 4) {
        const int light = 255 - picture.rgba[i + 3];
        for (std::size_t channel = 0; channel < 3; ++channel) {
            const int bright = 255 - picture.rgba[i + channel];
            picture.rgba[i + channel] = static_cast<std::uint8_t>((bright * light + 127) / 255);
        }
    }
}

}  // namespace

void convertToScreen(Picture& picture, std::span<const std::uint8_t> colorProfile) {
    const Transform toScreen = transform(colorProfile, cmsSigRgbData, TYPE_RGBA_8);
    if (!toScreen) return;
    const bool isTranslucent = !isOpaque(picture.rgba);
    if (isTranslucent) changeColors(picture.rgba, dividedByAlpha);
    apply(toScreen.get(), picture);
    if (isTranslucent) changeColors(picture.rgba, multipliedByAlpha);
}

void convertInkToScreen(Picture& picture, InkPolarity polarity,
                        std::span<const std::uint8_t> profile) {
    if (polarity == InkPolarity::moreIsLighter)
        for (auto& sample : picture.rgba) sample = static_cast<std::uint8_t>(255 - sample);
    if (const Transform toScreen = transform(profile, cmsSigCmykData, TYPE_CMYK_8))
        apply(toScreen.get(), picture);
    else
        convertInkWithoutProfile(picture);
    makeOpaque(picture);
}

}  // namespace vantle::decoder
