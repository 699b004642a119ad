#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "app/StatusBarController.h"
#include "capture/CaptureWatcher.h"
#include "capture/RecordingsWatcher.h"
#include "panel/CapturePanelController.h"
#include "platform/FileManager.h"
#include "platform/ReportLine.h"
#include "settings/Settings.h"
#include "support/SystemLog.h"

namespace vantle {

/// Decides if a report names the user's folders and files.
enum class Paths { hidden, shown };

/// Reports what the program is doing, for a person. Main thread only.
class StatusReport {
public:
    /// All members must outlive the report; the functions may be empty.
    struct Sources {
        const Settings& settings;
        const FileManager& files;
        const CapturePanelController& panel;
        const CaptureWatcher& watcher;
        const RecordingsWatcher& recordings;
        const StatusBarController& statusBar;
        const std::function<Url()>& recordingsFolder;
        const std::function<std::string()>& displayServer;
        const std::function<std::vector<ReportLine>()>& environmentReport;
    };

    explicit StatusReport(const Sources& sources) : sources_(sources) {}

    /// Returns a short report. With "verbose", returns all that a bug report needs, without paths
    /// unless "with-paths" is given as well.
    std::string text(const std::vector<std::string>& arguments) const;

private:
    const char* state() const;
    std::vector<ReportLine> lines(Paths paths) const;
    std::vector<ReportLine> recordingsReport(Paths paths) const;

    Sources sources_;
};

/// Returns lines of the form "name: value".
std::string reportText(const std::vector<ReportLine>& lines);

/// Returns the path of a folder, or only where it is relative to the home directory if paths are
/// hidden.
std::string folderDescription(const Url& folder, const FileManager& files, Paths paths);

/// Returns the messages with their times, or a line that says that there are none. If paths are
/// hidden, the reasons that were logged separately are still included.
std::vector<ReportLine> logReport(const std::vector<LoggedMessage>& messages, Paths paths);

/// Returns the text with its first path, and everything after that, replaced by "(path)". A path
/// can contain any character, so its end cannot be found.
std::string withoutPaths(std::string_view text);

}  // namespace vantle
