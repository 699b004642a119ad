#pragma once

#include <functional>

#include "platform/FileManager.h"
#include "platform/linux/MountTable.h"
#include "support/Environment.h"

namespace vantle {

/// The file system of a Linux desktop. A recording that some process still holds open for writing
/// is not reported as a regular file: recorders leave gaps of many seconds in which the file does
/// not grow, so its size alone would not tell that it is unfinished.
class LinuxFileManager final : public FileManager {
public:
    /// `isRecording` says by its name whether a file is one. It is called on any thread.
    LinuxFileManager(Environment environment, std::function<bool(const Url&)> isRecording,
                     MountFiles mounts = {});

    Existence existence(const Url& url) const override;
    bool isRemote(const Url& url) const override;
    Result<NameList> contentsOfDirectory(const Url& folder) const override;
    Result<ResourceValues> resourceValues(const Url& url) const override;
    std::optional<std::int64_t> fileSize(const Url& url) const override;
    /// Makes none where a file system is expected and none is mounted: it would be hidden, and the
    /// captures in it, as soon as that comes.
    Outcome createDirectory(const Url& folder) override;
    Outcome write(const std::string& contents, const Url& file) override;
    /// In $TMPDIR, or /tmp, which other users may write to as well: a folder that only this user
    /// can enter.
    Result<Url> temporaryDirectory() override;
    Url homeDirectory() const override;
    std::optional<Url> homeDirectory(const std::string& user) const override;
    std::optional<Url> desktopDirectory() const override;

private:
    Environment environment_;
    std::function<bool(const Url&)> isRecording_;
    MountFiles mounts_;
};

}  // namespace vantle
