// Opens and draws the fuzzer's bytes with one format's module.

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <exception>

#include "decoder/formats/MediaFile.h"
#include "support/FileDescriptor.h"

extern "C" const vantle::decoder::FormatModule* vantleFormatModule();

namespace {

using namespace vantle;
using namespace vantle::decoder;

const FormatModule& preparedModule() {
    static const FormatModule& module = []() -> const FormatModule& {
        const FormatModule& loaded = *vantleFormatModule();
        if (loaded.prepare) loaded.prepare();
        return loaded;
    }();
    return module;
}

FileDescriptor fileOf(const std::uint8_t* data, std::size_t size) {
    FileDescriptor file(memfd_create("input", MFD_CLOEXEC));
    if (!file || write(file.get(), data, size) != static_cast<ssize_t>(size)) std::abort();
    return file;
}

void open(const InputFile& file) {
    constexpr PixelSize maximum{200, 150};
    const FormatModule& module = preparedModule();
    if (const auto image = module.openImage ? module.openImage(file) : nullptr) {
        const PixelSize size = image->pixelSize();
        const bool isVector = size == PixelSize{};
        const PixelSize target = isVector ? maximum
                                          : PixelSize{std::min(size.width, maximum.width),
                                                      std::min(size.height, maximum.height)};
        image->draw(target);
        if (image->pageCount() > 1 && image->selectPage(image->pageCount() - 1))
            image->draw(target);
    }
    if (const auto recording = module.openRecording ? module.openRecording(file) : nullptr)
        recording->frame(std::min(std::max(recording->duration() * 0.5, 0.0), 0.5), maximum.width);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const FileDescriptor descriptor = fileOf(data, size);
    const InputFile file(descriptor.get());
    // Like the decoder, this treats a file that needs too much as one without a picture.
    try {
        open(file);
    } catch (const std::exception&) {
        return 0;
    }
    return 0;
}
