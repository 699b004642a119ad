#include "panel/Renaming.h"

#include <algorithm>
#include <system_error>

#include "panel/NewName.h"
#include "support/Localization.h"

namespace vantle {
namespace {

/// Returns why the file could not be renamed, for the user.
std::string reasonOf(const Failure& failure) {
    switch (std::errc(failure.code)) {
        case std::errc::file_exists:
            return localized("Renaming", "A file of this name exists already.");
        case std::errc::permission_denied:
        case std::errc::operation_not_permitted:
        case std::errc::read_only_file_system:
            return localized("Renaming", "The folder cannot be changed.");
        case std::errc::filename_too_long:
            return localized("Renaming", "The name is too long.");
        case std::errc::no_such_file_or_directory:
            return localized("Renaming", "The file is gone.");
        default:
            return failure.message;
    }
}

}  // namespace

void Renaming::begin(const CapturePointer& capture) {
    heldCountdown_ = services_.countdown.hold();
    services_.state.renaming.set(PanelState::Renaming{capture->id(), {}});
}

void Renaming::cancel() {
    if (services_.state.renaming.value()) services_.state.renaming.set(std::nullopt);
    heldCountdown_.reset();
}

CapturePointer Renaming::current() const {
    const auto& renaming = services_.state.renaming.value();
    if (!renaming) return nullptr;
    const auto& captures = services_.state.captures.value();
    const auto found = std::ranges::find(captures, renaming->captureID,
                                         [](const auto& capture) { return capture->id(); });
    return found == captures.end() ? nullptr : *found;
}

void Renaming::finish(const std::string& typed) {
    const CapturePointer capture = current();
    if (!capture) return cancel();
    const NewName name = newName(capture->fileName(), typed);
    if (!name.refusal.empty()) return refuse(name.refusal);
    if (name.fileName.empty()) return cancel();
    rename(capture, capture->url().deletingLastPathComponent().appending(name.fileName));
}

void Renaming::refuse(const std::string& reason) {
    auto renaming = services_.state.renaming.value();
    renaming->refusal = reason;
    services_.state.renaming.set(std::move(renaming));
}

void Renaming::rename(const CapturePointer& capture, const Url& to) {
    const Url from = capture->url();
    willMove(to);
    const Outcome failure = services_.files.rename(from, to);
    didMove(from, to, !failure);
    if (failure) return refuse(reasonOf(*failure));
    auto captures = services_.state.captures.value();
    std::ranges::replace(captures, capture, CapturePointer(capture->renamed(to)));
    services_.state.captures.set(std::move(captures));
    cancel();
}

}  // namespace vantle
