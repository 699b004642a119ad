#pragma once

extern "C" {
#include <libavformat/avformat.h>
}

#include <memory>

#include "decoder/formats/InputFile.h"
#include "decoder/formats/Orientation.h"
#include "support/Geometry.h"

namespace vantle::decoder {

struct PacketFreer {
    void operator()(AVPacket* packet) const { av_packet_free(&packet); }
};
using Packet = std::unique_ptr<AVPacket, PacketFreer>;

/// An open QuickTime, MPEG-4 or Matroska file, of which the first video track is read.
class Demuxer {
public:
    /// Returns null if the file cannot be opened.
    static std::unique_ptr<Demuxer> open(const InputFile& file);
    ~Demuxer();

    /// Returns the duration in seconds; not a number if it is unknown.
    double duration() const;

    /// Returns null if there is no video track. A cover picture is not one.
    AVStream* videoTrack() { return videoTrack_; }

    /// Returns the video track, or else the cover picture's; null if there is neither.
    AVStream* pictureTrack() { return videoTrack_ ? videoTrack_ : cover_; }

    /// Returns how to turn the pictures of a track.
    static Orientation orientation(const AVStream& track);
    /// Returns the upright size at which the pictures of a track are meant to be shown.
    static Size naturalSize(const AVStream& track);

    AVFormatContext* format() { return format_.get(); }

private:
    struct Closer {
        void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
    };

    explicit Demuxer(const InputFile& file) : file_(file) {}
    bool openFormat();
    void chooseTracks();
    /// Finds the duration if the header lacks it because the recorder wrote the header first.
    void findDuration();
    void findLastPacket();

    static int read(void* self, std::uint8_t* bytes, int count);
    static std::int64_t seek(void* self, std::int64_t offset, int origin);

    const InputFile& file_;
    std::int64_t position_ = 0;
    AVIOContext* input_ = nullptr;
    std::unique_ptr<AVFormatContext, Closer> format_;
    AVStream* videoTrack_ = nullptr;
    AVStream* cover_ = nullptr;
};

}  // namespace vantle::decoder
