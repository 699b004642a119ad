#pragma once

#include <gmock/gmock.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <string>

#include "platform/linux/ConfinedMediaLoader.h"

namespace vantle::samples {

inline Url file(const std::string& name) {
    return Url::file(std::string(VANTLE_SAMPLES) + "/" + name);
}

/// The decoder of this build, for a screen with that many pixels per point.
class Loader final : public MediaLoader {
public:
    explicit Loader(double pixelsPerPoint = 1, DecodingTimeouts timeout = {})
        : loader_(
              VANTLE_DECODER, [pixelsPerPoint] { return pixelsPerPoint; }, timeout) {}

    std::unique_ptr<ImageFile> openImage(const Url& url) override { return loader_.openImage(url); }
    std::unique_ptr<ImageFile> holdImage(const Url& url) override { return loader_.holdImage(url); }
    std::unique_ptr<RecordingFile> openRecording(const Url& url) override {
        return loader_.openRecording(url);
    }

private:
    ConfinedMediaLoader loader_;
};

/// Returns true if this kernel has Landlock, which takes the file system from the decoder. Tests
/// that need it are skipped otherwise.
inline bool hasLandlock() {
    constexpr unsigned askForVersion = 1;
    return syscall(SYS_landlock_create_ruleset, nullptr, 0, askForVersion) > 0;
}

/// The size of most samples, in pixels and in points.
constexpr Size usual{64, 48};

/// Returns the drawn picture, or null if the file has none.
inline ImagePointer drawn(const Url& url, Size size = usual, double pixelsPerPoint = 1) {
    Loader loader(pixelsPerPoint);
    const auto image = loader.openImage(url);
    return image ? image->draw(size) : nullptr;
}

inline ImagePointer drawn(const std::string& name, Size size = usual, double pixelsPerPoint = 1) {
    return drawn(file(name), size, pixelsPerPoint);
}

using Color = std::array<int, 4>;
constexpr Color red{255, 0, 0, 255};
constexpr Color green{0, 255, 0, 255};
constexpr Color blue{0, 0, 255, 255};
constexpr Color yellow{255, 255, 0, 255};
constexpr Color black{0, 0, 0, 255};
constexpr Color white{255, 255, 255, 255};
constexpr Color nothing{0, 0, 0, 0};

inline Color colorAt(const Image& image, int x, int y) {
    const auto offset = static_cast<std::ptrdiff_t>(y * image.pixelsWide + x) * 4;
    Color color{};
    std::copy_n(image.rgba.begin() + offset, 4, color.begin());
    return color;
}

/// Makes one colour comparable with IsAbout().
constexpr std::array<Color, 1> only(Color color) {
    return {color};
}

/// Returns the colours in the middle of each quarter, from the top left.
inline std::array<Color, 4> quarters(const Image& image) {
    const int left = image.pixelsWide / 4;
    const int top = image.pixelsHigh / 4;
    return {colorAt(image, left, top), colorAt(image, 3 * left, top), colorAt(image, left, 3 * top),
            colorAt(image, 3 * left, 3 * top)};
}

constexpr std::array usualQuarters{red, green, blue, yellow};

/// Each part of each colour differs by at most `tolerance`, which a lossy format may lose.
MATCHER_P2(IsAbout, expected, tolerance, "") {
    for (std::size_t i = 0; i < expected.size(); ++i)
        for (std::size_t part = 0; part < 4; ++part)
            if (std::abs(arg[i][part] - expected[i][part]) > tolerance) return false;
    return true;
}

}  // namespace vantle::samples
