#include "fakes/FakeFileSystem.h"

#include <algorithm>
#include <cerrno>
#include <cstring>

namespace vantle::fakes {
namespace {

bool isBelow(const std::string& path, const std::string& folder) {
    return path.size() > folder.size() && path.starts_with(folder) &&
           (folder == "/" || path[folder.size()] == '/');
}

Failure failure(int error, const Url& url) {
    return Failure{error, std::strerror(error), url.path()};
}

}  // namespace

class FakeFileSystem::Source final : public DirectoryEventSource,
                                     public std::enable_shared_from_this<Source> {
public:
    Source(SerialQueue& queue, Url folder, int descriptor, Handler handler)
        : queue_(queue),
          folder_(std::move(folder)),
          descriptor_(descriptor),
          handler_(std::move(handler)) {}

    int descriptor() const override { return descriptor_; }
    void cancel() override { cancelled_ = true; }

    void resume() override {
        resumed_ = true;
        if (waiting_.contents || waiting_.lost) post();
    }

    void add(DirectoryChange change) {
        if (cancelled_ || lost_) return;
        const bool wasWaiting = waiting_.contents || waiting_.lost;
        waiting_.contents |= change.contents;
        waiting_.lost |= change.lost;
        lost_ |= change.lost;
        if (resumed_ && !wasWaiting) post();
    }

    const Url& folder() const { return folder_; }
    void setFolder(Url folder) { folder_ = std::move(folder); }
    bool isOpen() const { return !cancelled_; }

private:
    void post() {
        queue_.async([weak = weak_from_this()] {
            const auto self = weak.lock();
            if (!self || self->cancelled_) return;
            self->handler_(std::exchange(self->waiting_, {}));
        });
    }

    SerialQueue& queue_;
    Url folder_;
    int descriptor_;
    Handler handler_;
    DirectoryChange waiting_;
    bool resumed_ = false;
    bool cancelled_ = false;
    bool lost_ = false;
};

FakeFileSystem::FakeFileSystem(SerialQueue& queue) : queue_(queue) {
    entries_["/"] = Entry{.isDirectory = true};
}

FakeFileSystem::~FakeFileSystem() = default;

void FakeFileSystem::write(const Url& file, std::int64_t size, Date modified) {
    auto& entry = entries_[file.path()];
    if (entry.order == 0) entry.order = nextOrder_++;
    entry.size = size;
    entry.modified = modified;
    report(file.deletingLastPathComponent(), {.contents = true});
}

void FakeFileSystem::changeSilently(const Url& file, const std::function<void(Entry&)>& edit) {
    edit(entries_.at(file.path()));
}

void FakeFileSystem::change(const Url& file, const std::function<void(Entry&)>& edit) {
    changeSilently(file, edit);
    report(file.deletingLastPathComponent(), {.contents = true});
}

void FakeFileSystem::remove(const Url& file) {
    entries_.erase(file.path());
    report(file.deletingLastPathComponent(), {.contents = true});
}

void FakeFileSystem::removeDirectory(const Url& folder) {
    std::erase_if(entries_, [&](const auto& entry) {
        return entry.first == folder.path() || isBelow(entry.first, folder.path());
    });
    report(folder, {.contents = true, .lost = true});
    report(folder.deletingLastPathComponent(), {.contents = true});
}

void FakeFileSystem::moveDirectory(const Url& from, const Url& to) {
    std::map<std::string, Entry> moved;
    for (const auto& [path, entry] : entries_) {
        const bool inside = path == from.path() || isBelow(path, from.path());
        moved[inside ? to.path() + path.substr(from.path().size()) : path] = entry;
    }
    entries_ = std::move(moved);
    report(from, {.lost = true});
    for (const Url& folder : {from, to})
        report(folder.deletingLastPathComponent(), {.contents = true});
}

void FakeFileSystem::revoke(const Url& folder) {
    std::erase_if(entries_, [&](const auto& entry) { return isBelow(entry.first, folder.path()); });
    report(folder, {.lost = true});
}

void FakeFileSystem::touch(const Url& folder) {
    report(folder, {.contents = true});
}

void FakeFileSystem::failListing(const Url& folder, int error) {
    listingErrors_[folder.path()] = error;
}

void FakeFileSystem::failOpening(const Url& folder, int error) {
    openingErrors_[folder.path()] = error;
}

void FakeFileSystem::makeReadOnly(const Url& folder) {
    readOnly_.insert(folder.path());
}

std::size_t FakeFileSystem::openSources() const {
    return static_cast<std::size_t>(std::ranges::count_if(sources_, [](const auto& weak) {
        const auto source = weak.lock();
        return source && source->isOpen();
    }));
}

FileManager::Existence FakeFileSystem::existence(const Url& url) const {
    const auto found = entries_.find(url.path());
    if (found == entries_.end()) return Existence::none;
    return found->second.isDirectory ? Existence::directory : Existence::file;
}

Result<NameList> FakeFileSystem::contentsOfDirectory(const Url& folder) const {
    ++listings_;
    if (existence(folder) == Existence::none) return failure(ENOENT, folder);
    if (existence(folder) == Existence::file) return failure(ENOTDIR, folder);
    if (const auto error = listingErrors_.find(folder.path());
        error != listingErrors_.end() && error->second != 0)
        return failure(error->second, folder);

    std::vector<std::pair<std::uint64_t, std::string>> found;
    for (const auto& [path, entry] : entries_) {
        const Url url = Url::file(path);
        if (path == "/" || !(url.deletingLastPathComponent() == folder)) continue;
        if (url.lastPathComponent().starts_with('.')) continue;
        found.emplace_back(entry.order, url.lastPathComponent());
    }
    std::ranges::sort(found);
    NameList names;
    for (const auto& [order, name] : found) names.add(name);
    return names;
}

Result<ResourceValues> FakeFileSystem::resourceValues(const Url& url) const {
    ++inspections_;
    const auto found = entries_.find(url.path());
    if (found == entries_.end()) return failure(ENOENT, url);
    const Entry& entry = found->second;
    if (!entry.valuesAreReadable) return failure(EACCES, url);
    return ResourceValues{entry.created, entry.modified,
                          entry.isDirectory ? std::optional(false) : entry.isRegularFile};
}

std::optional<std::int64_t> FakeFileSystem::fileSize(const Url& url) const {
    ++inspections_;
    const auto found = entries_.find(url.path());
    if (found == entries_.end() || !found->second.sizeIsReadable) return std::nullopt;
    return found->second.size;
}

Outcome FakeFileSystem::createDirectory(const Url& folder) {
    const auto standing = existence(folder);
    if (standing == Existence::directory) return {};
    if (standing == Existence::file) return failure(EEXIST, folder);
    if (isReadOnly(folder)) return failure(EACCES, folder);
    if (auto failed = createDirectory(folder.deletingLastPathComponent())) return failed;
    entries_[folder.path()] = Entry{.isDirectory = true, .order = nextOrder_++};
    report(folder.deletingLastPathComponent(), {.contents = true});
    return {};
}

Outcome FakeFileSystem::write(const std::string& contents, const Url& file) {
    if (existence(file) == Existence::directory) return failure(EISDIR, file);
    if (isReadOnly(file)) return failure(EACCES, file);
    contents_[file.path()] = contents;
    write(file, static_cast<std::int64_t>(contents.size()), Date{});
    return {};
}

Outcome FakeFileSystem::rename(const Url& from, const Url& to) {
    constexpr std::size_t longestName = 255;
    if (existence(from) == Existence::none) return failure(ENOENT, from);
    if (to.lastPathComponent().size() > longestName) return failure(ENAMETOOLONG, to);
    if (from == to) return {};
    if (existence(to) != Existence::none) return failure(EEXIST, to);
    if (isReadOnly(from) || isReadOnly(to)) return failure(EACCES, to);
    Entry entry = entries_.at(from.path());
    entries_.erase(from.path());
    entry.order = nextOrder_++;
    entries_[to.path()] = entry;
    report(from.deletingLastPathComponent(), {.contents = true});
    report(to.deletingLastPathComponent(), {.contents = true});
    return {};
}

std::string FakeFileSystem::contents(const Url& file) const {
    const auto found = contents_.find(file.path());
    return found == contents_.end() ? std::string() : found->second;
}

Result<std::shared_ptr<DirectoryEventSource>> FakeFileSystem::open(const Url& folder,
                                                                   Handler handler) {
    if (const auto error = openingErrors_.find(folder.path());
        error != openingErrors_.end() && error->second != 0)
        return failure(error->second, folder);
    if (existence(folder) == Existence::none) return failure(ENOENT, folder);
    if (existence(folder) == Existence::file) return failure(ENOTDIR, folder);
    auto source = std::make_shared<Source>(queue_, folder, nextDescriptor_++, std::move(handler));
    sources_.push_back(source);
    return std::shared_ptr<DirectoryEventSource>(source);
}

void FakeFileSystem::report(const Url& folder, DirectoryChange change) {
    for (const auto& weak : sources_) {
        const auto source = weak.lock();
        if (source && source->folder() == folder) source->add(change);
    }
}

bool FakeFileSystem::isReadOnly(const Url& url) const {
    return std::ranges::any_of(readOnly_,
                               [&](const auto& folder) { return isBelow(url.path(), folder); });
}

}  // namespace vantle::fakes
