#include "reader/recognition/Recognizer.h"

#include <dlfcn.h>
#include <tesseract/capi.h>

#include <algorithm>
#include <type_traits>

#include "reader/protocol/Messages.h"

namespace vantle::reader {
namespace {

struct Library {
    decltype(&TessBaseAPICreate) create = nullptr;
    decltype(&TessBaseAPIDelete) destroy = nullptr;
    decltype(&TessBaseAPIInit2) initialize = nullptr;
    decltype(&TessBaseAPISetPageSegMode) setPageSegmentation = nullptr;
    decltype(&TessBaseAPISetImage) setImage = nullptr;
    decltype(&TessBaseAPIRecognize) recognize = nullptr;
    decltype(&TessBaseAPIGetUTF8Text) text = nullptr;
    decltype(&TessDeleteText) deleteText = nullptr;
    decltype(&TessMonitorCreate) createMonitor = nullptr;
    decltype(&TessMonitorDelete) destroyMonitor = nullptr;
    decltype(&TessMonitorSetCancelFunc) setCancelFunction = nullptr;
    decltype(&TessMonitorSetCancelThis) setCancelArgument = nullptr;
    decltype(&TessMonitorGetProgress) progress = nullptr;

    /// Returns false if the library or one of the functions is missing; dlerror() then says which.
    bool load() {
        void* handle = dlopen(recognitionLibrary, RTLD_LAZY | RTLD_LOCAL);
        if (!handle) return false;
        const auto find = [handle](auto& function, const char* name) {
            function =
                reinterpret_cast<std::remove_reference_t<decltype(function)>>(dlsym(handle, name));
            return function != nullptr;
        };
        return find(create, "TessBaseAPICreate") && find(destroy, "TessBaseAPIDelete") &&
               find(initialize, "TessBaseAPIInit2") &&
               find(setPageSegmentation, "TessBaseAPISetPageSegMode") &&
               find(setImage, "TessBaseAPISetImage") && find(recognize, "TessBaseAPIRecognize") &&
               find(text, "TessBaseAPIGetUTF8Text") && find(deleteText, "TessDeleteText") &&
               find(createMonitor, "TessMonitorCreate") &&
               find(destroyMonitor, "TessMonitorDelete") &&
               find(setCancelFunction, "TessMonitorSetCancelFunc") &&
               find(setCancelArgument, "TessMonitorSetCancelThis") &&
               find(progress, "TessMonitorGetProgress");
    }
};

class Tesseract final : public Recognizer {
public:
    explicit Tesseract(const Library& library) : library_(library), engine_(library.create()) {}
    ~Tesseract() override { library_.destroy(engine_); }
    Tesseract(const Tesseract&) = delete;
    Tesseract& operator=(const Tesseract&) = delete;

    bool initialize(const std::string& folder, const std::string& languages) {
        if (library_.initialize(engine_, folder.c_str(), languages.c_str(),
                                tesseract::OEM_LSTM_ONLY) != 0)
            return false;
        library_.setPageSegmentation(engine_, tesseract::PSM_AUTO);
        return true;
    }

    std::optional<std::string> text(const GrayPicture& picture,
                                    const OnProgress& onProgress) override {
        library_.setImage(engine_, picture.pixels.data(), picture.size.width, picture.size.height,
                          1, picture.size.width);
        if (!recognize(onProgress)) return std::nullopt;
        char* const found = library_.text(engine_);
        if (!found) return std::nullopt;
        std::string text = found;
        library_.deleteText(found);
        return text;
    }

private:
    struct Watch {
        const Library& library;
        ETEXT_DESC* monitor;
        const OnProgress& onProgress;
    };

    /// The library calls this before each word.
    static bool mustStop(void* watch, int) {
        const auto& [library, monitor, onProgress] = *static_cast<const Watch*>(watch);
        // The first pass over all words takes nearly all of the time and counts as 70 %.
        constexpr double percentOfFirstPass = 70;
        return !onProgress(std::min(1.0, library.progress(monitor) / percentOfFirstPass));
    }

    bool recognize(const OnProgress& onProgress) {
        ETEXT_DESC* const monitor = library_.createMonitor();
        Watch watch{library_, monitor, onProgress};
        library_.setCancelFunction(monitor, &mustStop);
        library_.setCancelArgument(monitor, &watch);
        const bool isDone = library_.recognize(engine_, monitor) == 0;
        library_.destroyMonitor(monitor);
        return isDone;
    }

    const Library library_;
    TessBaseAPI* const engine_;
};

}  // namespace

std::unique_ptr<Recognizer> Recognizer::load(const std::string& folder,
                                             const std::string& languages, std::string& reason) {
    Library library;
    if (!library.load()) {
        reason = dlerror();
        return nullptr;
    }
    auto tesseract = std::make_unique<Tesseract>(library);
    if (tesseract->initialize(folder, languages)) return tesseract;
    reason = "the data of " + languages + " in " + folder + " cannot be loaded";
    return nullptr;
}

}  // namespace vantle::reader
