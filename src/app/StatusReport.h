#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/Fact.h"
#include "platform/FileManager.h"
#include "settings/Settings.h"
#include "support/SystemLog.h"

namespace vantle {

/// Whether a report may name the user's folders and files.
enum class Paths { hidden, shown };

/// Lines of "name: value".
std::string reportLines(const std::vector<Fact>& facts);

/// Where a folder is, told without its name where paths are hidden.
std::string placeOf(const Url& folder, const FileManager& files, Paths paths);

/// What the user has chosen, in one line; nothing of it is private.
Fact settingsFact(const Settings& settings);

/// The messages with their times, or that there are none.
std::vector<Fact> logFacts(const std::vector<LoggedMessage>& messages, Paths paths);

/// The line up to the first path in it, which becomes "(path)" with all that follows: a path can
/// hold anything, so nobody knows where it ends. Only a reason that the system or the program gives
/// in those words is kept, behind the last ": ".
std::string withoutPaths(std::string_view line);

}  // namespace vantle
