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

/// Whether a report may name the user's folders and files.
enum class Paths { hidden, shown };

/// What the program is doing, for a person. Main thread only.
class StatusReport {
public:
    /// All outlive it; the functions may be empty.
    struct Sources {
        const Settings& settings;
        const FileManager& files;
        const CapturePanelController& panel;
        const CaptureWatcher& watcher;
        const RecordingsWatcher& recordings;
        const StatusBarController& statusBar;
        const std::function<Url()>& recordingsFolder;
        const std::function<std::string()>& displayServer;
        const std::function<std::vector<ReportLine>()>& surroundings;
    };

    explicit StatusReport(const Sources& sources) : sources_(sources) {}

    /// In short; or "verbose", all that a report of a fault needs, without paths unless
    /// "with-paths" is asked for as well.
    std::string text(const std::vector<std::string>& arguments) const;

private:
    const char* state() const;
    std::vector<ReportLine> lines(Paths paths) const;
    std::vector<ReportLine> recordingsReport(Paths paths) const;

    Sources sources_;
};

/// Lines of "name: value".
std::string reportText(const std::vector<ReportLine>& lines);

/// Where a folder is, told without its name where paths are hidden.
std::string placeOf(const Url& folder, const FileManager& files, Paths paths);

/// The messages with their times, or that there are none. Where paths are hidden, the reasons that
/// were logged apart are still told.
std::vector<ReportLine> logReport(const std::vector<LoggedMessage>& messages, Paths paths);

/// The text up to the first path in it, which becomes "(path)" with all that follows: a path can
/// hold anything, so nobody knows where it ends.
std::string withoutPaths(std::string_view text);

}  // namespace vantle
