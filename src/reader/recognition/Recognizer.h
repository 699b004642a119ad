#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "reader/recognition/GrayPicture.h"

namespace vantle::reader {

/// Recognizes printed text with Tesseract.
class Recognizer {
public:
    /// Gets how much is done, from 0 to 1. Returns false to stop.
    using OnProgress = std::function<bool(double)>;

    /// Loads the library, and the data of all `languages` ("deu+eng") from `folder`. Returns null
    /// if it cannot; `reason` then says why.
    static std::unique_ptr<Recognizer> load(const std::string& folder, const std::string& languages,
                                            std::string& reason);

    virtual ~Recognizer() = default;

    /// Returns the text in UTF-8, which is empty if there is none. Returns nothing if it was
    /// stopped or the library cannot handle the picture.
    virtual std::optional<std::string> text(const GrayPicture& picture,
                                            const OnProgress& onProgress) = 0;
};

}  // namespace vantle::reader
