#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "platform/UpdateItem.h"

namespace vantle {

/// What the program that does the work on updates (vantle-updater) tells, in one line each. Texts
/// are for people.
namespace report {

/// The feed is there, whole, and signed.
struct FeedLoaded {
    std::uint64_t items = 0;  ///< All that it offers, to anybody.
    std::int64_t date = 0;    ///< When it was made, in seconds since 1970.
    friend bool operator==(const FeedLoaded&, const FeedLoaded&) = default;
};
struct UpdateFound {
    UpdateItem item;
    friend bool operator==(const UpdateFound&, const UpdateFound&) = default;
};
/// There is nothing newer for this system.
struct NothingFound {
    std::string reason;
    friend bool operator==(const NothingFound&, const NothingFound&) = default;
};
/// Bytes of the file so far.
struct Progress {
    std::uint64_t received = 0;
    friend bool operator==(const Progress&, const Progress&) = default;
};
/// The file is there, whole, and signed; from here on it cannot be cancelled.
struct Installing {
    friend bool operator==(const Installing&, const Installing&) = default;
};
/// All is prepared: what is left is to end this copy and to start the new one.
struct Ready {
    friend bool operator==(const Ready&, const Ready&) = default;
};
struct Failed {
    std::string message;
    /// Where a person can get it, by HTTPS; empty where that would not help.
    std::string page;
    friend bool operator==(const Failed&, const Failed&) = default;
};
/// To the copy that was started again: the new version did not come up, so the one before it is
/// back.
struct RolledBack {
    std::string version;  ///< That failed; empty where it was not even tried.
    std::string message;
    friend bool operator==(const RolledBack&, const RolledBack&) = default;
};

}  // namespace report

using UpdateReport =
    std::variant<report::FeedLoaded, report::UpdateFound, report::NothingFound, report::Progress,
                 report::Installing, report::Ready, report::Failed, report::RolledBack>;

/// Without the end of the line.
std::string lineOf(const UpdateReport& report);

/// Absent when the line is not one of these.
std::optional<UpdateReport> reportFrom(std::string_view line);

}  // namespace vantle
