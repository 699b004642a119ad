#pragma once

#include <memory>
#include <variant>
#include <vector>

#include "support/Url.h"

namespace vantle {

/// A picture that can be put on the clipboard. It lasts even when its file is moved or deleted.
class PasteboardImage {
public:
    virtual ~PasteboardImage() = default;
};

using PasteboardImagePointer = std::shared_ptr<const PasteboardImage>;

/// One thing on the clipboard: a file, or a picture.
using PasteboardObject = std::variant<Url, PasteboardImagePointer>;

/// The clipboard that all programs share. Main thread only.
class Pasteboard {
public:
    virtual ~Pasteboard() = default;

    virtual void clearContents() = 0;

    /// Offers the objects as one content, what comes first preferred: the picture as an image of
    /// several types, made when somebody asks; the files as what file managers paste and as text.
    /// There is at most one picture.
    virtual void writeObjects(const std::vector<PasteboardObject>& objects) = 0;

    /// The picture that an image file holds, for a file that was one when it was last drawn; null
    /// when it cannot be had any more, or breaks off. Does not wait until it is read.
    virtual PasteboardImagePointer loadImage(const Url& url) = 0;
};

}  // namespace vantle
