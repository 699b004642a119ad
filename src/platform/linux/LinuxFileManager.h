#pragma once

#include <functional>

#include "platform/FileManager.h"
#include "platform/linux/MountTable.h"
#include "support/Environment.h"

namespace vantle {

/// The file system of a Linux desktop. A recording that a process still holds open for writing is
/// not reported as a regular file: a recorder may pause for many seconds, during which the file
/// does not grow, so its size does not show that it is unfinished.
class LinuxFileManager final : public FileManager {
public:
    /// `isRecording` returns true if a file's name is that of a recording; called on any thread.
    LinuxFileManager(Environment environment, std::function<bool(const Url&)> isRecording,
                     MountFiles mounts = {});

    Existence existence(const Url& url) const override;
    bool isRemote(const Url& url) const override;
    Result<NameList> contentsOfDirectory(const Url& folder) const override;
    Result<ResourceValues> resourceValues(const Url& url) const override;
    std::optional<std::int64_t> fileSize(const Url& url) const override;
    /// Fails if a file system is expected there but not mounted: mounting it would hide the folder
    /// and the captures in it.
    Outcome createDirectory(const Url& folder) override;
    Outcome write(const std::string& contents, const Url& file) override;
    Outcome rename(const Url& from, const Url& to) override;
    /// Returns a folder that only this user can enter, in $TMPDIR or /tmp, to which other users may
    /// be able to write as well.
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
