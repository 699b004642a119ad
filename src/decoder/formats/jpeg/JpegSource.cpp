#include "decoder/formats/jpeg/JpegSource.h"

#include <jerror.h>

#include <array>

namespace vantle::decoder {
namespace {

void giveUp(j_common_ptr jpeg) {
    longjmp(static_cast<JpegErrors*>(jpeg->err)->jump, 1);
}

/// Libjpeg continues after a warning. Some warnings concern garbage between parts, which is
/// harmless; others mean that the picture is incomplete.
void noteWarning(j_common_ptr jpeg, int level) {
    auto& errors = *static_cast<JpegErrors*>(jpeg->err);
    if (level < 0 && (errors.msg_code == JWRN_JPEG_EOF || errors.msg_code == JWRN_HIT_MARKER))
        errors.isDamaged = true;
}

void ignore(j_common_ptr) {}
void ignoreSource(j_decompress_ptr) {}

JpegSource& source(j_decompress_ptr jpeg) {
    return *static_cast<JpegSource*>(jpeg->src);
}

boolean fill(j_decompress_ptr jpeg) {
    // If the file ends too early, libjpeg gets an end-of-image marker.
    static constexpr std::array<JOCTET, 2> endOfImage = {0xff, JPEG_EOI};
    auto& input = source(jpeg);
    auto bytes = input.stream.peek();
    if (bytes.empty()) {
        input.hasEnded = true;
        bytes = endOfImage;
    } else {
        input.stream.consume(bytes.size());
    }
    input.next_input_byte = bytes.data();
    input.bytes_in_buffer = bytes.size();
    return TRUE;
}

void skip(j_decompress_ptr jpeg, long count) {
    auto& input = source(jpeg);
    if (count <= 0) return;
    const auto wanted = static_cast<std::size_t>(count);
    if (wanted <= input.bytes_in_buffer) {
        input.next_input_byte += wanted;
        input.bytes_in_buffer -= wanted;
        return;
    }
    input.stream.seek(input.stream.position() +
                      static_cast<std::int64_t>(wanted - input.bytes_in_buffer));
    input.bytes_in_buffer = 0;
}

}  // namespace

JpegErrors::JpegErrors() : jpeg_error_mgr{} {
    jpeg_std_error(this);
    error_exit = giveUp;
    emit_message = noteWarning;
    output_message = ignore;
}

JpegSource::JpegSource(const InputFile& file) : jpeg_source_mgr{}, stream(file) {
    init_source = ignoreSource;
    fill_input_buffer = fill;
    skip_input_data = skip;
    resync_to_restart = jpeg_resync_to_restart;
    term_source = ignoreSource;
}

}  // namespace vantle::decoder
