#include "decoder/formats/recording/FramePicture.h"

extern "C" {
#include <libavutil/pixdesc.h>
#include <libswscale/swscale.h>
}

#include <array>

#include "decoder/reduction/Alpha.h"

namespace vantle::decoder {
namespace {

struct ScalerFreer {
    void operator()(SwsContext* scaler) const { sws_freeContext(scaler); }
};
using Scaler = std::unique_ptr<SwsContext, ScalerFreer>;

/// Returns the colour matrix of a frame. Recorders that do not state it leave the choice to a
/// converter, which by default uses this one.
int matrixOf(const AVFrame& frame) {
    return frame.colorspace == AVCOL_SPC_UNSPECIFIED ? SWS_CS_DEFAULT : frame.colorspace;
}

bool hasAlpha(const AVFrame& frame) {
    const auto* format = av_pix_fmt_desc_get(static_cast<AVPixelFormat>(frame.format));
    return format && format->flags & AV_PIX_FMT_FLAG_ALPHA;
}

void setColors(SwsContext& scaler, const AVFrame& frame) {
    constexpr int fullRange = 1;
    constexpr int one = 1 << 16;
    sws_setColorspaceDetails(&scaler, sws_getCoefficients(matrixOf(frame)),
                             frame.color_range == AVCOL_RANGE_JPEG,
                             sws_getCoefficients(SWS_CS_DEFAULT), fullRange, 0, one, one);
}

}  // namespace

std::optional<Picture> pictureOf(const AVFrame& frame, PixelSize target) {
    const Scaler scaler(sws_getContext(
        frame.width, frame.height, static_cast<AVPixelFormat>(frame.format), target.width,
        target.height, AV_PIX_FMT_RGBA, SWS_LANCZOS | SWS_ACCURATE_RND | SWS_FULL_CHR_H_INT,
        nullptr, nullptr, nullptr));
    if (!scaler) return std::nullopt;
    setColors(*scaler, frame);
    Picture picture{target, {}};
    const int rowSize = target.width * 4;
    picture.rgba.resize(static_cast<std::size_t>(rowSize) *
                        static_cast<std::size_t>(target.height));
    const std::array<std::uint8_t*, 4> planes = {picture.rgba.data()};
    const std::array<int, 4> strides = {rowSize};
    if (sws_scale(scaler.get(), frame.data, frame.linesize, 0, frame.height, planes.data(),
                  strides.data()) != target.height)
        return std::nullopt;
    if (hasAlpha(frame)) changeColors(picture.rgba, multipliedByAlpha);
    return picture;
}

}  // namespace vantle::decoder
