#pragma once

#include <functional>
#include <set>
#include <string>
#include <vector>

#include "platform/FileManager.h"
#include "platform/Pasteboard.h"

namespace vantle::fakes {

/// A private clipboard. Every file that exists counts as a picture, except those in `damaged`.
class FakePasteboard final : public Pasteboard {
public:
    explicit FakePasteboard(const FileManager& files) : files_(files) {}

    struct Picture final : PasteboardImage {
        explicit Picture(Url file) : url(std::move(file)) {}
        const Url url;
    };

    void clearContents() override { objects_.clear(); }
    void writeObjects(const std::vector<PasteboardObject>& objects) override {
        objects_ = objects;
        ++timesWritten;
        if (onWrite) onWrite();
    }
    PasteboardImagePointer loadImage(const Url& url) override {
        if (damaged.contains(url.path()) || files_.existence(url) != FileManager::Existence::file)
            return nullptr;
        return std::make_shared<Picture>(url);
    }

    /// Returns its contents in order: "image /a.png" for a picture, "file /a.png" for a file,
    /// "text Words" for a text.
    std::vector<std::string> contents() const {
        std::vector<std::string> contents;
        for (const auto& object : objects_) {
            if (const auto* file = std::get_if<Url>(&object))
                contents.push_back("file " + file->path());
            else if (const auto* text = std::get_if<std::string>(&object))
                contents.push_back("text " + *text);
            else
                contents.push_back("image " + pictureOf(object).url.path());
        }
        return contents;
    }

    std::set<std::string> damaged;
    int timesWritten = 0;
    std::function<void()> onWrite;

private:
    static const Picture& pictureOf(const PasteboardObject& object) {
        return dynamic_cast<const Picture&>(*std::get<PasteboardImagePointer>(object));
    }

    const FileManager& files_;
    std::vector<PasteboardObject> objects_;
};

}  // namespace vantle::fakes
