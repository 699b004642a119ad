#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// A picture for the clipboard. It stays valid even if its file is moved or deleted.
class PasteboardImage {
public:
    virtual ~PasteboardImage() = default;
};

using PasteboardImagePointer = std::shared_ptr<const PasteboardImage>;

/// One thing on the clipboard: a file, a picture, or a text in UTF-8.
using PasteboardObject = std::variant<Url, PasteboardImagePointer, std::string>;

/// The clipboard that all programs share. Main thread only.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    virtual void clearContents() = 0;

    /// Offers the objects as one content, the first ones preferred: the picture as an image of
    /// several types, each made on request; the files as file managers paste them, and as text.
    /// There is at most one picture. A text is the only object.
    virtual void writeObjects(const std::vector<PasteboardObject>& objects) = 0;

    /// Returns the picture in an image file that could be drawn before; null if the file can no
    /// longer be read or is truncated. Does not wait until the whole file is read.
    virtual PasteboardImagePointer loadImage(const Url& url) = 0;
};

}  // namespace vantle
