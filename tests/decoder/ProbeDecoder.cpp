// A decoder that tries everything that a decoder may not do, for each file that it must open. It
// reports a "picture" whose width is the number of attempts that succeeded, and whose height is the
// number of attempts that the system refused. It dies at its second file.

#include <unistd.h>

#include <cstdlib>

#include "decoder/ForbiddenAttempts.h"
#include "decoder/service/Service.h"

namespace {

using namespace vantle;
using namespace vantle::decoder;

class Attempts final : public StillImage {
public:
    Attempts() {
        const auto [succeeded, refused] = forbidden::tryAll();
        outcomes_ = {succeeded, refused};
    }

    PixelSize pixelSize() const override { return outcomes_; }
    Size pointSize() const override { return {static_cast<double>(forbidden::attempts.size()), 0}; }
    std::optional<Picture> draw(PixelSize) override { return std::nullopt; }

private:
    PixelSize outcomes_;
};

std::unique_ptr<StillImage> openImage(const InputFile&) {
    static int files = 0;
    if (++files == 2) std::abort();
    return std::make_unique<Attempts>();
}

const FormatModule* probe(Format) {
    static const FormatModule module{.openImage = openImage};
    return &module;
}

}  // namespace

int main(int argc, char** argv) {
    _exit(argc == 3 ? runService(argv[2], probe) : 2);
}
