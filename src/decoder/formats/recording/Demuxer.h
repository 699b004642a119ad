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

/// A file of QuickTime, MPEG-4 or Matroska, open for reading its first video track.
class Demuxer {
public:
    /// Null when it cannot be opened.
    static std::unique_ptr<Demuxer> open(const InputFile& file);
    ~Demuxer();

    /// Seconds; not a number when the file does not say.
    double duration() const;

    /// Null when there is no video track. A cover picture is none.
    AVStream* videoTrack() { return videoTrack_; }

    /// What has a picture to show: the video track, else a cover; null when there is neither.
    AVStream* pictureTrack() { return videoTrack_ ? videoTrack_ : cover_; }

    /// How the pictures of a track are to be turned.
    static Orientation orientation(const AVStream& track);
    /// The upright size at which they are meant to be seen.
    static Size naturalSize(const AVStream& track);

    AVFormatContext* format() { return format_.get(); }

private:
    struct Closer {
        void operator()(AVFormatContext* format) const { avformat_close_input(&format); }
    };

    explicit Demuxer(const InputFile& file) : file_(file) {}
    bool openFormat();
    void chooseTracks();
    /// Recorders that write as they go do not say at the beginning how long it will be.
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
