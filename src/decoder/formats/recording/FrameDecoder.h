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

/// The frame that a track shows at `time` seconds: the last one that begins until then, or else the
/// first one. Of very large recordings it may be one that begins a little earlier. Null when there
/// is none that can be decoded.
Frame decodeFrame(Demuxer& demuxer, AVStream& track, double time);

}  // namespace vantle::decoder
