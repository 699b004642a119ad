#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/DirectoryEvents.h"
#include "platform/FileManager.h"
#include "platform/SerialQueue.h"

namespace vantle::fakes {

/// A file system in memory. Implements FileManager, and DirectoryEvents on the queue that it is
/// made with. Folders list their entries in the order of creation.
class FakeFileSystem final : public FileManager, public DirectoryEvents {
public:
    explicit FakeFileSystem(SerialQueue& queue);
    ~FakeFileSystem() override;

    struct Entry {
        bool isDirectory = false;
        std::int64_t size = 0;
        std::optional<Date> created;
        std::optional<Date> modified;
        std::optional<bool> isRegularFile = true;
        bool sizeIsReadable = true;
        bool valuesAreReadable = true;
        std::uint64_t order = 0;
    };

    /// Creates or replaces a file and reports the change in its folder.
    void write(const Url& file, std::int64_t size, Date modified);
    /// Changes a file's entry in place and reports the change in its folder.
    void change(const Url& file, const std::function<void(Entry&)>& edit);
    /// Changes a file's entry in place without a report.
    void changeSilently(const Url& file, const std::function<void(Entry&)>& edit);
    void remove(const Url& file);

    void removeDirectory(const Url& folder);
    void moveDirectory(const Url& from, const Url& to);
    /// Removes the folder, as an unmount does.
    void revoke(const Url& folder);
    /// Reports a change although nothing changed.
    void touch(const Url& folder);
    /// Reports an overflow of the event queue: a change, with the events in between lost.
    void overflow(const Url& folder) { touch(folder); }

    /// Makes listing the folder fail with `error` from now on; 0 makes it work again.
    void failListing(const Url& folder, int error);
    void failOpening(const Url& folder, int error);
    void makeRemote(const Url& folder) { remote_.insert(folder.path()); }
    /// Prevents that anything is created below `folder` from now on.
    void makeReadOnly(const Url& folder);

    void setHome(const Url& home) { home_ = home; }
    void setDesktop(std::optional<Url> desktop) { desktop_ = std::move(desktop); }

    /// Returns what write() put into a file, or an empty string if it did not.
    std::string contents(const Url& file) const;

    std::size_t openSources() const;
    /// How often any folder was listed, and how often the size or values of any file were read.
    int listings() const { return listings_; }
    int inspections() const { return inspections_; }

    Existence existence(const Url& url) const override;
    bool isRemote(const Url& url) const override { return remote_.contains(url.path()); }
    Result<NameList> contentsOfDirectory(const Url& folder) const override;
    Result<ResourceValues> resourceValues(const Url& url) const override;
    std::optional<std::int64_t> fileSize(const Url& url) const override;
    Outcome createDirectory(const Url& folder) override;
    Outcome write(const std::string& contents, const Url& file) override;
    /// Reports the change in both folders.
    Outcome rename(const Url& from, const Url& to) override;
    Result<Url> temporaryDirectory() override { return Url::file("/tmp/user"); }
    Url homeDirectory() const override { return home_; }
    std::optional<Url> homeDirectory(const std::string& user) const override {
        return user == "other" ? std::optional(Url::file("/home/other")) : std::nullopt;
    }
    std::optional<Url> desktopDirectory() const override { return desktop_; }

    Result<std::shared_ptr<DirectoryEventSource>> open(const Url& folder, Handler handler) override;

private:
    class Source;

    void report(const Url& folder, DirectoryChange change);
    bool isReadOnly(const Url& url) const;

    SerialQueue& queue_;
    std::map<std::string, Entry> entries_;
    std::map<std::string, std::string> contents_;
    std::map<std::string, int> listingErrors_;
    std::map<std::string, int> openingErrors_;
    std::set<std::string> readOnly_;
    std::set<std::string> remote_;
    std::vector<std::weak_ptr<Source>> sources_;
    std::uint64_t nextOrder_ = 1;
    int nextDescriptor_ = 3;
    mutable int listings_ = 0;
    mutable int inspections_ = 0;
    Url home_ = Url::file("/home/user");
    std::optional<Url> desktop_ = Url::file("/home/user/Desktop");
};

}  // namespace vantle::fakes
