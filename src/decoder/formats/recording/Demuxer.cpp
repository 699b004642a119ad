#include "decoder/formats/recording/Demuxer.h"

extern "C" {
#include <libavutil/display.h>
}

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace vantle::decoder {
namespace {

constexpr int bufferSize = 64 * 1024;

/// The most bytes to read in search of a recording's duration: some minutes of a screen recording.
constexpr std::int64_t maximumSearchBytes = std::int64_t{512} * 1024 * 1024;

/// Later times cannot be real in any unit.
constexpr std::int64_t latestTime = std::numeric_limits<std::int64_t>::max() / 4;

bool isMatroska(const InputFile& file) {
    std::array<std::uint8_t, 4> start{};
    file.read(0, start);
    return text(start) == "\x1a\x45\xdf\xa3";
}

/// Returns the matrix that turns pictures before they are shown; null if there is none.
const std::int32_t* displayMatrix(const AVStream& track) {
#if LIBAVFORMAT_VERSION_INT >= AV_VERSION_INT(60, 15, 100)
    const auto* data =
        av_packet_side_data_get(track.codecpar->coded_side_data, track.codecpar->nb_coded_side_data,
                                AV_PKT_DATA_DISPLAYMATRIX);
    return data ? reinterpret_cast<const std::int32_t*>(data->data) : nullptr;
#else
    return reinterpret_cast<const std::int32_t*>(
        av_stream_get_side_data(&track, AV_PKT_DATA_DISPLAYMATRIX, nullptr));
#endif
}

}  // namespace

int Demuxer::read(void* self, std::uint8_t* bytes, int count) {
    auto& demuxer = *static_cast<Demuxer*>(self);
    const auto done = demuxer.file_.read(demuxer.position_,
                                         {bytes, static_cast<std::size_t>(std::max(count, 0))});
    demuxer.position_ += static_cast<std::int64_t>(done);
    return done > 0 ? static_cast<int>(done) : AVERROR_EOF;
}

std::int64_t Demuxer::seek(void* self, std::int64_t offset, int origin) {
    auto& demuxer = *static_cast<Demuxer*>(self);
    const int way = origin & ~AVSEEK_FORCE;
    if (way == AVSEEK_SIZE) return demuxer.file_.size();
    const std::int64_t base = way == SEEK_CUR   ? demuxer.position_
                              : way == SEEK_END ? demuxer.file_.size()
                                                : 0;
    std::int64_t position = 0;
    if (__builtin_add_overflow(base, offset, &position) || position < 0) return AVERROR(EINVAL);
    demuxer.position_ = position;
    return position;
}

std::unique_ptr<Demuxer> Demuxer::open(const InputFile& file) {
    std::unique_ptr<Demuxer> demuxer(new Demuxer(file));
    if (!demuxer->openFormat()) return nullptr;
    demuxer->chooseTracks();
    demuxer->findDuration();
    return demuxer;
}

Demuxer::~Demuxer() {
    format_.reset();
    if (input_) av_freep(&input_->buffer);
    avio_context_free(&input_);
}

bool Demuxer::openFormat() {
    auto* buffer = static_cast<unsigned char*>(av_malloc(bufferSize));
    if (!buffer) return false;
    input_ = avio_alloc_context(buffer, bufferSize, 0, this, read, nullptr, seek);
    AVFormatContext* format = input_ ? avformat_alloc_context() : nullptr;
    if (!format) return false;
    format->pb = input_;
    format->flags |= AVFMT_FLAG_CUSTOM_IO;
    // Only this demuxer is used: others would open further files that the file names.
    const AVInputFormat* demuxer = av_find_input_format(isMatroska(file_) ? "matroska" : "mov");
    // On failure, this function frees the context.
    if (avformat_open_input(&format, nullptr, demuxer, nullptr) < 0) return false;
    format_.reset(format);
    return true;
}

void Demuxer::findDuration() {
    if (format_->duration != AV_NOPTS_VALUE) return;
    if (isMatroska(file_))
        findLastPacket();
    else
        // This finds the duration of a fragmented recording.
        avformat_find_stream_info(format_.get(), nullptr);
}

void Demuxer::findLastPacket() {
    AVStream* track = pictureTrack();
    const Packet packet(av_packet_alloc());
    if (!track || !packet) return;
    std::int64_t first = AV_NOPTS_VALUE;
    std::int64_t end = AV_NOPTS_VALUE;
    while (av_read_frame(format_.get(), packet.get()) >= 0) {
        const std::int64_t begin = packet->pts;
        const std::int64_t length = std::max<std::int64_t>(packet->duration, 0);
        av_packet_unref(packet.get());
        // The file is too long to read on, so the duration stays unknown.
        if (position_ > maximumSearchBytes) return;
        if (begin < 0 || begin > latestTime || length > latestTime) continue;
        if (first == AV_NOPTS_VALUE) first = begin;
        end = std::max(end, begin + length);
    }
    if (first == AV_NOPTS_VALUE) return;
    format_->duration = av_rescale_q(end - first, track->time_base, AV_TIME_BASE_Q);
}

void Demuxer::chooseTracks() {
    for (unsigned i = 0; i < format_->nb_streams; ++i) {
        AVStream* track = format_->streams[i];
        track->discard = AVDISCARD_ALL;
        if (track->codecpar->codec_type != AVMEDIA_TYPE_VIDEO) continue;
        auto*& chosen = track->disposition & AV_DISPOSITION_ATTACHED_PIC ? cover_ : videoTrack_;
        if (!chosen) chosen = track;
    }
    if (AVStream* track = pictureTrack()) track->discard = AVDISCARD_DEFAULT;
}

double Demuxer::duration() const {
    if (format_->duration == AV_NOPTS_VALUE || format_->duration < 0)
        return std::numeric_limits<double>::quiet_NaN();
    return static_cast<double>(format_->duration) / AV_TIME_BASE;
}

Orientation Demuxer::orientation(const AVStream& track) {
    const std::int32_t* matrix = displayMatrix(track);
    const double angle = matrix ? av_display_rotation_get(matrix) : 0;
    if (!std::isfinite(angle)) return Orientation::upright;
    // The angle is counterclockwise.
    switch ((std::lround(-angle / 90) % 4 + 4) % 4) {
        case 1:
            return Orientation::turnRight;
        case 2:
            return Orientation::rotated180;
        case 3:
            return Orientation::turnLeft;
        default:
            return Orientation::upright;
    }
}

Size Demuxer::naturalSize(const AVStream& track) {
    const AVCodecParameters& parameters = *track.codecpar;
    const AVRational ratio = track.sample_aspect_ratio.num > 0 ? track.sample_aspect_ratio
                                                               : parameters.sample_aspect_ratio;
    const double stretch = ratio.num > 0 && ratio.den > 0 ? av_q2d(ratio) : 1;
    const Size stored{std::round(parameters.width * stretch),
                      static_cast<double>(parameters.height)};
    return swappedIfTurned(stored, orientation(track));
}

}  // namespace vantle::decoder
