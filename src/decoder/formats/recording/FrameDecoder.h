#pragma once

extern "C" {
#include <libavcodec/avcodec.h>
}

#include <memory>

#include "decoder/formats/recording/Demuxer.h"

namespace vantle::decoder {

struct FrameFreer {
    void operator()(AVFrame* frame) const { av_frame_free(&frame); }
};
using Frame = std::unique_ptr<AVFrame, FrameFreer>;

/// Returns the frame that a track shows at `time` seconds: the last one that begins by then, or
/// else the first one. In very large recordings it may be a slightly earlier frame. Returns null if
/// no frame can be decoded.
Frame decodeFrame(Demuxer& demuxer, AVStream& track, double time);

}  // namespace vantle::decoder
