#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/UpdateItem.h"

namespace vantle {

/// The reports of vantle-updater, the program that does the work on updates. It writes each as one
/// line. Texts are for the user.
namespace report {

/// The feed was loaded; it is complete and its signature is valid.
struct FeedLoaded {
    std::uint64_t items = 0;  ///< The number of items in the feed, for all systems.
    std::int64_t date = 0;    ///< When the feed was made, in seconds since 1970.
    friend bool operator==(const FeedLoaded&, const FeedLoaded&) = default;
};
struct UpdateFound {
    UpdateItem item;
    friend bool operator==(const UpdateFound&, const UpdateFound&) = default;
};
/// The feed has nothing newer for this system.
struct NothingFound {
    std::string reason;
    friend bool operator==(const NothingFound&, const NothingFound&) = default;
};
/// The number of bytes of the file that have been received.
struct Progress {
    std::uint64_t received = 0;
    friend bool operator==(const Progress&, const Progress&) = default;
};
/// The file was received; it is complete and its signature is valid. From here on the update cannot
/// be cancelled.
struct Installing {
    friend bool operator==(const Installing&, const Installing&) = default;
};
/// The update is prepared. What remains is to end this copy and to start the new one.
struct Ready {
    friend bool operator==(const Ready&, const Ready&) = default;
};
struct Failed {
    std::string message;
    /// The HTTPS address of a page where the user can get it; empty if that would not help.
    std::string page;
    friend bool operator==(const Failed&, const Failed&) = default;
};
/// Sent to the copy that was started again: the new version did not start, so the previous one was
/// restored.
struct RolledBack {
    std::string version;  ///< The version that failed; empty if it was not even tried.
    std::string message;
    friend bool operator==(const RolledBack&, const RolledBack&) = default;
};

}  // namespace report

using UpdateReport =
    std::variant<report::FeedLoaded, report::UpdateFound, report::NothingFound, report::Progress,
                 report::Installing, report::Ready, report::Failed, report::RolledBack>;

/// Returns the line of the report, without a line break.
std::string formatReport(const UpdateReport& report);

/// Returns the report in the line; absent if the line holds none.
std::optional<UpdateReport> parseReport(std::string_view line);

}  // namespace vantle
