#include "decoder/formats/recording/FrameDecoder.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "decoder/formats/Limits.h"

namespace vantle::decoder {
namespace {

struct CodecFreer {
    void operator()(AVCodecContext* codec) const { avcodec_free_context(&codec); }
};
using Codec = std::unique_ptr<AVCodecContext, CodecFreer>;

Codec openCodec(const AVStream& track) {
    const AVCodecParameters& parameters = *track.codecpar;
    const AVCodec* decoder = avcodec_find_decoder(parameters.codec_id);
    if (!decoder || !isReasonableInMemory(parameters.width, parameters.height)) return nullptr;
    Codec codec(avcodec_alloc_context3(decoder));
    if (!codec || avcodec_parameters_to_context(codec.get(), &parameters) < 0) return nullptr;
    codec->pkt_timebase = track.time_base;
    codec->thread_type = FF_THREAD_SLICE | FF_THREAD_FRAME;
    codec->thread_count = 2;
    codec->max_pixels = std::int64_t{2} * 7680 * 4320;
    return avcodec_open2(codec.get(), decoder, nullptr) < 0 ? nullptr : std::move(codec);
}

/// The most pixels to decode for one frame: half a second of 2560 × 1440 at 60 frames per second,
/// or of 3840 × 2160 at 30. If the frame is further from its key frame, the latest frame so far
/// replaces it: hardly anybody sees the difference, but everybody would have to wait.
constexpr std::int64_t maximumPixels = std::int64_t{15} * 3840 * 2160;

/// Returns how long a frame is shown, in the time units of its track; 0 if unknown.
std::int64_t lengthOf(const AVFrame& frame) {
#if LIBAVUTIL_VERSION_INT >= AV_VERSION_INT(57, 30, 100)
    return frame.duration;
#else
    return frame.pkt_duration;
#endif
}

/// Decodes a track until it reaches the frame for a time.
class Search {
public:
    Search(Demuxer& demuxer, AVStream& track, double time)
        : demuxer_(demuxer), track_(track), codec_(openCodec(track)), packet_(av_packet_alloc()) {
        const double base = av_q2d(track.time_base);
        const std::int64_t start = track.start_time == AV_NOPTS_VALUE ? 0 : track.start_time;
        const double wanted = std::isfinite(time) && time > 0 && base > 0 ? time / base : 0;
        wanted_ = start + static_cast<std::int64_t>(std::min(wanted, 1e15));
    }

    Frame run() {
        if (!codec_ || !packet_) return nullptr;
        av_seek_frame(demuxer_.format(), track_.index, wanted_, AVSEEK_FLAG_BACKWARD);
        while (!isFound_ && av_read_frame(demuxer_.format(), packet_.get()) >= 0) {
            if (packet_->stream_index == track_.index) decode(packet_.get());
            av_packet_unref(packet_.get());
        }
        // This takes the frames that the decoder still holds.
        if (!isFound_) decode(nullptr);
        return std::move(latest_);
    }

private:
    void decode(const AVPacket* packet) {
        // A damaged packet is skipped, because others may be intact.
        if (avcodec_send_packet(codec_.get(), packet) < 0) return;
        while (!isFound_) {
            Frame frame(av_frame_alloc());
            if (!frame || avcodec_receive_frame(codec_.get(), frame.get()) < 0) return;
            take(std::move(frame));
        }
    }

    void take(Frame frame) {
        const std::int64_t begin = frame->best_effort_timestamp;
        pixels_ += std::int64_t{frame->width} * frame->height;
        const bool isLater = begin != AV_NOPTS_VALUE && begin > wanted_;
        if (!isLater || !latest_) latest_ = std::move(frame);
        const std::int64_t length = lengthOf(*latest_);
        const bool isLast = begin != AV_NOPTS_VALUE && length > 0 && begin > wanted_ - length;
        isFound_ = isLater || isLast || begin == AV_NOPTS_VALUE || pixels_ >= maximumPixels;
    }

    Demuxer& demuxer_;
    AVStream& track_;
    Codec codec_;
    Packet packet_;
    std::int64_t wanted_ = 0;
    std::int64_t pixels_ = 0;  ///< Decoded so far.
    Frame latest_;
    bool isFound_ = false;
};

}  // namespace

Frame decodeFrame(Demuxer& demuxer, AVStream& track, double time) {
    return Search(demuxer, track, time).run();
}

}  // namespace vantle::decoder
